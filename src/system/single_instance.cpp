#include "system/single_instance.h"

#include "system/read_file.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QThread>

namespace Hesperin {

namespace {

const qint64 ProcessBegan = QDateTime::currentMSecsSinceEpoch();
constexpr qint64 LongestLock = 1 << 12;

/// Whether a lock file was written on this computer. Its lines are process, program, computer's
/// name and, where the system has one, computer's number, which outlives a change of name and tells
/// two computers of one name apart.
bool IsFromHere(const QString& path, const QString& host) {
    constexpr qint64 longestLock = 1 << 12;
    constexpr qsizetype lineOfNumber = 3;
    const auto content = ReadFile(path, longestLock);
    const QByteArray number = content ? content->split('\n').value(lineOfNumber) : QByteArray();
    const QByteArray ours = QSysInfo::machineUniqueId();
    return number.isEmpty() || ours.isEmpty()
               ? host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0
               : number == ours;
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, QLatin1String name)
    : path(folder + u'/' + name), lock(path) {
    QDir().mkpath(folder);
    lock.setStaleLockTime(0); // a lock never goes stale by age alone
}

std::optional<RunningInstance> SingleInstance::Holder() const {
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock.getLockInfo(&process, &host, &program))
        return std::nullopt;
    if (!IsFromHere(path, host))
        return RunningInstance{host, path};
    if (process == QCoreApplication::applicationPid() &&
        QFileInfo(path).lastModified().toMSecsSinceEpoch() < ProcessBegan)
        return std::nullopt; // this one got the number of one that was killed
    return RunningInstance{{}, path};
}

std::optional<RunningInstance> SingleInstance::Other() {
    constexpr unsigned long aStartIsWriting = 100; // milliseconds
    const auto refused = [this] {
        return !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
    };
    const QFileInfo place(path);
    if (place.exists() && !place.isFile())
        return std::nullopt;
    if (place.size() > LongestLock && !QFile::remove(path)) // no lock, and long to read
        return std::nullopt;
    if (lock.isLocked() || !refused())
        return std::nullopt;
    if (auto holder = Holder())
        return holder;
    QThread::msleep(aStartIsWriting);
    if (auto holder = Holder())
        return holder;
    return QFile::remove(path) && refused() ? std::optional(RunningInstance{{}, path})
                                            : std::nullopt;
}

} // namespace Hesperin
