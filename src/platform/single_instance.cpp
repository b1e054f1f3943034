#include "platform/single_instance.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QThread>

namespace Hesperin {

static const qint64 ProcessBegan = QDateTime::currentMSecsSinceEpoch();

SingleInstance::SingleInstance(const QString& folder)
    : path(folder + QLatin1String("/talmir.lock")), lock(path) {
    QDir().mkpath(folder);
    lock.setStaleLockTime(0); // a lock never goes stale by age alone
}

bool SingleInstance::IsHeld() const {
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock.getLockInfo(&process, &host, &program))
        return false;
    const bool namesThisProcess =
        process == QCoreApplication::applicationPid() &&
        host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    return !namesThisProcess || // else this one got the number of one that was killed
           QFileInfo(path).lastModified().toMSecsSinceEpoch() >= ProcessBegan;
}

bool SingleInstance::OtherRuns() {
    constexpr unsigned long aStartIsWriting = 100; // milliseconds
    if (const QFileInfo place(path); place.exists() && !place.isFile())
        return false;
    if (lock.isLocked() || lock.tryLock(0) || lock.error() != QLockFile::LockFailedError)
        return false;
    if (IsHeld())
        return true;
    QThread::msleep(aStartIsWriting);
    if (IsHeld())
        return true;
    return QFile::remove(path) && !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

} // namespace Hesperin
