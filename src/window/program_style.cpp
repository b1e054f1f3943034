#include "window/program_style.h"

#include "window/palette.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QIcon>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOption>

namespace Hesperin {

namespace {

/// The toolkit allows 50 pixels beside a title in a plain font; most title bars are bold and have
/// more in them.
void LeaveRoomForTitle(QMessageBox& box) {
    constexpr int buttons = 150; // of a title bar, with its icon
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    font.setBold(true);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->setColumnMinimumWidth(grid->columnCount() - 1,
                                    QFontMetrics(font).horizontalAdvance(box.windowTitle()) +
                                        buttons);
}

/// `option` with the palette that gives the outlines in use.
template <typename Option>
Option WithOutline(Option option) {
    if (Colours().OutlineBase != Colours().Background)
        option.palette.setColor(QPalette::Window, QColor(Colours().OutlineBase));
    return option;
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton
               ? QIcon()
               : QProxyStyle::standardIcon(icon, option, widget);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == PE_Frame && frame != nullptr) {
        const QStyleOptionFrame outlined = WithOutline(*frame);
        return QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    }
    if (element == PE_PanelMenu) {
        const QStyleOption outlined = WithOutline(*option);
        return QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameFocusRect && (option->state & State_KeyboardFocusChange)) {
        painter->setPen(QColor::fromRgba(Colours().FocusLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control != CC_ComboBox || list == nullptr)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    const QStyleOptionComboBox outlined = WithOutline(*list);
    QProxyStyle::drawComplexControl(control, &outlined, painter, widget);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_TabBarTabShape && tab != nullptr &&
        option->palette.color(QPalette::Window) != QColor(Colours().Background)) {
        QStyleOptionTab framed(*tab); // or it would be filled with what is meant for its outline
        framed.features |= QStyleOptionTab::HasFrame;
        QProxyStyle::drawControl(element, &framed, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ProgramStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (auto* box = qobject_cast<QMessageBox*>(widget))
        LeaveRoomForTitle(*box);
}

} // namespace Hesperin
