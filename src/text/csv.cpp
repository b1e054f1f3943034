#include "text/csv.h"

#include <algorithm>

namespace Hesperin {

bool LooksLikeAFormula(QStringView cell) {
    while (cell.startsWith(u'\''))
        cell = cell.sliced(1);
    return !cell.isEmpty() && QStringView(u"=+-@\t\r").contains(cell.front());
}

QString Guarded(const QString& text) {
    return LooksLikeAFormula(text) ? u'\'' + text : text;
}

QString WithoutGuard(const QString& cell) {
    return cell.startsWith(u'\'') && LooksLikeAFormula(cell) ? cell.sliced(1) : cell;
}

void AppendCsvCell(const QString& cell, QByteArray& line) {
    char16_t all = 0;
    bool isPlain = true;
    for (const QChar character : cell) {
        all |= character.unicode();
        isPlain = isPlain && character != u',' && character != u';' && character != u'"' &&
                  character != u'\t' && character != u'\n' && character != u'\r';
    }
    if (!isPlain) {
        line += '"' + QString(cell).replace(u'"', QLatin1String("\"\"")).toUtf8() + '"';
    } else if (all < 0x80) { // nearly every cell
        const qsizetype at = line.size();
        line.resize(at + cell.size());
        std::transform(cell.begin(), cell.end(), line.begin() + at,
                       [](QChar character) { return character.toLatin1(); });
    } else {
        line += cell.toUtf8();
    }
}

} // namespace Hesperin
