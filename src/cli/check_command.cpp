#include "cli/command.h"

#include "cli/output.h"
#include "localisation/languages.h"
#include "reports/finding_text.h"
#include "reports/json.h"
#include "reports/survey.h"
#include "text/plain_lines.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>

namespace Hesperin {

namespace {

const QString GameOption = QStringLiteral("game");
const QString CheckAsJson = QStringLiteral("json");

void DescribeCheck(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(
            " Each finding is a line with file,\n"
            "line, column, severity and rule. Several PATHs are one mod: later ones lie over\n"
            "earlier ones. Exit code 1 when there is an error.\n\n"
            "Examples:\n"
            "  talmir-cli check samples\n"
            "  talmir-cli check --json samples/hill_peasant.xdb\n"
            "  talmir-cli check my_mod.h5u --game data.pak"));
    parser.addPositionalArgument(
        QStringLiteral("PATH"),
        QStringLiteral("Creature files (.xdb), folders of them, archives (.pak, .h5u)."),
        QStringLiteral("PATH..."));
    parser.addOption({GameOption,
                      QStringLiteral("The game's own folder or archive, or several behind the mod: "
                                     "references and words are looked up there too."),
                      QStringLiteral("PATH")});
    parser.addOption({CheckAsJson, QStringLiteral("One JSON document.")});
}

/// How many of the paths stand in front of --game; those behind it belong to the game. All, where
/// it comes first or not at all.
qsizetype CountModPaths(const QStringList& paths) {
    const QStringList all = QCoreApplication::arguments();
    const auto begin = all.begin() + 2; // behind the command
    const auto game = std::find_if(begin, all.end(), [](const QString& argument) {
        return argument.startsWith(QLatin1String("--game"));
    });
    const auto count = std::count_if(
        all.begin(), game, [&paths](const QString& argument) { return paths.contains(argument); });
    return game == all.end() || count == 0 ? paths.size() : std::min(count, paths.size());
}

QString Counted(std::size_t number, const char* one) {
    return QStringLiteral("%1 %2%3").arg(number).arg(
        QLatin1String(one), number == 1 ? QLatin1String() : QLatin1String("s"));
}

std::size_t CountOf(const std::vector<Finding>& findings, Severity severity) {
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(),
                      [severity](const Finding& finding) { return finding.severity == severity; }));
}

void PrintJson(const Survey& survey) {
    QJsonArray findings;
    for (const Finding& finding : survey.findings)
        findings.append(FindingJson(finding));
    PrintLine(JsonLine({{QStringLiteral("findings"), findings},
                        {QStringLiteral("files"), static_cast<qint64>(survey.rows.size())}}));
}

QString LineOf(const Finding& finding, const Messages& messages) {
    QString place = Printable(finding.file);
    if (finding.line > 0)
        place += QStringLiteral(":%1:%2").arg(finding.line).arg(finding.column);
    if (!place.isEmpty())
        place += QLatin1String(": ");
    return place + QStringLiteral("%1: %2: %3")
                       .arg(SeverityText(messages, finding.severity), RuleName(finding),
                            Printable(FindingText(messages, finding)));
}

/// The findings of a file together; those of the whole mod come last.
void PrintText(const Survey& survey, const Messages& messages) {
    QString file;
    QStringList last;
    for (const Finding& finding : survey.findings) {
        if (finding.file.isEmpty()) {
            last.append(LineOf(finding, messages));
            continue;
        }
        if (!file.isEmpty() && file != finding.file)
            PrintLine(QString());
        file = finding.file;
        PrintLine(LineOf(finding, messages));
    }
    if (!file.isEmpty())
        PrintLine(QString());
    for (const QString& line : last)
        PrintLine(line);
    const QString unread = survey.refused.empty()
                               ? QString()
                               : QLatin1String("; ") + Counted(survey.refused.size(), "place") +
                                     QLatin1String(" could not be read");
    PrintLine(QStringLiteral("%1, %2, %3 in %4%5.")
                  .arg(Counted(CountOf(survey.findings, Severity::Error), "error"),
                       Counted(CountOf(survey.findings, Severity::Warning), "warning"),
                       Counted(CountOf(survey.findings, Severity::Note), "note"),
                       Counted(survey.rows.size(), "creature file"), unread));
}

int RunCheck(const QCommandLineParser& parser) {
    const QStringList paths = parser.positionalArguments();
    const qsizetype count = CountModPaths(paths);
    if (paths.isEmpty())
        return Misused("check", QStringLiteral("at least one PATH is expected"));
    SurveyWish wish;
    wish.paths = paths.first(count);
    wish.game = parser.values(GameOption) + paths.mid(count);
    wish.findings = true;
    const Survey survey = TakeSurvey(wish);
    const Messages& messages = MessagesIn(English);
    if (parser.isSet(CheckAsJson))
        PrintJson(survey);
    else
        PrintText(survey, messages);
    Complain(survey.refused, messages);
    const bool isFine = survey.refused.empty() && CountOf(survey.findings, Severity::Error) == 0;
    return isFine ? AllDone : SomethingFailed;
}

} // namespace

const Command CheckCommand{"check", "Tells what is wrong, or looks wrong, in creature files.",
                           DescribeCheck, RunCheck};

} // namespace Hesperin
