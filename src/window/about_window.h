#pragma once

#include "window/secondary_window.h"

#include <QImage>

namespace Hesperin {

/// Tells what the program is: version, legal notice, purpose, and two pictures.
class AboutWindow : public SecondaryWindowView {
public:
    AboutWindow(Program& program, QWidget* mainWindow);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage pictures;
};

} // namespace Hesperin
