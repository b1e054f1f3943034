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
    using Corrected = Correction::What;
    const QString text = QString::number(correction.to);
    switch (correction.what) {
    case Corrected::Mana:
        return form.txtMana.SetText(text);
    case Corrected::Shots:
        return form.txtShots.SetText(text);
    case Corrected::Attack:
        return form.txtAttack.SetText(text);
    case Corrected::Defence:
        return form.txtDefence.SetText(text);
    case Corrected::Health:
        return form.txtHealth.SetText(text);
    case Corrected::MinDam:
        return form.txtMinDam.SetText(text);
    case Corrected::MaxDam:
        return form.txtMaxDam.SetText(text);
    case Corrected::DamageOrder:
        form.txtMinDam.SetText(text);
        return form.txtMaxDam.SetText(text);
    case Corrected::Speed:
        return form.ComboSpeed.SetText(text);
    case Corrected::Initiative:
        return form.ComboInitiative.SetText(text);
    case Corrected::Tier:
        return form.ComboTier.SetText(text);
    case Corrected::Count:
        break;
    }
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

void Show(MainForm& form, const SharedState& state, const ResultRow& row) {
    (form.*row.place.label)
        .SetCaption(
            WholeDigits(ResultOf(state.powers, state.figures, row.method, row.figure)).View());
}

/// The two Powers are shown also when nothing else can be computed.
bool IsPowerOfMethod(const ResultRow& row) {
    return row.figure == Figure::Power && row.method != Method::Average;
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
        if (evaluation.figures || IsPowerOfMethod(row))
            Show(form, state, row);
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
