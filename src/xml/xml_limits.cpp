#include "xml/xml_limits.h"

#include "text/decode_text.h"

#include <algorithm>

namespace Hesperin {

namespace {

constexpr qsizetype ShortestAttribute = 5; // ` a=""`

/// Walks over markup without looking at what it means.
class Walk {
public:
    explicit Walk(QStringView document) : text(document) {}

    bool ToNextMarkup() {
        at = text.indexOf(u'<', at);
        return at >= 0;
    }

    /// Steps over what begins with `opening` and ends with `closing`; false when here is none.
    bool Pass(QStringView opening, QStringView closing) {
        if (!text.sliced(at).startsWith(opening))
            return false;
        const qsizetype end = text.indexOf(closing, at + opening.size());
        at = end < 0 ? text.size() : end + closing.size();
        return true;
    }

    /// Steps over a document type and gives its length; 0 when here is none.
    qsizetype PassDocumentType() {
        if (!text.sliced(at).startsWith(u"<!DOCTYPE"))
            return 0;
        const qsizetype start = at;
        bool inside = false; // its square brackets
        while (++at < text.size() && (inside || text[at] != u'>')) {
            if (Pass(u"<!--", u"-->") || Pass(u"<?", u"?>") || PassQuoted())
                --at; // the loop steps on
            else if (text[at] == u'[' || text[at] == u']')
                inside = text[at] == u'[';
        }
        return at - start;
    }

    /// Steps over a tag and gives the number of its attributes.
    qsizetype PassTag() {
        qsizetype attributes = 0;
        while (++at < text.size() && text[at] != u'>') {
            if (PassQuoted())
                --at;
            else if (text[at] == u'=')
                ++attributes;
        }
        return attributes;
    }

private:
    bool PassQuoted() { return Pass(u"\"", u"\"") || Pass(u"'", u"'"); }

    QStringView text;
    qsizetype at = 0;
};

} // namespace

bool HasEndlessMarkup(const QByteArray& bytes, qsizetype longest) {
    if (bytes.size() <= longest)
        return false;
    const bool oneByteACharacter = !bytes.contains('\0');
    if (oneByteACharacter && bytes.count('=') <= longest / ShortestAttribute &&
        !bytes.contains("<!DOCTYPE"))
        return false; // the walk takes as long as the parser
    const QString text = DecodeText(bytes, CodePage::Windows1252);
    Walk walk(text);
    while (walk.ToNextMarkup()) {
        if (walk.Pass(u"<!--", u"-->") || walk.Pass(u"<![CDATA[", u"]]>") ||
            walk.Pass(u"<?", u"?>"))
            continue;
        if (const qsizetype length = walk.PassDocumentType(); length > 0) {
            if (length > longest)
                return true;
        } else if (walk.PassTag() > longest / ShortestAttribute) {
            return true;
        }
    }
    return false;
}

int EntityLimit(const QByteArray& bytes, qsizetype longestInAll) {
    constexpr qsizetype limitOfTheParser = 4096;
    return static_cast<int>(
        std::min(limitOfTheParser, longestInAll / std::max<qsizetype>(1, bytes.count('&'))));
}

} // namespace Hesperin
