#include "ui/wire_handlers.h"

#include "catalogues/click_rules.h"
#include "catalogues/resets.h"
#include "creature_files/file_commands.h"
#include "engine/calculate.h"
#include "localisation/language_menu.h"
#include "ui/key_filters.h"
#include "ui/list_rules.h"
#include "ui/window_commands.h"

namespace Hesperin {

namespace {

/// A control and the handler of its click.
template <typename T>
struct Wire {
    T MainForm::*control;
    void (*handler)(Program&);
};

constexpr Wire<MenuEntry> MenuWires[] = {
    {&MainForm::mnuNew, mnuNew_Click},
    {&MainForm::mnuOpen, mnuOpen_Click},
    {&MainForm::mnuSave, mnuSave_Click},
    {&MainForm::mnuQuit, mnuQuit_Click},
    {&MainForm::mnuEnglish, mnuEnglish_Click},
    {&MainForm::mnuRussian, mnuRussian_Click},
    {&MainForm::mnuFrench, mnuFrench_Click},
    {&MainForm::mnuGerman, mnuGerman_Click},
    {&MainForm::mnuAlternativeMethod, mnuAlternativeMethod_Click},
    {&MainForm::mnuCalculator, mnuCalculator_Click},
    {&MainForm::mnuHighContrast, mnuHighContrast_Click},
    {&MainForm::mnuAbout, mnuAbout_Click},
};

constexpr Wire<Button> ButtonWires[] = {
    {&MainForm::cmdCalc, cmdCalc_Click},         {&MainForm::cmdRAP, cmdRAP_Click},
    {&MainForm::cmdRAA, cmdRAA_Click},           {&MainForm::cmdRAS, cmdRAS_Click},
    {&MainForm::cmdResetAll, cmdResetAll_Click},
};

constexpr Wire<ComboBox> ListWires[] = {
    {&MainForm::ComboFaction, ComboFaction_Click}, {&MainForm::ComboRange, ComboRange_Click},
    {&MainForm::ComboFME, ComboFME_Click},         {&MainForm::ComboSME, ComboSME_Click},
    {&MainForm::ComboUpgrade, ComboUpgrade_Click},
};

template <typename T, std::size_t Count>
void WireAll(Program& program, const Wire<T> (&wires)[Count]) {
    for (const Wire<T>& wire : wires)
        (program.form.*wire.control).SetClick([&program, handler = wire.handler] {
            handler(program);
        });
}

template <typename Array>
void WireBoxes(Program& program, Array& boxes, void (*handler)(Program&, int)) {
    for (CheckBox& box : boxes)
        box.SetClick([&program, &box, handler] { handler(program, box.ArrayIndex()); });
}

} // namespace

void WireHandlers(Program& program) {
    WireAll(program, MenuWires);
    WireAll(program, ButtonWires);
    WireAll(program, ListWires);
    WireBoxes(program, program.form.Abilities, Abilities_Click);
    WireBoxes(program, program.form.Spells, Spells_Click);
    WireBoxes(program, program.form.Specabilities, Specabilities_Click);
    SetKeyFilters(program.form);
}

} // namespace Hesperin
