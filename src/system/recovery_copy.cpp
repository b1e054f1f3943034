#include "system/recovery_copy.h"

#include "system/read_file.h"
#include "system/save_file.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <system_error>

namespace Hesperin {

RecoveryCopy::RecoveryCopy(const QString& place)
    : folder(place), path(place + QLatin1String("/recovery.json")) {}

bool RecoveryCopy::IsOurs() {
    if (!instance)
        instance.emplace(folder, QLatin1String("recovery.lock"));
    return !instance->Other();
}

std::optional<QByteArray> RecoveryCopy::Left() {
    constexpr qint64 largest = 1 << 20;
    if (!QFileInfo::exists(path) || !IsOurs())
        return std::nullopt;
    const auto bytes = ReadFile(path, largest);
    return bytes ? *bytes : QByteArray();
}

QString RecoveryCopy::PutAside() {
    const QString aside = folder + QLatin1String("/recovery.old.json");
    QFile::remove(aside);
    return QFile::rename(path, aside) ? aside : path;
}

bool RecoveryCopy::Write(const QByteArray& bytes) {
    if (writing.valid() && writing.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return false;
    try {
        writing = std::async(std::launch::async, [this, bytes] {
            if (IsOurs())
                SaveFileOfMany(path, bytes);
        });
        return true;
    } catch (const std::system_error&) { // threads may lack
        return false;
    }
}

void RecoveryCopy::Remove() {
    if (writing.valid())
        writing.wait();
    if (QFileInfo::exists(path) && IsOurs())
        QFile::remove(path);
}

} // namespace Hesperin
