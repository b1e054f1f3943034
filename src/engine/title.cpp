#include "engine/title.h"

#include "engine/formulas.h"
#include "engine/numbers.h"
#include "form/version_record.h"

namespace Hesperin {

namespace {

/// Experience of the two methods as an average; 0 before a first calculation has chosen a tier.
double AverageExperience(const SharedState& state) {
    if (state.Tier == 0)
        return 0;
    return RoundTo16Bits(
        AverageOf(ExpHesperinOf(state.PowerHesperin, state.Tier), state.ExpRolvane));
}

/// One figure of the title: what the open file has, and in braces what was computed.
void AppendPair(QString& title, const QString& heading, std::int16_t inFile, double computed) {
    title += heading;
    title += WholeDigits(std::int64_t{inFile}).View();
    title += u'{';
    title += WholeDigits(computed).View();
}

} // namespace

QString SummaryTitle(const SharedState& state) {
    QString title;
    title.reserve(160);
    title += VersionRecord::TitleAndVersion();
    title += state.SumCreature;
    title += state.CreatureName;
    AppendPair(title, state.SumPower, state.FilePower,
               AverageOf(state.PowerRolvane, state.PowerHesperin));
    AppendPair(title, state.SumExperience, state.FileExperience, AverageExperience(state));
    AppendPair(title, state.SumGrowth, state.FileGrowth,
               AverageOf(state.GrowthHesperin, state.GrowthRolvane));
    AppendPair(title, state.SumGold, state.FileGold,
               AverageOf(state.CostHesperin, state.CostRolvane));
    title += u"}]";
    return title;
}

void BuildTitle(Program& program) {
    program.form.frmMain.SetCaption(program.state.CreatureFileLoaded
                                        ? SummaryTitle(program.state)
                                        : VersionRecord::TitleAndVersion());
}

} // namespace Hesperin
