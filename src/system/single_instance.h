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
    /// `folder` is made if it is missing.
    explicit SingleInstance(const QString& folder);

    /// The other process that holds the lock, if there is one; else this one does. A lock left by a
    /// process of this computer that no longer runs, or one that can't be read, is taken over; of
    /// one left on another computer nobody here can tell. Where no lock can be had, in a folder
    /// that can't be written or beside something else of its name, the program starts without one.
    std::optional<RunningInstance> Other();

private:
    /// Who holds the lock by what the file tells; nothing when it tells nobody, or is older than
    /// this process under the number of this process.
    std::optional<RunningInstance> Holder() const;

    QString path;
    QLockFile lock;
};

} // namespace Hesperin
