#include "creature_files/creature_folder.h"

#include "creature_files/document.h"
#include "system/read_file.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>

namespace Hesperin {

namespace {

/// Whether the document is known to have another root.
bool IsOtherDocument(const QString& path) {
    const auto content = ReadFile(path, LargestCreatureFile);
    if (!content)
        return false;
    QXmlStreamReader reader(*content);
    return reader.readNextStartElement() && reader.qualifiedName() != QLatin1String("Creature");
}

} // namespace

QStringList CreatureFilesBelow(const QString& folder) {
    QStringList paths;
    QDirIterator files(folder, {QStringLiteral("*.xdb")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        if (const QString path = files.next(); !IsOtherDocument(path))
            paths.append(path);
    std::sort(paths.begin(), paths.end());
    return paths;
}

QStringList CreatureFilesAt(const QStringList& paths) {
    QStringList files;
    for (const QString& path : paths)
        files += QFileInfo(path).isDir() ? CreatureFilesBelow(path) : QStringList(path);
    return files;
}

} // namespace Hesperin
