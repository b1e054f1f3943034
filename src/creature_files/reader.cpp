#include "creature_files/reader.h"

#include "catalogue/links.h"
#include "creature_files/elements.h"
#include "creature_files/file_tokens.h"
#include "text/shortened.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// An element's tags as the normalised text has them.
struct Tags {
    QString opening;
    QString closing;
};

const std::vector<Tags>& TagsToRead() {
    static const std::vector<Tags> all = [] {
        std::vector<Tags> tags;
        for (const Element* element : ElementsToRead()) {
            const QString name = element->name.toString();
            tags.push_back({u'<' + name + u'>', QLatin1String("</") + name + u'>'});
        }
        return tags;
    }();
    return all;
}

class Scan {
public:
    Scan(const QString& content, const Creature& cleared) : text(content) {
        result.creature = cleared;
    }

    ReadCreature Run() {
        const auto elements = ElementsToRead();
        for (std::size_t i = 0; i < elements.size(); ++i)
            Read(*elements[i], TagsToRead()[i]);
        TickPartners();
        KeepOneNature();
        CountCharges();
        if (!creature.Has(Ability::Caster))
            creature.Numbers[NumberField::Mana].clear();
        return std::move(result);
    }

private:
    void Read(const Element& element, const Tags& tags) {
        switch (element.says) {
        case Says::Number:
        case Says::Growth:
            ReadField(element, tags);
            break;
        case Says::Supply:
            ReadSupply(element, tags);
            break;
        case Says::ListNumber:
            if (const auto number = Number(element, tags))
                creature.Choices[element.list].text = QString::number(*number);
            break;
        case Says::ListEntry:
            ReadEntry(element, tags);
            break;
        case Says::ListFlag:
            NoteIfMissing(element, tags);
            creature.Choose(element.list, TagIsTrue(text, element.name));
            break;
        case Says::Flyer:
            NoteIfMissing(element, tags);
            creature.Set(Ability::Flyer, TagIsTrue(text, element.name) == 1);
            break;
        case Says::Size:
            ReadSize(element, tags);
            break;
        case Says::KnownSpells:
            ReadSpells();
            ReadSpecabilities();
            break;
        case Says::Abilities:
            ReadAbilities();
            break;
        case Says::Shared:
            ReadName(element);
            break;
        default: // is never read
            break;
        }
    }

    /// The number in an element; none, and noted as missing, when the file lacks the element.
    std::optional<std::int16_t> Number(const Element& element, const Tags& tags) {
        const TagNumberResult number = TagNumber(text, tags.opening, tags.closing);
        if (!number.found) {
            result.missing.append(element.name.toString());
            return std::nullopt;
        }
        if (number.limited)
            result.limited.push_back(
                {element.name.toString(), Shortened(number.text), number.value});
        return number.value;
    }

    /// Notes the element as missing if it occurs nowhere, in any letter case.
    void NoteIfMissing(const Element& element, const Tags& tags) {
        if (text.LooseSearch(tags.opening) < 0)
            result.missing.append(element.name.toString());
    }

    /// Where a figure of the file is kept beside its field.
    std::int16_t* FigureOf(NumberField field) {
        for (const FigureInFile& row : FiguresInFile)
            if (row.field == field)
                return &(result.figures.*row.value);
        return nullptr;
    }

    void ReadField(const Element& element, const Tags& tags) {
        const auto number = Number(element, tags);
        if (std::int16_t* figure = FigureOf(element.field))
            *figure = number.value_or(0);
        if (number)
            creature.Numbers[element.field] = QString::number(*number);
    }

    /// Mana makes a caster, shots make a shooter.
    void ReadSupply(const Element& element, const Tags& tags) {
        const auto number = Number(element, tags);
        if (number.value_or(0) <= 0)
            return;
        creature.Numbers[element.field] = QString::number(*number);
        creature.Set(element.field == NumberField::Mana ? Ability::Caster : Ability::Shooter, true);
    }

    void ReadSize(const Element& element, const Tags& tags) {
        constexpr std::int16_t sizeOfLargeCreatures = 2;
        creature.Set(Ability::LargeCreature, Number(element, tags) == sizeOfLargeCreatures);
    }

    /// The list that shows, in the user's language, what `list` holds in the game's words.
    static ListField TwinOf(ListField list) {
        return list == ListField::Alias      ? ListField::Faction
               : list == ListField::Diapazon ? ListField::Range
                                             : ListField::Count;
    }

    /// Chooses the first entry that the text behind the opening tag begins with. An element of
    /// magic that stands in both lists stays in the first.
    void ReadEntry(const Element& element, const Tags& tags) {
        NoteIfMissing(element, tags);
        const auto entries = ListCatalogue[element.list].entries;
        const QString beginning = tags.opening + element.text.toString();
        for (std::size_t index = 0; index < entries.size(); ++index) {
            if (FindToken(positions, text, beginning + entries[index].toString()) == 0)
                continue;
            const bool twice = element.list == ListField::SecondElement && index > 0 &&
                               creature.Choices[ListField::FirstElement].text == entries[index];
            creature.Choose(element.list,
                            twice ? std::int16_t{0} : static_cast<std::int16_t>(index));
            if (const ListField twin = TwinOf(element.list); twin != ListField::Count)
                creature.Choose(twin, static_cast<std::int16_t>(index));
            return;
        }
    }

    /// The highest mastery word that the excerpt holds, 0 when it holds none that can be read.
    static std::int16_t Mastery(const QString& excerpt,
                                std::int16_t (*masteryIn)(const TextBuffer&, QStringView)) {
        const TextBuffer window(excerpt);
        for (auto token = MasteryTokens().rbegin(); token != MasteryTokens().rend(); ++token)
            if (const std::int16_t level = masteryIn(window, *token); level != -1)
                return level;
        return 0;
    }

    void ReadSpells() {
        constexpr qsizetype excerptLength = 64;
        const auto& tokens = SpellTokens();
        for (std::size_t i = 1; i <= SpellCount; ++i) {
            if (FindToken(positions, text, tokens[i]) == 0)
                continue;
            result.spellExcerpt = text.Text().mid(positions.TokenPosition, excerptLength);
            creature.Spells[i] = {true, Mastery(result.spellExcerpt, MasteryInSpellWindow)};
        }
    }

    void ReadSpecabilities() {
        constexpr qsizetype excerptLength = 128;
        const auto& tokens = SpecabilityTokens();
        for (std::size_t j = 1; j <= SpecabilityCount; ++j) {
            if (FindSpecabilityToken(positions, text, tokens[j]) == 0)
                continue;
            result.specabilityExcerpt =
                text.Text().mid(positions.SpecabilityTokenPosition, excerptLength);
            creature.Specabilities[j] = {
                true, Mastery(result.specabilityExcerpt, MasteryInSpecabilityWindow)};
        }
    }

    /// Nothing is unticked here: what an earlier element ticked stays.
    void ReadAbilities() {
        const auto& tokens = AbilityTokens();
        for (int i = 1; i <= Ability::Count; ++i)
            if (FindToken(positions, text, tokens[static_cast<std::size_t>(i)]) == 1)
                creature.Set(i, true);
    }

    void ReadName(const Element& element) {
        result.name = CreatureNameIn(text);
        if (result.name)
            creature.Name = *result.name;
        else
            result.missing.append(element.name.toString());
    }

    /// Either box of a linked pair brings the other.
    void TickPartners() {
        for (const Link& link : Links) {
            Skill& partner = creature.Specabilities[static_cast<std::size_t>(link.specability)];
            partner.known = partner.known || creature.Has(link.ability);
            creature.Set(link.ability, partner.known);
        }
    }

    /// The first nature in the order of the abilities; a creature without any is of flesh and
    /// blood.
    void KeepOneNature() {
        bool found = false;
        for (const int nature : NatureGroup) {
            creature.Set(nature, creature.Has(nature) && !found);
            found = found || creature.Has(nature);
        }
        if (!found)
            creature.Set(Ability::FleshAndBlood, true);
    }

    void CountCharges() {
        const std::int16_t charges = ChargesOf(creature);
        const bool anySpecability =
            std::any_of(creature.Specabilities.begin(), creature.Specabilities.end(),
                        [](const Skill& skill) { return skill.known; });
        creature.SpellPoints1Count =
            static_cast<std::int16_t>(creature.SpellPoints1Count + charges);
        if (charges > 0 || anySpecability)
            creature.SpecabilityFlag = FlagTrue;
    }

    const TextBuffer text;
    ScanPositions positions;
    ReadCreature result;
    Creature& creature = result.creature;
};

} // namespace

ReadCreature ReadCreatureText(const QString& text, const Creature& cleared) {
    return Scan(text, cleared).Run();
}

} // namespace Hesperin
