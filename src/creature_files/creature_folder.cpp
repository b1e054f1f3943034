#include "creature_files/creature_folder.h"

#include "creature_files/document.h"
#include "creature_files/folder_walk.h"
#include "creature_files/mod.h"
#include "system/read_file.h"

#include <QFileInfo>

#include <algorithm>

namespace Hesperin {

namespace {

void AddFilesBelow(const QString& folder, FoundFiles& found) {
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
    visitor.refused = [&](const QString& path, const Error& why) {
        found.refused.push_back({path.isEmpty() ? folder : root + path, why});
    };
    WalkFolder(folder, visitor);
    std::sort(paths.begin(), paths.end());
    found.files += paths;
}

} // namespace

FoundFiles CreatureFilesAt(const QStringList& paths) {
    FoundFiles found;
    for (const QString& path : paths)
        if (QFileInfo(path).isDir())
            AddFilesBelow(path, found);
        else
            found.files.append(path);
    return found;
}

} // namespace Hesperin
