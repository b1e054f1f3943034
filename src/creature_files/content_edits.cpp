// The bytes that the changes of an edit in place come to.
#include "creature_files/edited_file.h"

#include "creature_files/document.h"
#include "text/escape.h"

namespace Hesperin {

namespace {

/// The part of `span` without the white space at its ends.
Span CoreOf(QStringView text, Span span) {
    while (span.start < span.end && text[span.start].isSpace())
        ++span.start;
    while (span.end > span.start && text[span.end - 1].isSpace())
        --span.end;
    return span;
}

/// The value of an attribute, between quotes of this kind.
QString SpelledValue(const QString& text, QChar quote) {
    QString spelled = Escaped(text, Escape::Attribute);
    spelled.replace(u'\t', QLatin1String("&#9;")).replace(u'\n', QLatin1String("&#10;"));
    if (quote == u'\'')
        spelled.replace(QLatin1String("&quot;"), QLatin1String("\""))
            .replace(u'\'', QLatin1String("&apos;"));
    return spelled;
}

} // namespace

QString EditedFile::Spelled(const QString& text) {
    return Escaped(text, Escape::Content).replace(QLatin1String("]]>"), QLatin1String("]]&gt;"));
}

void EditedFile::Replace(Span span, const QString& text, std::vector<Edit>& edits) const {
    const qsizetype start = document.OffsetOf(span.start);
    edits.push_back({start, document.OffsetOf(span.end) - start, document.Encode(text)});
}

Failure EditedFile::AddContentEdits(int element, const QString& text,
                                    std::vector<Edit>& edits) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(element)];
    const QStringView all = document.Text();
    if (place.isEmptyTag) {
        OpenUp(place, Spelled(text), edits);
        return {};
    }
    QString rest = text; // for the first piece; what the others held goes
    bool placed = false;
    for (const ContentPiece& piece : PiecesOf(all, place.content)) {
        const bool isCData = piece.kind == ContentPiece::Kind::CData;
        const Span core = isCData ? piece.span : CoreOf(all, piece.span);
        if (piece.kind == ContentPiece::Kind::Invisible || (core.Length() == 0 && !isCData))
            continue;
        if (isCData && rest.contains(QLatin1String("]]>")))
            return Error{Error::What::UnsafeEdit};
        Replace(core, isCData ? rest : Spelled(rest), edits);
        rest.clear();
        placed = true;
    }
    if (placed)
        return {};
    const bool onlyBlanks = CoreOf(all, place.content).Length() == 0;
    Replace(onlyBlanks ? place.content : Span{place.content.start, place.content.start},
            Spelled(text), edits);
    return {};
}

Result<std::vector<Edit>> EditedFile::Edits() const {
    std::vector<Edit> edits;
    for (const auto& [element, text] : contents)
        if (auto failure = AddContentEdits(element, text, edits))
            return *failure;
    for (const auto& [key, text] : attributes) {
        const ElementPlace& place = elements[static_cast<std::size_t>(key.first)];
        for (const AttributePlace& attribute : AttributesOf(document.Text(), place.startTag))
            if (attribute.name == key.second)
                Replace(attribute.value, SpelledValue(text, attribute.quote), edits);
    }
    for (const auto& [name, list] : lists)
        if (list.element != None)
            if (auto failure = AddListEdits(list, edits))
                return *failure;
    AddMissingEdits(edits);
    return edits;
}

Result<QByteArray> EditedFile::Write() const {
    auto edits = Edits();
    if (!edits)
        return edits.Why();
    auto edited = ApplyEdits(bytes, std::move(*edits));
    if (!edited)
        return edited.Why();
    if (edited->size() > LargestCreatureFile)
        return Error{Error::What::FileTooLarge, {}, QString::number(LargestCreatureFile)};
    if (auto failure = Check(*edited))
        return *failure;
    return edited;
}

} // namespace Hesperin
