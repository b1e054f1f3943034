#include "app/window_title.h"

#include "localisation/titles.h"
#include "system/version_record.h"

namespace Hesperin {

QString SummaryTitle(const SharedState& state) {
    return SummaryTitle(state.messages, state.CreatureName, state.file, state.parameters.Tier,
                        state.powers, state.figures);
}

void BuildTitle(Program& program) {
    program.form.frmMain.SetCaption(program.state.CreatureFileLoaded
                                        ? SummaryTitle(program.state)
                                        : VersionRecord::TitleAndVersion());
}

} // namespace Hesperin
