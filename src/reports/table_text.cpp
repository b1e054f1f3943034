#include "reports/table_text.h"

#include "localisation/error_text.h"
#include "text/plain_lines.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// A column of the text and the room that it may take.
struct TextColumn {
    const char* heading;
    qsizetype widest;
    Column column;
    bool isRight;
};

// clang-format off
constexpr TextColumn ShownColumns[] = {
    {"File",      ReportWidth, Column::File,         false},
    {"Name",               18, Column::Name,         false},
    {"Town",               10, Column::Town,         false},
    {"Tier",                4, Column::CreatureTier, true},
    {"Advised",             7, Column::Advised,      true},
    {"Power",              12, Column::Power,        true},
    {"Average",            12, Column::AveragePower, true},
    {"Deviation",           9, Column::Deviation,    true},
};
// clang-format on
constexpr qsizetype ColumnGap = 2;

QString ShownCell(const SurveyRow& row, const TextColumn& column, const Messages& messages) {
    QString text = Printable(CellText(row, column.column, messages));
    if (column.column == Column::Deviation && row.deviation)
        text = (*row.deviation > 0 ? QLatin1String("+") : QLatin1String()) + text + u'%';
    return text;
}

/// Of a path the end tells most.
QString Padded(const QString& text, qsizetype width, const TextColumn& column) {
    const QString cell = column.column == Column::File ? EndOf(text, width) : StartOf(text, width);
    return column.isRight ? cell.rightJustified(width) : cell.leftJustified(width);
}

class RowTable {
public:
    RowTable(const std::vector<SurveyRow>& all, const Messages& words)
        : rows(all), messages(words) {
        for (std::size_t i = 0; i < std::size(ShownColumns); ++i) {
            widths[i] = static_cast<qsizetype>(std::string_view(ShownColumns[i].heading).size());
            for (const SurveyRow& row : rows)
                if (!row.problem)
                    widths[i] =
                        std::max(widths[i], ShownCell(row, ShownColumns[i], messages).size());
            widths[i] = std::min(widths[i], ShownColumns[i].widest);
        }
        qsizetype others = 0;
        for (std::size_t i = 1; i < widths.size(); ++i)
            others += ColumnGap + widths[i];
        widths[0] = std::min(widths[0], ReportWidth - others); // the paths get what is left
    }

    QString Text() const {
        QString text = Line([](const TextColumn& column) { return QString(column.heading); });
        for (const SurveyRow& row : rows)
            if (!row.problem)
                text += Line(
                    [&](const TextColumn& column) { return ShownCell(row, column, messages); });
        return text;
    }

private:
    template <typename CellOf>
    QString Line(CellOf cellOf) const {
        QString line;
        for (std::size_t i = 0; i < std::size(ShownColumns); ++i)
            line += (i > 0 ? QString(ColumnGap, u' ') : QString()) +
                    Padded(cellOf(ShownColumns[i]), widths[i], ShownColumns[i]);
        while (line.endsWith(u' '))
            line.chop(1);
        return line + u'\n';
    }

    const std::vector<SurveyRow>& rows;
    const Messages& messages;
    std::array<qsizetype, std::size(ShownColumns)> widths{};
};

QString TiersText(const ModScale& scale) {
    QString text = QStringLiteral("Tier  Creatures   Scale\n");
    for (const std::int16_t tier : scale.KnownTiers())
        text += QStringLiteral("%1%2%3\n")
                    .arg(tier, 4)
                    .arg(scale.CountOf(tier, Figure::Power), 11)
                    .arg(ScaleText(*scale.Of(tier, Figure::Power)), 8);
    return text;
}

/// "Health: 30 -> 33"; of abilities only those that came and went.
QString ChangeWords(const CellChange& change) {
    const QString heading = HeadingOf(change.column);
    if (change.column != Column::Abilities)
        return QStringLiteral("%1: %2 -> %3").arg(heading, change.before, change.after);
    const QStringList before = change.before.split(u' ', Qt::SkipEmptyParts);
    const QStringList after = change.after.split(u' ', Qt::SkipEmptyParts);
    QStringList words;
    for (const QString& word : before)
        if (!after.contains(word, Qt::CaseInsensitive))
            words.append(u'-' + word);
    for (const QString& word : after)
        if (!before.contains(word, Qt::CaseInsensitive))
            words.append(u'+' + word);
    return heading + QLatin1String(": ") + words.join(u' ');
}

QString ComparisonText(const std::vector<FileComparison>& files) {
    constexpr const char* kinds[] = {"added    ", "removed  ", "changed  "};
    if (files.empty())
        return QStringLiteral("\nBoth versions hold the same in the columns of the table.\n");
    QString text = QStringLiteral("\nAgainst the other version:\n");
    QString stayed;
    for (const FileComparison& file : files) {
        const QString path = Printable(file.file);
        text += QLatin1String("  ") + QLatin1String(kinds[static_cast<std::size_t>(file.kind)]) +
                EndOf(path, ReportWidth - 11) + u'\n';
        for (const CellChange& change : file.changes)
            text += Wrapped(Printable(ChangeWords(change)), 4);
        if (file.powerStayed)
            stayed += QLatin1String("  ") + EndOf(path, ReportWidth - 2) + u'\n';
    }
    if (!stayed.isEmpty())
        text += QLatin1String("\nParameters changed and Power did not:\n") + stayed;
    return text;
}

QString Counted(std::size_t number, const char* one) {
    return QStringLiteral("%1 %2%3").arg(number).arg(
        QLatin1String(one), number == 1 ? QLatin1String() : QLatin1String("s"));
}

} // namespace

std::optional<Column> ColumnShownAs(const QString& heading) {
    for (const TextColumn& column : ShownColumns)
        if (heading.compare(QLatin1String(column.heading), Qt::CaseInsensitive) == 0)
            return column.column;
    return std::nullopt;
}

QString TableText(const Survey& survey, const TableSides& sides, const Messages& messages) {
    const auto shown = static_cast<std::size_t>(std::count_if(
        survey.rows.begin(), survey.rows.end(), [](const SurveyRow& row) { return !row.problem; }));
    QString text;
    if (shown > 0)
        text += RowTable(survey.rows, messages).Text() + u'\n';
    if (!survey.scale.KnownTiers().empty())
        text +=
            TiersText(survey.scale) +
            QLatin1String("Average is the Power that both methods give on average, Scale the "
                          "median of Average / Power in\nthe tier, Deviation how far a creature "
                          "lies from it.\n\n");
    if (!sides.refused.empty()) {
        text += QLatin1String("Refused:\n");
        for (const RefusedPlace& place : sides.refused)
            text += QLatin1String("  ") + EndOf(Printable(place.path), ReportWidth - 2) + u'\n' +
                    Wrapped(Printable(ErrorReason(messages, place.error)), 4);
        text += u'\n';
    }
    text += Counted(shown, "creature") + QLatin1String(", ") +
            QString::number(sides.refused.size()) + QLatin1String(" refused, ") +
            Counted(survey.other, "other document") + QLatin1String(".\n");
    return sides.against ? text + ComparisonText(*sides.against) : text;
}

} // namespace Hesperin
