// The items of a creature's lists: abilities, spells, upgrades.
#include "reports/check_file.h"

#include "catalogue/links.h"
#include "creature_files/file_tokens.h"

#include <QSet>

#include <algorithm>

namespace Hesperin {

namespace {

using Items = std::vector<const FileElement*>;

/// The words of KnownSpells: each in its own element, or right in the item.
Items SpellsIn(const FileElements& elements) {
    Items spells;
    for (const FileElement& element : elements.All())
        if (element.path == u"KnownSpells/Item/Spell" ||
            (element.path == u"KnownSpells/Item" && element.children == 0))
            spells.push_back(&element);
    return spells;
}

void CheckTwice(const Items& items, FindingList& findings) {
    QSet<QString> seen;
    for (const FileElement* item : items) {
        const QString key = item->text.toUpper();
        if (!key.isEmpty() && seen.contains(key))
            findings.Add(Rule::TokenTwice, *item);
        seen.insert(key);
    }
}

void CheckWord(const FileElement& item, WordKind kind, const Vocabulary& vocabulary,
               FindingList& findings) {
    static constexpr EnumArray<WordKind, Rule> rules{
        {{Rule::TokenAbility, Rule::TokenSpell, Rule::TokenSpecability}}};
    if (!vocabulary.Knows(kind, item.text))
        findings.Add(rules[kind], item,
                     item.text.isEmpty() ? QString() : vocabulary.Nearest(kind, item.text));
}

void CheckNatures(const Items& abilities, FindingList& findings) {
    QString nature;
    for (const FileElement* item : abilities) {
        const bool isNature =
            std::any_of(NatureGroup.begin(), NatureGroup.end(), [item](int ability) {
                return item->text.compare(AbilityTokens()[static_cast<std::size_t>(ability)],
                                          Qt::CaseInsensitive) == 0;
            });
        if (!isNature)
            continue;
        if (nature.isEmpty())
            nature = item->text;
        else if (item->text.compare(nature, Qt::CaseInsensitive) != 0)
            findings.Add(Rule::Nature, *item, nature);
    }
}

/// Special abilities stand among the spells and need no mana.
void CheckMana(const Items& spells, const FileElements& elements, FindingList& findings) {
    const auto mana = elements.Number(u"SpellPoints");
    if (!mana)
        return;
    const bool hasSpells = std::any_of(spells.begin(), spells.end(), [](const FileElement* item) {
        return !item->text.isEmpty() && KindOfSpell(item->text) == WordKind::Spell;
    });
    if (hasSpells && *mana <= 0)
        findings.Add(Rule::CasterMana, *elements.First(u"SpellPoints"));
    if (!hasSpells && *mana > 0)
        findings.Add(Rule::CasterSpells, *elements.First(u"SpellPoints"));
}

} // namespace

void CheckItems(const FileElements& elements, const Vocabulary& vocabulary, FindingList& findings) {
    const Items abilities = elements.At(u"Abilities/Item");
    const Items spells = SpellsIn(elements);
    for (const FileElement* item : abilities)
        CheckWord(*item, WordKind::Ability, vocabulary, findings);
    for (const FileElement* item : spells)
        CheckWord(*item, KindOfSpell(item->text), vocabulary, findings);
    CheckTwice(abilities, findings);
    CheckTwice(spells, findings);
    CheckTwice(elements.At(u"Upgrades/Item"), findings);
    CheckNatures(abilities, findings);
    CheckMana(spells, elements, findings);
}

} // namespace Hesperin
