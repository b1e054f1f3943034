#include "window/program_style.h"

#include "window/outline.h"

#include <QIcon>
#include <QStyleOption>

namespace Hesperin {

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (element != PE_FrameLineEdit || (option->state & State_HasFocus) != 0) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    constexpr int darker = 140;
    constexpr QColor shadow(0, 0, 0, 18);
    DrawOutline(*painter, option->rect, option->palette.window().color().darker(darker), 2);
    painter->fillRect(option->rect.adjusted(2, 1, -2, 2 - option->rect.height()), shadow);
}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton
               ? QIcon()
               : QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace Hesperin
