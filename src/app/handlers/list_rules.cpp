#include "app/handlers/list_rules.h"

namespace Hesperin {

namespace {

void CopyPosition(const ComboBox& list, ComboBox& twin) {
    const std::int16_t index = list.Index();
    if (index >= 0 && index < twin.Items().size())
        twin.SetText(twin.Items()[index]);
}

void KeepElementsApart(ComboBox& changed, const ComboBox& other) {
    if (changed.Index() >= 1 && changed.Text() == other.Text())
        changed.Select(0);
}

} // namespace

void ComboFaction_Click(Program& program) {
    CopyPosition(program.form.ComboFaction, program.form.ComboAlias);
}

void ComboRange_Click(Program& program) {
    CopyPosition(program.form.ComboRange, program.form.ComboDiapazon);
}

void ComboFME_Click(Program& program) {
    KeepElementsApart(program.form.ComboFME, program.form.ComboSME);
}

void ComboSME_Click(Program& program) {
    KeepElementsApart(program.form.ComboSME, program.form.ComboFME);
}

void ComboUpgrade_Click(Program& program) {
    program.state.UpgradeFactor = UpgradeFactorOf(program.form.ComboUpgrade.Text());
}

} // namespace Hesperin
