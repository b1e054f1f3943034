#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <functional>

namespace Hesperin {

/// Watches one file, also while it is replaced by another of its name, and nothing for long.
class WatchedFile {
public:
    /// `look` runs soon after something about the file, or its folder, has changed.
    explicit WatchedFile(std::function<void()> look);

    /// Watches `path` from now on; nothing when that is empty.
    void Watch(const QString& path);

private:
    void WatchAgain();

    QString file;
    QFileSystemWatcher watcher;
    QTimer soon; // many changes at once are looked at once
};

} // namespace Hesperin
