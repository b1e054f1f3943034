#include "app/unsaved.h"

#include "app/creature_in_form.h"

namespace Hesperin {

bool HasUnsaved(const Program& program) {
    const auto& baseline = program.state.baseline;
    Creature saved = baseline ? baseline->creature : EmptyCreature();
    Creature shown = TakeCreature(program);
    for (const ListField list : {ListField::Faction, ListField::Range})
        if (shown.Choices[list].index < 0)
            shown.Choices[list] = saved.Choices[list];
    for (Creature* creature : {&shown, &saved})
        for (QString& number : creature->Numbers)
            if (number.isEmpty())
                number = QStringLiteral("0");
    shown.SpellPoints1Count = saved.SpellPoints1Count;
    shown.SpecabilityFlag = saved.SpecabilityFlag;
    return shown != saved;
}

} // namespace Hesperin
