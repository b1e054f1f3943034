#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace Hesperin {

/// Finds files below a folder whose path may be spelled in other letter case on disk. Remembers the
/// folders that it listed, so it serves one round of look-ups, not the life of the program.
class PathLookup {
public:
    explicit PathLookup(QString root) : folder(std::move(root)) {}

    /// The path as spelled, whether there is such a file or not.
    QString Spelled(const QStringList& levels) const { return folder + u'/' + levels.join(u'/'); }

    /// Path of the file at `levels` below the folder: as spelled where that exists, else without
    /// regard to letter case, level by level; empty when there is none.
    QString Find(const QStringList& levels);

    /// The same, always as it is spelled on disk; takes longer for a file or two.
    QString FindListed(const QStringList& levels);

private:
    /// Names in `path` by their folded spelling; the first in alphabetical order wins.
    const QHash<QString, QString>& Names(const QString& path);

    QString folder;
    QHash<QString, QHash<QString, QString>> listed;
};

} // namespace Hesperin
