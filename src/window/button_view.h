#pragma once

#include "form/captioned.h"
#include "window/view.h"

#include <QPushButton>

namespace Hesperin {

/// A push button whose caption shrinks until it fits.
class ButtonView : public View<QPushButton, Button> {
public:
    ButtonView(Button& button, QWidget* parent, const QFont& wantedFont, const QRect& place);

protected:
    void Sync() override;

private:
    QFont wantedFont;
};

} // namespace Hesperin
