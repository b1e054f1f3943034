#include "app/calculate.h"

#include "app/creature_in_form.h"
#include "app/standing.h"
#include "app/window_title.h"
#include "form/form_lists.h"
#include "localisation/judgement_text.h"
#include "text/numbers.h"

namespace Hesperin {

namespace {

/// Puts the corrected value into the field that it came from.
void Rewrite(MainForm& form, const Correction& correction) {
    const QString text = QString::number(correction.to);
    const auto parameter = ParameterOf(correction.what);
    if (correction.what == Correction::What::Mana)
        form.txtMana.SetText(text);
    else if (correction.what == Correction::What::Shots)
        form.txtShots.SetText(text);
    else if (const ParameterControl& control = ParameterControls[*parameter]; control.field)
        (form.*control.field).SetText(text);
    else
        (form.*control.list).SetText(text);
    if (correction.what == Correction::What::DamageOrder)
        form.txtMaxDam.SetText(text);
}

void TellCorrections(Program& program, const std::vector<Correction>& corrections) {
    const auto caption = [&program](QLatin1String control) {
        return static_cast<const Captioned*>(program.form.Find(control))->Caption();
    };
    for (const Correction& correction : corrections) {
        Rewrite(program.form, correction);
        program.Warn(BoxIcon::Critical,
                     CorrectionText(program.state.messages, caption, correction));
    }
}

} // namespace

void Calculate(Program& program) {
    SharedState& state = program.state;
    MainForm& form = program.form;

    const EnteredParameters entered = EnteredIn(program);
    form.cmdCalc.SetToolTip(state.messages.MsgAverageValue + FloatText(entered.AbilityProduct));
    Evaluation evaluation = Evaluate(entered);
    TellCorrections(program, evaluation.validated.corrections);

    state.parameters = evaluation.validated.parameters;
    state.corrections = std::move(evaluation.validated.corrections);
    state.exponents = ExponentsFor(state.parameters.Shooter);
    state.powers = evaluation.powers;
    if (evaluation.figures)
        state.figures = *evaluation.figures;
    for (const ResultRow& row : ResultRows)
        if (const auto result = ResultReached(evaluation, row.method, row.figure))
            (form.*row.place.label).SetCaption(WholeDigits(*result).View());
    FollowResults(program);
    if (!evaluation.figures)
        return program.Warn(BoxIcon::Critical, state.messages.MsgZeroPower);

    state.advice = *evaluation.advice;
    if (state.advice.AdvisedTier != state.parameters.Tier)
        program.Warn(BoxIcon::Information, TierAdviceText(state.messages, state.parameters.Tier,
                                                          state.advice.AdvisedTier));
    form.mnuSave.SetEnabled(!form.txtNC.Text().isEmpty());
    form.frmMain.SetCaption(SummaryTitle(state));
}

} // namespace Hesperin
