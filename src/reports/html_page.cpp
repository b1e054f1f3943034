#include "reports/html_page.h"

#include <QByteArrayList>

namespace Hesperin {

QByteArray InHtml(const QString& text) {
    constexpr char16_t pictures = 0x2400;
    QString spelled;
    spelled.reserve(text.size() + text.size() / 8);
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code == u'&')
            spelled += u"&amp;";
        else if (code == u'<')
            spelled += u"&lt;";
        else if (code == u'>')
            spelled += u"&gt;";
        else if (code == u'"')
            spelled += u"&quot;";
        else if (code == u'\'')
            spelled += u"&#39;";
        else if (code == u'\n' || code == u'\t')
            spelled += code == u'\n' ? u"&#10;" : u"&#9;";
        else if (code < u' ')
            spelled += QChar(static_cast<char16_t>(pictures + code));
        else if ((code >= 0x7f && code < 0xa0) || (code >= 0xfdd0 && code <= 0xfdef) ||
                 code >= 0xfffe)
            spelled += QChar(QChar::ReplacementCharacter);
        else
            spelled += character;
    }
    return spelled.toUtf8();
}

QByteArray HtmlElement(const QByteArray& start, const QString& text) {
    return '<' + start + '>' + InHtml(text) + "</" + start.split(' ').constFirst() + '>';
}

} // namespace Hesperin
