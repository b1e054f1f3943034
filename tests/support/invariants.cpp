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
    for (const CheckBox& box : form.Spells)
        if (box.Ticked() != form.soq(box.ArrayIndex()).Enabled())
            return "a spell's selector follows its box";
    for (const CheckBox& box : form.Specabilities)
        if (box.Ticked() != form.saz(box.ArrayIndex()).Enabled())
            return "a special ability's selector follows its box";
    for (const MultiOption& selector : form.soq)
        if (selector.Value() < 0 || selector.Value() > 4)
            return "a mastery is 0 to 4";
    if (program.state.parameters.Tier < 1 || program.state.parameters.Tier > 8)
        return "the tier fits the tables";
    return form.Specabilities(0).Ticked() ? "the inert box stays unticked" : "";
}

} // namespace Hesperin
