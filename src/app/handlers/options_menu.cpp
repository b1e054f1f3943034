#include "app/handlers/options_menu.h"

#include "app/apply_language.h"
#include "system/setting_file.h"
#include "text/fill.h"

namespace Hesperin {

namespace {

constexpr QLatin1String ContrastFile("contrast.ini");
constexpr const char* HighContrast = "HIGH";

Failure SwitchLanguage(Program& program, std::uint8_t languageId) {
    program.state.LanguageId = languageId;
    ApplyLanguage(program, languageId);
    ReloadAbilityTexts(program);
    return {};
}

} // namespace

Failure mnuEnglish_Click(Program& program) {
    return SwitchLanguage(program, 1);
}

Failure mnuRussian_Click(Program& program) {
    return SwitchLanguage(program, 2);
}

Failure mnuFrench_Click(Program& program) {
    return SwitchLanguage(program, 3);
}

Failure mnuGerman_Click(Program& program) {
    return SwitchLanguage(program, 4);
}

Failure mnuAlternativeMethod_Click(Program& program) {
    MainForm& form = program.form;
    const bool show = !form.frmAM.Visible();
    form.frmAM.SetVisible(show);
    form.mnuAlternativeMethod.SetChecked(show);
    return {};
}

Failure mnuCalculator_Click(Program& program) {
    const QStringList names = program.platform.CalculatorNames();
    for (const QString& name : names)
        if (program.platform.StartProgram(name))
            return {};
    program.Warn(BoxIcon::Critical,
                 Fill(program.state.messages.MsgNoCalculator, {names.join(QLatin1String(", "))}));
    return {};
}

Failure mnuHighContrast_Click(Program& program) {
    MenuEntry& entry = program.form.mnuHighContrast;
    entry.SetChecked(!entry.Checked());
    SaveSetting(program.platform.Places(), ContrastFile, entry.Checked() ? HighContrast : "GIVEN");
    return {};
}

void RestoreHighContrast(Program& program) {
    program.form.mnuHighContrast.SetChecked(ReadSetting(program.platform.Places(), ContrastFile) ==
                                            QByteArray(HighContrast));
}

} // namespace Hesperin
