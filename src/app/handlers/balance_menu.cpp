#include "app/handlers/balance_menu.h"

#include "app/take_over.h"

namespace Hesperin {

Failure mnuSurvey_Click(Program& program) {
    program.platform.Open(SecondaryWindow::Survey);
    return {};
}

Failure mnuExplain_Click(Program& program) {
    program.platform.Open(SecondaryWindow::Explanation);
    return {};
}

Failure mnuSolve_Click(Program& program) {
    program.platform.Open(SecondaryWindow::Solve);
    return {};
}

Failure mnuTakeOver_Click(Program& program) {
    return TakeOverComputed(program);
}

Failure mnuTakeOverByScale_Click(Program& program) {
    MenuEntry& entry = program.form.mnuTakeOverByScale;
    entry.SetChecked(!entry.Checked());
    return {};
}

void ExplainResult(Program& program, ResultKey result) {
    program.state.explained = result;
    program.platform.Open(SecondaryWindow::Explanation);
}

} // namespace Hesperin
