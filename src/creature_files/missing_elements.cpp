// The elements of the format that a file lacks and an edit in place adds; and the check of what
// came out.
#include "creature_files/edited_file.h"

#include "creature_files/document.h"
#include "text/escape.h"

#include <algorithm>

namespace Hesperin {

/// Puts the markup behind the nearest element before `format` in the writer's order, within the
/// same parent; as the first child where there is none.
void EditedFile::AddElement(const Element& format, const QString& markup,
                            std::vector<Edit>& edits) const {
    constexpr int root = 0;
    const int parent = format.parent.isEmpty() ? root : ChildOf(root, format.parent);
    int anchor = None;
    for (const Element& element : Elements) {
        if (&element == &format)
            break;
        // A group stands among its parent's children where its elements stand in the format.
        const bool inside = element.parent == format.parent;
        const QStringView name = inside                    ? element.name
                                 : format.parent.isEmpty() ? element.parent
                                                           : QStringView();
        const int known = name.isEmpty() ? None : ChildOf(parent, name);
        anchor = known == None ? anchor : known;
    }
    if (anchor != None) {
        const ElementPlace& place = elements[static_cast<std::size_t>(anchor)];
        return Replace({place.end, place.end}, IndentBefore(place.startTag.start) + markup, edits);
    }
    const ElementPlace& around = elements[static_cast<std::size_t>(parent)];
    QString indent = IndentBefore(around.startTag.start);
    indent = (indent.contains(u'\n') ? indent : QString(u'\n')) + Unit();
    for (std::size_t i = 1; i < elements.size(); ++i)
        if (elements[i].parent == parent) {
            indent = IndentBefore(elements[i].startTag.start);
            break;
        }
    if (around.isEmptyTag)
        return Replace({around.startTag.end - 2, around.startTag.end},
                       u'>' + indent + markup + QLatin1String("</") + around.name.toString() + u'>',
                       edits);
    Replace({around.startTag.end, around.startTag.end}, indent + markup, edits);
}

void EditedFile::AddMissingEdits(std::vector<Edit>& edits) const {
    QStringView group;
    for (const Element& format : Elements) {
        const auto added = missing.find(&format);
        if (added == missing.end())
            continue;
        const auto markupOf = [](const Element& element, const QString& content) {
            const QString name = element.name.toString();
            return u'<' + name + u'>' + Escaped(content, Escape::Content) + QLatin1String("</") +
                   name + u'>';
        };
        constexpr int root = 0;
        if (format.parent.isEmpty() || ChildOf(root, format.parent) != None) {
            AddElement(format, markupOf(format, added->second), edits);
            continue;
        }
        if (format.parent == group) // came with its group
            continue;
        group = format.parent;
        const QString indent = IndentBefore(elements.size() > 1 ? elements[1].startTag.start : 0);
        QString markup = u'<' + group.toString() + u'>';
        for (const Element& member : Elements)
            if (const auto content = missing.find(&member);
                content != missing.end() && member.parent == group)
                markup += indent + Unit() + markupOf(member, content->second);
        markup += indent + QLatin1String("</") + group.toString() + u'>';
        Element place = format;
        place.parent = {};
        // Behind what stands before the group's first element.
        const Element* before = nullptr;
        for (const Element& element : Elements) {
            if (element.parent == group)
                break;
            const QStringView name = element.parent.isEmpty() ? element.name : element.parent;
            if (ChildOf(root, name) != None)
                before = &element;
        }
        if (before == nullptr) {
            AddElement(Elements.front(), markup, edits);
        } else {
            const QStringView name = before->parent.isEmpty() ? before->name : before->parent;
            const ElementPlace& anchor = elements[static_cast<std::size_t>(ChildOf(root, name))];
            Replace({anchor.end, anchor.end}, IndentBefore(anchor.startTag.start) + markup, edits);
        }
    }
}

void EditedFile::AddMissingList(const QString& list, const ListState& state,
                                std::vector<Edit>& edits) const {
    if (state.items.empty())
        return;
    const QString indent = IndentBefore(elements.size() > 1 ? elements[1].startTag.start : 0);
    const QString separator = indent.contains(u'\n') ? indent + Unit() : QString();
    QString markup = u'<' + list + u'>';
    for (const ItemState& item : state.items)
        markup += ItemMarkup(*item.now, state, separator);
    markup += (separator.isEmpty() ? QString() : indent) + QLatin1String("</") + list + u'>';
    for (const Element& format : Elements)
        if (format.name == list)
            AddElement(format, markup, edits);
}

Result<QStringList> EditedFile::ContentsOf(const QByteArray& bytes) {
    const auto decoded = NormaliseCreature(bytes);
    if (!decoded)
        return decoded.Why();
    const QStringView text = *decoded; // its contents have no entities and no invisible parts
    const auto elements = FindElements(text);
    if (!elements)
        return elements.Why();
    QStringList paths;
    QStringList contents;
    for (const ElementPlace& element : *elements) {
        const QString path = element.parent <= 0
                                 ? element.name.toString()
                                 : paths[element.parent] + u'/' + element.name.toString();
        paths.append(path);
        for (const AttributePlace& attribute : AttributesOf(text, element.startTag))
            contents.append(
                path + u'@' + attribute.name.toString() + u'=' +
                text.sliced(attribute.value.start, attribute.value.Length()).toString());
        const bool counts = element.children == 0 && !IsList(path);
        if (counts && element.parent >= 0)
            contents.append(path + u'=' +
                            Resolved(text.sliced(element.content.start, element.content.Length()))
                                .value_or(QString())
                                .trimmed());
    }
    return contents;
}

Failure EditedFile::Check(const QByteArray& edited) const {
    auto after = ContentsOf(edited);
    auto before = ContentsOf(bytes);
    if (!after || !before)
        return after ? before.Why() : after.Why();
    bool allFound = true;
    const auto replace = [&](const QString& element, const std::optional<QString>& old,
                             const std::optional<QString>& now) {
        if (old)
            allFound = before->removeOne(element + u'=' + *old) && allFound;
        if (now)
            before->append(element + u'=' + *now);
    };
    for (const FileChange& change : Changes()) {
        if (!IsList(change.element)) {
            const bool isAttribute = change.element.contains(u'@');
            const auto spelled = [isAttribute](const std::optional<QString>& value) {
                if (!value)
                    return std::optional<QString>();
                return std::optional(
                    isAttribute
                        ? Escaped(*value, Escape::Attribute).replace(u'>', QLatin1String("&gt;"))
                        : value->trimmed());
            };
            replace(change.element, spelled(change.old), spelled(change.now));
            continue;
        }
        const auto part = [&change](const std::optional<QString>& side, int which) {
            return side ? std::optional(side->section(u':', which, which)) : std::nullopt;
        };
        if (change.element != QLatin1String("KnownSpells")) {
            replace(change.element + QLatin1String("/Item"), change.old, change.now);
            continue;
        }
        replace(QStringLiteral("KnownSpells/Item/Spell"), part(change.old, 0), part(change.now, 0));
        replace(QStringLiteral("KnownSpells/Item/Mastery"), part(change.old, 1),
                part(change.now, 1));
    }
    before->sort();
    after->sort();
    if (allFound && *before == *after)
        return {};
    return Error{Error::What::UnsafeEdit};
}

} // namespace Hesperin
