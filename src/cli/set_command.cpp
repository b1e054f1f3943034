#include "cli/command.h"

#include "cli/output.h"
#include "cli/progress.h"
#include "creature_files/creature_folder.h"
#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "reports/file_changer.h"
#include "reports/json.h"
#include "system/save_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <deque>
#include <future>

namespace Hesperin {

namespace {

const QString WriteOption = QStringLiteral("write");
const QString DiffOption = QStringLiteral("diff");
const QString JsonOption = QStringLiteral("json");
const QString AnyWordOption = QStringLiteral("any-word");
const QString ScaleOption = QStringLiteral("scale-of");

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
    parser.addOption({WriteOption, QStringLiteral("Writes the files that change.")});
    parser.addOption({DiffOption, QStringLiteral("Prints the changed lines as diff -u does.")});
    parser.addOption({JsonOption, QStringLiteral("One JSON object a line and file.")});
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

int Misused(const QString& reason) {
    Complain(QLatin1String("talmir-cli set: ") + reason);
    return WrongUsage;
}

/// Each file once, whatever names lead to it.
QStringList WithoutTwins(const QStringList& files) {
    QStringList once;
    QSet<QString> known;
    for (const QString& file : files) {
        const QString place = QFileInfo(file).canonicalFilePath();
        if (place.isEmpty() || !known.contains(place))
            once.append(file);
        known.insert(place);
    }
    return once;
}

/// One run over all files.
class Run {
public:
    Run(FileChanger made, const QCommandLineParser& parser)
        : changer(std::move(made)), write(parser.isSet(WriteOption)),
          diff(parser.isSet(DiffOption)), json(parser.isSet(JsonOption)) {}

    int Over(const QStringList& files) {
        // Some at once: the disk takes many that wait for it in one go.
        constexpr std::size_t together = 16;
        constexpr auto anyWay = std::launch::async | std::launch::deferred; // threads may lack
        Progress progress(files.size());
        std::deque<std::future<Changed>> running;
        for (qsizetype started = 0; started < files.size() || !running.empty();) {
            if (started < files.size() && running.size() < together) {
                const QString& file = files[started++];
                running.push_back(std::async(anyWay, [this, file] { return ChangeOne(file); }));
                continue;
            }
            progress.Step();
            const Changed changed = running.front().get();
            running.pop_front();
            progress.Clear();
            Tell(changed.report);
            TellSave(changed);
        }
        for (const QString& folder : folders)
            if (!SyncFolder(folder))
                Complain(QStringLiteral("%1: %2").arg(folder, messages.MsgMayNotLast));
        if (!json && !diff)
            PrintLine(Summary());
        return failed == 0 ? AllDone : SomethingFailed;
    }

private:
    struct Changed {
        ChangeReport report;
        std::vector<SaveNote> notes;
    };

    Changed ChangeOne(const QString& file) const {
        Changed changed{changer.Try(file), {}};
        ChangeReport& report = changed.report;
        if (!write || report.error || report.changes.empty())
            return changed;
        SaveOutcome outcome = SaveFileOfMany(file, report.after);
        report.error = outcome.failure;
        report.written = !outcome.failure;
        changed.notes = std::move(outcome.notes);
        return changed;
    }

    void TellSave(const Changed& changed) {
        const QString& file = changed.report.file;
        if (changed.report.written)
            folders.insert(QFileInfo(QFileInfo(file).canonicalFilePath()).path());
        if (!changed.notes.empty())
            Complain(QStringLiteral("%1: %2").arg(file, NotesText(messages, changed.notes)));
    }

    void Tell(const ChangeReport& report) {
        if (report.error) {
            ++failed;
            if (!json)
                Complain(QStringLiteral("%1: %2").arg(report.file,
                                                      ErrorReason(messages, *report.error)));
        } else if (!report.changes.empty()) {
            ++changedFiles;
            changes += report.changes.size();
        }
        if (json || diff) // which have no place for them
            for (const Error& note : report.notes)
                Complain(QStringLiteral("%1: %2").arg(report.file, ErrorReason(messages, note)));
        if (json)
            return PrintLine(JsonLine(ChangeJson(messages, report)));
        if (report.error || report.changes.empty())
            return;
        if (diff)
            PrintBytes(ChangeDiff(report));
        else
            PrintLine(ChangeText(messages, report));
    }

    QString Summary() const {
        const auto count = [](std::size_t number, const char* one) {
            return QStringLiteral("%1 %2%3").arg(number).arg(
                QLatin1String(one), number == 1 ? QLatin1String() : QLatin1String("s"));
        };
        QString text = changes == 0
                           ? QStringLiteral("Nothing changes.")
                           : count(changes, "change") + QLatin1String(" in ") +
                                 count(changedFiles, "file") +
                                 (write ? QLatin1String(" written.")
                                        : QLatin1String("; nothing is written without --write."));
        if (failed > 0)
            text += u' ' + count(failed, "file") + QLatin1String(" failed.");
        return text;
    }

    const FileChanger changer;
    const bool write;
    const bool diff;
    const bool json;
    const Messages messages = MessagesIn(English);
    QSet<QString> folders; ///< in which files were written
    std::size_t changedFiles = 0;
    std::size_t changes = 0;
    std::size_t failed = 0;
};

int RunSet(const QCommandLineParser& parser) {
    const QStringList arguments = parser.positionalArguments();
    const qsizetype count = CountChanges(arguments);
    const QStringList paths = arguments.mid(count);
    if (count <= 0 || paths.isEmpty())
        return Misused(QStringLiteral("at least one CHANGE and one PATH are expected"));
    if (parser.isSet(DiffOption) && parser.isSet(JsonOption))
        return Misused(QStringLiteral("--diff and --json exclude each other"));
    FileChanger changer;
    changer.anyWord = parser.isSet(AnyWordOption);
    for (const QString& text : arguments.first(count)) {
        const auto change = ReadChange(text);
        if (!change)
            return Misused(QStringLiteral("'%1' is no CHANGE; NAME=TEXT is expected").arg(text));
        changer.changes.push_back(*change);
    }
    ModScale scale;
    if (parser.isSet(ScaleOption)) {
        const QString mod = parser.value(ScaleOption);
        if (!QFileInfo::exists(mod)) {
            Error error{Error::What::FileMissing};
            Complain(QStringLiteral("%1: %2").arg(mod, ErrorReason(MessagesIn(English), error)));
            return SomethingFailed;
        }
        scale = ScaleOf({mod});
        changer.scale = &scale;
    }
    return Run(std::move(changer), parser).Over(WithoutTwins(CreatureFilesAt(paths)));
}

} // namespace

const Command SetCommand{"set", "Changes values in existing creature files.", DescribeSet, RunSet};

} // namespace Hesperin
