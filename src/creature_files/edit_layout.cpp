// How what an edit in place adds is laid out, and the elements of the format that a file lacks.
#include "creature_files/edited_file.h"

#include "text/blanks.h"

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int Root = 0;

QString BehindLineEnd(const QString& indent) {
    return indent.mid(std::max(indent.lastIndexOf(u'\n'), indent.lastIndexOf(u'\r')) + 1);
}

QString Tag(QStringView name, QStringView slash = {}) {
    return u'<' + slash.toString() + name.toString() + u'>';
}

} // namespace

/// The white space in front of a place, from its last line end on; all of it where it has none.
QString EditedFile::IndentBefore(qsizetype place) const {
    const QStringView text = document.Text();
    const qsizetype start = BlanksBefore(text, place);
    const QStringView blanks = text.sliced(start, place - start);
    qsizetype lineEnd = std::max(blanks.lastIndexOf(u'\n'), blanks.lastIndexOf(u'\r'));
    if (lineEnd < 0)
        return blanks.toString();
    if (lineEnd > 0 && blanks[lineEnd] == u'\n' && blanks[lineEnd - 1] == u'\r')
        --lineEnd;
    return blanks.sliced(lineEnd).toString();
}

/// The indentation of one level: what the first element below the root has more than the root.
QString EditedFile::Unit() const {
    if (elements.size() < 2)
        return QStringLiteral("\t");
    const QString outer = BehindLineEnd(IndentBefore(elements[Root].startTag.start));
    const QString inner = BehindLineEnd(IndentBefore(elements[1].startTag.start));
    return inner.startsWith(outer) ? inner.mid(outer.size()) : inner;
}

/// What stands in front of the first child that an element without any is given.
QString EditedFile::SeparatorIn(const ElementPlace& element) const {
    const QString closing = element.isEmptyTag ? QString() : IndentBefore(element.content.end);
    const QString level = HasLineEnd(closing) ? closing : IndentBefore(element.startTag.start);
    return HasLineEnd(level) ? level + Unit() : QString();
}

/// Behind the comments that end the line of what ends at `end`, which belong to it.
qsizetype EditedFile::BehindComments(qsizetype end) const {
    const QStringView text = document.Text();
    qsizetype behind = end;
    for (qsizetype at = end; at < text.size();) {
        if (text[at] == u' ' || text[at] == u'\t') {
            ++at;
        } else if (text.sliced(at).startsWith(u"<!--")) {
            behind = at = text.indexOf(u"-->", at) + 3;
        } else {
            return text[at] == u'\n' || text[at] == u'\r' ? behind : end;
        }
    }
    return end;
}

/// "/>" in the blank style of the file's other empty elements.
QString EditedFile::EmptyTagEnd(int besides) const {
    const QStringView text = document.Text();
    for (std::size_t i = 1; i < elements.size(); ++i)
        if (elements[i].isEmptyTag && static_cast<int>(i) != besides)
            return text[elements[i].startTag.end - 3] == u' ' ? QStringLiteral(" />")
                                                              : QStringLiteral("/>");
    return QStringLiteral("/>");
}

/// An item in the layout of the others; `separator` is what stands in front of it.
QString EditedFile::ItemMarkup(const ListItem& item, const ListState& list,
                               const QString& separator) const {
    if (item.mastery.isEmpty())
        return separator + Tag(u"Item") + Spelled(item.word) + Tag(u"Item", u"/");
    QString inner = HasLineEnd(separator) ? separator + Unit() : separator;
    QString closing = separator;
    for (const ItemState& model : list.items) {
        const int spell = model.element == None ? None : ChildOf(model.element, u"Spell");
        if (spell == None)
            continue;
        inner = IndentBefore(elements[static_cast<std::size_t>(spell)].startTag.start);
        closing = IndentBefore(elements[static_cast<std::size_t>(model.element)].content.end);
    }
    return separator + Tag(u"Item") + inner + Tag(u"Spell") + Spelled(item.word) +
           Tag(u"Spell", u"/") + inner + Tag(u"Mastery") + Spelled(item.mastery) +
           Tag(u"Mastery", u"/") + closing + Tag(u"Item", u"/");
}

/// <X/> becomes <X>, the markup and </X>.
void EditedFile::OpenUp(const ElementPlace& element, const QString& markup,
                        std::vector<Edit>& edits) const {
    const Span end{BlanksBefore(document.Text(), element.startTag.end - 2), element.startTag.end};
    Replace(end, u'>' + markup + Tag(element.name, u"/"), edits);
}

/// Gives an element without children its first ones.
void EditedFile::FillIn(const ElementPlace& element, const QString& markup,
                        std::vector<Edit>& edits) const {
    const QString own = IndentBefore(element.startTag.start);
    const QString closing = HasLineEnd(markup) && HasLineEnd(own) ? own : QString();
    if (element.isEmptyTag)
        return OpenUp(element, markup + closing, edits);
    const QString indent = IndentBefore(element.content.end);
    const qsizetype at = element.content.end - indent.size();
    if (HasLineEnd(indent)) // the closing tag has a line of its own
        return Replace({at, at}, markup, edits);
    Replace({at, element.content.end}, markup + closing, edits);
}

/// The nearest child of `parent` before `format` in the writer's order; None when there is none.
int EditedFile::AnchorOf(int parent, const Element& format) const {
    int anchor = None;
    for (const Element& element : Elements) {
        if (&element == &format)
            break;
        // A group stands among the root's children where its elements stand in the format.
        const QStringView name = parent == Root && !element.parent.isEmpty() ? element.parent
                                 : parent == Root || element.parent == format.parent
                                     ? element.name
                                     : QStringView();
        const int known = name.isEmpty() ? None : ChildOf(parent, name);
        anchor = known == None ? anchor : known;
    }
    return anchor;
}

bool EditedFile::IsAdded(const Element& format) const {
    const auto list = lists.find(format.name.toString());
    return missing.contains(&format) ||
           (list != lists.end() && list->second.element == None && !list->second.items.empty());
}

/// The markup of an element that is added; `separator` is what stands in front of it.
QString EditedFile::MarkupOf(const Element& format, const QString& separator) const {
    QString content;
    if (const auto set = missing.find(&format); set != missing.end()) {
        content = Spelled(set->second);
    } else {
        const ListState& list = lists.at(format.name.toString());
        const bool hasLines = HasLineEnd(separator);
        for (const ItemState& item : list.items)
            content += ItemMarkup(*item.now, list, hasLines ? separator + Unit() : QString());
        content += hasLines ? separator : QString();
    }
    return Tag(format.name) + content + Tag(format.name, u"/");
}

/// The same for a group that is added with what it gets; empty when it gets nothing.
QString EditedFile::GroupMarkup(QStringView group, const QString& separator) const {
    const QString inner = HasLineEnd(separator) ? separator + Unit() : QString();
    QString members;
    for (const Element& member : Elements)
        if (member.parent == group && IsAdded(member))
            members += inner + MarkupOf(member, inner);
    if (members.isEmpty())
        return {};
    return Tag(group) + members + (inner.isEmpty() ? QString() : separator) + Tag(group, u"/");
}

void EditedFile::AddMissingEdits(std::vector<Edit>& edits) const {
    std::map<int, QString> firstChildren; // of elements that have none so far
    QStringView group;                    // that the file lacks
    for (const Element& format : Elements) {
        const int own = format.parent.isEmpty() ? Root : ChildOf(Root, format.parent);
        const bool comesWithGroup = own == None;
        if (comesWithGroup ? format.parent == group : !IsAdded(format))
            continue;
        group = comesWithGroup ? format.parent : group;
        const int parent = comesWithGroup ? Root : own;
        const int anchor = AnchorOf(parent, format);
        const ElementPlace& around = elements[static_cast<std::size_t>(parent)];
        const auto first = std::find_if(elements.begin(), elements.end(),
                                        [parent](const auto& e) { return e.parent == parent; });
        const bool hasChildren = first != elements.end();
        const QString separator =
            anchor != None ? IndentBefore(elements[static_cast<std::size_t>(anchor)].startTag.start)
            : hasChildren  ? IndentBefore(first->startTag.start)
                           : SeparatorIn(around);
        const QString markup =
            comesWithGroup ? GroupMarkup(group, separator) : MarkupOf(format, separator);
        if (markup.isEmpty())
            continue;
        if (anchor != None) {
            const qsizetype at = BehindComments(elements[static_cast<std::size_t>(anchor)].end);
            Replace({at, at}, separator + markup, edits);
        } else if (hasChildren) {
            Replace({first->startTag.start, first->startTag.start}, markup + separator, edits);
        } else {
            firstChildren[parent] += separator + markup;
        }
    }
    for (const auto& [parent, markup] : firstChildren)
        FillIn(elements[static_cast<std::size_t>(parent)], markup, edits);
}

} // namespace Hesperin
