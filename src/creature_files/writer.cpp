#include "creature_files/writer.h"

#include "catalogues/ability_catalogue.h"
#include "catalogues/spell_catalogue.h"
#include "engine/formulas.h"
#include "engine/numbers.h"

#include <algorithm>
#include <array>

namespace Hesperin {

namespace {

/// These travel by other elements: CASTER by SpellPoints, FLYER by Flying, LARGE_CREATURE by
/// CombatSize, SHOOTER by Shots; FLESH_AND_BLOOD is inferred on reading.
constexpr std::array<int, 5> UnwrittenAbilities{Ability::Caster, Ability::FleshAndBlood,
                                                Ability::Flyer, Ability::LargeCreature,
                                                Ability::Shooter};

/// A creature with every box ticked comes near it.
constexpr qsizetype LongestCreature = 24000;

/// Whether XML has nothing to escape in the value and no mark of a reference can be in it.
bool IsPlain(QStringView value) {
    return std::all_of(value.begin(), value.end(), [](QChar character) {
        return character.isLetterOrNumber() || character == u'_' || character == u'-' ||
               character == u'.' || character == u' ';
    });
}

/// A value as XML spells it between two tags.
QString Escaped(QStringView value) {
    QString text = value.toString();
    return text.replace(u'&', QLatin1String("&amp;")).replace(u'<', QLatin1String("&lt;"));
}

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

    /// <name>value</name>
    void Element(int tabs, const char* name, QStringView value, const char* prefix = "") {
        Add(tabs, QLatin1String("<"), QLatin1String(name), QLatin1String(">"),
            QLatin1String(prefix));
        if (IsPlain(value)) {
            text += value;
        } else {
            plain = false;
            text += Escaped(value);
        }
        text.append(QLatin1String("</")).append(QLatin1String(name)).append(u'>');
    }

    /// <name href="…creature…"/>
    void Reference(const char* name, const char* before, const QString& creature,
                   const char* behind) {
        plain = plain && IsPlain(creature);
        Add(1, QLatin1String("<"), QLatin1String(name), QLatin1String(" href=\""),
            QLatin1String(before), Escaped(creature).replace(u'"', QLatin1String("&quot;")),
            QLatin1String(behind), QLatin1String("\"/>"));
    }

    CreatureText Take() { return {std::move(text), plain}; }

private:
    QString text;
    bool plain = true;
};

QString ZeroIfEmpty(const QString& text) {
    return text.isEmpty() ? QStringLiteral("0") : text;
}

void AddKnownSpell(Lines& lines, const char* prefix, const CheckBox& box,
                   const MultiOption& selector) {
    lines.Add(2, QLatin1String("<Item>"));
    lines.Element(3, "Spell", box.Caption(), prefix);
    lines.Element(3, "Mastery", MasteryToken.at(static_cast<std::size_t>(selector.Value())),
                  "MASTERY_");
    lines.Add(2, QLatin1String("</Item>"));
}

void AddKnownSpells(Lines& lines, const Program& program) {
    const MainForm& form = program.form;
    if (program.state.SpecabilityFlag == FlagFalse && !form.Abilities(Ability::Caster).Ticked()) {
        lines.Add(1, QLatin1String("<KnownSpells/>"));
        return;
    }
    lines.Add(1, QLatin1String("<KnownSpells>"));
    for (int j = 1; j <= SpecabilityCount; ++j)
        if (form.Specabilities(j).Ticked())
            AddKnownSpell(lines, "SPELL_ABILITY_", form.Specabilities(j), form.saz(j));
    for (int i = 1; i <= SpellCount; ++i)
        if (form.Spells(i).Ticked())
            AddKnownSpell(lines, "SPELL_", form.Spells(i), form.soq(i));
    lines.Add(1, QLatin1String("</KnownSpells>"));
}

void AddAbilities(Lines& lines, const MainForm& form) {
    const bool any = std::any_of(form.Abilities.begin(), form.Abilities.end(),
                                 [](const CheckBox& box) { return box.Ticked(); });
    if (!any)
        return;
    lines.Add(1, QLatin1String("<Abilities>"));
    for (int i = 1; i <= Ability::Count; ++i) {
        const bool unwritten = std::find(UnwrittenAbilities.begin(), UnwrittenAbilities.end(), i) !=
                               UnwrittenAbilities.end();
        if (form.Abilities(i).Ticked() && !unwritten)
            lines.Element(2, "Item", AbilityCatalogue[static_cast<std::size_t>(i)].token,
                          "ABILITY_");
    }
    lines.Add(1, QLatin1String("</Abilities>"));
}

void AddCost(Lines& lines, const MainForm& form) {
    lines.Add(1, QLatin1String("<Cost>"));
    lines.Element(2, "Wood", form.txtWoodf.Text());
    lines.Element(2, "Ore", form.txtOref.Text());
    lines.Element(2, "Mercury", form.txtMercuryf.Text());
    lines.Element(2, "Crystal", form.txtCrystalf.Text());
    lines.Element(2, "Sulfur", form.txtSulfurf.Text());
    lines.Element(2, "Gem", form.txtGemf.Text());
    lines.Element(2, "Gold", form.txtGoldf.Text());
    lines.Add(1, QLatin1String("</Cost>"));
}

} // namespace

CreatureText BuildCreatureText(const Program& program, const QString& creatureName) {
    const MainForm& form = program.form;
    const SharedState& state = program.state;
    const auto ticked = [&form](int ability) { return form.Abilities(ability).Ticked(); };
    const auto word = [](bool value) { return QString::fromUtf16(value ? TokenTrue : TokenFalse); };
    const bool charged = state.SpecabilityFlag != FlagFalse;
    const bool inferno = form.ComboAlias.Text() == QLatin1String("INFERNO");

    Lines lines;
    lines.Add(0, QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    lines.Add(0, QLatin1String("<Creature>"));
    lines.Element(1, "AttackSkill", form.txtAttack.Text());
    lines.Element(1, "DefenceSkill", form.txtDefence.Text());
    lines.Element(1, "Shots", ZeroIfEmpty(form.txtShots.Text()));
    lines.Element(1, "MinDamage", form.txtMinDam.Text());
    lines.Element(1, "MaxDamage", form.txtMaxDam.Text());
    lines.Element(1, "Speed", form.ComboSpeed.Text());
    lines.Element(1, "Initiative", form.ComboInitiative.Text());
    lines.Element(1, "Flying", word(ticked(Ability::Flyer)));
    lines.Element(1, "Health", form.txtHealth.Text());
    AddKnownSpells(lines, program);
    lines.Element(1, "SpellPoints", ZeroIfEmpty(form.txtMana.Text()));
    lines.Element(1, "SpellPoints1", QString::number(charged ? state.SpellPoints1Count : 0));
    lines.Element(1, "SpellPoints2", QString::number(inferno ? 1 : 0));
    lines.Element(1, "Exp", form.txtExp.Text());
    lines.Element(1, "Power", form.txtPower.Text());
    lines.Element(1, "TimeToCommand", form.ComboTTC.Text());
    lines.Element(1, "CreatureTier", form.ComboTier.Text());
    lines.Element(1, "Upgrade", form.ComboUpgrade.Text().toLower());
    lines.Element(1, "PairCreature", QStringLiteral("CREATURE_UNKNOWN"));
    lines.Element(1, "CreatureTown", form.ComboAlias.Text(), "TOWN_");
    lines.Add(1, QLatin1String("<MagicElement>"));
    lines.Element(2, "First", form.ComboFME.Text().toUpper(), "ELEMENT_");
    lines.Element(2, "Second", form.ComboSME.Text().toUpper(), "ELEMENT_");
    lines.Add(1, QLatin1String("</MagicElement>"));
    lines.Element(1, "WeeklyGrowth",
                  WholeText(AverageOf(state.GrowthHesperin, state.GrowthRolvane)));
    AddCost(lines, form);
    lines.Element(1, "SubjectOfRandomGeneration", QStringLiteral("true"));
    lines.Reference("MonsterShared", "/MapObjects/Neutral/", creatureName,
                    ".(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)");
    lines.Element(1, "CombatSize", QString::number(ticked(Ability::LargeCreature) ? 2 : 1));
    lines.Add(1, QLatin1String("<PatternAttack/>"));
    lines.Add(1, QLatin1String("<flybySequence/>"));
    lines.Reference("Visual", "/GameMechanics/CreatureVisual/Creatures/Neutrals/", creatureName,
                    ".xdb#xpointer(/CreatureVisual)");
    lines.Element(1, "Range", form.ComboDiapazon.Text());
    lines.Element(1, "BaseCreature", QStringLiteral("CREATURE_UNKNOWN"));
    lines.Add(1, QLatin1String("<Upgrades/>"));
    AddAbilities(lines, form);
    lines.Add(0, QLatin1String("</Creature>"));
    return lines.Take();
}

QByteArray CreatureFileBytes(const QString& text) {
    return text.toUtf8() + "\r\n";
}

} // namespace Hesperin
