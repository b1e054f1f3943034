// What is done with the results of the last calculation: they are explained and taken over.
#include "app/handlers/balance_menu.h"
#include "app/handlers/buttons.h"
#include "app/last_explanation.h"
#include "app/solve_now.h"
#include "app/standing.h"
#include "app/take_over.h"
#include "reports/explanation_chapters.h"
#include "reports/survey.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// A creature of tier 2 beside a survey, whose figures have these scales.
struct Scaled : TestProgram {
    explicit Scaled(std::initializer_list<std::pair<Figure, double>> scales) {
        auto survey = std::make_shared<Survey>();
        for (const auto& [figure, scale] : scales)
            survey->scale.Add(2, figure, scale, 1);
        LoadSurvey(program, survey);
        FillInCreature();
        form.ComboTier.Select(1);
        cmdCalc_Click(program);
        form.mnuTakeOverByScale.Click();
    }

    QString Fields() const {
        return QStringList{form.txtPower.Text(), form.txtExp.Text(), form.txtGrowthf.Text(), form.txtGoldf.Text()}.join(
            ' ');
    }
};

TEST(TakeOver, GoesByTheScaleOfTheModWhereTheUserWantsIt) {
    const std::pair<Figure, double> whole[] = {
        {Figure::Power, 2}, {Figure::Experience, 4}, {Figure::Growth, 0.5}, {Figure::Cost, 10}};
    Scaled test({whole[0], whole[1], whole[2], whole[3]});
    const auto average = [&](const Label& label) { return label.Caption().toInt(); };
    const QString standing = test.form.lblStandingDeviation.Caption();
    EXPECT_EQ(mnuTakeOver_Click(test.program), Failure());
    EXPECT_EQ(test.form.txtPower.Text().toInt(), qRound(average(test.form.lblPowerAverage) / 2.0));
    EXPECT_EQ(test.form.txtExp.Text().toInt(), qRound(average(test.form.lblExpAverage) / 4.0));
    EXPECT_EQ(test.form.txtGrowthf.Text().toInt(), average(test.form.lblGrowthAverage) * 2);
    EXPECT_EQ(test.form.txtGoldf.Text().toInt(), qRound(average(test.form.lblCostAverage) / 10.0));
    EXPECT_NE(test.form.lblStandingDeviation.Caption(), standing) << "where it stands is told anew";

    LoadSurvey(test.program, nullptr);
    EXPECT_FALSE(test.form.mnuTakeOverByScale.Enabled());
    mnuTakeOver_Click(test.program);
    EXPECT_EQ(test.form.txtPower.Text(), test.form.lblPowerAverage.Caption()) << "as computed";

    Scaled lacking({whole[0], whole[1], whole[2]});
    const QString before = lacking.Fields();
    const Failure failure = mnuTakeOver_Click(lacking.program);
    ASSERT_TRUE(failure);
    EXPECT_EQ(std::pair(failure->what, failure->element), std::pair(Error::What::NoScale, QString("Gold")));
    EXPECT_EQ(lacking.platform.Texts().last(), "There is no scale of \"Gold\" for tier 2.");
    EXPECT_EQ(lacking.Fields(), before);
}

TEST(TakeOver, TellsThatThereIsNoPower) {
    TestProgram test;
    test.FillInCreature();
    cmdCalc_Click(test.program);
    test.state.powers.PowerRolvane = 0; // which no creature of the game reaches
    const QStringList told = test.BoxesOf([&] { EXPECT_TRUE(mnuTakeOver_Click(test.program)); });
    EXPECT_EQ(told, QStringList{test.state.messages.MsgNoPower});
    EXPECT_EQ(test.form.txtPower.Text(), "0");
}

TEST(TakeOver, PutsAValueIntoItsFieldOrListAndCalculates) {
    const std::tuple<Parameter, int, const char*> cases[] = {
        {Parameter::Attack, 7, "txtAttack"},  {Parameter::Defence, 8, "txtDefence"},
        {Parameter::MinDam, 3, "txtMinDam"},  {Parameter::MaxDam, 9, "txtMaxDam"},
        {Parameter::Health, 44, "txtHealth"}, {Parameter::Speed, 9, "ComboSpeed"},
        {Parameter::Tier, 3, "ComboTier"},    {Parameter::Initiative, 12, "ComboInitiative"}};
    for (const auto& [parameter, value, control] : cases) {
        TestProgram test;
        test.FillInCreature();
        TakeParameter(test.program, parameter, static_cast<std::int16_t>(value));
        EXPECT_EQ(test.form.Find(control)->Shown(), QString::number(value));
        EXPECT_EQ(test.state.parameters[parameter], value);
        const auto* list = dynamic_cast<ComboBox*>(test.form.Find(control));
        EXPECT_EQ(list == nullptr ? value - 1 : list->Index(), value - 1) << control << " as if chosen";
    }
}

TEST(LastExplanation, IsOfWhatTheWindowShowsAlsoWhenFieldsHaveChanged) {
    TestProgram test;
    EXPECT_FALSE(ExplainLast(test.program)) << "nothing is computed";
    test.FillInCreature();
    test.form.Abilities(13).SetTicked(true);
    test.form.txtAttack.SetText("70");
    cmdCalc_Click(test.program);
    const auto chapters = [&] { return ChaptersOf(*ExplainLast(test.program), English); };
    const auto has = [](const Explanation& explanation, const char* id) {
        return std::any_of(explanation.terms.begin(), explanation.terms.end(),
                           [&](const Term& term) { return term.id.startsWith(id); });
    };
    EXPECT_EQ(chapters().front().steps.front().value, "\"70\" → 50 (1 to 50 is allowed)") << "corrections first";
    EXPECT_TRUE(has(*ExplainLast(test.program), "product_"));

    test.form.Abilities(13).SetTicked(false);
    test.form.txtHealth.SetText("399");
    const Explanation former = *ExplainLast(test.program);
    EXPECT_EQ(WholeText(former.evaluation.figures->PowerAverage), test.form.lblPowerAverage.Caption());
    EXPECT_EQ(former.evaluation.validated.parameters, test.state.parameters);
    EXPECT_FALSE(has(former, "product_"));
    EXPECT_EQ(chapters().front().chapter, Chapter::Corrected);

    cmdCalc_Click(test.program);
    EXPECT_EQ(chapters().front().chapter, Chapter::Entered);
    cmdResetAll_Click(test.program);
    EXPECT_FALSE(ExplainLast(test.program));
}

TEST(SolveNow, TakesTheFieldsAsTheyAreAndTheScaleOfTheirTier) {
    Scaled test({{Figure::Power, 2}});
    const SolveGoal goal = *ReadSolveGoal("Power=50");
    const double now = *SolveNow(test.program, goal, false)->now;
    EXPECT_EQ(*SolveNow(test.program, goal, true)->now, std::round(now / 2));
    test.form.txtHealth.SetText("11");
    EXPECT_GT(*SolveNow(test.program, goal, false)->now, now) << "not calculated yet";
    test.form.ComboTier.Select(2);
    ASSERT_FALSE(SolveNow(test.program, goal, true));
    EXPECT_EQ(SolveNow(test.program, goal, true).Why().what, Error::What::NoScale);
}

} // namespace

} // namespace Hesperin
