// A user who does anything.
#include "app/calculate.h"
#include "app/creature_in_form.h"
#include "app/handlers/file_menu.h"
#include "app/handlers/options_menu.h"
#include "app/window_snapshot.h"
#include "catalogue/ability_catalogue.h"
#include "catalogue/links.h"
#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "support/invariants.h"
#include "support/repetitions.h"

#include <gtest/gtest.h>

#include <random>

namespace Hesperin {

namespace {

class Player {
public:
    Player(TestProgram& test, unsigned seed) : form(test.form), random(seed) {}

    int Below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

    /// Toggles a box, chooses masteries, seldom presses a reset.
    void ClickBoxes() {
        Button* const buttons[] = {&form.cmdRAP, &form.cmdRAA, &form.cmdRAS, &form.cmdResetAll};
        constexpr int ruled[] = {29, 49, 65, 75, 111, 132, 147, 164}; // abilities with a rule of their own
        const auto toggle = [](CheckBox& box) { box.SetTicked(!box.Ticked()); };
        const int dice = Below(400);
        if (dice < 4)
            buttons[dice]->Click();
        else if (dice % 4 == 0)
            toggle(form.Spells(1 + Below(SpellCount)));
        else if (dice % 4 == 1)
            toggle(form.Specabilities(1 + Below(SpecabilityCount)));
        else
            toggle(form.Abilities(dice < 40 ? ruled[Below(8)] : 1 + Below(Ability::Count)));
        for (MultiOption* selector : {&form.soq(1 + Below(SpellCount)), &form.saz(Below(SpecabilityCount + 1))})
            if (selector->Usable())
                selector->ClickOption(Below(5));
    }

    /// Enters something into every field and list that is open.
    void FillIn() {
        for (int letters = 1 + Below(12); letters > 0; --letters)
            form.txtNC.SetText(form.txtNC.Text() + QChar((Below(2) == 0 ? 'a' : 'A') + Below(26)));
        for (const auto field : NumberFields)
            if ((form.*field).Enabled())
                (form.*field).SetText(QString::number(1 + Below((form.*field).MaxLength() == 2 ? 99 : 999)));
        for (const auto list : ListFields)
            if ((form.*list).Usable())
                (form.*list).Select(static_cast<std::int16_t>(Below(static_cast<int>((form.*list).Items().size()))));
    }

private:
    MainForm& form;
    std::mt19937 random;
};

TEST(Play, KeepsBoxesCountersAndSelectorsInStep) {
    TestProgram test;
    Player player(test, 7);
    for (int step = 0; step < Repetitions(20'000); ++step) {
        player.ClickBoxes();
        if (step % 10 != 0)
            continue;
        const Creature creature = TakeCreature(test.program);
        ASSERT_EQ(BrokenInvariant(test.program), "") << "after step " << step;
        ASSERT_EQ(creature.SpellPoints1Count, ChargesOf(creature));
        Calculate(test.program);
        ASSERT_EQ(test.state.parameters.AbilityProduct, EnteredOf(creature).AbilityProduct);
    }
}

TEST(Play, ACreatureIsTakenOutOfTheFormAndSetBackWithoutARule) {
    TestProgram test;
    Player player(test, 11);
    for (int round = 0; round < Repetitions(60); ++round) {
        for (int clicks = 0; clicks < 20; ++clicks)
            player.ClickBoxes();
        player.FillIn();
        if (round % 3 == 0)
            (round % 2 == 0 ? mnuRussian_Click : mnuEnglish_Click)(test.program);
        const Creature creature = TakeCreature(test.program);
        const QStringList before = Snapshot(test);
        SetCreature(test.program, creature);
        ASSERT_EQ(Snapshot(test), before);

        TestProgram empty(test.state.LanguageId);
        SetCreature(empty.program, creature);
        ASSERT_TRUE(TakeCreature(empty.program) == creature) << "round " << round;
        EXPECT_EQ(empty.state.AbilityCurrentValue, test.state.AbilityCurrentValue);
        EXPECT_EQ(empty.state.UpgradeFactor, test.state.UpgradeFactor);
        EXPECT_EQ(empty.platform.focus, QStringList());
    }
}

/// Where the window shows `second` otherwise than `first`.
std::string Difference(const Creature& first, const Creature& second) {
    TestProgram programs[2];
    SetCreature(programs[0].program, first);
    SetCreature(programs[1].program, second);
    const auto words = WindowSnapshot(programs[0].program).words;
    QStringList lines;
    for (auto [name, word] : WindowSnapshot(programs[1].program).words.asKeyValueRange())
        if (words[name] != word)
            lines.append(name + ": " + words[name] + " and " + word);
    return lines.join('\n').toStdString();
}

/// What a reader finds in the file of a creature, by the rules of the format.
Creature AsWritten(Creature creature) {
    const auto begins = [](const QStringList& written, const QString& token) {
        return std::any_of(written.begin(), written.end(), [&](const QString& word) { return word.startsWith(token); });
    };
    const Creature form = creature;
    creature.Name = form.Name.left(1).toUpper() + form.Name.mid(1).toLower();
    if (!form.Has(Ability::Caster))
        creature.Numbers[NumberField::Mana].clear();
    if (!form.Has(Ability::Shooter))
        creature.Numbers[NumberField::Shots] = "0";
    for (const ListField list : {ListField::Speed, ListField::Initiative, ListField::Tier}) // read as texts
        creature.Choices[list].index = EmptyCreature().Choices[list].index;
    creature.Choices[ListField::Alias].index = form.Choices[ListField::Faction].index;
    creature.Choices[ListField::Diapazon].index = form.Choices[ListField::Range].index;
    const bool listed = form.SpecabilityFlag != 0 || form.Has(Ability::Caster);
    QStringList written;
    creature.Specabilities = {};
    creature.Spells = {};
    for (std::size_t j = 1; listed && j <= SpecabilityCount; ++j)
        if (form.Specabilities[j].known)
            written.append(QString::fromUtf16(SpecabilityToken[j]));
    for (std::size_t j = 1; listed && j <= SpecabilityCount; ++j)
        for (std::size_t k = 1; k <= SpecabilityCount; ++k) // the first token that begins with j's
            if (form.Specabilities[k].known && !creature.Specabilities[j].known &&
                QString::fromUtf16(SpecabilityToken[k]).startsWith(QString::fromUtf16(SpecabilityToken[j])))
                creature.Specabilities[j] = {true, form.Specabilities[k].mastery};
    for (std::size_t i = 1; listed && i <= SpellCount; ++i)
        if (form.Spells[i].known) {
            const auto level = form.Spells[i].mastery;
            const auto room = 64 - 21 - 8 - QString("SPELL_").size() - QString::fromUtf16(SpellToken[i]).size();
            const auto length = QString::fromUtf16(MasteryToken.at(static_cast<std::size_t>(level))).size();
            creature.Spells[i] = {true, length <= room ? level : std::int16_t{0}};
        }
    for (std::size_t i = 1; i <= Ability::Count; ++i)
        if (form.Abilities[i] && i != Ability::FleshAndBlood)
            written.append(QString::fromUtf16(AbilityCatalogue[i].token));
    for (std::size_t i = 1; i <= Ability::Count; ++i)
        creature.Abilities[i] = begins(written, QString::fromUtf16(AbilityCatalogue[i].token));
    for (const Link& link : Links) {
        Skill& skill = creature.Specabilities[static_cast<std::size_t>(link.specability)];
        creature.Set(link.ability, creature.Has(link.ability) || skill.known);
        skill.known = creature.Has(link.ability);
    }
    if (!creature.Has(Ability::Elemental) && !creature.Has(Ability::Mechanical) && !creature.Has(Ability::Undead))
        creature.Set(Ability::FleshAndBlood, true);
    creature.SpellPoints1Count = ChargesOf(creature);
    return creature;
}

TEST(Play, SavingAndOpeningGivesTheCreatureBack) {
    for (unsigned seed = 1; seed <= Repetitions(150U); ++seed) {
        SCOPED_TRACE(seed);
        TestProgram saved;
        Player player(saved, seed);
        for (int clicks = player.Below(150); clicks > 0; --clicks)
            player.ClickBoxes();
        saved.form.txtNC.SetText({});
        player.FillIn();
        saved.form.cmdCalc.Click();
        saved.platform.dialogPath = saved.Path("Creature_222.xdb");
        saved.form.mnuSave.Click();
        const Figures& figures = saved.state.figures;

        TestProgram opened;
        ASSERT_EQ(OpenCreatureFile(opened.program, saved.Path("Creature_222.xdb")), std::nullopt);
        const Creature creature = TakeCreature(opened.program);
        Creature expected = AsWritten(TakeCreature(saved.program));
        expected.Id = "222";
        expected.Numbers[NumberField::Growth] =
            QString::number(std::max(1, (figures.GrowthRolvane + figures.GrowthHesperin) / 2));
        expected.SpecabilityFlag = creature.SpecabilityFlag; // follows the last rule that ran
        EXPECT_EQ(BrokenInvariant(opened.program), "");
        EXPECT_TRUE(creature == expected) << Difference(creature, expected);

        const auto document = LoadCreatureDocument(saved.Path("Creature_222.xdb"));
        EXPECT_EQ(opened.form.RTBData.Text(), document->text);
        Creature read = ReadCreatureText(document->text, EmptyCreature()).creature;
        read.Id = "222"; // of the file's name
        EXPECT_TRUE(read == creature) << Difference(read, creature);
    }
}

} // namespace

} // namespace Hesperin
