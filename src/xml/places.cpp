#include "xml/places.h"

#include "text/blanks.h"
#include "xml/markup_walk.h"

#include <algorithm>
#include <optional>

namespace Hesperin {

namespace {

class ElementFinder : public MarkupWalk {
public:
    using MarkupWalk::MarkupWalk;

    Result<std::vector<ElementPlace>> Run() {
        while (ToNextMarkup()) {
            if (PassInvisible() || PassDocumentType() > 0)
                continue;
            const bool closes = text.sliced(at).startsWith(u"</");
            if (!(closes ? Close() : Open()))
                return Error{Error::What::NotWellFormed};
        }
        if (!open.empty() || elements.empty())
            return Error{Error::What::NotWellFormed};
        return std::move(elements);
    }

private:
    qint64 LineOf(qsizetype place) {
        line += std::count(text.begin() + counted, text.begin() + place, u'\n');
        counted = place;
        return line;
    }

    bool Open() {
        ElementPlace element;
        element.startTag.start = at;
        element.line = LineOf(at);
        const qsizetype nameStart = ++at;
        while (at < text.size() && !IsBlank(text[at]) && text[at] != u'>' && text[at] != u'/')
            ++at;
        element.name = text.sliced(nameStart, at - nameStart);
        while (at < text.size() && text[at] != u'>')
            if (!PassQuoted())
                ++at;
        if (at >= text.size() || element.name.isEmpty())
            return false;
        ++at;
        element.isEmptyTag = text[at - 2] == u'/';
        element.startTag.end = element.end = at;
        element.content = {at, at};
        element.parent = open.empty() ? -1 : open.back();
        if (element.parent >= 0)
            ++elements[static_cast<std::size_t>(element.parent)].children;
        if (!element.isEmptyTag)
            open.push_back(static_cast<int>(elements.size()));
        elements.push_back(element);
        return true;
    }

    bool Close() {
        if (open.empty())
            return false;
        ElementPlace& element = elements[static_cast<std::size_t>(open.back())];
        open.pop_back();
        element.content.end = at;
        const qsizetype bracket = text.indexOf(u'>', at);
        if (bracket < 0)
            return false;
        at = element.end = bracket + 1;
        return true;
    }

    qsizetype counted = 0; // up to here lines have been counted
    qint64 line = 1;
    std::vector<int> open;
    std::vector<ElementPlace> elements;
};

/// The character that a reference between `&` and `;` stands for; none for an entity.
std::optional<QString> CharacterOf(QStringView reference) {
    static constexpr std::pair<QStringView, char16_t> known[] = {
        {u"amp", u'&'}, {u"lt", u'<'}, {u"gt", u'>'}, {u"quot", u'"'}, {u"apos", u'\''}};
    for (const auto& [name, character] : known)
        if (reference == name)
            return QString(QChar(character));
    if (!reference.startsWith(u'#'))
        return std::nullopt;
    bool isNumber = false;
    const bool hex = reference.startsWith(u"#x");
    const uint code = reference.sliced(hex ? 2 : 1).toUInt(&isNumber, hex ? 16 : 10);
    if (!isNumber || code > QChar::LastValidCodePoint)
        return std::nullopt;
    return QStringView(QChar::fromUcs4(code))
        .toString(); // U+FEFF too, which fromUcs4 of QString drops
}

} // namespace

Result<std::vector<ElementPlace>> FindElements(QStringView text) {
    return ElementFinder(text).Run();
}

std::vector<ContentPiece> PiecesOf(QStringView text, Span content) {
    using Kind = ContentPiece::Kind;
    std::vector<ContentPiece> pieces;
    const auto add = [&pieces](Kind kind, qsizetype start, qsizetype end) {
        if (end > start || kind == Kind::CData)
            pieces.push_back({kind, {start, end}});
    };
    qsizetype at = content.start;
    qsizetype textStart = at;
    const auto pass = [&](Kind kind, QStringView opening, QStringView closing) {
        if (!text.sliced(at).startsWith(opening))
            return false;
        add(Kind::Text, textStart, at);
        const qsizetype inside = at + opening.size();
        const qsizetype end = text.indexOf(closing, inside);
        if (kind == Kind::CData)
            add(kind, inside, end);
        else
            add(kind, at, end + closing.size());
        at = textStart = end + closing.size();
        return true;
    };
    while (at < content.end) {
        if (pass(Kind::CData, u"<![CDATA[", u"]]>") || pass(Kind::Invisible, u"<!--", u"-->") ||
            pass(Kind::Invisible, u"<?", u"?>"))
            continue;
        if (text[at] == u'&') {
            const qsizetype end = text.indexOf(u';', at);
            if (!CharacterOf(text.sliced(at + 1, end - at - 1))) {
                pass(Kind::Entity, u"&", u";");
                continue;
            }
        }
        ++at;
    }
    add(Kind::Text, textStart, content.end);
    return pieces;
}

std::vector<AttributePlace> AttributesOf(QStringView text, Span startTag) {
    std::vector<AttributePlace> attributes;
    qsizetype at = startTag.start + 1;
    const auto skip = [&](auto while_) {
        while (at < startTag.end && while_(text[at]))
            ++at;
    };
    skip([](QChar c) { return !IsBlank(c) && c != u'>' && c != u'/'; }); // the name
    for (;;) {
        skip([](QChar c) { return IsBlank(c) || c == u'/'; });
        const qsizetype nameStart = at;
        skip([](QChar c) { return !IsBlank(c) && c != u'=' && c != u'>'; });
        const QStringView name = text.sliced(nameStart, at - nameStart);
        skip([](QChar c) { return c != u'"' && c != u'\'' && c != u'>'; });
        if (name.isEmpty() || at >= startTag.end || text[at] == u'>')
            return attributes;
        const QChar quote = text[at];
        const qsizetype end = text.indexOf(quote, at + 1);
        attributes.push_back({name, {at + 1, end}, quote});
        at = end + 1;
    }
}

std::optional<QString> Resolved(QStringView text) {
    QString resolved;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'&') {
            resolved += text[at];
            continue;
        }
        const qsizetype end = text.indexOf(u';', at);
        const auto character =
            end < 0 ? std::nullopt : CharacterOf(text.sliced(at + 1, end - at - 1));
        if (!character)
            return std::nullopt;
        resolved += *character;
        at = end;
    }
    return resolved;
}

} // namespace Hesperin
