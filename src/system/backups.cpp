#include "system/backups.h"

#include "system/save_file.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace Hesperin {

Failure KeepBackup(const QString& folder, const QString& path, const QByteArray& bytes) {
    constexpr qsizetype mostCopies = 200;
    const QString time =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmsszzz"));
    QDir copies(folder);
    copies.mkpath(QStringLiteral("."));
    constexpr qsizetype mostOfTheName = 80; // so that the whole is never too long
    const QString ending = u' ' + QFileInfo(path).fileName().right(mostOfTheName);
    QString name = time + ending;
    for (int twin = 2; copies.exists(name); ++twin)
        name = time + u'-' + QString::number(twin) + ending;
    if (auto failure = SaveFile(copies.filePath(name), bytes).failure)
        return failure;
    const QStringList names = copies.entryList(QDir::Files, QDir::Name);
    for (qsizetype i = 0; i < names.size() - mostCopies; ++i)
        copies.remove(names[i]);
    return {};
}

} // namespace Hesperin
