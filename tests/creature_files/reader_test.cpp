#include "creature_files/creature_xml.h"
#include "app/handlers/file_menu.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// A program that has opened a document.
struct Opened : TestProgram {
    explicit Opened(const CreatureXml& document, const QString& name = "creature.xdb") {
        EXPECT_TRUE(OpenCreatureFile(program, Write(name, document.Bytes())));
    }

    QString Shown(const char* control) const { return form.Find(control)->Shown(); }

    QStringList Ticked(const char* array) const {
        QStringList ticked;
        for (const Control* control : form.Controls())
            if (control->ArrayName() == QLatin1String(array) && control->Shown() == "1")
                ticked.append(dynamic_cast<const CheckBox*>(control)->Caption());
        return ticked;
    }
};

TEST(Reader, FillsEveryFieldFromItsOwnElement) {
    const Opened test{CreatureXml()};
    const std::pair<const char*, const char*> cases[] = {
        {"txtAttack", "11"},      {"txtDefence", "12"},      {"txtMinDam", "5"},          {"txtMaxDam", "8"},
        {"txtHealth", "40"},      {"ComboSpeed", "6"},       {"ComboInitiative", "9"},    {"ComboTier", "4"},
        {"ComboUpgrade", "True"}, {"ComboAlias", "ACADEMY"}, {"ComboFaction", "Academy"}, {"ComboDiapazon", "-1"},
        {"ComboRange", "Max"},    {"ComboTTC", "15"},        {"ComboFME", "Air"},         {"ComboSME", "Water"},
        {"txtExp", "61"},         {"txtPower", "905"},       {"txtGrowthf", "7"},         {"txtWoodf", "1"},
        {"txtOref", "2"},         {"txtMercuryf", "3"},      {"txtCrystalf", "4"},        {"txtSulfurf", "5"},
        {"txtGemf", "6"},         {"txtGoldf", "420"},       {"txtNC", "Bog_wyrm"},       {"txtIDC", ""},
        {"txtMana", ""},          {"txtShots", "0"},
    };
    for (const auto& [control, shown] : cases)
        EXPECT_EQ(test.Shown(control), shown) << control;
    EXPECT_EQ(test.Ticked("Abilities"), QStringList{"FLESH_AND_BLOOD"});
    EXPECT_EQ(test.Ticked("Spells") + test.Ticked("Specabilities"), QStringList());
    EXPECT_EQ(test.state.file.FileExperience, 61);
    EXPECT_EQ(test.state.file.FilePower, 905);
    EXPECT_EQ(test.state.file.FileGrowth, 7);
    EXPECT_EQ(test.state.file.FileGold, 420);
    EXPECT_EQ(test.state.CreatureName, "Bog_wyrm");
    EXPECT_TRUE(test.state.CreatureFileLoaded);
    EXPECT_EQ(test.state.UpgradeFactor, 1.6F);
    EXPECT_EQ(test.platform.focus, QStringList{"cmdCalc"});
    EXPECT_TRUE(test.form.mnuSave.Enabled());
    EXPECT_TRUE(test.form.Tablus.Tab(4).On());
    EXPECT_EQ(test.form.Tablus.Tab(4).Caption(), test.Path("creature.xdb"));
    EXPECT_FALSE(test.form.txtMana.Enabled() || test.form.txtShots.Enabled() || test.form.Tablus.Tab(2).On());
}

TEST(Reader, ReadsOddContentsOfAnElement) {
    const struct {
        const char* element;
        const char* content;
        const char* control;
        const char* shown;
    } cases[] = {
        {"Speed", "5.5", "ComboSpeed", "6"},
        {"Speed", "12", "ComboSpeed", "9"}, // Calculate limits it
        {"Exp", "many", "txtExp", "0"},
        {"Exp", "-7", "txtExp", "-7"},
        {"Gold", "99999", "txtGoldf", "32767"},
        {"Power", "-99999", "txtPower", "-32768"},
        {"Flying", "true", "Abilities(66)", "1"},
        {"Flying", "<!-- -->true", "Abilities(66)", "1"},
        {"CombatSize", "2", "Abilities(91)", "1"},
        {"CombatSize", "3", "Abilities(91)", "0"},
        {"Upgrade", "false", "ComboUpgrade", "False"},
        {"Range", "-12", "ComboDiapazon", "-1"},
        {"Range", "-2", "ComboRange", "Half"},
        {"Range", "5", "ComboDiapazon", "0"},
        {"TimeToCommand", "100", "ComboTTC", "10"},
        {"CreatureTown", "town_inferno", "ComboAlias", "INFERNO"},
        {"CreatureTown", "TOWN_ATLANTIS", "ComboAlias", "NO_TYPE"},
        {"CreatureTown", "ACADEMY", "ComboAlias", "NO_TYPE"},
        {"First", "ELEMENT_EARTH", "ComboFME", "Earth"},
        {"First", "ELEMENT_AETHER", "ComboFME", "None"},
        {"Second", "ELEMENT_AIR", "ComboSME", "None"}, // the first one has it already
        {"SpellPoints", "-8", "Abilities(29)", "0"},
        {"SpellPoints1", "5", "txtMana", ""},
        {"Shots", "0.5", "Abilities(147)", "0"},
    };
    for (const auto& odd : cases) {
        SCOPED_TRACE(QString("%1 %2").arg(odd.element, odd.content).toStdString());
        EXPECT_EQ(Opened(CreatureXml().Set(odd.element, odd.content)).Shown(odd.control), odd.shown);
    }
}

TEST(Reader, ManaAndShotsTickTheirAbilitiesAndOpenTheirFields) {
    const Opened test(CreatureXml().Set("SpellPoints", "8").Set("Shots", "3"));
    EXPECT_EQ(test.Ticked("Abilities"), (QStringList{"CASTER", "FLESH_AND_BLOOD", "SHOOTER"}));
    EXPECT_EQ(test.form.txtMana.Text(), "8");
    EXPECT_EQ(test.form.txtShots.Text(), "3");
    EXPECT_TRUE(test.form.txtMana.Usable() && test.form.txtShots.Usable() && test.form.Tablus.Tab(2).On());
    EXPECT_EQ(test.form.ComboDiapazon.Text(), "-1");
    EXPECT_EQ(test.platform.focus.last(), "cmdCalc");
    EXPECT_EQ(test.platform.focus.count("txtMana"), 2) << "once by the tick, once at the end";
}

TEST(Reader, AbilityCasterWithoutManaOpensTheFieldForCalculateToCorrect) {
    Opened test(CreatureXml().Ability("CASTER").Ability("SHOOTER").Ability("FLYER").Ability("LARGE_CREATURE"));
    EXPECT_EQ(test.Ticked("Abilities"),
              (QStringList{"CASTER", "FLESH_AND_BLOOD", "FLYER", "LARGE_CREATURE", "SHOOTER"}));
    EXPECT_TRUE(test.form.Tablus.Tab(2).On());
    EXPECT_EQ(test.platform.Texts().mid(0, 2),
              (QStringList{"Value for 'Mana' out of the range!", "Value for 'Shots' out of the range!"}));
}

TEST(Reader, EveryTokenInTheTextTicksItsBox) {
    const QStringList flesh{"FLESH_AND_BLOOD"};
    const QStringList casters{"FLESH_AND_BLOOD", "RANDOM_CASTER", "RANDOM_CASTER_BLESS"};
    const QStringList casts{"RANDOM_CAST_DARK", "RANDOM_CAST_DARK_LIGHT"};
    const struct {
        const char* what;
        CreatureXml document;
        QStringList abilities;
        QStringList specabilities;
    } cases[] = {
        {"both of one word", CreatureXml().Spell("ABILITY_FEAR", "BASIC"), QStringList{"FEAR"} + flesh, {"FEAR"}},
        {"an ability without a link", CreatureXml().Ability("FEAR"), QStringList{"FEAR"} + flesh, {}},
        {"a linked ability", CreatureXml().Ability("DASH"), QStringList{"DASH"} + flesh, {"DASH"}},
        {"a longer ability", CreatureXml().Ability("RANDOM_CASTER_BLESS"), casters, casts},
        {"a longer one", CreatureXml().Spell("ABILITY_RANDOM_CAST_DARK_LIGHT", "EXPERT"), casters, casts},
        {"lower case", CreatureXml().Ability("bash"), QStringList{"BASH"} + flesh, {}},
        {"a nature", CreatureXml().Ability("UNDEAD"), {"UNDEAD"}, {}},
        {"the first of two in the catalogue", CreatureXml().Ability("UNDEAD").Ability("ELEMENTAL"), {"ELEMENTAL"}, {}},
        {"FLESH_AND_BLOOD before UNDEAD", CreatureXml().Ability("UNDEAD").Ability("FLESH_AND_BLOOD"), flesh, {}},
        {"unknown words", CreatureXml().Ability("SINGING").Spell("ABILITY_WEAKNING_STRIKE", ""), flesh, {}},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const Opened opened(test.document);
        EXPECT_EQ(opened.Ticked("Abilities"), test.abilities);
        EXPECT_EQ(opened.Ticked("Specabilities"), test.specabilities);
    }
}

TEST(Reader, MasteryCountsOnlyInsideItsWindow) {
    const struct {
        int spell;
        const char* token;
        QString levels; // read back for the masteries 0 to 4
    } cases[] = {
        {75, "SLOW", "01234"},
        {89, "WARCRY_SHOUT_OF_MANY", "01230"},       // 26 with its prefix
        {68, "RUNE_OF_DRAGONFORM", "01230"},         // 24
        {51, "MASS_DEFLECT_ARROWS", "01230"},        // 25
        {74, "RUNE_OF_STUNNING", "01234"},           // 22
        {33, "EMPOWERED_STONE_SPIKES", "01030"},     // 28
        {32, "EMPOWERED_METEOR_SHOWER", "01030"},    // 29
        {29, "EMPOWERED_LIGHTNING_BOLT", "01000"},   // 30
        {23, "EMPOWERED_CHAIN_LIGHTNING", "00000"},  // 31
        {69, "RUNE_OF_ELEMENTAL_IMMUNITY", "00000"}, // 32
    };
    const char* const words[] = {"NONE", "BASIC", "ADVANCED", "EXPERT", "EXTRA_EXPERT"};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.token);
        QString levels;
        for (const char* word : words) {
            const Opened opened(CreatureXml().Spell(test.token, word));
            EXPECT_EQ(opened.Ticked("Spells"), QStringList{test.token});
            EXPECT_TRUE(opened.form.soq(test.spell).Enabled());
            EXPECT_EQ(opened.form.soq(test.spell).SelectedOption(), opened.form.soq(test.spell).Value());
            levels += QString::number(opened.form.soq(test.spell).Value());
        }
        EXPECT_EQ(levels, test.levels);
    }
    for (std::int16_t level = 0; level <= 4; ++level) {
        const Opened opened(CreatureXml().Spell("ABILITY_RANDOM_CAST_DARK_LIGHT", words[level]));
        EXPECT_EQ(opened.form.saz(38).Value(), level);
        EXPECT_EQ(opened.form.saz(37).Value(), level) << "found inside the other one";
        EXPECT_TRUE(opened.form.saz(38).Enabled());
    }
    const Opened unread(CreatureXml().Spell("BLESS", "GRAND").Spell("SLOW", "expert"));
    EXPECT_EQ(unread.Ticked("Spells"), (QStringList{"BLESS", "SLOW"}));
    EXPECT_EQ(unread.form.soq(7).Value() + unread.form.soq(75).Value(), 0);
}

} // namespace

} // namespace Hesperin
