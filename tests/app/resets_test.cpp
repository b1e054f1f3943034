#include "catalogue/links.h"
#include "app/calculate.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <random>

namespace Hesperin {

namespace {

/// What the resets touch, on one line.
QString Summary(const TestProgram& test) {
    const MainForm& form = test.form;
    QString pages;
    for (const TabPage& page : form.Tablus.Tab)
        pages += page.On() ? '+' : page.Enabled() || page.Visible() ? '?' : '-';
    return QString("%1 | soq %2 saz %3 | attack '%4' mana '%5' shots '%6' range %7 | pages %8 | ")
               .arg(test.Ticked().join(' '), form.soq(7).Shown(), form.saz(1).Shown(), form.txtAttack.Text(),
                    form.txtMana.Text(), form.txtShots.Text(), form.ComboRange.Text(), pages) +
           QString("count %1 flag %2 | save %3 spells %4 loaded %5 | %6")
               .arg(test.state.SpellPoints1Count)
               .arg(test.state.SpecabilityFlag)
               .arg(form.mnuSave.Enabled())
               .arg(form.cmdRAS.Enabled())
               .arg(test.state.CreatureFileLoaded)
               .arg(form.frmMain.Caption());
}

TEST(Resets, EachTouchesItsOwnPages) {
    const std::pair<Button MainForm::*, const char*> cases[] = {
        {&MainForm::cmdRAP,
         "Abilities(16) Abilities(17) Abilities(29) Abilities(147) Spells(7) Specabilities(1) "
         "Specabilities(4) Specabilities(49) | soq 2 saz 3 | attack '0' mana '0' shots '0' range None "
         "| pages ++-++ | count 3 flag -1 | save 1 spells 1 loaded 1 | title"},
        {&MainForm::cmdRAA, "Spells(7) | soq 2 saz 0 | attack '5' mana '' shots '' range None | pages ++-++ | "
                            "count 0 flag 0 | save 1 spells 0 loaded 1 | title"},
        {&MainForm::cmdRAS,
         "Abilities(16) Abilities(17) Abilities(29) Abilities(147) Specabilities(1) "
         "Specabilities(4) Specabilities(49) | soq 0 saz 3 | attack '5' mana '6' shots '7' range Half "
         "| pages +++++ | count 3 flag -1 | save 1 spells 1 loaded 1 | title"},
        {&MainForm::cmdResetAll,
         "Specabilities(1) Specabilities(49) | soq 0 saz 3 | attack '0' mana '' shots '' range None | "
         "pages ++-+- | count 1 flag 0 | save 0 spells 0 loaded 0 | TALMIR v0.0.0.44"},
    };
    for (const auto& [button, after] : cases) {
        TestProgram test;
        SCOPED_TRACE((test.form.*button).Name().toStdString());
        MainForm& form = test.form;
        for (const int ability : {16, 29, 147})
            form.Abilities(ability).SetTicked(true);
        form.Spells(7).SetTicked(true);
        form.soq(7).ClickOption(2);
        for (const int specability : {1, 4, 49})
            form.Specabilities(specability).SetTicked(true);
        form.saz(1).ClickOption(3);
        form.txtAttack.SetText("5");
        form.txtMana.SetText("6");
        form.txtShots.SetText("7");
        form.ComboRange.Select(2);
        form.Tablus.Tab(4).Switch(true);
        form.mnuSave.SetEnabled(true);
        form.frmMain.SetCaption(QString("title"));
        test.state.CreatureFileLoaded = true;

        (form.*button).Click();
        EXPECT_EQ(Summary(test), after);
        EXPECT_EQ(form.saz(1).Enabled(), form.Specabilities(1).Ticked());
        EXPECT_EQ(form.soq(7).Enabled(), form.Spells(7).Ticked());
    }
}

TEST(Resets, SelectorsAreClosedAlsoWhereNoBoxIsTicked) {
    TestProgram test;
    test.state.SpecabilityFlag = FlagTrue;
    for (MultiOption* selector : {&test.form.soq(91), &test.form.saz(54)}) {
        selector->SetValue(4);
        selector->SetOptionsEnabled(true);
        selector->Redraw();
        (selector == &test.form.soq(91) ? test.form.cmdRAS : test.form.cmdRAA).Click();
        EXPECT_FALSE(selector->Enabled());
        EXPECT_EQ(selector->SelectedOption(), 0);
    }
    EXPECT_EQ(test.state.SpecabilityFlag, FlagFalse);
}

/// What holds after any sequence of clicks without a change of language.
void ExpectInvariants(const TestProgram& test) {
    const MainForm& form = test.form;
    int points = 0;
    for (const Link& link : Links) {
        EXPECT_EQ(form.Abilities(link.ability).Ticked(), form.Specabilities(link.specability).Ticked());
        points += form.Abilities(link.ability).Ticked() ? 2 : 0;
    }
    for (const CheckBox* oneSided :
         {&form.Abilities(75), &form.Abilities(132), &form.Specabilities(3), &form.Specabilities(49)})
        points += oneSided->Ticked() ? 1 : 0;
    EXPECT_EQ(test.state.SpellPoints1Count, points);

    int natures = 0;
    for (const int nature : {49, 65, 111, 164})
        natures += form.Abilities(nature).Ticked() ? 1 : 0;
    EXPECT_LE(natures, 1);

    const auto expectSelector = [](const MultiOption& selector, bool ticked) {
        EXPECT_EQ(selector.Enabled(), ticked);
        EXPECT_EQ(selector.Value(), selector.SelectedOption());
        EXPECT_TRUE(ticked || selector.Value() == 0);
    };
    for (int i = 1; i <= 91; ++i)
        expectSelector(form.soq(i), form.Spells(i).Ticked());
    for (int j = 0; j <= 54; ++j)
        expectSelector(form.saz(j), form.Specabilities(j).Ticked());

    const bool caster = form.Abilities(29).Ticked();
    EXPECT_EQ(form.cmdRAS.Enabled(), caster);
    EXPECT_EQ(form.txtMana.Usable(), caster);
    EXPECT_TRUE(caster || !form.Tablus.Tab(2).On());
    EXPECT_EQ(form.txtShots.Usable(), form.Abilities(147).Ticked());
}

/// The product of the ticked abilities' values, which their tool tips show, in index order.
float ExpectedProduct(const MainForm& form) {
    float product = 1;
    for (const CheckBox& box : form.Abilities)
        if (box.Ticked())
            product *= box.ToolTip().section(' ', -1).toFloat();
    return product;
}

TEST(RandomPlay, BoxesCountersAndSelectorsStayInStep) {
    std::mt19937 random(7);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    TestProgram test;
    MainForm& form = test.form;
    Button* const buttons[] = {&form.cmdRAP, &form.cmdRAA, &form.cmdRAS, &form.cmdResetAll};
    constexpr int ruled[] = {29, 49, 65, 75, 111, 132, 147, 164}; // abilities with a rule of their own
    const auto toggle = [](CheckBox& box) { box.SetTicked(!box.Ticked()); };
    for (int step = 0; step < 20000; ++step) {
        const int dice = below(400);
        if (dice < 4)
            buttons[dice]->Click();
        else if (dice % 4 == 0)
            toggle(form.Spells(1 + below(91)));
        else if (dice % 4 == 1)
            toggle(form.Specabilities(1 + below(54)));
        else
            toggle(form.Abilities(dice < 40 ? ruled[below(8)] : 1 + below(174)));
        for (MultiOption* selector : {&form.soq(1 + below(91)), &form.saz(below(55))})
            if (selector->Usable())
                selector->ClickOption(below(5));
        if (step % 10 == 0) {
            ExpectInvariants(test);
            Calculate(test.program);
            EXPECT_EQ(test.state.parameters.AbilityProduct, ExpectedProduct(form));
            ASSERT_FALSE(HasFailure()) << "after step " << step;
        }
    }
}

} // namespace

} // namespace Hesperin
