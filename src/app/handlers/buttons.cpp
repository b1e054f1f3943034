#include "app/handlers/buttons.h"

#include "app/calculate.h"
#include "app/handlers/save_and_update.h"
#include "app/resets.h"
#include "system/version_record.h"

namespace Hesperin {

Failure cmdCalc_Click(Program& program) {
    Calculate(program);
    return {};
}

Failure cmdRAP_Click(Program& program) {
    Reset_Parametres(program);
    return {};
}

Failure cmdRAA_Click(Program& program) {
    program.form.Tablus.At(Page::Spells).Switch(false);
    Reset_Abilities(program);
    Reset_Specabilities(program);
    return {};
}

Failure cmdRAS_Click(Program& program) {
    Reset_Spells(program);
    return {};
}

Failure cmdResetAll_Click(Program& program) {
    MainForm& form = program.form;
    form.Tablus.At(Page::Spells).Switch(false);
    form.Tablus.At(Page::File).Switch(false);
    form.frmMain.SetCaption(VersionRecord::TitleAndVersion());
    program.state.CreatureFileLoaded = false;
    Reset_Parametres(program);
    Reset_Abilities(program);
    Reset_Spells(program);
    form.mnuSave.SetEnabled(false);
    ForgetBaseline(program);
    program.state.BeginCreature();
    return {};
}

} // namespace Hesperin
