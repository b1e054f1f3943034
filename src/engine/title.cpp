#include "engine/title.h"

#include "engine/formulas.h"
#include "engine/numbers.h"
#include "form/version_record.h"

#include <QStringBuilder>

namespace Hesperin {

namespace {

/// Experience of the two methods as an average; 0 before a first calculation has chosen a tier.
double AverageExperience(const SharedState& state) {
    if (state.Tier == 0)
        return 0;
    return RoundTo16Bits(AverageOf(ExpHesperinOf(state.PowerHesperin, state.Tier), state.ExpRolvane));
}

} // namespace

QString SummaryTitle(const SharedState& state) {
    const QString power = WholeText(AverageOf(state.PowerRolvane, state.PowerHesperin));
    const QString experience = WholeText(AverageExperience(state));
    const QString growth = WholeText(AverageOf(state.GrowthHesperin, state.GrowthRolvane));
    const QString gold = WholeText(AverageOf(state.CostHesperin, state.CostRolvane));
    return VersionRecord::TitleAndVersion() % state.SumCreature % state.CreatureName           //
           % state.SumPower % QString::number(state.FilePower) % u'{' % power                  //
           % state.SumExperience % QString::number(state.FileExperience) % u'{' % experience   //
           % state.SumGrowth % QString::number(state.FileGrowth) % u'{' % growth               //
           % state.SumGold % QString::number(state.FileGold) % u'{' % gold % u"}]";
}

void BuildTitle(Program& program) {
    program.form.frmMain.SetCaption(program.state.CreatureFileLoaded ? SummaryTitle(program.state)
                                                                    : VersionRecord::TitleAndVersion());
}

} // namespace Hesperin
