#pragma once

#include "window/secondary_window.h"

namespace Hesperin {

/// Name and description of the ability that was right-clicked, in the current language. Grows
/// with its text; what would be taller than the screen scrolls.
class AbilityWindow : public SecondaryWindowView {
public:
    AbilityWindow(Program& program, QWidget* mainWindow);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Hesperin
