#include "creature_files/writer.h"

#include "creature_files/elements.h"
#include "creature_files/file_tokens.h"
#include "text/escape.h"
#include "text/numbers.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// A creature with every box ticked comes near it.
constexpr qsizetype LongestCreature = 24000;

/// Collects lines, each with its number of tabs.
class Lines {
public:
    Lines() { text.reserve(LongestCreature); }

    template <typename... Pieces>
    void Add(int tabs, const Pieces&... pieces) {
        if (!text.isEmpty())
            text += u'\n';
        text.resize(text.size() + tabs, u'\t');
        (text.append(pieces), ...);
    }

    /// <name>content</name>
    void AddElement(int tabs, QStringView name, QStringView content, QStringView prefix = {}) {
        Add(tabs, u"<", name, u">", prefix, content, u"</", name, u">");
    }

    QString Take() { return std::move(text); }

private:
    QString text;
};

/// Whether XML has nothing to escape in the value and no mark of a reference can be in it.
bool IsPlain(QStringView value) {
    return std::all_of(value.begin(), value.end(), [](QChar character) {
        return character.isLetterOrNumber() || character == u'_' || character == u'-' ||
               character == u'.' || character == u' ';
    });
}

QString FlagText(bool value) {
    return QString::fromUtf16(value ? TokenTrue : TokenFalse);
}

class Composition {
public:
    Composition(const Creature& source, const QString& fileName, double growth)
        : creature(source), name(Escaped(fileName, Escape::Attribute)), weeklyGrowth(growth),
          plain(IsPlain(fileName)) {}

    CreatureText Compose() {
        lines.Add(0, u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        lines.Add(0, u"<Creature>");
        for (const Element& element : Elements) {
            MoveInto(element.parent);
            Add(element);
        }
        lines.Add(0, u"</Creature>");
        return {lines.Take(), plain};
    }

private:
    /// Closes the element around the lines so far and opens the one around those that follow.
    void MoveInto(QStringView next) {
        if (next == parent)
            return;
        if (!parent.isEmpty())
            lines.Add(1, u"</", parent, u">");
        if (!next.isEmpty())
            lines.Add(1, u"<", next, u">");
        parent = next;
    }

    void Add(const Element& element) {
        switch (element.says) {
        case Says::KnownSpells:
            return AddKnownSpells(element.name);
        case Says::Abilities:
            return AddAbilities(element.name);
        case Says::FixedEmpty:
            return lines.Add(1, u"<", element.name, u"/>");
        case Says::Shared:
            return lines.Add(1, u"<", element.name, u" href=\"/MapObjects/Neutral/", name,
                             u".(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)\"/>");
        case Says::Visual:
            return lines.Add(1, u"<", element.name,
                             u" href=\"/GameMechanics/CreatureVisual/Creatures/Neutrals/", name,
                             u".xdb#xpointer(/CreatureVisual)\"/>");
        default:
            return AddContent(element.name, Content(element));
        }
    }

    void AddContent(QStringView element, const QString& content) {
        const int tabs = parent.isEmpty() ? 1 : 2;
        if (IsPlain(content))
            return lines.AddElement(tabs, element, content);
        plain = false;
        lines.AddElement(tabs, element, Escaped(content, Escape::Content));
    }

    QString Content(const Element& element) const {
        switch (element.says) {
        case Says::Charges:
            return QString::number(Charged() ? creature.SpellPoints1Count : 0);
        case Says::Growth:
            return WholeText(weeklyGrowth);
        default:
            return ContentFor(element, creature);
        }
    }

    bool Charged() const { return creature.SpecabilityFlag != FlagFalse; }

    void AddKnownSpells(QStringView list) {
        if (!Charged() && !creature.Has(Ability::Caster))
            return lines.Add(1, u"<", list, u"/>");
        lines.Add(1, u"<", list, u">");
        for (std::size_t j = 1; j <= SpecabilityCount; ++j)
            AddKnownSpell(SpecabilityTokens()[j], creature.Specabilities[j]);
        for (std::size_t i = 1; i <= SpellCount; ++i)
            AddKnownSpell(SpellTokens()[i], creature.Spells[i]);
        lines.Add(1, u"</", list, u">");
    }

    void AddKnownSpell(const QString& token, const Skill& skill) {
        if (!skill.known)
            return;
        lines.Add(2, u"<Item>");
        lines.AddElement(3, u"Spell", token);
        lines.AddElement(3, u"Mastery",
                         MasteryTokens().at(static_cast<std::size_t>(skill.mastery)));
        lines.Add(2, u"</Item>");
    }

    /// A creature without any ability has no list at all.
    void AddAbilities(QStringView list) {
        if (std::none_of(creature.Abilities.begin(), creature.Abilities.end(),
                         [](bool ticked) { return ticked; }))
            return;
        lines.Add(1, u"<", list, u">");
        for (int i = 1; i <= Ability::Count; ++i)
            if (creature.Has(i) && IsWrittenAbility(i))
                lines.AddElement(2, u"Item", AbilityTokens()[static_cast<std::size_t>(i)]);
        lines.Add(1, u"</", list, u">");
    }

    const Creature& creature;
    const QString name;
    const double weeklyGrowth;
    Lines lines;
    QStringView parent; ///< of the lines that are added
    bool plain;
};

} // namespace

CreatureText BuildCreatureText(const Creature& creature, const QString& fileName,
                               double weeklyGrowth) {
    return Composition(creature, fileName, weeklyGrowth).Compose();
}

QString ContentFor(const Element& element, const Creature& creature) {
    switch (element.says) {
    case Says::Number:
    case Says::Growth:
        return creature.Numbers[element.field];
    case Says::Supply:
        return TextOrDefault(creature.Numbers[element.field], QStringLiteral("0"));
    case Says::ListNumber:
        return creature.Choices[element.list].text;
    case Says::ListEntry:
        return element.text.toString() + creature.Choices[element.list].text.toUpper();
    case Says::ListFlag:
        return creature.Choices[element.list].text.toLower();
    case Says::Flyer:
        return FlagText(creature.Has(Ability::Flyer));
    case Says::Size:
        return QString::number(creature.Has(Ability::LargeCreature) ? 2 : 1);
    case Says::Charges:
        return QString::number(ChargesOf(creature));
    case Says::Inferno:
        return QString::number(creature.Choices[ListField::Alias].text == u"INFERNO" ? 1 : 0);
    default:
        return element.text.toString();
    }
}

QByteArray CreatureFileBytes(const QString& text) {
    return text.toUtf8() + "\r\n";
}

bool IsWrittenAbility(int ability) {
    constexpr std::array<int, 5> unwritten{Ability::Caster, Ability::FleshAndBlood, Ability::Flyer,
                                           Ability::LargeCreature, Ability::Shooter};
    return std::find(unwritten.begin(), unwritten.end(), ability) == unwritten.end();
}

} // namespace Hesperin
