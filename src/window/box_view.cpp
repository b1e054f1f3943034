#include "window/box_view.h"

#include "window/fonts.h"
#include "window/palette.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace Hesperin {

BoxView::BoxView(CheckBox& box, QWidget* parent, const QRect& place) : View(box, parent) {
    constexpr int indicator = 22; // with its gap to the caption
    setGeometry(place);
    setText(control.Caption());
    setAccessibleName(control.Caption());
    setFont(FittingFont(BoxFont(), control.Caption(), place.width() - indicator));
    connect(this, &QCheckBox::clicked, this, [this](bool checked) { control.SetTicked(checked); });
    SyncAll();
}

void BoxView::Sync() {
    setChecked(control.Ticked());
}

void BoxView::SetStanding(Standing value) {
    if (std::exchange(standing, value) != value)
        update();
}

bool BoxView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !untickedToolTip || control.Ticked())
        return QCheckBox::event(event);
    QToolTip::showText(static_cast<const QHelpEvent*>(event)->globalPos(), untickedToolTip(), this);
    return true;
}

void BoxView::paintEvent(QPaintEvent* event) {
    QCheckBox::paintEvent(event);
    if (standing == Standing::Plain)
        return;
    QPainter painter(this);
    if (standing == Standing::Marked) {
        painter.setPen(QColor(Colours().Accent));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        return;
    }
    constexpr int veil = 190; // of 255
    QColor background(Colours().Background);
    background.setAlpha(veil);
    painter.fillRect(rect(), background);
}

void BoxView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton)
        control.RightClick();
    else
        QCheckBox::mousePressEvent(event);
}

} // namespace Hesperin
