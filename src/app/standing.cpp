#include "app/standing.h"

#include "reports/standing.h"
#include "reports/survey_view.h"
#include "text/fill.h"
#include "text/numbers.h"

namespace Hesperin {

namespace {

/// What has to be there before the creature can be compared.
QString Lacking(const Program& program, const StandingOf& creature) {
    const Messages& messages = program.state.messages;
    if (program.form.lblPowerAverage.Caption().isEmpty())
        return messages.StandingUncomputed;
    if (creature.power <= 0)
        return messages.StandingNoPower;
    return Fill(messages.StandingNoTier, {QString::number(creature.tier)});
}

void ShowStanding(Program& program) {
    MainForm& form = program.form;
    const Messages& messages = program.state.messages;
    form.FrameStanding.SetVisible(program.survey != nullptr);
    if (!program.survey)
        return;
    const StandingOf creature{
        .tier = RoundTo16Bits(TextToNumber(form.ComboTier.Text())),
        .averagePower = TextToNumber(form.lblPowerAverage.Caption()),
        .power = TextToNumber(form.txtPower.Text()),
        .row = RowOfShownFile(program),
    };
    const auto standing = StandIn(*program.survey, creature);
    if (!standing) {
        form.lblStandingDeviation.SetCaption(Lacking(program, creature));
        form.lblStandingPlace.SetCaption(QString());
        form.StandingStrip.Show({});
        return;
    }
    form.lblStandingDeviation.SetCaption(
        Fill(messages.StandingDeviation,
             {DeviationText(standing->deviation), QString::number(creature.tier)}));
    form.lblStandingPlace.SetCaption(
        Fill(messages.StandingPlace,
             {QString::number(standing->place), QString::number(standing->others.size() + 1)}));
    form.StandingStrip.Show({standing->others, standing->deviation});
}

} // namespace

void LoadSurvey(Program& program, std::shared_ptr<const Survey> survey) {
    program.survey = std::move(survey);
    program.form.mnuTakeOverByScale.SetEnabled(program.survey != nullptr);
    FollowResults(program);
}

std::optional<std::size_t> RowOfShownFile(const Program& program) {
    const auto& baseline = program.state.baseline;
    return program.survey && baseline ? RowOfFile(*program.survey, baseline->path) : std::nullopt;
}

void FollowResults(Program& program) {
    ShowStanding(program);
    if (program.resultsChanged)
        program.resultsChanged();
}

} // namespace Hesperin
