#include "game_texts/text_source.h"

#include "game_texts/ability_table.h"
#include "game_texts/ability_texts.h"
#include "system/path_lookup.h"
#include "system/read_file.h"
#include "system/zip_archive.h"

#include <QFileInfo>

#include <algorithm>

namespace Hesperin {

namespace {

/// Where the game's data may begin, the place that is preferred first.
std::vector<QStringList> Beginnings(const QString& languageCode) {
    const QString data = QStringLiteral("data");
    return {{languageCode}, {data, languageCode}, {}, {data}};
}

class FolderSource : public TextSource {
public:
    FolderSource(const QString& path, const QString& languageCode) : TextSource(path) {
        PathLookup top(path);
        for (const QStringList& beginning : Beginnings(languageCode))
            if (const QString root = beginning.isEmpty() ? path : top.Find(beginning);
                !root.isEmpty())
                roots.emplace_back(root);
    }

    bool HasTexts() override {
        return std::any_of(roots.begin(), roots.end(), [](PathLookup& root) {
            return !root.Find(AbilityTextLevels()).isEmpty();
        });
    }

    std::optional<Result<QByteArray>> Read(const QStringList& levels, qint64 limit) override {
        for (PathLookup& root : roots)
            if (const QString path = root.Find(levels); !path.isEmpty())
                return ReadFile(path, limit);
        return std::nullopt;
    }

private:
    std::vector<PathLookup> roots;
};

class ArchiveSource : public TextSource {
public:
    ArchiveSource(const QString& path, const QString& languageCode) : TextSource(path) {
        if (const QFileInfo place(path); !place.isFile()) { // a pipe would keep the program waiting
            noFile = Error{place.exists() ? Error::What::NotAFile : Error::What::FileMissing};
            return;
        }
        archive.emplace(path, QStringList{QStringLiteral(".txt"),
                                          AbilityTableLevels().constLast().toCaseFolded()});
        for (const QStringList& beginning : Beginnings(languageCode))
            roots.append((beginning + QStringList(QString())).join(u'/'));
    }

    Failure Fault() const override { return archive ? archive->Fault() : noFile; }

    std::optional<Result<QByteArray>> Read(const QStringList& levels, qint64 limit) override {
        for (const QString& root : roots)
            if (const QString path = root + levels.join(u'/'); archive->Has(path))
                return archive->Read(path, limit);
        return std::nullopt;
    }

private:
    std::optional<ZipArchive> archive;
    Failure noFile;
    QStringList roots;
};

} // namespace

std::unique_ptr<TextSource> OpenTextSource(const QString& path, const QString& languageCode) {
    if (QFileInfo(path).isDir())
        return std::make_unique<FolderSource>(path, languageCode);
    return std::make_unique<ArchiveSource>(path, languageCode);
}

} // namespace Hesperin
