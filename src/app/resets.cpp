#include "app/resets.h"

#include "app/handlers/box_rules.h"
#include "app/standing.h"
#include "catalogue/spell_catalogue.h"
#include "form/form_lists.h"

namespace Hesperin {

void Reset_Abilities(Program& program) {
    for (CheckBox& box : program.form.Abilities)
        box.SetTicked(false);
}

void Reset_Spells(Program& program) {
    for (int i = 1; i <= SpellCount; ++i) {
        program.form.Spells(i).SetTicked(false);
        OpenSelector(program.form.soq(i), false);
    }
}

void Reset_Specabilities(Program& program) {
    for (int j = 1; j <= SpecabilityCount; ++j) {
        program.form.Specabilities(j).SetTicked(false);
        OpenSelector(program.form.saz(j), false);
    }
    program.state.SpecabilityFlag = FlagFalse;
}

void Reset_Parametres(Program& program) {
    program.form.Tablus.At(Page::Spells).Switch(false);
    ClearCreature(program);
}

void ClearCreature(Program& program) {
    MainForm& form = program.form;
    for (std::size_t list = 0; list < ListFields.items.size(); ++list)
        (form.*ListFields.items[list]).Select(ListCatalogue.items[list].initial);
    for (const auto field : NumberFields)
        (form.*field).SetText(QStringLiteral("0"));
    program.state.CreatureName = DefaultCreatureName.toString();
    form.cmdCalc.SetToolTip({});
    for (const ResultRow& row : ResultRows)
        (form.*row.place.label).SetCaption(QString());
    form.txtNC.SetText({});
    form.txtIDC.SetText({});
    FollowResults(program);
}

} // namespace Hesperin
