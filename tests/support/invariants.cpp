#include "support/invariants.h"

#include "catalogue/links.h"

#include <algorithm>

namespace Hesperin {

QString BrokenInvariant(const Program& program) {
    const MainForm& form = program.form;
    const auto natures =
        std::count_if(NatureGroup.begin(), NatureGroup.end(), [&](int i) { return form.Abilities(i).Ticked(); });
    if (natures > 1)
        return "at most one nature is ticked";
    for (const Link& link : Links)
        if (form.Abilities(link.ability).Ticked() != form.Specabilities(link.specability).Ticked())
            return "linked boxes agree";
    const auto follows = [](const MultiOption& selector, const CheckBox& box) {
        const int level = selector.SelectedOption();
        return selector.Enabled() == box.Ticked() && selector.Value() == level && (box.Ticked() || level == 0);
    };
    for (const CheckBox& box : form.Spells)
        if (!follows(form.soq(box.ArrayIndex()), box))
            return "a spell's selector follows its box";
    for (const CheckBox& box : form.Specabilities)
        if (!follows(form.saz(box.ArrayIndex()), box))
            return "a special ability's selector follows its box";
    const bool caster = form.Abilities(Ability::Caster).Ticked();
    if (form.cmdRAS.Enabled() != caster || form.txtMana.Enabled() != caster ||
        (form.Tablus.At(Page::Spells).On() && !caster) ||
        form.txtShots.Enabled() != form.Abilities(Ability::Shooter).Ticked())
        return "only casters and shooters have their fields";
    if (program.state.parameters.Tier < 1 || program.state.parameters.Tier > 8)
        return "the tier fits the tables";
    return form.Specabilities(0).Ticked() ? "the inert box stays unticked" : "";
}

} // namespace Hesperin
