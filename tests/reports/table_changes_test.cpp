#include "reports/table_changes.h"

#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "support/cases_file.h"

namespace Hesperin {

namespace {

/// "HEADINGS | CELLS :: ELEMENTS": what comes of a table with these headings and a row of these cells, both parted by
/// semicolons, for a file of these elements.
QString OutcomeOf(const QString& act) {
    const QTemporaryDir folder;
    const QString source = act.section(" :: ", 1);
    WriteFile(folder.filePath("a.xdb"),
              (source.startsWith('<') ? "<Creature>" + source + "</Creature>" : source).toUtf8());
    const QString table = act.section(" :: ", 0, 0);
    const QString rows = "file;" + table.section(" | ", 0, 0) + "\na.xdb;" + table.section(" | ", 1);
    const auto changes = ReadTableChanges(rows.toUtf8(), folder.path());
    if (!changes)
        return ErrorReason(MessagesIn(English), changes.Why());
    QStringList told;
    for (const Error& refusal : changes->refusals)
        told.append(ErrorReason(MessagesIn(English), refusal));
    for (const TableRow& row : changes->rows) {
        const ChangeReport report = TryRow(row);
        told += ChangeText(MessagesIn(English), report).split('\n').mid(1);
        for (const Error& error : report.errors)
            told.append(ErrorReason(MessagesIn(English), error));
        EXPECT_EQ(report.after.isEmpty(), report.changes.empty());
    }
    return told.join('\n');
}

TEST(TableChanges, AreWhatTheCellsSayOtherwiseThanTheFile) { ExpectCases("apply/cells.txt", OutcomeOf); }

} // namespace

} // namespace Hesperin
