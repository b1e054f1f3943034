#include "system/hand_over.h"

#include "system/read_file.h"
#include "system/save_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace Hesperin {

namespace {

QString PlaceIn(const QString& folder) {
    return folder + QLatin1String("/talmir.open");
}

/// The one line of the file, which ends in a line feed or was cut short.
std::optional<QString> PathIn(const QByteArray& bytes) {
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(bytes);
    const bool isLine = text.endsWith(u'\n') && text.count(u'\n') == 1;
    if (decode.hasError() || !isLine || text.contains(QChar(0)) || !QDir::isAbsolutePath(text))
        return std::nullopt;
    return text.chopped(1);
}

} // namespace

bool HandOver(const QString& folder, const QString& path) {
    const QByteArray line = QFileInfo(path).absoluteFilePath().toUtf8() + '\n';
    return PathIn(line) && !SaveFile(PlaceIn(folder), line).failure;
}

bool IsHandedOver(const QString& folder) {
    return QFileInfo(PlaceIn(folder)).isFile();
}

std::optional<QString> TakeHandedOver(const QString& folder) {
    constexpr qint64 longestPath = 1 << 16;
    if (!IsHandedOver(folder))
        return std::nullopt;
    const QString taken = PlaceIn(folder) + QLatin1String(".taken"); // so that none is lost
    QFile::remove(taken);
    if (!QFile::rename(PlaceIn(folder), taken))
        return std::nullopt;
    const auto content = ReadFile(taken, longestPath);
    QFile::remove(taken);
    return content ? PathIn(*content) : std::nullopt;
}

} // namespace Hesperin
