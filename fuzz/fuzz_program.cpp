#include "fuzz_program.h"

#include "catalogues/links.h"
#include "cli/json.h"
#include "ui/form_load.h"

#include <QJsonArray>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Hesperin {

void Require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

FuzzProgram::FuzzProgram() {
    Form_Load(program, {std::uint8_t{1}, false});
}

void RequireInvariants(const Program& program) {
    const MainForm& form = program.form;
    const auto natures = std::count_if(NatureGroup.begin(), NatureGroup.end(),
                                       [&](int i) { return form.Abilities(i).Ticked(); });
    Require(natures <= 1, "at most one nature is ticked");
    for (const Link& link : Links)
        Require(form.Abilities(link.ability).Ticked() ==
                    form.Specabilities(link.specability).Ticked(),
                "linked boxes agree");
    for (const CheckBox& box : form.Spells)
        Require(box.Ticked() == form.soq(box.ArrayIndex()).Enabled(),
                "a spell's selector follows its box");
    for (const CheckBox& box : form.Specabilities)
        Require(box.Ticked() == form.saz(box.ArrayIndex()).Enabled(),
                "a special ability's selector follows its box");
    for (const MultiOption& selector : form.soq)
        Require(selector.Value() >= 0 && selector.Value() <= 4, "a mastery is 0 to 4");
    const SharedState& state = program.state;
    Require(state.Tier >= 0 && state.Tier <= 8, "the tier fits the tables");
    Require(!form.Specabilities(0).Ticked(), "the inert box stays unticked");
}

QByteArray Snapshot(const FuzzProgram& fuzzed) {
    QJsonObject state = StateJson(fuzzed.program, fuzzed.platform);
    state.remove(QStringLiteral("messages"));
    return JsonLine(state);
}

} // namespace Hesperin
