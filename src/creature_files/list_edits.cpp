// The lists of items of a file that is edited in place.
#include "creature_files/edited_file.h"

#include "text/blanks.h"

#include <algorithm>

namespace Hesperin {

namespace {

const QString NoMastery = QStringLiteral("MASTERY_NONE");

bool SameWord(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

const QString AbilityList = QStringLiteral("Abilities");
const QString SpellList = QStringLiteral("KnownSpells");
const QString UpgradeList = QStringLiteral("Upgrades");

bool EditedFile::IsList(const QString& name) {
    return name == AbilityList || name == SpellList || name == UpgradeList;
}

Result<EditedFile::ListState> EditedFile::ReadList(const QString& list) const {
    if (!IsList(list))
        return Error{Error::What::NoList, list};
    const auto target = Find(list);
    if (!target)
        return target.Why();
    for (const QString& path : broughtIn)
        if (path.startsWith(list + u'/'))
            return Error{Error::What::FromEntity, list};
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
        if (!known.now || !known.now->Is(wanted.word))
            continue;
        const QString& level = known.now->mastery;
        if (list == SpellList && !SameWord(level.isEmpty() ? NoMastery : level, wanted.mastery)) {
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
        if (known.now && known.now->Is(item.word) &&
            (item.mastery.isEmpty() || SameWord(known.now->mastery, item.mastery)))
            known.now.reset();
    auto& items = (*state)->items;
    items.erase(std::remove_if(items.begin(), items.end(),
                               [](const ItemState& known) { return !known.was && !known.now; }),
                items.end());
    return {};
}

void EditedFile::RemoveItems(Span items, const ElementPlace& list, std::vector<Edit>& edits) const {
    const QStringView text = document.Text();
    const QString indent = IndentBefore(items.start);
    qsizetype after = items.end;
    while (after < list.content.end && (text[after] == u' ' || text[after] == u'\t'))
        ++after;
    const bool endsLine = after == list.content.end || text[after] == u'\n' || text[after] == u'\r';
    const bool beginsLine = HasLineEnd(indent);
    if (beginsLine == endsLine)
        items = {items.start - indent.size(),
                 endsLine && after < list.content.end ? after : items.end};
    else if (beginsLine) // what follows on the line takes its place
        items.end = after;
    else
        items.start -= indent.size();
    Replace(items, {}, edits);
}

Failure EditedFile::AddListEdits(const ListState& list, std::vector<Edit>& edits) const {
    const ElementPlace& place = elements[static_cast<std::size_t>(list.element)];
    const QStringView text = document.Text();
    const auto spanOf = [this](const ItemState& item) {
        return elements[static_cast<std::size_t>(item.element)].Whole();
    };
    const ItemState* lastThatStays = nullptr;
    const ItemState* firstThatWas = nullptr;
    std::vector<ListItem> added;
    for (const ItemState& item : list.items) {
        if (item.element == None) {
            added.push_back(*item.now);
            continue;
        }
        if (firstThatWas == nullptr)
            firstThatWas = &item;
        if (!item.now)
            continue;
        lastThatStays = &item;
        if (item.now->mastery != item.was->mastery)
            if (auto failure =
                    AddContentEdits(ChildOf(item.element, u"Mastery"), item.now->mastery, edits))
                return failure;
    }
    if (lastThatStays == nullptr && added.empty() && firstThatWas != nullptr) {
        QString rest = text.sliced(place.content.start, place.content.Length()).toString();
        for (auto item = list.items.rbegin(); item != list.items.rend(); ++item)
            rest.remove(spanOf(*item).start - place.content.start, spanOf(*item).Length());
        if (rest.trimmed().isEmpty()) {
            const qsizetype bracket = BlanksBefore(text, place.startTag.end - 1);
            Replace({bracket, place.end}, EmptyTagEnd(list.element), edits);
            return {};
        }
    }
    const ItemState* replaced = lastThatStays == nullptr && !added.empty() ? firstThatWas : nullptr;
    std::optional<Span> going; // items with nothing but white space between them
    for (const ItemState& item : list.items) {
        if (item.element == None || item.now || &item == replaced)
            continue;
        const Span span = spanOf(item);
        if (going && text.sliced(going->end, span.start - going->end).trimmed().isEmpty()) {
            going->end = span.end;
            continue;
        }
        if (going)
            RemoveItems(*going, place, edits);
        going = span;
    }
    if (going)
        RemoveItems(*going, place, edits);
    if (added.empty())
        return {};

    const ItemState* model = lastThatStays != nullptr ? lastThatStays : firstThatWas;
    const QString separator =
        model != nullptr ? IndentBefore(spanOf(*model).start) : SeparatorIn(place);
    QString markup;
    for (const ListItem& item : added)
        markup += ItemMarkup(item, list, separator);
    if (lastThatStays != nullptr) {
        const qsizetype end = BehindComments(spanOf(*lastThatStays).end);
        Replace({end, end}, markup, edits);
    } else if (replaced != nullptr) {
        Replace(spanOf(*replaced), markup.mid(separator.size()), edits);
    } else {
        FillIn(place, markup, edits);
    }
    return {};
}

} // namespace Hesperin
