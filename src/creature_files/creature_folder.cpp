#include "creature_files/creature_folder.h"

#include "creature_files/document.h"
#include "creature_files/folder_walk.h"
#include "creature_files/mod.h"
#include "system/read_file.h"

#include <QFileInfo>

#include <algorithm>

namespace Hesperin {

QStringList CreatureFilesBelow(const QString& folder) {
    const QString root = folder.endsWith(u'/') ? folder : folder + u'/';
    QStringList paths;
    FolderVisitor visitor;
    visitor.file = [&](const QString& path) {
        if (!IsDocumentName(path))
            return;
        const auto content = ReadFile(root + path, LargestCreatureFile);
        if (!content || !IsOtherDocument(*content))
            paths.append(root + path);
    };
    WalkFolder(folder, visitor);
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
