#include "creature_files/writer.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// The creature file of an almost empty window, changed by `act`.
template <typename Act>
QString TextAfter(Act act, const QString& name = "Test") {
    TestProgram test;
    act(test);
    return BuildCreatureText(test.program, name);
}

TEST(Writer, WritesTheWholeFile) {
    TestProgram test;
    MainForm& form = test.form;
    const std::initializer_list<std::pair<TextField*, const char*>> fields{
        {&form.txtAttack, "4"}, {&form.txtDefence, "3"},  {&form.txtShots, ""}, {&form.txtMinDam, "2"},
        {&form.txtMaxDam, "3"}, {&form.txtHealth, "10"},  {&form.txtExp, "12"}, {&form.txtPower, "137"},
        {&form.txtGoldf, "58"}, {&form.txtGrowthf, "99"}, {&form.txtIDC, "183"}};
    for (const auto& [field, text] : fields)
        field->SetText(text);
    form.ComboInitiative.SetText("8");
    for (const int ability : {29, 38, 65})
        form.Abilities(ability).SetTicked(true);
    form.Spells(46).SetTicked(true);
    form.soq(46).SetValue(1);
    form.txtMana.SetText("10");
    form.ComboTier.Select(1);
    form.ComboAlias.Select(3);
    form.ComboFME.Select(3);
    test.state.GrowthRolvane = 18;
    test.state.GrowthHesperin = 15;

    EXPECT_EQ(CreatureFileBytes(BuildCreatureText(test.program, "Swamp_drake")),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<Creature>\n"
              "\t<AttackSkill>4</AttackSkill>\n"
              "\t<DefenceSkill>3</DefenceSkill>\n"
              "\t<Shots>0</Shots>\n"
              "\t<MinDamage>2</MinDamage>\n"
              "\t<MaxDamage>3</MaxDamage>\n"
              "\t<Speed>5</Speed>\n"
              "\t<Initiative>8</Initiative>\n"
              "\t<Flying>false</Flying>\n"
              "\t<Health>10</Health>\n"
              "\t<KnownSpells>\n"
              "\t\t<Item>\n"
              "\t\t\t<Spell>SPELL_ABILITY_DASH</Spell>\n"
              "\t\t\t<Mastery>MASTERY_NONE</Mastery>\n"
              "\t\t</Item>\n"
              "\t\t<Item>\n"
              "\t\t\t<Spell>SPELL_MAGIC_ARROW</Spell>\n"
              "\t\t\t<Mastery>MASTERY_BASIC</Mastery>\n"
              "\t\t</Item>\n"
              "\t</KnownSpells>\n"
              "\t<SpellPoints>10</SpellPoints>\n"
              "\t<SpellPoints1>2</SpellPoints1>\n"
              "\t<SpellPoints2>0</SpellPoints2>\n"
              "\t<Exp>12</Exp>\n"
              "\t<Power>137</Power>\n"
              "\t<TimeToCommand>10</TimeToCommand>\n"
              "\t<CreatureTier>2</CreatureTier>\n"
              "\t<Upgrade>false</Upgrade>\n"
              "\t<PairCreature>CREATURE_UNKNOWN</PairCreature>\n"
              "\t<CreatureTown>TOWN_PRESERVE</CreatureTown>\n"
              "\t<MagicElement>\n"
              "\t\t<First>ELEMENT_FIRE</First>\n"
              "\t\t<Second>ELEMENT_NONE</Second>\n"
              "\t</MagicElement>\n"
              "\t<WeeklyGrowth>16</WeeklyGrowth>\n"
              "\t<Cost>\n"
              "\t\t<Wood>0</Wood>\n"
              "\t\t<Ore>0</Ore>\n"
              "\t\t<Mercury>0</Mercury>\n"
              "\t\t<Crystal>0</Crystal>\n"
              "\t\t<Sulfur>0</Sulfur>\n"
              "\t\t<Gem>0</Gem>\n"
              "\t\t<Gold>58</Gold>\n"
              "\t</Cost>\n"
              "\t<SubjectOfRandomGeneration>true</SubjectOfRandomGeneration>\n"
              "\t<MonsterShared href=\"/MapObjects/Neutral/Swamp_drake.(AdvMapMonsterShared).xdb"
              "#xpointer(/AdvMapMonsterShared)\"/>\n"
              "\t<CombatSize>1</CombatSize>\n"
              "\t<PatternAttack/>\n"
              "\t<flybySequence/>\n"
              "\t<Visual href=\"/GameMechanics/CreatureVisual/Creatures/Neutrals/Swamp_drake.xdb"
              "#xpointer(/CreatureVisual)\"/>\n"
              "\t<Range>0</Range>\n"
              "\t<BaseCreature>CREATURE_UNKNOWN</BaseCreature>\n"
              "\t<Upgrades/>\n"
              "\t<Abilities>\n"
              "\t\t<Item>ABILITY_DASH</Item>\n"
              "\t</Abilities>\n"
              "</Creature>\r\n");
}

struct PieceCase {
    const char* what;
    void (*act)(MainForm& form);
    const char* piece;
};

void ExpectPieces(std::initializer_list<PieceCase> cases) {
    for (const PieceCase& test : cases) {
        SCOPED_TRACE(test.what);
        const QString text = TextAfter([&](TestProgram& program) { test.act(program.form); });
        EXPECT_TRUE(text.contains(QString::fromUtf8(test.piece))) << text.toStdString();
    }
}

TEST(Writer, TakesEveryValueFromItsOwnControl) {
    ExpectPieces({
        {"attack", [](MainForm& form) { form.txtAttack.SetText("a<&"); }, "<AttackSkill>a<&</AttackSkill>"},
        {"empty field", [](MainForm& form) { form.txtExp.SetText({}); }, "\t<Exp></Exp>\n"},
        {"shots", [](MainForm& form) { form.txtShots.SetText("7"); }, "<Shots>7</Shots>"},
        {"mana of a creature that is no caster", [](MainForm& form) { form.txtMana.SetText("7"); },
         "<SpellPoints>7</SpellPoints>"},
        {"no mana", [](MainForm& form) { form.txtMana.SetText({}); }, "<SpellPoints>0</SpellPoints>"},
        {"typed speed", [](MainForm& form) { form.ComboSpeed.SetText("12"); }, "<Speed>12</Speed>"},
        {"flyer", [](MainForm& form) { form.Abilities(66).SetTicked(true); }, "<Flying>true</Flying>"},
        {"large", [](MainForm& form) { form.Abilities(91).SetTicked(true); }, "<CombatSize>2</CombatSize>"},
        {"upgraded", [](MainForm& form) { form.ComboUpgrade.Select(1); }, "<Upgrade>true</Upgrade>"},
        {"inferno", [](MainForm& form) { form.ComboFaction.Select(1); }, "<SpellPoints2>1</SpellPoints2>\n"},
        {"inferno's town", [](MainForm& form) { form.ComboFaction.Select(1); }, "TOWN_INFERNO</CreatureTown>"},
        {"haven", [](MainForm& form) { form.ComboFaction.Select(0); }, "<SpellPoints2>0</SpellPoints2>\n"},
        {"no town", [](MainForm&) {}, "<CreatureTown>TOWN_NO_TYPE</CreatureTown>"},
        {"range", [](MainForm& form) { form.ComboRange.Select(2); }, "<Range>-2</Range>"},
        {"time", [](MainForm& form) { form.ComboTTC.Select(1); }, "<TimeToCommand>15</TimeToCommand>"},
        {"second element", [](MainForm& form) { form.ComboSME.Select(4); }, "<Second>ELEMENT_WATER</Second>"},
        {"costs, each its own",
         [](MainForm& form) {
             int amount = 1;
             for (TextField* field : {&form.txtWoodf, &form.txtOref, &form.txtMercuryf, &form.txtCrystalf,
                                      &form.txtSulfurf, &form.txtGemf, &form.txtGoldf})
                 field->SetText(QString::number(amount++));
         },
         "<Wood>1</Wood>\n\t\t<Ore>2</Ore>\n\t\t<Mercury>3</Mercury>\n\t\t<Crystal>4</Crystal>\n"
         "\t\t<Sulfur>5</Sulfur>\n\t\t<Gem>6</Gem>\n\t\t<Gold>7</Gold>\n"},
        {"a pasted word", [](MainForm& form) { form.txtPower.SetText(QString::fromUtf8("сто")); },
         "<Power>сто</Power>"},
    });
}

TEST(Writer, WritesKnownSpellsByTheLastRuleOrForACaster) {
    const char* const none = "\t<KnownSpells/>\n\t<SpellPoints>";
    const char* const emptyList = "\t<KnownSpells>\n\t</KnownSpells>\n";
    const auto hidesSpell = [](MainForm& form) {
        form.Abilities(29).SetTicked(true);
        form.Spells(2).SetTicked(true);
        form.soq(2).SetValue(4);
        form.Abilities(29).SetTicked(false);
        form.Abilities(75).SetTicked(true);
    };
    ExpectPieces({
        {"nothing ticked", [](MainForm&) {}, none},
        {"the last rule unticked",
         [](MainForm& form) {
             form.Specabilities(2).SetTicked(true);
             form.Specabilities(9).SetTicked(true);
             form.Specabilities(2).SetTicked(false);
         },
         none},
        {"then nothing is charged either",
         [](MainForm& form) {
             form.Specabilities(9).SetTicked(true);
             form.Specabilities(1).SetTicked(true);
             form.Specabilities(1).SetTicked(false);
         },
         "<SpellPoints1>0</SpellPoints1>"},
        {"HOWL alone", [](MainForm& form) { form.Abilities(75).SetTicked(true); }, emptyList},
        {"HOWL's charge", [](MainForm& form) { form.Abilities(75).SetTicked(true); }, "<SpellPoints1>1</SpellPoints1>"},
        {"a linked pair's charge", [](MainForm& form) { form.Specabilities(9).SetTicked(true); },
         "<SpellPoints1>2</SpellPoints1>"},
        {"a caster without spells", [](MainForm& form) { form.Abilities(29).SetTicked(true); }, emptyList},
        {"a spell on the page that is off", hidesSpell,
         "\t<KnownSpells>\n\t\t<Item>\n\t\t\t<Spell>SPELL_ANTI_MAGIC</Spell>\n"
         "\t\t\t<Mastery>MASTERY_EXTRA_EXPERT</Mastery>\n\t\t</Item>\n\t</KnownSpells>\n"},
    });
}

TEST(Writer, WritesSpecialAbilitiesBeforeSpellsInCatalogueOrder) {
    const QString text = TextAfter([](TestProgram& test) {
        test.form.Specabilities(0).SetTicked(true);
        for (const int i : {91, 1})
            test.form.Spells(i).SetTicked(true);
        for (const int j : {54, 1})
            test.form.Specabilities(j).SetTicked(true);
        test.form.saz(54).SetValue(2);
        test.form.soq(1).SetValue(3);
    });
    QStringList known;
    for (const QString& line : text.split('\n'))
        if (line.startsWith("\t\t\t"))
            known.append(line.trimmed());
    EXPECT_EQ(known, (QStringList{"<Spell>SPELL_ABILITY_AGILITY</Spell>", "<Mastery>MASTERY_NONE</Mastery>",
                                  "<Spell>SPELL_ABILITY_VENOM</Spell>", "<Mastery>MASTERY_ADVANCED</Mastery>",
                                  "<Spell>SPELL_ANIMATE_DEAD</Spell>", "<Mastery>MASTERY_EXPERT</Mastery>",
                                  "<Spell>SPELL_WEAKNESS</Spell>", "<Mastery>MASTERY_NONE</Mastery>"}));
}

TEST(Writer, LeavesFiveAbilitiesToOtherElements) {
    const struct {
        QList<int> ticked;
        const char* end;
    } cases[] = {
        {{}, "\t<Upgrades/>\n</Creature>"},
        {{29}, "\t<Upgrades/>\n\t<Abilities>\n\t</Abilities>\n</Creature>"},
        {{29, 65, 66, 91, 147}, "\t<Upgrades/>\n\t<Abilities>\n\t</Abilities>\n</Creature>"},
        {{174, 66, 1, 164},
         "\t<Upgrades/>\n\t<Abilities>\n\t\t<Item>ABILITY_ACID_BLOOD</"
         "Item>\n\t\t<Item>ABILITY_UNDEAD</Item>\n"
         "\t\t<Item>ABILITY_WOUND</Item>\n\t</Abilities>\n</Creature>"},
    };
    for (const auto& test : cases) {
        const QString text = TextAfter([&](TestProgram& program) {
            for (const int i : test.ticked)
                program.form.Abilities(i).SetTicked(true);
        });
        EXPECT_TRUE(text.endsWith(test.end)) << text.toStdString();
    }
}

TEST(Writer, WritesTheMeanOfTheTwoGrowths) {
    const struct {
        std::int16_t rolvane, hesperin;
        const char* growth;
    } cases[] = {{0, 0, ">1<"}, {1, 0, ">1<"}, {0, 3, ">1<"}, {2, 2, ">2<"}, {18, 15, ">16<"}, {1000, 812, ">906<"}};
    for (const auto& test : cases) {
        const QString text = TextAfter([&](TestProgram& program) {
            program.state.GrowthRolvane = test.rolvane;
            program.state.GrowthHesperin = test.hesperin;
            program.form.txtGrowthf.SetText("77");
        });
        EXPECT_TRUE(text.contains("WeeklyGrowth" + QString(test.growth))) << test.rolvane << ' ' << test.hesperin;
    }
}

} // namespace

} // namespace Hesperin
