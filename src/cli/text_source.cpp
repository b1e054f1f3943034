#include "cli/text_source.h"

#include "cli/zip_archive.h"
#include "localisation/obstacle_text.h"
#include "platform/path_lookup.h"
#include "platform/read_file.h"

#include <QFileInfo>

namespace Hesperin {

namespace {

/// Where the game's text tree may begin, the place that is preferred first.
std::vector<QStringList> Beginnings(const QString& languageCode) {
    const QString data = QStringLiteral("data");
    return {{languageCode}, {data, languageCode}, {}, {data}};
}

class FolderSource : public TextSource {
public:
    FolderSource(const QString& path, const QString& languageCode, const SharedState& state)
        : TextSource(path), words(state) {
        PathLookup top(path);
        for (const QStringList& beginning : Beginnings(languageCode))
            if (const QString tree = top.Find(beginning + AbilityTextLevels()); !tree.isEmpty())
                trees.emplace_back(tree);
    }

    bool HasTexts() const override { return !trees.empty(); }

    std::optional<std::variant<QByteArray, QString>> Read(const AbilityText& text) override {
        for (PathLookup& tree : trees) {
            const QString path = tree.Find({text.folder, text.file});
            if (path.isEmpty())
                continue;
            auto content = ReadFile(path, LargestAbilityText);
            if (const auto* bytes = std::get_if<QByteArray>(&content))
                return *bytes;
            return ObstacleText(words, std::get<FileObstacle>(content));
        }
        return std::nullopt;
    }

private:
    std::vector<PathLookup> trees;
    const SharedState& words;
};

class ArchiveSource : public TextSource {
public:
    ArchiveSource(const QString& path, const QString& languageCode, const SharedState& state)
        : TextSource(path) {
        if (const QFileInfo place(path); !place.isFile()) { // a pipe would keep the program waiting
            const auto kind =
                place.exists() ? FileObstacle::Kind::NotAFile : FileObstacle::Kind::Missing;
            obstacle = ObstacleText(state, {kind, {}});
            return;
        }
        archive.emplace(path, AbilityTextLevels().join(u'/').toCaseFolded() + u'/');
        for (const QStringList& beginning : Beginnings(languageCode))
            trees.append((beginning + AbilityTextLevels()).join(u'/') + u'/');
    }

    QString Fault() const override { return archive ? archive->Fault() : obstacle; }

    bool HasTexts() const override { return archive && !archive->IsEmpty(); }

    std::optional<std::variant<QByteArray, QString>> Read(const AbilityText& text) override {
        for (const QString& tree : trees)
            if (const QString path = tree + text.folder + u'/' + text.file; archive->Has(path))
                return archive->Read(path, LargestAbilityText);
        return std::nullopt;
    }

private:
    std::optional<ZipArchive> archive;
    QString obstacle;
    QStringList trees;
};

} // namespace

std::unique_ptr<TextSource> OpenTextSource(const QString& path, const QString& languageCode,
                                           const SharedState& state) {
    if (QFileInfo(path).isDir())
        return std::make_unique<FolderSource>(path, languageCode, state);
    return std::make_unique<ArchiveSource>(path, languageCode, state);
}

} // namespace Hesperin
