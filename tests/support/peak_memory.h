#pragma once

#include <QByteArray>
#include <QFile>

namespace Hesperin {

/// The most memory that this process has held so far, in bytes; 0 where the system doesn't tell, and
/// where the address sanitizer keeps what has been freed.
inline qint64 PeakMemory() {
#ifndef __SANITIZE_ADDRESS__
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmHWM:"))
                return line.mid(6).simplified().split(' ').first().toLongLong() * 1024;
#endif
    return 0;
}

/// What opening any file may take at most above that.
inline constexpr qint64 PeakMemoryAllowed = qint64{64} << 20;

} // namespace Hesperin
