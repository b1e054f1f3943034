#pragma once

#include "app/program.h"
#include "window/early_start.h"
#include "window/main_window.h"

#include <memory>

namespace Hesperin {

/// The program in its window, from start to end.
class WindowedProgram {
public:
    /// Style and palette of the application, which must exist by then.
    static void DressApplication();

    explicit WindowedProgram(EarlyStart& begun) : early(begun) {}

    /// Starts the program and shows the window; then opens `creatureFile`, unless that is empty.
    /// False: another instance runs, the user has been told, and nothing is shown.
    bool Start(const QString& creatureFile);

private:
    EarlyStart& early;
    Program program{early.platform};
    std::unique_ptr<MainWindow> window;
};

} // namespace Hesperin
