#include "catalogues/resets.h"

#include "catalogues/click_rules.h"
#include "catalogues/spell_catalogue.h"
#include "engine/clear_creature.h"
#include "form/version_record.h"

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
    program.form.Tablus.Tab(2).Switch(false);
    ClearCreature(program);
}

void cmdRAP_Click(Program& program) {
    Reset_Parametres(program);
}

void cmdRAA_Click(Program& program) {
    program.form.Tablus.Tab(2).Switch(false);
    Reset_Abilities(program);
    Reset_Specabilities(program);
}

void cmdRAS_Click(Program& program) {
    Reset_Spells(program);
}

void cmdResetAll_Click(Program& program) {
    MainForm& form = program.form;
    form.Tablus.Tab(2).Switch(false);
    form.Tablus.Tab(4).Switch(false);
    form.frmMain.SetCaption(VersionRecord::TitleAndVersion());
    program.state.CreatureFileLoaded = false;
    Reset_Parametres(program);
    Reset_Abilities(program);
    Reset_Spells(program);
    form.mnuSave.SetEnabled(false);
}

} // namespace Hesperin
