#include "cli/command.h"

#include "cli/language_option.h"
#include "cli/output.h"
#include "cli/text_source.h"
#include "localisation/obstacle_text.h"
#include "platform/read_file.h"
#include "platform/save_file.h"
#include "ui/form_load.h"

#include <QDir>

#include <algorithm>

namespace Hesperin {

namespace {

using TextSources = std::vector<std::unique_ptr<TextSource>>;

void DescribeTexts(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(
            " Of several places the later is laid over the earlier. The texts go beside\n"
            "the program, or into the user's folder where that can't be written."));
    parser.addPositionalArgument(
        QStringLiteral("FOLDER|ARCHIVE"),
        QStringLiteral(
            "The game's folder, an unpacked game tree, or archives of the game (.pak). A tree has "
            "Text/Game/Creatures/Creature_abilities in it or in its folder data; where "
            "there is none, the folder's archives are taken in the order of their names."),
        QStringLiteral("FOLDER|ARCHIVE..."));
    AddLanguageOption(parser, QStringLiteral("Language of these texts"));
}

/// The archives in a folder and in its folder data, in the order of their names.
QStringList ArchivesIn(const QString& folder) {
    QStringList paths;
    for (const QDir& place : {QDir(folder), QDir(folder + QLatin1String("/data"))})
        for (const QString& name : place.entryList({QStringLiteral("*.pak")}, QDir::Files))
            paths.append(place.filePath(name));
    return paths;
}

/// Adds the place, or what is in it. False when something there can't be read, after a complaint.
bool AddSource(const QString& path, const SharedState& state, TextSources& sources) {
    auto source = OpenTextSource(path, state.LanguageCode, state);
    if (!source->Fault().isEmpty()) {
        Complain(QStringLiteral("%1: %2").arg(path, source->Fault()));
        return false;
    }
    if (source->HasTexts() || !QFileInfo(path).isDir()) {
        sources.push_back(std::move(source));
        return true;
    }
    bool allRead = true;
    for (const QString& archive : ArchivesIn(path))
        allRead = AddSource(archive, state, sources) && allRead;
    return allRead;
}

struct FoundText {
    QByteArray bytes;
    QString from; ///< name of its source; empty: missing
};

/// The text from the last source that has it. What can't be read there is complained of, and taken
/// from the source below.
FoundText Find(const AbilityText& text, const TextSources& sources) {
    for (auto source = sources.rbegin(); source != sources.rend(); ++source) {
        auto content = (*source)->Read(text);
        if (!content)
            continue;
        if (auto* bytes = std::get_if<QByteArray>(&*content))
            return {std::move(*bytes), (*source)->Name()};
        Complain(QStringLiteral("%1: %2/%3: %4")
                     .arg((*source)->Name(), text.folder, text.file, std::get<QString>(*content)));
    }
    return {};
}

/// Folder of the language's texts: in the user's folder where there are some already, for those
/// win, else beside the program, else in the user's folder.
QString TargetTree(const QString& languageCode, const ProgramPlaces& places) {
    const QString below = u'/' + languageCode + u'/' + AbilityTextLevels().join(u'/');
    const QString users = places.settingsFolder + below;
    const QString beside = places.programFolder + below;
    const bool besideWritable = !places.installedForAll && !QFileInfo::exists(users) &&
                                QDir().mkpath(beside) &&
                                !SaveObstacle(beside + QLatin1String("/text"));
    return besideWritable ? beside : users;
}

/// Writes the text unless it lies there already.
std::optional<FileObstacle> Keep(const QString& folder, const QString& file,
                                 const QByteArray& bytes) {
    const QString path = folder + u'/' + file;
    const auto old = ReadFile(path, LargestAbilityText);
    if (const auto* same = std::get_if<QByteArray>(&old); same != nullptr && *same == bytes)
        return std::nullopt;
    QDir().mkpath(folder);
    return SaveFile(path, bytes).obstacle;
}

/// Tells of each text where it comes from; gives one for each.
std::vector<FoundText> FindAll(const std::vector<AbilityText>& texts, const TextSources& sources) {
    std::vector<FoundText> all;
    for (const AbilityText& text : texts) {
        all.push_back(Find(text, sources));
        const QString& from = all.back().from;
        PrintLine(
            QStringLiteral("%1/%2: %3")
                .arg(text.folder, text.file, from.isEmpty() ? QStringLiteral("missing") : from));
    }
    return all;
}

int CopyTexts(const TextSources& sources, const Program& program) {
    const std::vector<AbilityText> texts = AbilityTexts();
    const QString none =
        QStringLiteral("talmir-cli texts: there are no ability texts in these places");
    if (std::none_of(sources.begin(), sources.end(),
                     [](const auto& source) { return source->HasTexts(); })) {
        Complain(none);
        return SomethingFailed;
    }
    const std::vector<FoundText> found = FindAll(texts, sources);
    const auto missing = std::count_if(found.begin(), found.end(),
                                       [](const FoundText& text) { return text.from.isEmpty(); });
    if (static_cast<std::size_t>(missing) == texts.size()) {
        Complain(none);
        return SomethingFailed;
    }
    const QString tree = TargetTree(program.state.LanguageCode, program.platform.Places());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (found[i].from.isEmpty())
            continue;
        const QString folder = tree + u'/' + texts[i].folder;
        if (const auto obstacle = Keep(folder, texts[i].file, found[i].bytes)) {
            Complain(QStringLiteral("%1/%2: %3")
                         .arg(folder, texts[i].file, ObstacleText(program.state, *obstacle)));
            return SomethingFailed; // as would all others
        }
    }
    PrintLine(QStringLiteral("%1 of %2 texts copied to %3, %4 missing")
                  .arg(static_cast<qint64>(texts.size()) - missing)
                  .arg(texts.size())
                  .arg(QDir::toNativeSeparators(tree))
                  .arg(missing));
    return missing == 0 ? AllDone : SomethingFailed;
}

int Texts(const QCommandLineParser& parser) {
    const QStringList paths = parser.positionalArguments();
    const auto language = LanguageOf(parser);
    if (paths.isEmpty() || !language) {
        Complain(QStringLiteral(
            "talmir-cli texts: at least one FOLDER or ARCHIVE is expected, and --lang EN or RU"));
        return WrongUsage;
    }
    CliPlatform platform;
    Program program(platform);
    Form_Load(program, {language, false});
    TextSources sources;
    bool allRead = true;
    for (const QString& path : paths)
        allRead = AddSource(path, program.state, sources) && allRead;
    const int code = CopyTexts(sources, program);
    return allRead ? code : SomethingFailed;
}

} // namespace

const Command TextsCommand{"texts", "Copies the ability texts out of the game.", DescribeTexts,
                           Texts};

} // namespace Hesperin
