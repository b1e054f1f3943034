#include "cli/text_source.h"

#include "cli/ability_table.h"
#include "cli/zip_archive.h"
#include "localisation/ability_texts.h"
#include "localisation/obstacle_text.h"
#include "platform/path_lookup.h"
#include "platform/read_file.h"

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
    FolderSource(const QString& path, const QString& languageCode, const SharedState& state)
        : TextSource(path), words(state) {
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

    std::optional<std::variant<QByteArray, QString>> Read(const QStringList& levels,
                                                          qint64 limit) override {
        for (PathLookup& root : roots) {
            const QString path = root.Find(levels);
            if (path.isEmpty())
                continue;
            auto content = ReadFile(path, limit);
            if (auto* bytes = std::get_if<QByteArray>(&content))
                return std::move(*bytes);
            const auto& obstacle = std::get<FileObstacle>(content);
            return obstacle.kind == FileObstacle::Kind::TooLarge ? ZipArchive::TooLarge(limit)
                                                                 : ObstacleText(words, obstacle);
        }
        return std::nullopt;
    }

private:
    std::vector<PathLookup> roots;
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
        archive.emplace(path, QStringList{QStringLiteral(".txt"),
                                          AbilityTableLevels().constLast().toCaseFolded()});
        for (const QStringList& beginning : Beginnings(languageCode))
            roots.append((beginning + QStringList(QString())).join(u'/'));
    }

    QString Fault() const override { return archive ? archive->Fault() : obstacle; }

    std::optional<std::variant<QByteArray, QString>> Read(const QStringList& levels,
                                                          qint64 limit) override {
        for (const QString& root : roots)
            if (const QString path = root + levels.join(u'/'); archive->Has(path))
                return archive->Read(path, limit);
        return std::nullopt;
    }

private:
    std::optional<ZipArchive> archive;
    QString obstacle;
    QStringList roots;
};

} // namespace

std::unique_ptr<TextSource> OpenTextSource(const QString& path, const QString& languageCode,
                                           const SharedState& state) {
    if (QFileInfo(path).isDir())
        return std::make_unique<FolderSource>(path, languageCode, state);
    return std::make_unique<ArchiveSource>(path, languageCode, state);
}

} // namespace Hesperin
