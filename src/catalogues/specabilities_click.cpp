#include "catalogues/click_rules.h"

#include "catalogues/links.h"

#include <algorithm>

namespace Hesperin {

void OpenSelector(MultiOption& selector, bool open) {
    selector.SetOptionsEnabled(open);
    if (!open)
        selector.SetValue(0);
    selector.Redraw();
}

void Specabilities_Click(Program& program, int j) {
    MainForm& form = program.form;
    const CheckBox& box = form.Specabilities(j);
    const bool ticked = box.Ticked();

    const int partner = LinkedAbility(j);
    const bool oneSided = std::find(OneSidedSpecabilities.begin(), OneSidedSpecabilities.end(),
                                    j) != OneSidedSpecabilities.end();
    if (partner >= 0)
        form.Abilities(partner).SetTicked(ticked);
    if (partner >= 0 || oneSided)
        StepSpellPoints1(program.state, ticked);

    program.state.SpecabilityFlag = box.Ticked() ? FlagTrue : FlagFalse;
    OpenSelector(form.saz(j), box.Ticked());
}

} // namespace Hesperin
