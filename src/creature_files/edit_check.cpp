// Whether what came out of an edit in place is what was asked for.
#include "creature_files/edited_file.h"

#include "creature_files/document.h"
#include "text/escape.h"

namespace Hesperin {

namespace {

/// A value as it stands between the quotes of a normalised attribute.
QString Normal(const QString& value) {
    return Escaped(value, Escape::Attribute).replace(u'>', QLatin1String("&gt;"));
}

} // namespace

Result<QStringList> EditedFile::ContentsOf(const QByteArray& bytes) {
    const auto decoded = NormaliseCreature(bytes);
    return decoded ? ContentsIn(*decoded) : decoded.Why();
}

/// A normalised text has no entities and no invisible parts.
Result<QStringList> EditedFile::ContentsIn(QStringView text) {
    const auto elements = FindElements(text);
    if (!elements)
        return elements.Why();
    QStringList paths;
    QStringList found;
    for (const ElementPlace& element : *elements) {
        const QString path = element.parent <= 0
                                 ? element.name.toString()
                                 : paths[element.parent] + u'/' + element.name.toString();
        paths.append(path);
        for (const AttributePlace& attribute : AttributesOf(text, element.startTag))
            found.append(path + u'@' + attribute.name.toString() + u'=' +
                         text.sliced(attribute.value.start, attribute.value.Length()).toString());
        const bool counts = element.children == 0 && !IsList(path);
        if (counts && element.parent >= 0)
            found.append(path + u'=' +
                         Resolved(text.sliced(element.content.start, element.content.Length()))
                             .value_or(QString())
                             .trimmed());
    }
    return found;
}

/// What goes with an element: its own contents and those of all below it.
QStringList EditedFile::ContentsBelow(int element) const {
    QStringList below;
    const Span whole = elements[static_cast<std::size_t>(element)].Whole();
    for (std::size_t i = static_cast<std::size_t>(element); i < elements.size(); ++i) {
        const ElementPlace& place = elements[i];
        if (place.startTag.start >= whole.end)
            break;
        Target target;
        target.element = static_cast<int>(i);
        const QString path = PathOf(target.element);
        for (const AttributePlace& attribute : AttributesOf(document.Text(), place.startTag)) {
            target.attribute = attribute.name.toString();
            if (const auto value = ValueOf(target))
                below.append(path + u'@' + target.attribute + u'=' + Normal(*value));
        }
        if (const auto value = ValueOf(target.element))
            below.append(path + u'=' + *value);
    }
    return below;
}

/// The contents of the file with the changes in them; `isSafe` becomes false when what is to change
/// isn't what a parser reads.
QStringList EditedFile::ExpectedContents(bool& isSafe) const {
    auto expected = ContentsIn(normalised);
    if (!expected) {
        isSafe = false;
        return {};
    }
    const auto goes = [&](const QString& content) {
        isSafe = expected->removeOne(content) && isSafe;
    };
    for (const FileChange& change : Changes()) {
        if (IsList(change.element))
            continue;
        const bool isAttribute = change.element.contains(u'@');
        const auto content = [&](const QString& value) {
            return change.element + u'=' + (isAttribute ? Normal(value) : value.trimmed());
        };
        const QString now = content(change.now.value_or(QString()));
        const qsizetype place = change.old ? expected->indexOf(content(*change.old)) : -1;
        isSafe = isSafe && (place >= 0 || !change.old);
        if (place >= 0) // in its place, so that nothing need be sorted
            (*expected)[place] = now;
        else
            expected->append(now);
        const QString around = change.element.section(u'/', 0, -2);
        if (!change.old && !around.isEmpty()) // the first child of what was empty
            expected->removeOne(around + u'=');
    }
    for (const auto& [list, state] : lists) {
        const QString path = list + QLatin1String("/Item");
        for (const ItemState& item : state.items) {
            const bool isNew = item.element == None;
            if (!isNew && !item.now) {
                for (const QString& content : ContentsBelow(item.element))
                    goes(content);
            } else if (isNew && item.now->mastery.isEmpty()) {
                expected->append(path + u'=' + item.now->word.trimmed());
            } else if (isNew) {
                expected->append(path + QLatin1String("/Spell=") + item.now->word.trimmed());
                expected->append(path + QLatin1String("/Mastery=") + item.now->mastery.trimmed());
            } else if (item.now->mastery != item.was->mastery) {
                goes(path + QLatin1String("/Mastery=") + item.was->mastery);
                expected->append(path + QLatin1String("/Mastery=") + item.now->mastery.trimmed());
            }
        }
    }
    return *expected;
}

Failure EditedFile::Check(const QByteArray& edited) const {
    auto after = ContentsOf(edited);
    if (!after)
        return after.Why();
    bool isSafe = true;
    QStringList expected = ExpectedContents(isSafe);
    if (expected != *after) { // lists and what is added have other places
        expected.sort();
        after->sort();
    }
    return isSafe && expected == *after ? Failure() : Error{Error::What::UnsafeEdit};
}

} // namespace Hesperin
