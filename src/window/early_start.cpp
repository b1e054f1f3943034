#include "window/early_start.h"

#include "system/hand_over.h"

#include <QLibrary>
#include <QThread>

namespace Hesperin {

namespace {

/// Reads the configuration of fonts, which the toolkit would otherwise do at the first text. On a
/// system without that library nothing happens.
void ReadFontConfiguration() {
#ifdef Q_OS_LINUX
    constexpr int version = 1;
    if (const QFunctionPointer initialise =
            QLibrary::resolve(QStringLiteral("fontconfig"), version, "FcInit"))
        initialise();
#endif
}

} // namespace

EarlyStart::EarlyStart() {
    QThread::currentThread(); // the toolkit takes the first thread that asks for the main one
    work = std::thread([this] {
        if (!platform.OtherInstance())
            TakeHandedOver(platform.SettingsFolder()); // it was meant for an earlier run
        ReadFontConfiguration();
    });
}

void EarlyStart::Await() {
    if (work.joinable())
        work.join();
}

} // namespace Hesperin
