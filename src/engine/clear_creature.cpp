#include "engine/clear_creature.h"

#include "form/result_labels.h"

namespace Hesperin {

namespace {

struct InitialEntry {
    ComboBox MainForm::*list;
    std::int16_t index;
};

// In the order in which the entries are selected: each selection may run the list's own rule.
constexpr InitialEntry InitialEntries[] = {
    {&MainForm::ComboUpgrade, 0},  {&MainForm::ComboTier, 0},  {&MainForm::ComboFME, 0},
    {&MainForm::ComboSME, 0},      {&MainForm::ComboSpeed, 4}, {&MainForm::ComboInitiative, 9},
    {&MainForm::ComboFaction, 8},  {&MainForm::ComboAlias, 8}, {&MainForm::ComboRange, 0},
    {&MainForm::ComboDiapazon, 0}, {&MainForm::ComboTTC, 0},
};

constexpr TextField MainForm::*NumberFields[] = {
    &MainForm::txtShots,  &MainForm::txtMana,     &MainForm::txtAttack,   &MainForm::txtDefence,
    &MainForm::txtHealth, &MainForm::txtMinDam,   &MainForm::txtMaxDam,   &MainForm::txtPower,
    &MainForm::txtExp,    &MainForm::txtGoldf,    &MainForm::txtGrowthf,  &MainForm::txtWoodf,
    &MainForm::txtOref,   &MainForm::txtMercuryf, &MainForm::txtCrystalf, &MainForm::txtSulfurf,
    &MainForm::txtGemf,
};

} // namespace

void ClearCreature(Program& program) {
    MainForm& form = program.form;
    for (const InitialEntry& entry : InitialEntries)
        (form.*entry.list).Select(entry.index);
    for (const auto field : NumberFields)
        (form.*field).SetText(QStringLiteral("0"));
    program.state.CreatureName = QStringLiteral("Test");
    form.cmdCalc.SetToolTip({});
    for (const auto label : ResultLabels)
        (form.*label).SetCaption(QString());
    form.txtNC.SetText({});
    form.txtIDC.SetText({});
}

} // namespace Hesperin
