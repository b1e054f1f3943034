#include "cli/command.h"

#include "cli/output.h"
#include "cli/survey_progress.h"
#include "creature_files/mod.h"
#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "reports/table_csv.h"
#include "reports/table_html.h"
#include "reports/table_rows.h"
#include "reports/table_text.h"
#include "text/decimal.h"
#include "text/nearest.h"

#include <cmath>

namespace Hesperin {

namespace {

namespace TableOption {
const QString Csv = QStringLiteral("csv");
const QString Json = QStringLiteral("json");
const QString Html = QStringLiteral("html");
const QString Sort = QStringLiteral("sort");
const QString Outliers = QStringLiteral("outliers");
const QString Against = QStringLiteral("against");
const QString Jobs = QStringLiteral("jobs");
const QString Bom = QStringLiteral("bom");
} // namespace TableOption

void DescribeTable(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(" All PATHs together\n"
                       "are one mod: what lies in a later one covers the same path in an earlier.\n"
                       "Archives are read and never written.\n\n"
                       "Examples:\n"
                       "  talmir-cli table samples\n"
                       "  talmir-cli table samples --sort -deviation --outliers 25\n"
                       "  talmir-cli table samples --csv --bom >creatures.csv\n"
                       "  talmir-cli table samples --against samples --json"));
    parser.addPositionalArgument(
        QStringLiteral("PATH"),
        QStringLiteral("A folder, an archive of the game (.pak, .h5u) or a creature file (.xdb)."),
        QStringLiteral("PATH..."));
    parser.addOptions({
        {TableOption::Csv, QStringLiteral("Prints all columns as CSV, for a spreadsheet.")},
        {TableOption::Bom, QStringLiteral("Begins the CSV with a byte-order mark, for Excel.")},
        {TableOption::Json, QStringLiteral("Prints one JSON document with all columns.")},
        {TableOption::Html, QStringLiteral("Writes a page for a browser."), QStringLiteral("FILE")},
        {TableOption::Sort, QStringLiteral("Sorts by a column of the CSV; -COLUMN: falling."),
         QStringLiteral("COLUMN")},
        {TableOption::Outliers, QStringLiteral("Only creatures that deviate by more."),
         QStringLiteral("PERCENT")},
        {TableOption::Against,
         QStringLiteral("Tells what is different in another version of the mod."),
         QStringLiteral("PATH")},
        {TableOption::Jobs, QStringLiteral("How many files at once; else one for each core."),
         QStringLiteral("N")},
    });
}

/// What the command line asks for, or why it is wrong.
class Wishes {
public:
    explicit Wishes(const QCommandLineParser& given) : parser(given) {
        survey.paths = parser.positionalArguments();
        if (survey.paths.isEmpty())
            wrong = QStringLiteral("at least one PATH is expected");
        CheckForms();
        if (parser.isSet(TableOption::Sort))
            ReadSort(parser.value(TableOption::Sort));
        if (parser.isSet(TableOption::Outliers))
            outliers = ReadNumber(TableOption::Outliers, 1'000'000);
        if (const auto jobs = ReadNumber(TableOption::Jobs, mostJobs))
            survey.jobs = static_cast<unsigned>(*jobs);
    }

    SurveyWish survey;
    std::optional<RowOrder> order;
    std::optional<double> outliers;
    QString wrong; ///< empty: nothing is

private:
    static constexpr double mostJobs = 256;

    void CheckForms() {
        const auto both = [this](const QString& one, const QString& other) {
            if (parser.isSet(one) && parser.isSet(other))
                wrong = QStringLiteral("--%1 and --%2 exclude each other").arg(one, other);
        };
        both(TableOption::Csv, TableOption::Json);
        both(TableOption::Csv, TableOption::Html);
        both(TableOption::Json, TableOption::Html);
        both(TableOption::Csv, TableOption::Against);
        both(TableOption::Html, TableOption::Against);
        if (parser.isSet(TableOption::Bom) && !parser.isSet(TableOption::Csv))
            wrong = QStringLiteral("--bom goes with --csv");
        const QString page = parser.value(TableOption::Html);
        if (IsDocumentName(page) || IsArchiveName(page)) // most likely a PATH, which would be lost
            wrong = QStringLiteral("--html '%1': a file for the page is expected, not one of a mod")
                        .arg(page);
    }

    void ReadSort(const QString& text) {
        const bool falling = text.startsWith(u'-');
        const QString heading = text.sliced(falling ? 1 : 0);
        auto column = ColumnOf(heading);
        if (!column)
            column = ColumnShownAs(heading);
        if (column) {
            order = {*column, falling};
            return;
        }
        QStringList known;
        for (std::size_t i = 0; i < static_cast<std::size_t>(Column::Count); ++i)
            known.append(HeadingOf(static_cast<Column>(i)));
        wrong = QStringLiteral("there is no column '%1'; did you mean '%2'?")
                    .arg(heading, NearestTo(heading, known));
    }

    /// A number from 0, of jobs a whole one from 1.
    std::optional<double> ReadNumber(const QString& option, double highest) {
        if (!parser.isSet(option))
            return std::nullopt;
        const QString text = parser.value(option);
        const bool isCount = option == TableOption::Jobs;
        const auto decimal = ReadDecimal(text);
        const double number =
            decimal ? static_cast<double>(decimal->units) / std::pow(10.0, decimal->places) : -1;
        if (number < (isCount ? 1 : 0) || number > highest || (isCount && decimal->places > 0)) {
            wrong =
                isCount
                    ? QStringLiteral("--jobs '%1': a whole number from 1 to %2 is expected")
                          .arg(text, QString::number(highest))
                    : QStringLiteral("--%1 '%2': a number from 0 is expected").arg(option, text);
            return std::nullopt;
        }
        return number;
    }

    const QCommandLineParser& parser;
};

void PrintTable(const QCommandLineParser& parser, const Survey& survey, const TableSides& sides,
                const Messages& messages) {
    if (parser.isSet(TableOption::Json))
        return WriteTableJson(survey, sides, messages, PrintBytes);
    if (!parser.isSet(TableOption::Csv))
        return PrintBytes(TableText(survey, sides, messages).toUtf8());
    if (parser.isSet(TableOption::Bom))
        PrintBytes("\xEF\xBB\xBF");
    PrintBytes(CsvHeading());
    for (const SurveyRow& row : survey.rows)
        PrintBytes(CsvLine(row, messages));
}

/// Writes the page into a file, or tells why it can't be written; then false.
bool WritePage(const Survey& survey, const QString& path, const Messages& messages) {
    auto [failure, notes] = SaveFile(path, TableHtml(survey, messages));
    if (failure) {
        failure->file = path;
        failure->doing = Error::Doing::Saving;
        Complain(ErrorText(messages, *failure));
        return false;
    }
    if (!notes.empty())
        Complain(NotesText(messages, notes));
    return true;
}

int RunTable(const QCommandLineParser& parser) {
    const Wishes wishes(parser);
    if (!wishes.wrong.isEmpty())
        return Misused("table", wishes.wrong);
    const Messages& messages = MessagesIn(English);
    Survey survey = TakeSurveyTold(wishes.survey);
    TableSides sides{AllRefused(survey), std::nullopt};
    bool allRead = sides.refused.empty();
    if (parser.isSet(TableOption::Against)) {
        SurveyWish other = wishes.survey;
        other.paths = QStringList(parser.value(TableOption::Against));
        const Survey before = TakeSurveyTold(other);
        const auto refused = AllRefused(before);
        Complain(refused, messages);
        if (before.rows.empty() && !refused.empty()) // all would be told as added
            return SomethingFailed;
        sides.against = CompareMods(before, survey, messages);
        allRead = allRead && refused.empty();
    }
    const bool asPage = parser.isSet(TableOption::Html);
    if (!asPage) // which lists them apart
        AddRefusedRows(survey);
    if (wishes.outliers)
        KeepOutliers(survey.rows, *wishes.outliers);
    if (wishes.order)
        SortRows(survey.rows, *wishes.order, messages);
    if (asPage)
        allRead = WritePage(survey, parser.value(TableOption::Html), messages) && allRead;
    else
        PrintTable(parser, survey, sides, messages);
    return allRead ? AllDone : SomethingFailed;
}

} // namespace

const Command TableCommand{"table", "Shows the creatures of a mod as one table.", DescribeTable,
                           RunTable};

} // namespace Hesperin
