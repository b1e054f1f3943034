#include "cli/command.h"

#include "cli/edit_run.h"
#include "cli/output.h"
#include "cli/scale_option.h"
#include "creature_files/creature_folder.h"
#include "localisation/languages.h"
#include "reports/file_changer.h"
#include "system/file_place.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace Hesperin {

namespace {

const QString AnyWordOption = QStringLiteral("any-word");

void DescribeSet(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(
            " Every other byte stays as it is. Without --write it\n"
            "only tells what would change.\n\n"
            "Changes, from left to right:\n"
            "  NAME=TEXT        Sets the content of an element; one that the format knows and the\n"
            "                   file lacks is added. NAME is a path below Creature (Cost/Gold), a\n"
            "                   last name that occurs once (Gold), or an attribute\n"
            "                   (MonsterShared@href).\n"
            "  NAME+=N NAME-=N NAME*=F\n"
            "                   Reckons with the number in the file.\n"
            "  LIST+=ITEM LIST-=ITEM\n"
            "                   Adds and takes away an item of Abilities, KnownSpells\n"
            "                   (SPELL_SLOW:MASTERY_BASIC) or Upgrades.\n"
            "  Power=average    The computed figure, also for Exp, WeeklyGrowth and Gold, also\n"
            "                   rolvane and hesperin; after all other changes.\n\n"
            "Examples:\n"
            "  talmir-cli set Health=30 samples/hill_peasant.xdb\n"
            "  talmir-cli set 'Health*=1.1' 'Power=average' samples --diff\n"
            "  talmir-cli set 'Abilities+=ABILITY_BRAVERY' samples/swamp_archer.xdb --json"));
    parser.addPositionalArgument(QStringLiteral("CHANGE"),
                                 QStringLiteral("What is to change; -- ends the changes."),
                                 QStringLiteral("CHANGE..."));
    parser.addPositionalArgument(
        QStringLiteral("PATH"),
        QStringLiteral("Creature files (.xdb); a folder stands for all below it."),
        QStringLiteral("PATH..."));
    AddEditOptions(parser);
    parser.addOption(
        {AnyWordOption, QStringLiteral("Adds also items that the game doesn't know.")});
    parser.addOption({ScaleOption,
                      QStringLiteral("Divides computed figures by the scale of the mod there."),
                      QStringLiteral("PATH")});
}

/// How many of the arguments are changes: all up to the first without "=", or all in front of "--"
/// where there is one.
qsizetype CountChanges(const QStringList& arguments) {
    const QStringList all = QCoreApplication::arguments();
    if (const qsizetype end = all.indexOf(QLatin1String("--")); end >= 0)
        return arguments.size() - (all.size() - end - 1);
    qsizetype count = 0;
    while (count < arguments.size() && arguments[count].contains(u'='))
        ++count;
    return count;
}

/// Each file once, whatever names lead to it.
QStringList WithoutTwins(const QStringList& files) {
    QStringList once;
    QSet<QString> known;
    for (const QString& file : files) {
        const QString place = FilePlace(file);
        if (place.isEmpty() || !known.contains(place))
            once.append(file);
        known.insert(place);
    }
    return once;
}

int RunSet(const QCommandLineParser& parser) {
    const QStringList arguments = parser.positionalArguments();
    const qsizetype count = CountChanges(arguments);
    const QStringList paths = arguments.mid(count);
    if (arguments.isEmpty())
        return Misused("set", QStringLiteral("at least one CHANGE and one PATH are expected"));
    if (count <= 0)
        return Misused("set", QStringLiteral("changes come before paths, and '%1' is no CHANGE")
                                  .arg(arguments.constFirst()));
    if (paths.isEmpty())
        return Misused("set",
                       QStringLiteral("a PATH is expected behind the changes; where its name has a "
                                      "'=', -- before it ends them"));
    if (const QString reason = WhyAtOdds(parser); !reason.isEmpty())
        return Misused("set", reason);
    FileChanger changer;
    changer.anyWord = parser.isSet(AnyWordOption);
    for (const QString& text : arguments.first(count)) {
        const auto change = ReadChange(text);
        if (!change)
            return Misused("set",
                           QStringLiteral("'%1' is no CHANGE; NAME=TEXT is expected").arg(text));
        changer.changes.push_back(*change);
    }
    std::optional<ModScale> scale;
    if (parser.isSet(ScaleOption)) {
        scale = ReadScale(parser.value(ScaleOption), MessagesIn(English));
        if (!scale)
            return SomethingFailed;
        changer.scale = &*scale;
    }
    const FoundFiles found = CreatureFilesAt(paths);
    const QStringList files = WithoutTwins(found.files);
    const int code =
        EditFiles(parser, files.size(), [&](qsizetype at) { return changer.Try(files[at]); });
    Complain(found, paths);
    return found.refused.empty() ? code : std::max<int>(code, SomethingFailed);
}

} // namespace

const Command SetCommand{"set", "Changes values in existing creature files.", DescribeSet, RunSet};

} // namespace Hesperin
