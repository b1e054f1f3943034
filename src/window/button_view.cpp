#include "window/button_view.h"

#include "window/fonts.h"

namespace Hesperin {

ButtonView::ButtonView(Button& button, QWidget* parent, const QFont& buttonFont, const QRect& place)
    : View(button, parent), wantedFont(buttonFont) {
    setGeometry(place);
    connect(this, &QPushButton::clicked, this, [this] { control.Click(); });
    SyncAll();
}

void ButtonView::Sync() {
    constexpr int margins = 16;
    setText(control.Caption());
    setAccessibleName(control.Caption().trimmed());
    setFont(FittingFont(wantedFont, control.Caption(), width() - margins));
}

} // namespace Hesperin
