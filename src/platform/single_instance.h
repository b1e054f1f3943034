#pragma once

#include <QLockFile>

namespace Hesperin {

/// Holds the lock that marks the one running instance of the program for this user.
class SingleInstance {
public:
    /// `folder` is made if it is missing.
    explicit SingleInstance(const QString& folder);

    /// True when another running process holds the lock. A lock left by a process that no longer
    /// runs, or one that can't be read, is taken over; where no lock can be had, in a folder that
    /// can't be written or beside something else of its name, the program starts without one.
    bool OtherRuns();

private:
    /// Whether the lock file tells who holds it, and it isn't older than this process under the
    /// number of this process.
    bool IsHeld() const;

    QString path;
    QLockFile lock;
};

} // namespace Hesperin
