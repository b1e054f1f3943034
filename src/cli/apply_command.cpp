#include "cli/command.h"

#include "cli/edit_run.h"
#include "cli/output.h"
#include "creature_files/mod.h"
#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "reports/table_changes.h"
#include "system/read_file.h"

#include <QFileInfo>

namespace Hesperin {

namespace {

void DescribeApply(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(
            " Every other byte stays as it\n"
            "is. Without --write it only tells what would change.\n\n"
            "Rows are matched by the column \"file\", the path below PATH. A cell in a column "
            "that\n"
            "has the name of an element (Health, Gold, Abilities, also Flying or Cost/Wood) is a\n"
            "change where it says something else than the file. All other columns of the table "
            "are\n"
            "left alone, rows and columns may be missing and stand in any order. Between cells\n"
            "stand commas, semicolons or tabs.\n\n"
            "Examples:\n"
            "  talmir-cli table samples --csv > creatures.csv\n"
            "  talmir-cli apply creatures.csv samples --diff\n"
            "  talmir-cli apply creatures.csv samples --write"));
    parser.addPositionalArgument(QStringLiteral("TABLE"),
                                 QStringLiteral("The table, as CSV or Unicode text."));
    parser.addPositionalArgument(
        QStringLiteral("PATH"),
        QStringLiteral("The folder below which the files lie, or the only file."));
    AddEditOptions(parser);
}

/// Of something that ends the run.
int Refused(const QString& path, const Error& error) {
    Complain(QStringLiteral("%1: %2").arg(path, ErrorReason(MessagesIn(English), error)));
    return SomethingFailed;
}

int RunApply(const QCommandLineParser& parser) {
    const QStringList arguments = parser.positionalArguments();
    QString reason = WhyAtOdds(parser);
    if (arguments.size() != 2)
        reason = QStringLiteral("one TABLE and one PATH are expected");
    if (!reason.isEmpty())
        return Misused("apply", reason);
    const QString& table = arguments[0];
    const QString& path = arguments[1];
    if (!QFileInfo::exists(path))
        return Refused(path, {Error::What::FileMissing});
    if (IsArchiveName(path) && QFileInfo(path).isFile())
        return Refused(path, {Error::What::NeverWritten});
    constexpr qint64 largestTable = 256 << 20;
    const auto bytes = ReadFile(table, largestTable);
    if (!bytes)
        return Refused(table, bytes.Why());
    const auto changes = ReadTableChanges(*bytes, path);
    if (!changes)
        return Refused(table, changes.Why());
    int code = AllDone;
    for (const Error& refusal : changes->refusals)
        code = Refused(table, refusal);
    const std::vector<TableRow>& rows = changes->rows;
    return std::max(code, EditFiles(parser, static_cast<qsizetype>(rows.size()), [&](qsizetype at) {
                        return TryRow(rows[static_cast<std::size_t>(at)]);
                    }));
}

} // namespace

const Command ApplyCommand{"apply", "Changes creature files as a table says.", DescribeApply,
                           RunApply};

} // namespace Hesperin
