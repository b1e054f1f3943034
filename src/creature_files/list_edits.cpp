// The lists of items of a file that is edited in place.
#include "creature_files/edited_file.h"

#include "text/escape.h"

#include <algorithm>

namespace Hesperin {

namespace {

constexpr QStringView Lists[] = {u"Abilities", u"KnownSpells", u"Upgrades"};
constexpr QStringView SpellList = u"KnownSpells";

const QString NoMastery = QStringLiteral("MASTERY_NONE");

bool SameWord(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool IsBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

} // namespace

bool EditedFile::IsList(const QString& name) {
    return std::find(std::begin(Lists), std::end(Lists), name) != std::end(Lists);
}

Result<EditedFile::ListState> EditedFile::ReadList(const QString& list) const {
    if (!IsList(list))
        return Error{Error::What::NoList, list};
    const auto target = Find(list);
    if (!target)
        return target.Why();
    ListState state;
    state.element = target->element;
    for (std::size_t i = 1; state.element != None && i < elements.size(); ++i) {
        if (elements[i].parent != state.element || elements[i].name != u"Item")
            continue;
        const int item = static_cast<int>(i);
        ListItem content;
        if (list != SpellList) {
            auto word = ValueOf(item);
            if (!word)
                return word.Why();
            content.word = *word;
        } else {
            const int spell = ChildOf(item, u"Spell");
            const int mastery = ChildOf(item, u"Mastery");
            auto word = spell == None ? Result(QString()) : ValueOf(spell);
            auto level = mastery == None ? Result(QString()) : ValueOf(mastery);
            if (!word || !level)
                return word ? level.Why() : word.Why();
            content = {*word, *level};
        }
        state.items.push_back({item, content, content});
    }
    return state;
}

Result<EditedFile::ListState*> EditedFile::ListToChange(const QString& list) {
    if (const auto known = lists.find(list); known != lists.end())
        return &known->second;
    auto state = ReadList(list);
    if (!state)
        return state.Why();
    order.append(list);
    return &lists.emplace(list, std::move(*state)).first->second;
}

Result<std::vector<ListItem>> EditedFile::Items(const QString& list) const {
    const auto known = lists.find(list);
    const auto state = known == lists.end() ? ReadList(list) : Result(known->second);
    if (!state)
        return state.Why();
    std::vector<ListItem> items;
    for (const ItemState& item : state->items)
        if (item.now)
            items.push_back(*item.now);
    return items;
}

Failure EditedFile::AddItem(const QString& list, const ListItem& item) {
    const auto state = ListToChange(list);
    if (!state)
        return state.Why();
    ListItem wanted = item;
    if (list == SpellList && wanted.mastery.isEmpty())
        wanted.mastery = NoMastery;
    for (ItemState& known : (*state)->items) {
        if (!known.now || !SameWord(known.now->word, wanted.word))
            continue;
        if (!SameWord(known.now->mastery, wanted.mastery)) {
            if (known.element != None && ChildOf(known.element, u"Mastery") == None)
                return Error{Error::What::UnsafeEdit};
            known.now->mastery = wanted.mastery;
        }
        return {};
    }
    (*state)->items.push_back({None, std::nullopt, wanted});
    return {};
}

Failure EditedFile::RemoveItem(const QString& list, const ListItem& item) {
    const auto state = ListToChange(list);
    if (!state)
        return state.Why();
    for (ItemState& known : (*state)->items)
        if (known.now && SameWord(known.now->word, item.word) &&
            (item.mastery.isEmpty() || SameWord(known.now->mastery, item.mastery)))
            known.now.reset();
    auto& items = (*state)->items;
    items.erase(std::remove_if(items.begin(), items.end(),
                               [](const ItemState& known) { return !known.was && !known.now; }),
                items.end());
    return {};
}

/// The white space in front of a place, from its last line end on; all of it where it has none.
QString EditedFile::IndentBefore(qsizetype place) const {
    const QStringView text = document.Text();
    qsizetype start = place;
    while (start > 0 && IsBlank(text[start - 1]))
        --start;
    const QStringView blanks = text.sliced(start, place - start);
    const qsizetype lineEnd = blanks.lastIndexOf(u'\n');
    if (lineEnd < 0)
        return blanks.toString();
    const bool carriageReturn = lineEnd > 0 && blanks[lineEnd - 1] == u'\r';
    return blanks.sliced(carriageReturn ? lineEnd - 1 : lineEnd).toString();
}

/// The indentation of one level: that of the first element below the root.
QString EditedFile::Unit() const {
    if (elements.size() < 2)
        return QStringLiteral("\t");
    const QString indent = IndentBefore(elements[1].startTag.start);
    return indent.mid(indent.lastIndexOf(u'\n') + 1);
}

/// "/>" in the blank style of the file's other empty elements.
QString EditedFile::EmptyTagEnd(int besides) const {
    const QStringView text = document.Text();
    for (std::size_t i = 1; i < elements.size(); ++i)
        if (elements[i].isEmptyTag && static_cast<int>(i) != besides &&
            elements[i].startTag.Length() > 3) {
            const qsizetype slash = elements[i].startTag.end - 2;
            return text[slash - 1] == u' ' ? QStringLiteral(" />") : QStringLiteral("/>");
        }
    return QStringLiteral("/>");
}

/// An item in the layout of the others; `separator` is what stands in front of it.
QString EditedFile::ItemMarkup(const ListItem& item, const ListState& list,
                               const QString& separator) const {
    const auto spelled = [](const QString& text) { return Escaped(text, Escape::Content); };
    if (item.mastery.isEmpty())
        return separator + QLatin1String("<Item>") + spelled(item.word) + QLatin1String("</Item>");
    QString inner = separator + (separator.isEmpty() ? QString() : Unit());
    QString closing = separator;
    for (const ItemState& model : list.items) {
        const int spell = model.element == None ? None : ChildOf(model.element, u"Spell");
        if (spell == None)
            continue;
        inner = IndentBefore(elements[static_cast<std::size_t>(spell)].startTag.start);
        closing = IndentBefore(elements[static_cast<std::size_t>(model.element)].content.end);
    }
    return separator + QLatin1String("<Item>") + inner + QLatin1String("<Spell>") +
           spelled(item.word) + QLatin1String("</Spell>") + inner + QLatin1String("<Mastery>") +
           spelled(item.mastery) + QLatin1String("</Mastery>") + closing + QLatin1String("</Item>");
}

/// An item goes with its whole line where it has one to itself.
void EditedFile::RemoveItem(const ElementPlace& item, const ElementPlace& list,
                            std::vector<Edit>& edits) const {
    const QStringView text = document.Text();
    Span span = item.Whole();
    const QString indent = IndentBefore(span.start);
    qsizetype after = span.end;
    while (after < list.content.end && (text[after] == u' ' || text[after] == u'\t'))
        ++after;
    const bool endsLine = after == list.content.end || text[after] == u'\n' || text[after] == u'\r';
    const bool beginsLine = indent.contains(u'\n');
    if (beginsLine == endsLine)
        span = {span.start - indent.size(),
                endsLine && after < list.content.end ? after : span.end};
    else if (beginsLine) // what follows on the line takes its place
        span.end = after;
    else
        span.start -= indent.size();
    Replace(span, {}, edits);
}

void EditedFile::AddListEdits(const ListState& list, std::vector<Edit>& edits) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(list.element)];
    const QStringView text = document.Text();
    const ItemState* lastThatStays = nullptr;
    const ItemState* firstThatWas = nullptr;
    std::vector<ListItem> added;
    for (const ItemState& item : list.items) {
        if (item.element == None)
            added.push_back(*item.now);
        else if (item.now)
            lastThatStays = &item;
        if (item.element != None && firstThatWas == nullptr)
            firstThatWas = &item;
        if (item.element != None && item.now && item.now->mastery != item.was->mastery)
            AddContentEdits(ChildOf(item.element, u"Mastery"), item.now->mastery, edits);
    }
    const auto placeOf = [this](const ItemState& item) -> const ElementPlace& {
        return elements[static_cast<std::size_t>(item.element)];
    };
    const bool empties = lastThatStays == nullptr && added.empty() && firstThatWas != nullptr;
    if (empties) {
        QString rest = text.sliced(place.content.start, place.content.Length()).toString();
        for (auto item = list.items.rbegin(); item != list.items.rend(); ++item)
            rest.remove(placeOf(*item).startTag.start - place.content.start,
                        placeOf(*item).Whole().Length());
        if (rest.trimmed().isEmpty()) {
            qsizetype bracket = place.startTag.end - 1;
            while (IsBlank(text[bracket - 1]))
                --bracket;
            return Replace({bracket, place.end}, EmptyTagEnd(list.element), edits);
        }
    }
    const bool takesAPlace = lastThatStays == nullptr && firstThatWas != nullptr && !added.empty();
    for (const ItemState& item : list.items)
        if (item.element != None && !item.now && !(takesAPlace && &item == firstThatWas))
            RemoveItem(placeOf(item), place, edits);
    if (added.empty())
        return;

    QString separator;
    if (const ItemState* model = lastThatStays != nullptr ? lastThatStays : firstThatWas) {
        separator = IndentBefore(placeOf(*model).startTag.start);
    } else {
        const QString closing = IndentBefore(place.content.end);
        const QString own = IndentBefore(place.startTag.start);
        const QString& level = closing.contains(u'\n') && !place.isEmptyTag ? closing : own;
        separator = level.contains(u'\n') ? level + Unit() : QString();
    }
    QString markup;
    for (const ListItem& item : added)
        markup += ItemMarkup(item, list, separator);
    if (lastThatStays != nullptr) {
        const qsizetype end = placeOf(*lastThatStays).end;
        return Replace({end, end}, markup, edits);
    }
    if (takesAPlace)
        return Replace(placeOf(*firstThatWas).Whole(), markup.mid(separator.size()), edits);
    const QString own = IndentBefore(place.startTag.start);
    const QString closing = own.contains(u'\n') ? own : QString();
    if (place.isEmptyTag) {
        qsizetype slash = place.startTag.end - 2;
        while (IsBlank(text[slash - 1]))
            --slash;
        return Replace({slash, place.startTag.end},
                       u'>' + markup + closing + QLatin1String("</") + place.name.toString() + u'>',
                       edits);
    }
    if (IndentBefore(place.content.end).contains(u'\n')) { // the closing tag has a line of its own
        const qsizetype at = place.content.end - IndentBefore(place.content.end).size();
        return Replace({at, at}, markup, edits);
    }
    const qsizetype blanks = IndentBefore(place.content.end).size();
    Replace({place.content.end - blanks, place.content.end}, markup + closing, edits);
}

} // namespace Hesperin
