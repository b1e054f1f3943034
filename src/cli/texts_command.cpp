#include "cli/command.h"

#include "catalogue/ability_catalogue.h"
#include "cli/language_option.h"
#include "cli/output.h"
#include "game_texts/ability_table.h"
#include "game_texts/ability_texts.h"
#include "game_texts/text_source.h"
#include "localisation/error_text.h"
#include "system/program_places.h"
#include "system/read_file.h"
#include "system/save_file.h"

#include <QCoreApplication>
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
            "there is none, the folder's archives are taken in the order of their names. A text "
            "that isn't there is looked for where "
            "GameMechanics/RefTables/CombatAbilities.xdb says."),
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
bool AddSource(const QString& path, const Messages& messages, TextSources& sources) {
    auto source = OpenTextSource(path, messages.LanguageCode);
    if (const Failure fault = source->Fault()) {
        Complain(QStringLiteral("%1: %2").arg(path, ErrorReason(messages, *fault)));
        return false;
    }
    bool allRead = true;
    if (!source->HasTexts())
        for (const QString& archive : ArchivesIn(path))
            allRead = AddSource(archive, messages, sources) && allRead;
    sources.push_back(std::move(source)); // what is unpacked lies over the archives
    return allRead;
}

struct FoundFile {
    QByteArray bytes;
    QString from; ///< name of its source; empty: missing
};

/// The file from the last source that has it. What can't be read there is complained of, under
/// `name`, and taken from the source below.
FoundFile Find(const QStringList& levels, qint64 limit, const QString& name,
               const TextSources& sources, const Messages& messages) {
    for (auto source = sources.rbegin(); source != sources.rend(); ++source) {
        auto content = (*source)->Read(levels, limit);
        if (!content)
            continue;
        if (*content)
            return {std::move(**content), (*source)->Name()};
        Complain(QStringLiteral("%1: %2: %3")
                     .arg((*source)->Name(), name, ErrorReason(messages, content->Why())));
    }
    return {};
}

/// The game's table of abilities; an empty one where there is none, or one that can't be read, of
/// which is complained.
AbilityTable FindTable(const TextSources& sources, const Messages& messages) {
    const QString name = AbilityTableLevels().join(u'/');
    const FoundFile file = Find(AbilityTableLevels(), LargestAbilityTable, name, sources, messages);
    if (file.from.isEmpty())
        return {};
    auto table = ReadAbilityTable(file.bytes);
    if (table)
        return std::move(*table);
    Complain(QStringLiteral("%1: %2: %3").arg(file.from, name, ErrorReason(messages, table.Why())));
    return {};
}

/// The text from the place that the table names, if it names one.
FoundFile FindByTable(const AbilityText& text, const AbilityTable& table,
                      const TextSources& sources, const Messages& messages) {
    const AbilityRow& ability = AbilityCatalogue[static_cast<std::size_t>(text.ability)];
    const AbilityReferences references = table.value(QString::fromUtf16(ability.token));
    const QStringList& levels = text.isName ? references.name : references.description;
    if (levels.isEmpty())
        return {};
    const QString place = levels.join(u'/');
    FoundFile found = Find(levels, LargestAbilityText, place, sources, messages);
    if (!found.from.isEmpty())
        found.from += QLatin1String(": ") + place;
    return found;
}

/// Folder of the language's texts: in the user's folder where there are some already, for those
/// win, else beside the program, else in the user's folder.
QString TargetTree(const QString& languageCode, const ProgramPlaces& places) {
    const QString below = u'/' + languageCode + u'/' + AbilityTextLevels().join(u'/');
    const QString users = places.settingsFolder + below;
    const QString beside = places.programFolder + below;
    const bool besideWritable = !places.installedForAll && !QFileInfo::exists(users) &&
                                QDir().mkpath(beside) &&
                                !SaveRefusal(beside + QLatin1String("/text"));
    return besideWritable ? beside : users;
}

/// Writes the text unless it lies there already.
Failure Keep(const QString& folder, const QString& file, const QByteArray& bytes) {
    const QString path = folder + u'/' + file;
    const auto old = ReadFile(path, LargestAbilityText);
    if (old && *old == bytes)
        return {};
    QDir().mkpath(folder);
    return SaveFile(path, bytes).failure;
}

/// The texts in their own places, and those that are missing there where the game's table says.
std::vector<FoundFile> FindAll(const std::vector<AbilityText>& texts, const TextSources& sources,
                               const Messages& messages) {
    std::vector<FoundFile> all;
    std::optional<AbilityTable> table;
    for (const AbilityText& text : texts) {
        FoundFile found =
            Find(AbilityTextLevels() + QStringList{text.folder, text.file}, LargestAbilityText,
                 text.folder + u'/' + text.file, sources, messages);
        if (found.from.isEmpty()) {
            if (!table)
                table = FindTable(sources, messages);
            found = FindByTable(text, *table, sources, messages);
        }
        all.push_back(std::move(found));
    }
    return all;
}

int CopyTexts(const TextSources& sources, const Messages& messages) {
    const std::vector<AbilityText> texts = AbilityTexts();
    const std::vector<FoundFile> found = FindAll(texts, sources, messages);
    const auto missing = std::count_if(found.begin(), found.end(),
                                       [](const FoundFile& file) { return file.from.isEmpty(); });
    if (static_cast<std::size_t>(missing) == texts.size()) {
        Complain(QStringLiteral("talmir-cli texts: there are no ability texts in these places"));
        return SomethingFailed;
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        PrintLine(QStringLiteral("%1/%2: %3")
                      .arg(texts[i].folder, texts[i].file,
                           found[i].from.isEmpty() ? QStringLiteral("missing") : found[i].from));
    const QString tree = TargetTree(
        messages.LanguageCode, {QCoreApplication::applicationDirPath(), SettingsFolderOfUser()});
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (found[i].from.isEmpty())
            continue;
        const QString folder = tree + u'/' + texts[i].folder;
        if (const auto failure = Keep(folder, texts[i].file, found[i].bytes)) {
            Complain(QStringLiteral("%1/%2: %3")
                         .arg(folder, texts[i].file, ErrorReason(messages, *failure)));
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

int RunTexts(const QCommandLineParser& parser) {
    const QStringList paths = parser.positionalArguments();
    const auto language = LanguageOf(parser);
    if (paths.isEmpty() || !language)
        return Misused("texts", QStringLiteral("at least one FOLDER or ARCHIVE is expected, and "
                                               "--lang EN or RU"));
    const Messages& messages = MessagesIn(*language);
    TextSources sources;
    bool allRead = true;
    for (const QString& path : paths)
        allRead = AddSource(path, messages, sources) && allRead;
    const int code = CopyTexts(sources, messages);
    return allRead ? code : SomethingFailed;
}

} // namespace

const Command TextsCommand{"texts", "Copies the ability texts out of the game.", DescribeTexts,
                           RunTexts};

} // namespace Hesperin
