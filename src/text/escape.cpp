#include "text/escape.h"

namespace Hesperin {

QString Escaped(const QString& text, Escape where) {
    if (!text.contains(u'&') && !text.contains(u'<') && !text.contains(u'"'))
        return text;
    QString escaped = text;
    escaped.replace(u'&', QLatin1String("&amp;")).replace(u'<', QLatin1String("&lt;"));
    if (where == Escape::Attribute)
        escaped.replace(u'"', QLatin1String("&quot;"));
    return escaped;
}

QString Unescaped(QString text) {
    return text.replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
}

} // namespace Hesperin
