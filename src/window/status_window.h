#pragma once

#include "window/secondary_window.h"

namespace Hesperin {

/// Shows the words of ShowStatus under the program's name with a red shadow.
class StatusWindow : public SecondaryWindowView {
public:
    StatusWindow(Program& program, QWidget* mainWindow, const QString& message);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Hesperin
