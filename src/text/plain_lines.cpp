#include "text/plain_lines.h"

namespace Hesperin {

QString Printable(QString text) {
    for (QChar& character : text) {
        const bool isBlank = character == u'\t' || character == u'\n' || character == u'\r';
        if (isBlank)
            character = u' ';
        else if (character.category() == QChar::Other_Control ||
                 character.category() == QChar::Other_Format)
            character = u'?';
    }
    return text;
}

QString StartOf(const QString& text, qsizetype width) {
    if (text.size() <= width)
        return text;
    return text.first(text[width - 2].isHighSurrogate() ? width - 2 : width - 1) + QChar(0x2026);
}

QString EndOf(const QString& text, qsizetype width) {
    if (text.size() <= width)
        return text;
    QString end = text.last(width - 1);
    if (end.front().isLowSurrogate())
        end.remove(0, 1);
    return QChar(0x2026) + end;
}

QString Wrapped(const QString& text, qsizetype indent) {
    const qsizetype room = ReportWidth - indent;
    QString lines;
    QStringView rest = text;
    while (!rest.isEmpty()) {
        qsizetype end = rest.size();
        if (end > room) {
            end = rest.first(room + 1).lastIndexOf(u' ');
            if (end <= 0)
                end = rest[room - 1].isHighSurrogate() ? room - 1 : room;
        }
        lines += QString(indent, u' ') + rest.first(end).toString() + u'\n';
        rest = rest.sliced(end);
        while (rest.startsWith(u' '))
            rest = rest.sliced(1);
    }
    return lines;
}

} // namespace Hesperin
