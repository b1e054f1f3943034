#include "creature_files/creature_folder.h"

#include "creature_files/document.h"
#include "platform/read_file.h"

#include <QDirIterator>
#include <QXmlStreamReader>

namespace Hesperin {

namespace {

/// Whether the document is known to have another root.
bool IsOtherDocument(const QString& path) {
    const auto content = ReadFile(path, LargestCreatureFile);
    const auto* bytes = std::get_if<QByteArray>(&content);
    if (bytes == nullptr)
        return false;
    QXmlStreamReader reader(*bytes);
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

} // namespace Hesperin
