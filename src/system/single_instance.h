#pragma once

#include <QLockFile>

#include <optional>

namespace Hesperin {

/// Another instance of the program that holds the lock of this user.
struct RunningInstance {
    QString otherHost; ///< the computer that it runs, or ran, on; empty when it runs on this one
    QString lockFile;
};

/// Holds the lock that marks the one running instance of the program for this user.
class SingleInstance {
public:
    /// `folder` is made if it is missing; `name` is that of the lock in it.
    explicit SingleInstance(const QString& folder,
                            QLatin1String name = QLatin1String("talmir.lock"));

    /// The other process that holds the lock. None: this process holds it now, or starts without
    /// one because none can be had (the folder can't be written, something else bears the lock's
    /// name). A lock is taken over when its process no longer runs on this computer or when it
    /// can't be read. Whether the process of another computer still runs can't be seen from here,
    /// so its lock counts as held.
    std::optional<RunningInstance> Other();

private:
    /// Who holds the lock as its file tells; none when it names nobody, or a process of this one's
    /// number that began earlier and so is gone.
    std::optional<RunningInstance> Holder() const;

    QString path;
    QLockFile lock;
};

} // namespace Hesperin
