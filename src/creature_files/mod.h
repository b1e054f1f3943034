// A mod: the files of folders and archives, later ones over earlier ones.
#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace Hesperin {

/// A document of a mod.
struct ModFile {
    QString path;         ///< below the folder or archive, with /; of a file named alone its name
    QString place;        ///< the file on disk; of one in an archive the archive
    bool packed = false;  ///< lies in an archive
    std::size_t source{}; ///< which of the paths it comes from, from 0
};

/// A place of which nothing could be had: a folder, an archive, a path that leads nowhere.
struct RefusedPlace {
    QString path;
    Error error;
};

class Mod {
public:
    /// Walks through `paths`: files, folders, and the game's archives (.pak, .h5u). A link given as
    /// a path is followed, links to folders below it are not; nor are hidden files and folders, and
    /// archives that a folder holds, looked into. Of several documents of one inner path, letter
    /// case not counting, the one of the last path stays. `goOn` is asked now and then; false ends
    /// the walk.
    explicit Mod(const QStringList& paths, const std::function<bool()>& goOn = {});
    ~Mod();
    Mod(const Mod&) = delete;
    Mod& operator=(const Mod&) = delete;

    /// Every .xdb, whatever its root, and the files named alone, in the order of the inner paths'
    /// code units.
    const std::vector<ModFile>& Files() const { return files; }

    const std::vector<RefusedPlace>& Refused() const { return refused; }

    /// Whether a file of any kind has that inner path ("GameMechanics/…/A.(Creature).xdb"), letter
    /// case not counting.
    bool Has(const QString& path) const;

    /// The bytes of the document, or why they can't be had: above `limit`, damaged, … May be called
    /// by several threads at once.
    Result<QByteArray> Read(const ModFile& file, qint64 limit) const;

    /// Its first bytes, `count` at most. May be called by several threads at once.
    Result<QByteArray> ReadStart(const ModFile& file, qint64 count) const;

    /// The document of that inner path, letter case not counting; null when there is none.
    const ModFile* Find(const QString& path) const;

private:
    class Walk;
    struct Contents;

    std::vector<ModFile> files;
    std::vector<RefusedPlace> refused;
    std::unique_ptr<Contents> contents;
};

/// Whether a file of that name is a document: *.xdb in any letter case.
inline bool IsDocumentName(QStringView name) {
    return name.endsWith(u".xdb", Qt::CaseInsensitive);
}

/// Whether a file of that name is an archive of the game: *.pak, *.h5u in any letter case.
inline bool IsArchiveName(QStringView name) {
    return name.endsWith(u".pak", Qt::CaseInsensitive) ||
           name.endsWith(u".h5u", Qt::CaseInsensitive);
}

/// Whether the document is known to have another root than Creature. Its first bytes will do.
bool IsOtherDocument(const QByteArray& bytes);

} // namespace Hesperin
