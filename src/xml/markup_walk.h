#pragma once

#include <QStringView>

namespace Hesperin {

/// Steps over markup without looking at what it means.
class MarkupWalk {
public:
    explicit MarkupWalk(QStringView document) : text(document) {}

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

    bool PassQuoted() { return Pass(u"\"", u"\"") || Pass(u"'", u"'"); }

    /// Steps over a comment, a CDATA section or a processing instruction.
    bool PassInvisible() {
        return Pass(u"<!--", u"-->") || Pass(u"<![CDATA[", u"]]>") || Pass(u"<?", u"?>");
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

protected:
    QStringView text;
    qsizetype at = 0;
};

} // namespace Hesperin
