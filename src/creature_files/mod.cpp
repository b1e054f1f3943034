#include "creature_files/mod.h"

#include "creature_files/folder_walk.h"
#include "system/read_file.h"
#include "system/zip_archive.h"

#include <QFileInfo>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace Hesperin {

struct Mod::Contents {
    QSet<QString> names;                ///< of all files of any kind, folded
    QHash<QString, std::size_t> places; ///< in the list of documents, by their folded names
    std::vector<std::unique_ptr<ZipArchive>> archives; ///< by path given; null: no archive

    const ZipArchive& Archive(const ModFile& file) const { return *archives[file.source]; }
};

/// Goes through the paths and keeps, of each document, the last.
class Mod::Walk {
public:
    Walk(Mod& whole, const std::function<bool()>& askToGoOn) : mod(whole), goOn(askToGoOn) {}

    void Through(const QStringList& paths) {
        for (const QString& path : paths) {
            if (goOn && !goOn())
                return;
            mod.contents->archives.emplace_back();
            ThroughOne(path);
            ++source;
        }
        auto& found = mod.files;
        std::sort(found.begin(), found.end(),
                  [](const ModFile& a, const ModFile& b) { return a.path < b.path; });
        for (std::size_t i = 0; i < found.size(); ++i)
            mod.contents->places[found[i].path.toCaseFolded()] = i;
    }

private:
    void ThroughOne(const QString& path) {
        const QFileInfo place(path);
        if (place.isDir())
            ThroughFolder(path);
        else if (!place.exists())
            Refuse(path, Error{Error::What::FileMissing});
        else if (!place.isFile())
            Refuse(path, Error{Error::What::NotAFile});
        else if (IsArchiveName(path))
            ThroughArchive(path);
        else
            Keep({place.fileName(), path, false, source});
    }

    void ThroughFolder(const QString& folder) {
        const QString root = folder.endsWith(u'/') ? folder : folder + u'/';
        QStringList documents;
        FolderVisitor visitor;
        visitor.file = [&](const QString& path) { Note(path, documents); };
        visitor.refused = [&](const QString& path, const Error& why) {
            Refuse(path.isEmpty() ? folder : root + path, why);
        };
        visitor.goOn = goOn;
        WalkFolder(folder, visitor);
        std::sort(documents.begin(), documents.end());
        for (const QString& path : documents)
            Keep({path, root + path, false, source});
    }

    void ThroughArchive(const QString& path) {
        auto archive = std::make_unique<ZipArchive>(path, QStringList{QString()});
        if (archive->Fault())
            return Refuse(path, *archive->Fault());
        QStringList documents;
        for (const QString& name : archive->Names())
            if (!name.endsWith(u'/')) // which is a folder
                Note(name, documents);
        std::sort(documents.begin(), documents.end());
        for (const QString& document : documents)
            Keep({document, path, true, source});
        mod.contents->archives.back() = std::move(archive);
    }

    void Refuse(const QString& path, Error why) { mod.refused.push_back({path, std::move(why)}); }

    void Note(const QString& path, QStringList& documents) {
        if (IsDocumentName(path))
            documents.append(path);
        else
            mod.contents->names.insert(path.toCaseFolded());
    }

    void Keep(ModFile file) {
        const QString folded = file.path.toCaseFolded();
        auto& places = mod.contents->places;
        if (const auto earlier = places.constFind(folded); earlier != places.constEnd()) {
            mod.files[*earlier] = std::move(file);
            return;
        }
        places.insert(folded == file.path ? file.path : folded, mod.files.size());
        mod.files.push_back(std::move(file));
    }

    Mod& mod;
    const std::function<bool()>& goOn;
    std::size_t source = 0;
};

Mod::Mod(const QStringList& paths, const std::function<bool()>& goOn)
    : contents(std::make_unique<Contents>()) {
    Walk(*this, goOn).Through(paths);
}

Mod::~Mod() = default;

bool Mod::Has(const QString& path) const {
    const QString folded = path.toCaseFolded();
    return contents->places.contains(folded) || contents->names.contains(folded);
}

const ModFile* Mod::Find(const QString& path) const {
    const auto place = contents->places.constFind(path.toCaseFolded());
    return place == contents->places.constEnd() ? nullptr : &files[*place];
}

Result<QByteArray> Mod::Read(const ModFile& file, qint64 limit) const {
    return file.packed ? contents->Archive(file).Read(file.path, limit)
                       : ReadFile(file.place, limit);
}

Result<QByteArray> Mod::ReadStart(const ModFile& file, qint64 count) const {
    return file.packed ? contents->Archive(file).ReadStart(file.path, count)
                       : ReadFileStart(file.place, count);
}

bool IsOtherDocument(const QByteArray& bytes) {
    QXmlStreamReader reader(bytes);
    return reader.readNextStartElement() && reader.qualifiedName() != QLatin1String("Creature");
}

} // namespace Hesperin
