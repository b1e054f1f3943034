#include "cli/edit_run.h"

#include "cli/command.h"
#include "cli/output.h"
#include "cli/progress.h"
#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "reports/json.h"
#include "system/save_file.h"
#include "text/plain_lines.h"

#include <QFileInfo>
#include <QSet>

#include <deque>
#include <future>

namespace Hesperin {

namespace {

const QString WriteOption = QStringLiteral("write");
const QString DiffOption = QStringLiteral("diff");
const QString JsonOption = QStringLiteral("json");

/// One run over all files.
class EditRun {
public:
    EditRun(const QCommandLineParser& parser, const std::function<ChangeReport(qsizetype)>& change)
        : tryOne(change), write(parser.isSet(WriteOption)), diff(parser.isSet(DiffOption)),
          json(parser.isSet(JsonOption)) {}

    int Over(qsizetype count) {
        // Some at once: the disk takes many that wait for it in one go.
        constexpr std::size_t together = 16;
        constexpr auto anyWay = std::launch::async | std::launch::deferred; // threads may lack
        Progress progress(count);
        std::deque<std::future<Changed>> running;
        for (qsizetype started = 0; started < count || !running.empty();) {
            if (started < count && running.size() < together) {
                running.push_back(std::async(anyWay, &EditRun::ChangeOne, this, started++));
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

    Changed ChangeOne(qsizetype at) const {
        Changed changed{tryOne(at), {}};
        ChangeReport& report = changed.report;
        if (!write || !report.errors.empty() || report.changes.empty())
            return changed;
        SaveOutcome outcome = SaveFileOfMany(report.file, report.after);
        if (outcome.failure)
            report.errors = {*outcome.failure};
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

    void ComplainOf(const QString& file, const std::vector<Error>& errors) const {
        for (const Error& error : errors)
            Complain(QStringLiteral("%1: %2").arg(Printable(file), ErrorReason(messages, error)));
    }

    void Tell(const ChangeReport& report) {
        const bool isDone = report.errors.empty();
        if (!isDone) {
            ++failed;
        } else if (!report.changes.empty()) {
            ++changedFiles;
            changes += report.changes.size();
        }
        if (!json)
            ComplainOf(report.file, report.errors);
        if (json || diff) // which have no place for them
            ComplainOf(report.file, report.notes);
        if (json)
            return PrintLine(JsonLine(ChangeJson(messages, report)));
        if (!isDone || report.changes.empty())
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

    const std::function<ChangeReport(qsizetype)>& tryOne;
    const bool write;
    const bool diff;
    const bool json;
    const Messages& messages = MessagesIn(English);
    QSet<QString> folders; ///< in which files were written
    std::size_t changedFiles = 0;
    std::size_t changes = 0;
    std::size_t failed = 0;
};

} // namespace

void AddEditOptions(QCommandLineParser& parser) {
    parser.addOption({WriteOption, QStringLiteral("Writes the files that change.")});
    parser.addOption({DiffOption, QStringLiteral("Prints the changed lines as diff -u does.")});
    parser.addOption({JsonOption, QStringLiteral("One JSON object a line and file.")});
}

QString WhyAtOdds(const QCommandLineParser& parser) {
    return parser.isSet(DiffOption) && parser.isSet(JsonOption)
               ? QStringLiteral("--diff and --json exclude each other")
               : QString();
}

int EditFiles(const QCommandLineParser& parser, qsizetype count,
              const std::function<ChangeReport(qsizetype)>& change) {
    return EditRun(parser, change).Over(count);
}

} // namespace Hesperin
