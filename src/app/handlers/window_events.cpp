#include "ui/window_commands.h"

#include "localisation/language_file.h"
#include "localisation/string_tables.h"
#include "platform/setting_file.h"

namespace Hesperin {

namespace {

constexpr QLatin1String ContrastFile("contrast.ini");
constexpr const char* HighContrast = "HIGH";

} // namespace

bool ConfirmQuit(Program& program) {
    const SharedState& state = program.state;
    if (!program.platform.AskYesNo(state.MsgQuitTitle, state.MsgQuitQuestion))
        return false;
    WriteLanguageFile(program.platform.Places(), state.LanguageId);
    program.platform.EndProcess();
    return true;
}

void mnuQuit_Click(Program& program) {
    ConfirmQuit(program);
}

bool Form_Unload(Program& program) {
    return ConfirmQuit(program);
}

void mnuAbout_Click(Program& program) {
    program.form.frmMain.SetEnabled(false);
    program.platform.Open(SecondaryWindow::About);
}

void mnuAlternativeMethod_Click(Program& program) {
    MainForm& form = program.form;
    const bool show = !form.frmAM.Visible();
    form.frmAM.SetVisible(show);
    form.mnuAlternativeMethod.SetChecked(show);
}

void mnuCalculator_Click(Program& program) {
    const QStringList names = program.platform.CalculatorNames();
    for (const QString& name : names)
        if (program.platform.StartProgram(name))
            return;
    program.Warn(BoxIcon::Critical,
                 Fill(program.state.MsgNoCalculator, {names.join(QLatin1String(", "))}));
}

void mnuHighContrast_Click(Program& program) {
    MenuEntry& entry = program.form.mnuHighContrast;
    entry.SetChecked(!entry.Checked());
    SaveSetting(program.platform.Places(), ContrastFile, entry.Checked() ? HighContrast : "GIVEN");
}

void RestoreHighContrast(Program& program) {
    program.form.mnuHighContrast.SetChecked(ReadSetting(program.platform.Places(), ContrastFile) ==
                                            QByteArray(HighContrast));
}

void Abilities_RightClick(Program& program, std::int16_t index) {
    program.form.frmMain.SetEnabled(false);
    program.state.AbilityInfoIndex = index;
    program.platform.Open(SecondaryWindow::AbilityInformation);
}

} // namespace Hesperin
