#include "creature_files/edited_file.h"

#include "creature_files/document.h"
#include "text/nearest.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// Line ends as a parser gives them.
QString WithLineFeeds(QStringView text) {
    QString plain = text.toString();
    if (plain.contains(u'\r'))
        plain.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    return plain;
}

/// The format's element of that last name; null when it has none.
const Element* ElementNamed(QStringView name) {
    for (const Element& element : Elements)
        if (element.name == name)
            return &element;
    return nullptr;
}

/// Whether a document can hold the text at all.
bool CanBeSpelled(const QString& text) {
    return text.isValidUtf16() && std::all_of(text.begin(), text.end(), [](QChar unit) {
               return unit >= u' ' ? unit != QChar(0xFFFE) && unit != QChar(0xFFFF)
                                   : unit == u'\t' || unit == u'\n';
           });
}

} // namespace

Result<EditedFile> EditedFile::Open(const QByteArray& bytes) {
    auto normalised = NormaliseCreature(bytes);
    return normalised ? Open(bytes, std::move(*normalised)) : normalised.Why();
}

Result<EditedFile> EditedFile::Open(const QByteArray& bytes, QString normalised) {
    auto decoded = DocumentText::Decode(bytes);
    if (!decoded)
        return decoded.Why();
    EditedFile file(bytes, std::move(*decoded), std::move(normalised));
    auto found = FindElements(file.document.Text());
    if (!found)
        return found.Why();
    file.elements = std::move(*found);
    if (file.document.Text().contains(QLatin1String("<!ENTITY")))
        file.FindBroughtIn();
    return file;
}

/// Notes the elements that stand in no place of their own but come out of an entity.
void EditedFile::FindBroughtIn() {
    EditedFile read({}, {}, {});
    if (auto found = FindElements(normalised))
        read.elements = std::move(*found);
    for (std::size_t i = 1; i < read.elements.size(); ++i)
        broughtIn.append(read.PathOf(static_cast<int>(i)));
    for (std::size_t i = 1; i < elements.size(); ++i)
        broughtIn.removeOne(PathOf(static_cast<int>(i)));
}

QString EditedFile::PathOf(int element) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(element)];
    return place.parent <= 0 ? place.name.toString()
                             : PathOf(place.parent) + u'/' + place.name.toString();
}

bool EditedFile::IsAt(int element, QStringView path) const {
    for (;;) {
        const ElementPlace& place = elements[static_cast<std::size_t>(element)];
        if (!path.endsWith(place.name))
            return false;
        path.chop(place.name.size());
        if (place.parent <= 0)
            return path.isEmpty();
        if (!path.endsWith(u'/'))
            return false;
        path.chop(1);
        element = place.parent;
    }
}

int EditedFile::ChildOf(int parent, QStringView name) const {
    for (std::size_t i = 1; i < elements.size(); ++i)
        if (elements[i].parent == parent && elements[i].name == name)
            return static_cast<int>(i);
    return None;
}

QStringList EditedFile::AttributeNames() const {
    QStringList names;
    for (std::size_t i = 1; i < elements.size(); ++i)
        for (const AttributePlace& attribute : AttributesOf(document.Text(), elements[i].startTag))
            names += PathOf(static_cast<int>(i)) + u'@' + attribute.name.toString();
    return names;
}

Error EditedFile::Unknown(const QString& name) const {
    QStringList known = AttributeNames();
    for (const Element& element : Elements)
        known += {element.name.toString(), Hesperin::PathOf(element)};
    for (std::size_t i = 1; i < elements.size(); ++i)
        known += {elements[i].name.toString(), PathOf(static_cast<int>(i))};
    return {Error::What::ElementUnknown, name, NearestTo(name, known)};
}

Error EditedFile::WithoutAttribute(const QString& name) const {
    const QStringList names = AttributeNames();
    return {Error::What::AttributeLacking, name,
            names.isEmpty() ? QStringLiteral("-") : names.join(QLatin1String(", "))};
}

Result<EditedFile::Target> EditedFile::Find(const QString& name) const {
    Target target;
    target.attribute = name.section(u'@', 1);
    const QString own = name.section(u'@', 0, 0);
    const bool isPath = own.contains(u'/');
    const QStringView last = QStringView(own).sliced(own.lastIndexOf(u'/') + 1);
    const auto isBroughtIn = [&](const QString& path) {
        return path == own || (!isPath && path.section(u'/', -1) == own);
    };
    if (std::any_of(broughtIn.begin(), broughtIn.end(), isBroughtIn))
        return Error{Error::What::FromEntity, own};
    struct Found {
        int first = None;
        int second = None;
    };
    Found byPath;
    Found byLastName;
    for (std::size_t i = 1; i < elements.size(); ++i) {
        if (elements[i].name != last)
            continue;
        const int element = static_cast<int>(i);
        const auto note = [element](Found& found) {
            (found.first == None ? found.first : found.second) = element;
        };
        note(byLastName);
        if (IsAt(element, own))
            note(byPath);
    }
    const Found& found = isPath || byPath.first != None ? byPath : byLastName;
    if (found.second != None) {
        Error twice{Error::What::ElementTwice, own};
        twice.line = elements[static_cast<std::size_t>(found.second)].line;
        return twice;
    }
    target.element = found.first;
    target.path = target.element == None ? own : PathOf(target.element);
    target.format = ElementAt(target.path);
    if (target.element == None && target.format == nullptr)
        target.format = ElementNamed(own);
    if (target.element == None && target.format == nullptr)
        return Unknown(name);
    if (target.element == None && !target.attribute.isEmpty())
        return WithoutAttribute(name);
    if (target.element == None)
        target.path = Hesperin::PathOf(*target.format);
    if (!target.attribute.isEmpty()) {
        target.path += u'@' + target.attribute;
        const ElementPlace& place = elements[static_cast<std::size_t>(target.element)];
        const auto present = AttributesOf(document.Text(), place.startTag);
        if (std::none_of(present.begin(), present.end(), [&](const AttributePlace& known) {
                return known.name == target.attribute;
            }))
            return WithoutAttribute(target.path);
    }
    return target;
}

Result<QString> EditedFile::ValueOf(int element) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(element)];
    if (place.children > 0)
        return Error{IsList(PathOf(element)) ? Error::What::IsAList : Error::What::HoldsElements,
                     PathOf(element)};
    const QStringView text = document.Text();
    QString value;
    for (const ContentPiece& piece : PiecesOf(text, place.content)) {
        const QString part = WithLineFeeds(text.sliced(piece.span.start, piece.span.Length()));
        if (piece.kind == ContentPiece::Kind::Entity)
            return Error{Error::What::FromEntity, PathOf(element)};
        if (piece.kind == ContentPiece::Kind::CData)
            value += part;
        else if (piece.kind == ContentPiece::Kind::Text)
            value += Resolved(part).value_or(QString());
    }
    return value.trimmed();
}

Result<QString> EditedFile::ValueOf(const Target& target) const {
    if (target.attribute.isEmpty())
        return ValueOf(target.element);
    const QStringView text = document.Text();
    const ElementPlace& place = elements[static_cast<std::size_t>(target.element)];
    for (const AttributePlace& attribute : AttributesOf(text, place.startTag)) {
        if (attribute.name != target.attribute)
            continue;
        QString spelled =
            WithLineFeeds(text.sliced(attribute.value.start, attribute.value.Length()));
        const auto value = Resolved(spelled.replace(u'\n', u' ').replace(u'\t', u' '));
        return value ? Result(*value) : Error{Error::What::FromEntity, target.path};
    }
    return QString();
}

Result<QString> EditedFile::CurrentValue(const Target& target) const {
    if (target.attribute.isEmpty()) {
        const auto changed = contents.find(target.element);
        return changed == contents.end() ? ValueOf(target) : Result(changed->second);
    }
    const auto changed = attributes.find({target.element, target.attribute});
    return changed == attributes.end() ? ValueOf(target) : Result(changed->second);
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
    if (target->element == None) {
        if (IsList(target->path))
            return Error{Error::What::IsAList, target->path};
        missing[target->format] = text;
    } else {
        const auto inFile = ValueOf(*target);
        if (!inFile)
            return inFile.Why();
        // Back to what the file has: no change, and its spelling stays.
        if (target->attribute.isEmpty()) {
            contents.erase(target->element);
            if (*inFile != text)
                contents.emplace(target->element, text);
        } else {
            const std::pair key(target->element, target->attribute);
            attributes.erase(key);
            if (*inFile != text)
                attributes.emplace(key, text);
        }
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
        const auto before = ValueOf(*target);
        const auto now = CurrentValue(*target);
        if (before && now && *before != *now)
            changes.push_back({path, *before, *now});
    }
    return changes;
}

} // namespace Hesperin
