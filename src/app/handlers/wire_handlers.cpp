#include "app/handlers/wire_handlers.h"

#include "app/handlers/balance_menu.h"
#include "app/handlers/box_rules.h"
#include "app/handlers/buttons.h"
#include "app/handlers/edit_menu.h"
#include "app/handlers/file_menu.h"
#include "app/handlers/info_menu.h"
#include "app/handlers/key_filters.h"
#include "app/handlers/list_rules.h"
#include "app/handlers/options_menu.h"
#include "app/handlers/save_and_update.h"
#include "form/form_lists.h"

namespace Hesperin {

namespace {

/// A control and the handler of the user's click on it.
template <typename T>
struct Wire {
    T MainForm::*control;
    Failure (*handler)(Program&);
    Act act = Act::Step;
};

constexpr Wire<MenuEntry> MenuWires[] = {
    {&MainForm::mnuNew, mnuNew_Click},
    {&MainForm::mnuOpen, mnuOpen_Click},
    {&MainForm::mnuSave, mnuSave_Click, Act::Aside},
    {&MainForm::mnuUpdate, mnuUpdate_Click, Act::Aside},
    {&MainForm::mnuQuit, mnuQuit_Click, Act::Aside},
    {&MainForm::mnuEnglish, mnuEnglish_Click, Act::Aside},
    {&MainForm::mnuRussian, mnuRussian_Click, Act::Aside},
    {&MainForm::mnuFrench, mnuFrench_Click, Act::Aside},
    {&MainForm::mnuGerman, mnuGerman_Click, Act::Aside},
    {&MainForm::mnuAlternativeMethod, mnuAlternativeMethod_Click},
    {&MainForm::mnuCalculator, mnuCalculator_Click},
    {&MainForm::mnuHighContrast, mnuHighContrast_Click},
    {&MainForm::mnuAbout, mnuAbout_Click},
    {&MainForm::mnuSurvey, mnuSurvey_Click, Act::Aside},
    {&MainForm::mnuUndo, mnuUndo_Click, Act::Aside},
    {&MainForm::mnuRedo, mnuRedo_Click, Act::Aside},
    {&MainForm::mnuFindAbility, mnuFindAbility_Click, Act::Aside},
    {&MainForm::mnuExplain, mnuExplain_Click, Act::Aside},
    {&MainForm::mnuSolve, mnuSolve_Click, Act::Aside},
    {&MainForm::mnuTakeOver, mnuTakeOver_Click},
    {&MainForm::mnuTakeOverByScale, mnuTakeOverByScale_Click, Act::Aside},
};

constexpr Wire<Button> ButtonWires[] = {
    {&MainForm::cmdCalc, cmdCalc_Click},         {&MainForm::cmdRAP, cmdRAP_Click},
    {&MainForm::cmdRAA, cmdRAA_Click},           {&MainForm::cmdRAS, cmdRAS_Click},
    {&MainForm::cmdResetAll, cmdResetAll_Click},
};

/// A list and the rule of a new choice in it.
struct ListWire {
    ComboBox MainForm::*list;
    void (*rule)(Program&);
};

constexpr ListWire ListWires[] = {
    {&MainForm::ComboFaction, ComboFaction_Click}, {&MainForm::ComboRange, ComboRange_Click},
    {&MainForm::ComboFME, ComboFME_Click},         {&MainForm::ComboSME, ComboSME_Click},
    {&MainForm::ComboUpgrade, ComboUpgrade_Click},
};

template <typename T, std::size_t Count>
void WireAll(Program& program, const Wire<T> (&wires)[Count]) {
    for (const Wire<T>& wire : wires)
        (program.form.*wire.control).SetClickHandler([&program, &wire] {
            const UserAct act(program.form.*wire.control, wire.act);
            return wire.handler(program);
        });
}

template <typename Array>
void WireBoxes(Program& program, Array& boxes, void (*rule)(Program&, int)) {
    for (CheckBox& box : boxes)
        box.SetChangeRule([&program, &box, rule] { rule(program, box.ArrayIndex()); });
}

} // namespace

void WireHandlers(Program& program) {
    MainForm& form = program.form;
    WireAll(program, MenuWires);
    WireAll(program, ButtonWires);
    for (const ListWire& wire : ListWires)
        (form.*wire.list).SetChangeRule([&program, rule = wire.rule] { rule(program); });
    WireBoxes(program, form.Abilities, Abilities_Click);
    WireBoxes(program, form.Spells, Spells_Click);
    WireBoxes(program, form.Specabilities, Specabilities_Click);
    for (const ResultRow& row : ResultRows)
        (form.*row.place.label).SetDoubleClickHandler([&program, &row] {
            ExplainResult(program, {row.method, row.figure});
        });
    for (CheckBox& box : form.Abilities)
        box.SetRightClickHandler([&program, &box] {
            Abilities_RightClick(program, box.ArrayIndex());
            return Failure();
        });
    form.frmMain.SetDropHandler([&program](const QString& file) {
        const UserAct act(program.form.frmMain);
        OpenCreatureFile(program, file);
    });
    form.frmMain.SetCloseHandler([&program] { return Form_Unload(program); });
    SetKeyFilters(form);
}

} // namespace Hesperin
