#include "text/csv_reader.h"

#include "text/decode_text.h"

#include <algorithm>

namespace Hesperin {

namespace {

bool EndsLine(QChar character) {
    return character == u'\n' || character == u'\r';
}

/// Behind the line end at `place`.
qsizetype BehindLineEnd(QStringView text, qsizetype place) {
    return place + (text.sliced(place).startsWith(QLatin1String("\r\n")) ? 2 : 1);
}

QChar SeparatorOf(QStringView text) {
    constexpr char16_t separators[] = {u',', u';', u'\t'};
    std::size_t counts[std::size(separators)] = {};
    bool quoted = false;
    for (const QChar character : text) {
        if (EndsLine(character) && !quoted)
            break;
        if (character == u'"')
            quoted = !quoted;
        for (std::size_t i = 0; i < std::size(separators); ++i)
            if (!quoted && character == separators[i])
                ++counts[i];
    }
    return separators[std::max_element(std::begin(counts), std::end(counts)) - std::begin(counts)];
}

/// A quote without end, which opens at `place`.
Error EndlessQuote(QStringView text, qsizetype place) {
    Error error{Error::What::EndlessQuote};
    error.line = 1;
    qsizetype start = 0;
    for (qsizetype at = 0; at < place;)
        if (EndsLine(text[at])) {
            ++error.line;
            at = start = BehindLineEnd(text, at);
        } else {
            ++at;
        }
    error.column = place - start + 1;
    return error;
}

class CsvParser {
public:
    CsvParser(QStringView table, QChar between) : text(table), separator(between) {}

    bool IsAtEnd() const { return at >= text.size(); }

    Result<QStringList> ReadRow() {
        QStringList cells;
        for (;;) {
            auto cell = ReadCell();
            if (!cell)
                return cell.Why();
            cells.append(std::move(*cell));
            if (IsAtEnd())
                return cells;
            if (EndsLine(text[at])) {
                at = BehindLineEnd(text, at);
                return cells;
            }
            ++at;
        }
    }

private:
    Result<QString> ReadCell() {
        QString cell;
        if (!IsAtEnd() && text[at] == u'"') {
            const qsizetype opening = at++;
            for (;;) {
                const qsizetype quote = text.indexOf(u'"', at);
                if (quote < 0)
                    return EndlessQuote(text, opening);
                cell += text.sliced(at, quote - at);
                at = quote + 1;
                if (IsAtEnd() || text[at] != u'"')
                    break;
                cell += text[at++];
            }
        }
        const qsizetype start = at;
        while (!IsAtEnd() && text[at] != separator && !EndsLine(text[at]))
            ++at;
        return cell += text.sliced(start, at - start);
    }

    QStringView text;
    QChar separator;
    qsizetype at = 0;
};

} // namespace

Result<std::vector<CsvRow>> ReadCsv(const QByteArray& bytes) {
    const QString decoded = DecodeText(bytes, CodePage::Windows1251);
    QStringView text = decoded;
    QChar separator = SeparatorOf(text);
    constexpr QLatin1String naming("sep=");
    const qsizetype end = naming.size() + 1;
    if (text.startsWith(naming, Qt::CaseInsensitive) && text.size() >= end &&
        (text.size() == end || EndsLine(text[end]))) {
        separator = text[end - 1];
        text = text.size() == end ? QStringView() : text.sliced(BehindLineEnd(text, end));
    }
    CsvParser parser(text, separator);
    std::vector<CsvRow> rows;
    for (qint64 number = 1; !parser.IsAtEnd(); ++number) {
        auto cells = parser.ReadRow();
        if (!cells)
            return cells.Why();
        if (std::any_of(cells->begin(), cells->end(),
                        [](const QString& cell) { return !cell.isEmpty(); }))
            rows.push_back({number, std::move(*cells)});
    }
    return rows;
}

} // namespace Hesperin
