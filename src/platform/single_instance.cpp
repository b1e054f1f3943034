#include "platform/single_instance.h"

#include <QDir>

namespace Hesperin {

SingleInstance::SingleInstance(const QString& folder)
    : lock(folder + QLatin1String("/talmir.lock")) {
    QDir().mkpath(folder);
    lock.setStaleLockTime(0); // a lock never goes stale by age alone
}

bool SingleInstance::OtherRuns() {
    if (lock.isLocked() || lock.tryLock(0))
        return false;
    return lock.error() == QLockFile::LockFailedError;
}

} // namespace Hesperin
