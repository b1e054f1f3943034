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
    const bool plain = std::none_of(cell.begin(), cell.end(), [](QChar character) {
        return character == u',' || character == u';' || character == u'"' || character == u'\t' ||
               character == u'\n' || character == u'\r';
    });
    if (plain) {
        line += cell.toUtf8();
        return;
    }
    line += '"' + QString(cell).replace(u'"', QLatin1String("\"\"")).toUtf8() + '"';
}

} // namespace Hesperin
