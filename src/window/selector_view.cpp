#include "window/selector_view.h"

#include "window/units.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int Pitch = Pixels(240);
constexpr int ButtonSize = Pixels(200);
constexpr int LastOption = static_cast<int>(MultiOption::Options.size()) - 1;

} // namespace

SelectorView::SelectorView(MultiOption& selector, QWidget* parent, const QRect& place,
                           const QString& token)
    : View(selector, parent) {
    setGeometry(place);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(token + QLatin1String(" mastery"));
    SyncAll();
}

void SelectorView::Sync() {
    setAccessibleDescription(QLatin1String(
        MultiOption::Options.at(static_cast<std::size_t>(control.SelectedOption())).toolTip));
    update();
}

int SelectorView::OptionAt(QPoint place) {
    return std::clamp(place.x() / Pitch, 0, LastOption);
}

void SelectorView::Click(int option) {
    control.ClickOption(std::clamp(option, 0, LastOption));
}

bool SelectorView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(
        help->globalPos(),
        QLatin1String(
            MultiOption::Options.at(static_cast<std::size_t>(OptionAt(help->pos()))).toolTip),
        this);
    return true;
}

void SelectorView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    for (int option = 0; option <= LastOption; ++option) {
        const bool selected = option == control.SelectedOption();
        const QRectF ring =
            QRectF(option * Pitch, 0, ButtonSize, ButtonSize).adjusted(1, 1, -1, -1);
        const bool focused = selected && hasFocus();
        painter.setPen(
            QPen(palette().color(group, focused ? QPalette::Highlight : QPalette::Shadow),
                 focused ? 1.6 : 1));
        painter.setBrush(palette().brush(group, QPalette::Base));
        painter.drawEllipse(ring);
        if (!selected)
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(
            palette().color(group, isEnabled() ? QPalette::Highlight : QPalette::Text));
        painter.drawEllipse(ring.adjusted(3, 3, -3, -3));
    }
}

void SelectorView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Click(OptionAt(event->pos()));
}

void SelectorView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return Click(control.SelectedOption() - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return Click(control.SelectedOption() + 1);
    case Qt::Key_Home:
        return Click(0);
    case Qt::Key_End:
        return Click(LastOption);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace Hesperin
