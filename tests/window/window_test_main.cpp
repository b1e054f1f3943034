// Runs the window's tests in a home folder of their own, with the toolkit's own dialogs.
#include "window/windowed_program.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// The offscreen platform complains of each window that comes forward.
void ShowUnlessPlatformCantHelp(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(ShowUnlessPlatformCantHelp);
    const QTemporaryDir home;
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(folder, home.path().toUtf8());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false); // each test has its own last window
    Hesperin::WindowedProgram::DressApplication();
    return RUN_ALL_TESTS();
}
