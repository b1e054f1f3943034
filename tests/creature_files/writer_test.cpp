#include "creature_files/writer.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(Writer, WritesTheWholeFileInCatalogueOrder) {
    TestProgram test;
    MainForm& form = test.form;
    const std::pair<const char*, const char*> texts[] = {
        {"txtAttack", "4"},   {"txtDefence", "3"},      {"txtMinDam", "2"},   {"txtMaxDam", "3"},   {"txtHealth", "10"},
        {"ComboSpeed", "12"}, {"ComboInitiative", "8"}, {"ComboTier", "2"},   {"txtExp", "12"},     {"txtPower", "137"},
        {"txtWoodf", "1"},    {"txtOref", "2"},         {"txtMercuryf", "3"}, {"txtCrystalf", "4"}, {"txtSulfurf", "5"},
        {"txtGemf", "6"},     {"txtGoldf", "58"},       {"txtGrowthf", "99"}, {"txtIDC", "183"},    {"txtMana", "10"},
        {"txtShots", "7"}};
    for (const auto& [control, text] : texts)
        test.SetText(control, text);
    for (const int ability : {174, 29, 1, 38, 65, 66, 91, 147}) // five of them travel by other elements
        form.Abilities(ability).SetTicked(true);
    for (const int specability : {54, 0}) // the inert one is never written
        form.Specabilities(specability).SetTicked(true);
    for (const int spell : {91, 46})
        form.Spells(spell).SetTicked(true);
    form.saz(54).SetValue(2);
    form.soq(46).SetValue(1);
    form.ComboUpgrade.Select(1);
    form.ComboFaction.Select(1);
    form.ComboFME.Select(3);
    form.ComboSME.Select(4);
    form.ComboRange.Select(2);
    form.ComboTTC.Select(1);
    test.state.figures.GrowthRolvane = 18;
    test.state.figures.GrowthHesperin = 15;

    EXPECT_EQ(CreatureFileBytes(BuildCreatureText(test.program, "Swamp_drake").text),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<Creature>\n"
              "\t<AttackSkill>4</AttackSkill>\n"
              "\t<DefenceSkill>3</DefenceSkill>\n"
              "\t<Shots>7</Shots>\n"
              "\t<MinDamage>2</MinDamage>\n"
              "\t<MaxDamage>3</MaxDamage>\n"
              "\t<Speed>12</Speed>\n"
              "\t<Initiative>8</Initiative>\n"
              "\t<Flying>true</Flying>\n"
              "\t<Health>10</Health>\n"
              "\t<KnownSpells>\n"
              "\t\t<Item>\n"
              "\t\t\t<Spell>SPELL_ABILITY_DASH</Spell>\n"
              "\t\t\t<Mastery>MASTERY_NONE</Mastery>\n"
              "\t\t</Item>\n"
              "\t\t<Item>\n"
              "\t\t\t<Spell>SPELL_ABILITY_VENOM</Spell>\n"
              "\t\t\t<Mastery>MASTERY_ADVANCED</Mastery>\n"
              "\t\t</Item>\n"
              "\t\t<Item>\n"
              "\t\t\t<Spell>SPELL_MAGIC_ARROW</Spell>\n"
              "\t\t\t<Mastery>MASTERY_BASIC</Mastery>\n"
              "\t\t</Item>\n"
              "\t\t<Item>\n"
              "\t\t\t<Spell>SPELL_WEAKNESS</Spell>\n"
              "\t\t\t<Mastery>MASTERY_NONE</Mastery>\n"
              "\t\t</Item>\n"
              "\t</KnownSpells>\n"
              "\t<SpellPoints>10</SpellPoints>\n"
              "\t<SpellPoints1>2</SpellPoints1>\n"
              "\t<SpellPoints2>1</SpellPoints2>\n"
              "\t<Exp>12</Exp>\n"
              "\t<Power>137</Power>\n"
              "\t<TimeToCommand>15</TimeToCommand>\n"
              "\t<CreatureTier>2</CreatureTier>\n"
              "\t<Upgrade>true</Upgrade>\n"
              "\t<PairCreature>CREATURE_UNKNOWN</PairCreature>\n"
              "\t<CreatureTown>TOWN_INFERNO</CreatureTown>\n"
              "\t<MagicElement>\n"
              "\t\t<First>ELEMENT_FIRE</First>\n"
              "\t\t<Second>ELEMENT_WATER</Second>\n"
              "\t</MagicElement>\n"
              "\t<WeeklyGrowth>16</WeeklyGrowth>\n"
              "\t<Cost>\n"
              "\t\t<Wood>1</Wood>\n"
              "\t\t<Ore>2</Ore>\n"
              "\t\t<Mercury>3</Mercury>\n"
              "\t\t<Crystal>4</Crystal>\n"
              "\t\t<Sulfur>5</Sulfur>\n"
              "\t\t<Gem>6</Gem>\n"
              "\t\t<Gold>58</Gold>\n"
              "\t</Cost>\n"
              "\t<SubjectOfRandomGeneration>true</SubjectOfRandomGeneration>\n"
              "\t<MonsterShared href=\"/MapObjects/Neutral/Swamp_drake.(AdvMapMonsterShared).xdb"
              "#xpointer(/AdvMapMonsterShared)\"/>\n"
              "\t<CombatSize>2</CombatSize>\n"
              "\t<PatternAttack/>\n"
              "\t<flybySequence/>\n"
              "\t<Visual href=\"/GameMechanics/CreatureVisual/Creatures/Neutrals/Swamp_drake.xdb"
              "#xpointer(/CreatureVisual)\"/>\n"
              "\t<Range>-2</Range>\n"
              "\t<BaseCreature>CREATURE_UNKNOWN</BaseCreature>\n"
              "\t<Upgrades/>\n"
              "\t<Abilities>\n"
              "\t\t<Item>ABILITY_ACID_BLOOD</Item>\n"
              "\t\t<Item>ABILITY_DASH</Item>\n"
              "\t\t<Item>ABILITY_WOUND</Item>\n"
              "\t</Abilities>\n"
              "</Creature>\r\n");
}

struct PieceCase {
    const char* what;
    void (*act)(MainForm& form);
    const char* piece;
};

void ExpectPieces(std::initializer_list<PieceCase> cases) {
    for (const PieceCase& row : cases) {
        SCOPED_TRACE(row.what);
        TestProgram test;
        row.act(test.form);
        const QString text = BuildCreatureText(test.program, "Test").text;
        EXPECT_TRUE(text.contains(QString::fromUtf8(row.piece))) << text.toStdString();
    }
}

TEST(Writer, WritesWhatTheControlsHold) {
    ExpectPieces({
        {"markup", [](MainForm& form) { form.txtAttack.SetText("a<&"); }, "<AttackSkill>a&lt;&amp;</AttackSkill>"},
        {"a pasted word", [](MainForm& form) { form.txtPower.SetText("сто"); }, "<Power>сто</Power>"},
        {"an empty field", [](MainForm& form) { form.txtExp.SetText({}); }, "\t<Exp></Exp>\n"},
        {"no mana", [](MainForm& form) { form.txtMana.SetText({}); }, "<SpellPoints>0</SpellPoints>"},
        {"no shots", [](MainForm& form) { form.txtShots.SetText({}); }, "<Shots>0</Shots>"},
        {"mana of a creature that is no caster", [](MainForm& form) { form.txtMana.SetText("7"); },
         "<SpellPoints>7</SpellPoints>"},
        {"no flyer", [](MainForm&) {}, "<Flying>false</Flying>"},
        {"not large", [](MainForm&) {}, "<CombatSize>1</CombatSize>"},
        {"not upgraded", [](MainForm&) {}, "<Upgrade>false</Upgrade>"},
        {"no town", [](MainForm&) {}, "<CreatureTown>TOWN_NO_TYPE</CreatureTown>"},
        {"not inferno", [](MainForm& form) { form.ComboFaction.Select(0); }, "<SpellPoints2>0</SpellPoints2>\n"},
        {"no range", [](MainForm&) {}, "<Range>0</Range>"},
        {"no ability", [](MainForm&) {}, "\t<Upgrades/>\n</Creature>"},
        {"abilities of other elements only", [](MainForm& form) { form.Abilities(66).SetTicked(true); },
         "\t<Upgrades/>\n\t<Abilities>\n\t</Abilities>\n</Creature>"},
    });
}

TEST(Writer, WritesKnownSpellsByTheLastRuleOrForACaster) {
    const char* const none = "\t<KnownSpells/>\n\t<SpellPoints>";
    const char* const emptyList = "\t<KnownSpells>\n\t</KnownSpells>\n";
    const auto lastRuleUnticked = [](MainForm& form) {
        form.Specabilities(9).SetTicked(true);
        form.Specabilities(1).SetTicked(true);
        form.Specabilities(1).SetTicked(false);
    };
    const auto hidesSpell = [](MainForm& form) {
        form.Abilities(29).SetTicked(true);
        form.Spells(2).SetTicked(true);
        form.soq(2).SetValue(4);
        form.Abilities(29).SetTicked(false);
        form.Abilities(75).SetTicked(true);
    };
    ExpectPieces({
        {"nothing ticked", [](MainForm&) {}, none},
        {"the last rule unticked", lastRuleUnticked, none},
        {"then nothing is charged either", lastRuleUnticked, "<SpellPoints1>0</SpellPoints1>"},
        {"HOWL alone", [](MainForm& form) { form.Abilities(75).SetTicked(true); }, emptyList},
        {"HOWL's charge", [](MainForm& form) { form.Abilities(75).SetTicked(true); }, "<SpellPoints1>1</SpellPoints1>"},
        {"a caster without spells", [](MainForm& form) { form.Abilities(29).SetTicked(true); }, emptyList},
        {"a spell on the page that is off", hidesSpell,
         "\t<KnownSpells>\n\t\t<Item>\n\t\t\t<Spell>SPELL_ANTI_MAGIC</Spell>\n"
         "\t\t\t<Mastery>MASTERY_EXTRA_EXPERT</Mastery>\n\t\t</Item>\n\t</KnownSpells>\n"},
    });
}

} // namespace

} // namespace Hesperin
