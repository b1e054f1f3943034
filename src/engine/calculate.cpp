#include "engine/calculate.h"

#include "engine/formulas.h"
#include "engine/numbers.h"
#include "engine/tier_advice.h"
#include "engine/title.h"
#include "engine/validation.h"

namespace Hesperin {

namespace {

/// The running product is a 32-bit float throughout, so the index order is part of the result.
void FormAbilityProduct(Program& program) {
    SharedState& state = program.state;
    state.AbilityProduct = 1.0F;
    for (std::size_t i = 1; i < state.AbilityCurrentValue.size(); ++i)
        state.AbilityProduct *= state.AbilityCurrentValue[i];
    program.form.cmdCalc.SetToolTip(state.MsgAverageValue + FloatText(state.AbilityProduct));
}

Creature ValidatedCreature(const SharedState& state, bool shooter) {
    return {state.Attack,         state.Defence,       state.Health,     state.MinDam,
            state.MaxDam,         state.Speed,         state.Initiative, state.Tier,
            state.AbilityProduct, state.UpgradeFactor, shooter};
}

void StoreExponents(SharedState& state, const Exponents& exponents) {
    state.ExponentOffence = exponents.Offence;
    state.ExponentDefence = exponents.Defence;
    state.ExponentSpeed = exponents.Speed;
    state.ExponentInitiative = exponents.Initiative;
}

void Show(Label& label, double whole) {
    label.SetCaption(WholeDigits(whole).View());
}

void StorePowers(Program& program, const Powers& powers) {
    SharedState& state = program.state;
    state.OffenceScore = powers.OffenceScore;
    state.DefenceScore = powers.DefenceScore;
    state.PowerRolvane = powers.PowerRolvane;
    state.PowerHesperin = powers.PowerHesperin;
    Show(program.form.lblPowerRolvane, powers.PowerRolvane);
    Show(program.form.lblPowerHesperin, powers.PowerHesperin);
}

void StoreFigures(SharedState& state, const Figures& figures) {
    state.ExpRolvane = figures.ExpRolvane;
    state.GrowthNumerator = figures.GrowthNumerator;
    state.GoldBaseNow = figures.GoldBaseNow;
    state.GrowthRolvane = figures.GrowthRolvane;
    state.GrowthHesperin = figures.GrowthHesperin;
    state.CostRolvane = figures.CostRolvane;
    state.CostHesperin = figures.CostHesperin;
    state.CostAverage = figures.CostAverage;
    state.GrowthAverage = figures.GrowthAverage;
    state.ExpAverage = figures.ExpAverage;
    state.PowerAverage = figures.PowerAverage;
}

void ShowFigures(MainForm& form, const Figures& figures) {
    Show(form.lblExpRolvane, figures.ExpRolvane);
    Show(form.lblExpHesperin, figures.ExpHesperin);
    Show(form.lblGrowthRolvane, figures.GrowthRolvane);
    Show(form.lblGrowthHesperin, figures.GrowthHesperin);
    Show(form.lblCostRolvane, figures.CostRolvane);
    Show(form.lblCostHesperin, figures.CostHesperin);
    Show(form.lblCostAverage, figures.CostAverage);
    Show(form.lblGrowthAverage, figures.GrowthAverage);
    Show(form.lblExpAverage, figures.ExpAverage);
    Show(form.lblPowerAverage, figures.PowerAverage);
}

} // namespace

void Calculate(Program& program) {
    SharedState& state = program.state;
    MainForm& form = program.form;

    FormAbilityProduct(program);
    ValidateParameters(program);

    const bool shooter = form.Abilities(Ability::Shooter).Ticked();
    const Creature creature = ValidatedCreature(state, shooter);
    StoreExponents(state, ExponentsFor(shooter));
    const Powers powers = ComputePowers(creature);
    StorePowers(program, powers);
    if (powers.PowerRolvane == 0) {
        program.Warn(BoxIcon::Critical, state.MsgZeroPower);
        return;
    }
    const Figures figures = ComputeFigures(creature, powers);
    StoreFigures(state, figures);
    ShowFigures(form, figures);

    AdviseOnTier(program);
    form.mnuSave.SetEnabled(!form.txtNC.Text().isEmpty());
    form.frmMain.SetCaption(SummaryTitle(state));
}

void cmdCalc_Click(Program& program) {
    Calculate(program);
}

} // namespace Hesperin
