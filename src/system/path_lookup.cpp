#include "system/path_lookup.h"

#include <QDir>
#include <QFileInfo>

namespace Hesperin {

QString PathLookup::Find(const QStringList& levels) {
    QString spelled = Spelled(levels);
    return QFileInfo::exists(spelled) ? spelled : FindListed(levels);
}

QString PathLookup::FindListed(const QStringList& levels) {
    QString path = folder;
    for (const QString& level : levels) {
        const QHash<QString, QString>& names = Names(path);
        QString name = names.value(level); // exact names are entered under themselves
        if (name.isEmpty())
            name = names.value(level.toCaseFolded());
        if (name.isEmpty())
            return {};
        path += u'/' + name;
    }
    return path;
}

const QHash<QString, QString>& PathLookup::Names(const QString& path) {
    const auto known = listed.constFind(path);
    if (known != listed.constEnd())
        return *known;
    QHash<QString, QString> names;
    const QStringList entries =
        QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    for (const QString& entry : entries) {
        if (!names.contains(entry.toCaseFolded()))
            names.insert(entry.toCaseFolded(), entry);
    }
    for (const QString& entry : entries)
        names.insert(entry, entry);
    return *listed.insert(path, names);
}

} // namespace Hesperin
