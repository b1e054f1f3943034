#include "xml/xml_limits.h"

#include "text/decode_text.h"
#include "xml/markup_walk.h"

#include <algorithm>

namespace Hesperin {

namespace {

constexpr qsizetype ShortestAttribute = 5; // ` a=""`

class AttributeCounter : public MarkupWalk {
public:
    using MarkupWalk::MarkupWalk;

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
    AttributeCounter walk(text);
    while (walk.ToNextMarkup()) {
        if (walk.PassInvisible())
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
    if (!bytes.contains('&')) // nearly all files, and told much faster than a count
        return limitOfTheParser;
    return static_cast<int>(std::min(limitOfTheParser, longestInAll / bytes.count('&')));
}

} // namespace Hesperin
