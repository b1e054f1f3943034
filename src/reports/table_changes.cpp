#include "reports/table_changes.h"

#include "creature_files/document.h"
#include "reports/file_changer.h"
#include "reports/survey.h"
#include "system/file_place.h"
#include "system/path_lookup.h"
#include "system/read_file.h"
#include "text/csv.h"
#include "text/csv_reader.h"
#include "text/nearest.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Hesperin {

namespace {

Error At(Error error, qint64 row, const QString& heading) {
    error.row = row;
    error.element = heading;
    return error;
}

/// The files that rows may name.
class FilesBelow {
public:
    explicit FilesBelow(const QString& path)
        : root(path), isFolder(QFileInfo(path).isDir()), canonical(Canonical(path)),
          lookup(path.endsWith(u'/') ? path.chopped(1) : path) {}

    /// The file of that inner path; empty when there is none.
    QString Find(const QString& inner) {
        if (!isFolder) {
            const bool isIt = inner.compare(QFileInfo(root).fileName(), Qt::CaseInsensitive) == 0;
            return isIt ? root : QString();
        }
        const QStringList levels = QDir::fromNativeSeparators(inner).split(u'/');
        for (const QString& level : levels)
            if (level.isEmpty() || level == u"." || level == u"..")
                return {};
        QString file = lookup.FindListed(levels);
        return IsInside(file) ? file : QString();
    }

private:
    /// With a slash behind it.
    static QString Canonical(const QString& folder) {
        const QString path = QDir(folder).canonicalPath();
        return path.endsWith(u'/') ? path : path + u'/';
    }

    /// Links to folders lead elsewhere.
    bool IsInside(const QString& file) const {
        const QFileInfo place(file);
        return !file.isEmpty() && !place.isDir() && Canonical(place.path()).startsWith(canonical);
    }

    QString root;
    bool isFolder;
    QString canonical;
    PathLookup lookup;
};

Error WhyNoColumn(const QString& heading) {
    const bool isElement =
        std::any_of(std::begin(Elements), std::end(Elements), [&](const Element& element) {
            return heading.compare(element.name, Qt::CaseInsensitive) == 0;
        });
    if (isElement)
        return {Error::What::ColumnOnlyTold, heading};
    QStringList known;
    for (std::size_t i = 0; i < static_cast<std::size_t>(Column::Count); ++i)
        known.append(HeadingOf(static_cast<Column>(i)));
    for (const Element& element : Elements)
        if (ElementOfHeading(element.name.toString()) != nullptr)
            known.append(element.name.toString());
    return {Error::What::ColumnUnknown, heading, NearestTo(heading, known)};
}

class TableReader {
public:
    explicit TableReader(const QString& path) : files(path) {}

    Failure ReadHeadings(const CsvRow& row) {
        headings = row.cells;
        for (QString& heading : headings)
            heading = heading.trimmed();
        elements.resize(static_cast<std::size_t>(headings.size()));
        for (qsizetype i = 0; i < headings.size(); ++i)
            ReadHeading(row.number, i);
        const QString heading = HeadingOf(Column::File);
        const qsizetype count =
            std::count_if(headings.begin(), headings.end(),
                          [](const QString& one) { return ColumnOf(one) == Column::File; });
        if (count != 1)
            return Error{count == 0 ? Error::What::ColumnLacking : Error::What::ColumnTwice,
                         heading};
        return {};
    }

    void ReadRow(const CsvRow& row) {
        const auto textOf = [&row](qsizetype cell) {
            return cell < row.cells.size() ? WithoutGuard(row.cells[cell]) : QString();
        };
        const QString inner = textOf(fileColumn);
        const QString& heading = headings[fileColumn];
        if (inner.isEmpty()) {
            if (!IsBlank(row))
                read.refusals.push_back(At({Error::What::RowNamesNone}, row.number, heading));
            return;
        }
        TableRow made{row.number, files.Find(inner), {}, {}};
        QString place;
        if (!made.file.isEmpty()) {
            place = FilePlace(made.file);
        } else {
            made.file = inner;
            made.refusal = At({Error::What::FileMissing}, row.number, heading);
        }
        qsizetype used = row.cells.size();
        while (used > headings.size() && row.cells[used - 1].isEmpty())
            --used;
        if (used > headings.size() && !made.refusal)
            made.refusal = At(
                {Error::What::RowTooLong, QString::number(used), QString::number(headings.size())},
                row.number, {});
        for (std::size_t i = 0; i < elements.size(); ++i)
            if (const auto cell = static_cast<qsizetype>(i);
                elements[i] != nullptr && cell < row.cells.size())
                made.cells.push_back({elements[i], headings[cell], textOf(cell).trimmed()});
        Keep(std::move(made), place);
    }

    TableChanges Finish() {
        for (std::size_t first = 0; first < read.rows.size(); ++first)
            if (const auto& rows = rowsOf[first]; rows.size() > 1)
                read.rows[first].refusal = Error{Error::What::RowTwice, rows.join(u", ")};
        return std::move(read);
    }

private:
    void ReadHeading(qint64 row, qsizetype at) {
        const QString& heading = headings[at];
        if (heading.isEmpty())
            return;
        if (ColumnOf(heading) == Column::File)
            fileColumn = at;
        const Element* element = ElementOfHeading(heading);
        if (element == nullptr) {
            if (!ColumnOf(heading))
                read.refusals.push_back(At(WhyNoColumn(heading), row, heading));
            return;
        }
        const auto isTwin = [&](const QString& other) {
            return ElementOfHeading(other) == element;
        };
        const auto twins = std::count_if(headings.begin(), headings.end(), isTwin);
        if (twins == 1)
            elements[static_cast<std::size_t>(at)] = element;
        else if (std::find_if(headings.begin(), headings.end(), isTwin) - headings.begin() == at)
            read.refusals.push_back(At({Error::What::ColumnTwice, heading}, row, heading));
    }

    static bool IsBlank(const CsvRow& row) {
        return std::all_of(row.cells.begin(), row.cells.end(),
                           [](const QString& cell) { return cell.trimmed().isEmpty(); });
    }

    /// Of several rows of one file the first stays, to tell of them all. `place`: of the file,
    /// whatever names lead to it; empty: there is none.
    void Keep(TableRow row, const QString& place) {
        const QString number = QString::number(row.number);
        if (const auto known = places.constFind(place);
            !place.isEmpty() && known != places.constEnd()) {
            rowsOf[*known].append(number);
            return;
        }
        if (!place.isEmpty())
            places.insert(place, read.rows.size());
        rowsOf.push_back({number});
        read.rows.push_back(std::move(row));
    }

    FilesBelow files;
    QStringList headings;
    std::vector<const Element*> elements; ///< by column; null: its cells are left alone
    qsizetype fileColumn = 0;
    QHash<QString, std::size_t> places; ///< of the files, in the rows read
    std::vector<QStringList> rowsOf;    ///< numbers of the table's rows, by row read
    TableChanges read;
};

/// What a survey shows of a file, taken when it is asked for.
class Listed {
public:
    explicit Listed(QString path) : file(std::move(path)) {}

    bool Says(const TableCell& cell) {
        const auto column = ColumnOf(cell.element->name);
        if (!column)
            return false;
        if (!row)
            row = RowOf({QFileInfo(file).fileName(), file}, ReadFile(file, LargestCreatureFile));
        return SaysTheSame(cell, row->Text(*column));
    }

private:
    QString file;
    std::optional<SurveyRow> row;
};

} // namespace

Result<TableChanges> ReadTableChanges(const QByteArray& table, const QString& path) {
    const auto rows = ReadCsv(table);
    if (!rows)
        return rows.Why();
    TableReader reader(path);
    if (auto failure = reader.ReadHeadings(rows->empty() ? CsvRow() : rows->front()))
        return *failure;
    for (std::size_t i = 1; i < rows->size(); ++i)
        reader.ReadRow((*rows)[i]);
    return reader.Finish();
}

ChangeReport TryRow(const TableRow& row) {
    if (row.refusal)
        return {.file = row.file, .errors = {*row.refusal}};
    Listed listed(row.file);
    ChangeReport report = TryEdit(row.file, [&](EditedFile& file, ChangeReport& made) {
        for (const TableCell& cell : row.cells) {
            const auto now = ContentFor(cell, file);
            if (now && SaysTheSame(cell, *now))
                continue;
            // An empty one may stand for an element that only others in the file hold.
            if ((!now || cell.text.isEmpty()) && listed.Says(cell))
                continue;
            const Failure failure =
                now ? ApplyCell(cell, *now, file, made.notes) : Failure(now.Why());
            if (failure)
                made.errors.push_back(At(*failure, row.number, cell.heading));
        }
    });
    // A file that can't be edited, or even read, has its row in a survey as well.
    if (!report.errors.empty() &&
        std::all_of(row.cells.begin(), row.cells.end(),
                    [&](const TableCell& cell) { return listed.Says(cell); }))
        report.errors.clear();
    return report;
}

} // namespace Hesperin
