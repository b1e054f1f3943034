#include "reports/table_csv.h"

#include "text/csv.h"

#include <QLocale>

namespace Hesperin {

namespace {

template <typename Append>
QByteArray LineOf(Append append) {
    constexpr qsizetype usual = 512;
    QByteArray line;
    line.reserve(usual);
    for (std::size_t i = 0; i < static_cast<std::size_t>(Column::Count); ++i) {
        if (i > 0)
            line += ',';
        append(static_cast<Column>(i), line);
    }
    return line + "\r\n";
}

/// The scale with all its digits.
QString ExactText(const SurveyRow& row, Column column, const Messages& messages) {
    if (column != Column::Scale)
        return CellText(row, column, messages);
    const auto number = row.Number(column);
    return number ? QString::number(*number, 'f', QLocale::FloatingPointShortest) : QString();
}

} // namespace

QByteArray CsvHeading() {
    return LineOf([](Column column, QByteArray& line) { AppendCsvCell(HeadingOf(column), line); });
}

QByteArray CsvLine(const SurveyRow& row, const Messages& messages) {
    const auto isNumber = [&row](Column column) {
        return HoldsNumbers(column) && row.Number(column);
    };
    return LineOf([&](Column column, QByteArray& line) {
        const QString text = ExactText(row, column, messages);
        const bool isGuarded = LooksLikeAFormula(text) && !isNumber(column);
        AppendCsvCell(isGuarded ? Guarded(text) : text, line);
    });
}

QByteArray TableCsv(const Survey& survey, const Messages& messages) {
    QByteArray table = CsvHeading();
    for (const SurveyRow& row : survey.rows)
        table += CsvLine(row, messages);
    return table;
}

} // namespace Hesperin
