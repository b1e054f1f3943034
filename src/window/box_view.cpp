#include "window/box_view.h"

#include "window/fonts.h"

#include <QMouseEvent>

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

void BoxView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton)
        control.RightClick();
    else
        QCheckBox::mousePressEvent(event);
}

} // namespace Hesperin
