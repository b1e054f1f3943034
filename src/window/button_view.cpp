#include "window/button_view.h"

#include "window/faces.h"

namespace Hesperin {

ButtonView::ButtonView(Button& button, QWidget* parent, const QFont& buttonFace, const QRect& place)
    : View(button, parent), face(buttonFace) {
    setGeometry(place);
    connect(this, &QPushButton::clicked, this, [this] { control.Click(); });
    SyncAll();
}

void ButtonView::Sync() {
    constexpr int margins = 16;
    setText(control.Caption());
    setAccessibleName(control.Caption().trimmed());
    setFont(FittingFace(face, control.Caption(), width() - margins));
}

} // namespace Hesperin
