#include "platform/single_instance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace Hesperin {

SingleInstance::SingleInstance(const QString& folder)
    : path(folder + QLatin1String("/talmir.lock")), lock(path) {
    QDir().mkpath(folder);
    lock.setStaleLockTime(0); // a lock never goes stale by age alone
}

bool SingleInstance::TellsItsHolder() const {
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program);
}

bool SingleInstance::OtherRuns() {
    constexpr unsigned long aStartIsWriting = 100; // milliseconds
    if (const QFileInfo place(path); place.exists() && !place.isFile())
        return false;
    if (lock.isLocked() || lock.tryLock(0) || lock.error() != QLockFile::LockFailedError)
        return false;
    if (TellsItsHolder())
        return true;
    QThread::msleep(aStartIsWriting);
    if (TellsItsHolder())
        return true;
    return QFile::remove(path) && !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

} // namespace Hesperin
