#include "creature_files/edited_file.h"

#include "creature_files/document.h"
#include "text/escape.h"
#include "text/nearest.h"

#include <algorithm>

namespace Hesperin {

namespace {

QString PathIn(const Element& element) {
    return element.parent.isEmpty() ? element.name.toString()
                                    : element.parent.toString() + u'/' + element.name.toString();
}

/// The part of `span` without the white space at its ends.
Span CoreOf(QStringView text, Span span) {
    while (span.start < span.end && text[span.start].isSpace())
        ++span.start;
    while (span.end > span.start && text[span.end - 1].isSpace())
        --span.end;
    return span;
}

/// Whether a document can hold the text at all.
bool CanBeSpelled(const QString& text) {
    return text.isValidUtf16() && std::all_of(text.begin(), text.end(), [](QChar unit) {
               return unit >= u' ' ? unit != QChar(0xFFFE) && unit != QChar(0xFFFF)
                                   : unit == u'\t' || unit == u'\n';
           });
}

QString SpelledContent(const QString& text) {
    return Escaped(text, Escape::Content).replace(QLatin1String("]]>"), QLatin1String("]]&gt;"));
}

} // namespace

Result<EditedFile> EditedFile::Open(const QByteArray& bytes) {
    if (const auto normalised = NormaliseCreature(bytes); !normalised)
        return normalised.Why();
    auto decoded = DocumentText::Decode(bytes);
    if (!decoded)
        return decoded.Why();
    EditedFile file(bytes, std::move(*decoded));
    auto found = FindElements(file.document.Text());
    if (!found)
        return found.Why();
    file.elements = std::move(*found);
    return file;
}

QString EditedFile::PathOf(int element) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(element)];
    return place.parent <= 0 ? place.name.toString()
                             : PathOf(place.parent) + u'/' + place.name.toString();
}

int EditedFile::ChildOf(int parent, QStringView name) const {
    for (std::size_t i = 1; i < elements.size(); ++i)
        if (elements[i].parent == parent && elements[i].name == name)
            return static_cast<int>(i);
    return None;
}

Error EditedFile::Unknown(const QString& name) const {
    QStringList known;
    for (const Element& element : Elements)
        known += {element.name.toString(), PathIn(element)};
    for (std::size_t i = 1; i < elements.size(); ++i)
        known += {elements[i].name.toString(), PathOf(static_cast<int>(i))};
    return {Error::What::ElementUnknown, name, NearestTo(name, known)};
}

Result<EditedFile::Target> EditedFile::Find(const QString& name) const {
    Target target;
    target.attribute = name.section(u'@', 1);
    const QString own = name.section(u'@', 0, 0);
    const bool isPath = own.contains(u'/');
    const QString last = own.section(u'/', -1);
    for (std::size_t i = 1; i < elements.size(); ++i) {
        const int element = static_cast<int>(i);
        if (elements[i].name != last || (isPath && PathOf(element) != own))
            continue;
        if (target.element != None) {
            Error twice{Error::What::ElementTwice, own};
            twice.line = elements[i].line;
            return twice;
        }
        target.element = element;
    }
    const QString path = target.element == None ? own : PathOf(target.element);
    for (const Element& element : Elements)
        if (PathIn(element) == path || (target.element == None && element.name == own))
            target.format = &element;
    if (target.element == None && (target.format == nullptr || !target.attribute.isEmpty()))
        return Unknown(own);
    target.path = target.element == None ? PathIn(*target.format) : path;
    if (!target.attribute.isEmpty()) {
        target.path += u'@' + target.attribute;
        QStringList known;
        const ElementPlace& place = elements[static_cast<std::size_t>(target.element)];
        for (const AttributePlace& attribute : AttributesOf(document.Text(), place.startTag))
            known.append(attribute.name.toString());
        if (!known.contains(target.attribute))
            return Error{Error::What::ElementUnknown, target.path,
                         NearestTo(target.attribute, known)};
    }
    return target;
}

/// As the file has it.
Result<QString> EditedFile::ValueOf(int element) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(element)];
    if (place.children > 0)
        return Error{Error::What::HoldsElements, PathOf(element)};
    const QStringView text = document.Text();
    QString value;
    for (const ContentPiece& piece : PiecesOf(text, place.content)) {
        const QStringView part = text.sliced(piece.span.start, piece.span.Length());
        if (piece.kind == ContentPiece::Kind::Entity)
            return Error{Error::What::FromEntity, PathOf(element)};
        if (piece.kind == ContentPiece::Kind::CData)
            value += part;
        else if (piece.kind == ContentPiece::Kind::Text)
            value += Resolved(part).value_or(QString());
    }
    return value.trimmed();
}

Result<QString> EditedFile::CurrentValue(const Target& target) const {
    if (target.attribute.isEmpty()) {
        const auto changed = contents.find(target.element);
        return changed == contents.end() ? ValueOf(target.element) : Result(changed->second);
    }
    const auto changed = attributes.find({target.element, target.attribute});
    if (changed != attributes.end())
        return changed->second;
    const ElementPlace& place = elements[static_cast<std::size_t>(target.element)];
    for (const AttributePlace& attribute : AttributesOf(document.Text(), place.startTag))
        if (attribute.name == target.attribute) {
            const auto value =
                Resolved(QStringView(document.Text())
                             .sliced(attribute.value.start, attribute.value.Length()));
            return value ? Result(*value) : Error{Error::What::FromEntity, target.path};
        }
    return QString();
}

Result<std::optional<QString>> EditedFile::Content(const QString& name) const {
    const auto target = Find(name);
    if (!target)
        return target.Why();
    if (target->element == None) {
        const auto added = missing.find(target->format);
        return added == missing.end() ? std::nullopt : std::optional(added->second);
    }
    const auto value = CurrentValue(*target);
    return value ? Result(std::optional(*value)) : value.Why();
}

const Element* EditedFile::FormatOf(const QString& name) const {
    const auto target = Find(name);
    return target ? target->format : nullptr;
}

Failure EditedFile::Set(const QString& name, const QString& text) {
    const auto target = Find(name);
    if (!target)
        return target.Why();
    if (!CanBeSpelled(text))
        return Error{Error::What::CantBeSpelled, text};
    if (target->element != None) {
        const auto value = CurrentValue(*target);
        if (!value)
            return value.Why();
        if (*value == text)
            return {};
        if (target->attribute.isEmpty())
            contents[target->element] = text;
        else
            attributes[{target->element, target->attribute}] = text;
    } else {
        if (IsList(target->path))
            return Error{Error::What::HoldsElements, target->path};
        missing[target->format] = text;
    }
    if (!order.contains(target->path))
        order.append(target->path);
    return {};
}

std::vector<FileChange> EditedFile::Changes() const {
    std::vector<FileChange> changes;
    for (const QString& path : order) {
        if (const auto list = lists.find(path); list != lists.end()) {
            for (const ItemState& item : list->second.items) {
                const auto textOf = [](const std::optional<ListItem>& side) {
                    return side ? std::optional(side->Text()) : std::nullopt;
                };
                if (textOf(item.was) != textOf(item.now))
                    changes.push_back({path, textOf(item.was), textOf(item.now)});
            }
            continue;
        }
        const auto target = Find(path);
        if (!target) // can't be: it was found before
            continue;
        if (target->element == None) {
            changes.push_back({path, std::nullopt, missing.at(target->format)});
            continue;
        }
        const auto before = EditedFile(*this).Forgetting(*target);
        const auto now = CurrentValue(*target);
        if (before && now && *before != *now)
            changes.push_back({path, *before, *now});
    }
    return changes;
}

/// The value that the file has.
Result<QString> EditedFile::Forgetting(const Target& target) {
    contents.erase(target.element);
    attributes.erase({target.element, target.attribute});
    return CurrentValue(target);
}

void EditedFile::Replace(Span span, const QString& text, std::vector<Edit>& edits) const {
    const qsizetype start = document.OffsetOf(span.start);
    edits.push_back({start, document.OffsetOf(span.end) - start, document.Encode(text)});
}

Failure EditedFile::AddContentEdits(int element, const QString& text,
                                    std::vector<Edit>& edits) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(element)];
    const QStringView all = document.Text();
    if (place.isEmptyTag) { // <X/> opens up
        qsizetype slash = place.startTag.end - 2;
        while (all[slash - 1].isSpace())
            --slash;
        Replace({slash, place.startTag.end},
                u'>' + SpelledContent(text) + QLatin1String("</") + place.name.toString() + u'>',
                edits);
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
        Replace(core, isCData ? rest : SpelledContent(rest), edits);
        rest.clear();
        placed = true;
    }
    if (placed)
        return {};
    const bool onlyBlanks = CoreOf(all, place.content).Length() == 0;
    Replace(onlyBlanks ? place.content : Span{place.content.start, place.content.start},
            SpelledContent(text), edits);
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
            if (attribute.name == key.second) {
                QString spelled = Escaped(text, Escape::Attribute);
                if (attribute.quote == u'\'')
                    spelled.replace(QLatin1String("&quot;"), QLatin1String("\""))
                        .replace(u'\'', QLatin1String("&apos;"));
                Replace(attribute.value, spelled, edits);
            }
    }
    for (const auto& [name, list] : lists) {
        if (list.element == None)
            AddMissingList(name, list, edits);
        else
            AddListEdits(list, edits);
    }
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
    if (auto failure = Check(*edited))
        return *failure;
    return edited;
}

} // namespace Hesperin
