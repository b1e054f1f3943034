#include "window/watched_file.h"

#include <QFileInfo>

namespace Hesperin {

WatchedFile::WatchedFile(std::function<void()> look) {
    constexpr int pause = 100; // milliseconds, in which others finish what they write
    soon.setSingleShot(true);
    soon.setInterval(pause);
    for (const auto changed :
         {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged})
        QObject::connect(&watcher, changed, &soon, qOverload<>(&QTimer::start));
    QObject::connect(&soon, &QTimer::timeout, &soon, [this, look = std::move(look)] {
        WatchAgain();
        look();
    });
}

void WatchedFile::Watch(const QString& path) {
    if (file == path)
        return;
    if (const QStringList old = watcher.files() + watcher.directories(); !old.isEmpty())
        watcher.removePaths(old);
    file = path;
    WatchAgain();
}

/// What was replaced, or has come back, isn't watched by itself.
void WatchedFile::WatchAgain() {
    if (file.isEmpty())
        return;
    const QFileInfo place(file);
    for (const QString& path : {place.absoluteFilePath(), place.absolutePath()})
        if (QFileInfo::exists(path) && !watcher.files().contains(path) &&
            !watcher.directories().contains(path))
            watcher.addPath(path);
}

} // namespace Hesperin
