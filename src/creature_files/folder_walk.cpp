#include "creature_files/folder_walk.h"

#include "creature_files/mod.h"
#include "system/undecodable_names.h"

#include <QDirIterator>
#include <QFileInfo>

#include <vector>

namespace Hesperin {

void WalkFolder(const QString& folder, const FolderVisitor& visitor) {
    const QString root = folder.endsWith(u'/') ? folder : folder + u'/';
    std::vector<QString> waiting{QString()}; // folders, each with a slash behind it
    while (!waiting.empty() && (!visitor.goOn || visitor.goOn())) {
        const QString inner = std::move(waiting.back());
        waiting.pop_back();
        if (!QFileInfo(root + inner).isReadable()) {
            visitor.refused(inner.chopped(inner.isEmpty() ? 0 : 1), Error{Error::What::NotAllowed});
            continue;
        }
        for (const QString& name : UndecodableNames(root + inner))
            if (name.endsWith(u'/') || IsDocumentName(name))
                visitor.refused(inner + name, Error{Error::What::NameUndecodable});
        QDirIterator entries(root + inner, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            entries.next();
            const QFileInfo entry = entries.fileInfo();
            if (!entry.isDir())
                visitor.file(inner + entries.fileName());
            else if (!entry.isSymLink() && !entry.isJunction())
                waiting.push_back(inner + entries.fileName() + u'/');
        }
    }
}

} // namespace Hesperin
