// The main window as plain data: one member per control, under the control's own name.
#pragma once

#include "catalogue/ability_index.h"
#include "catalogue/spell_catalogue.h"
#include "form/captioned.h"
#include "form/check_box.h"
#include "form/combo_box.h"
#include "form/control_array.h"
#include "form/dot_strip.h"
#include "form/file_dialog.h"
#include "form/multi_option.h"
#include "form/stored_text.h"
#include "form/tab_control.h"
#include "form/text_field.h"

namespace Hesperin {

struct MainForm : ControlRegistry {
    /// Every control in the state in which the window is created, before start-up has run.
    MainForm();

    Window frmMain{*this, "frmMain"};

    // The menu bar.
    MenuEntry mnuFile{*this, "mnuFile"};
    MenuEntry mnuNew{*this, "mnuNew", "Ctrl+N"};
    MenuEntry mnuOpen{*this, "mnuOpen", "Ctrl+O"};
    MenuEntry mnuSave{*this, "mnuSave", "Ctrl+S"};
    MenuEntry mnuUpdate{*this, "mnuUpdate", "Ctrl+U"};
    MenuEntry mnuQuit{*this, "mnuQuit", "Ctrl+Q"};
    MenuEntry mnuOptions{*this, "mnuOptions"};
    MenuEntry mnuLanguage{*this, "mnuLanguage"};
    MenuEntry mnuEnglish{*this, "mnuEnglish"};
    MenuEntry mnuRussian{*this, "mnuRussian"};
    MenuEntry mnuFrench{*this, "mnuFrench"};
    MenuEntry mnuGerman{*this, "mnuGerman"};
    MenuEntry mnuAlternativeMethod{*this, "mnuAlternativeMethod"};
    MenuEntry mnuCalculator{*this, "mnuCalculator", "Ctrl+C"};
    MenuEntry mnuHighContrast{*this, "mnuHighContrast"};
    MenuEntry mnuInfo{*this, "mnuInfo"};
    MenuEntry mnuHelp{*this, "mnuHelp", "F1"};
    MenuEntry mnuAbout{*this, "mnuAbout", "Ctrl+A"};
    MenuEntry mnuEdit{*this, "mnuEdit"};
    MenuEntry mnuUndo{*this, "mnuUndo", "Ctrl+Z"};
    MenuEntry mnuRedo{*this, "mnuRedo", "Ctrl+Y"};
    MenuEntry mnuFindAbility{*this, "mnuFindAbility", "Ctrl+F"};
    MenuEntry mnuBalance{*this, "mnuBalance"};
    MenuEntry mnuSurvey{*this, "mnuSurvey", "Ctrl+Shift+S"};
    MenuEntry mnuExplain{*this, "mnuExplain", "F2"};
    MenuEntry mnuSolve{*this, "mnuSolve", "F3"};
    MenuEntry mnuTakeOver{*this, "mnuTakeOver", "Ctrl+T"};
    MenuEntry mnuTakeOverByScale{*this, "mnuTakeOverByScale"};

    TabControl Tablus{*this, "Tablus", "Tablus.Tab"};

    // The page of the parameters: every field in a frame whose caption names it. NC is the name,
    // IDC the number in the project TCX, FME and SME are the first and the second magic element,
    // TTC is the time to command; f stands behind what the file holds beside the computed figures.
    Frame FrameNC{*this, "FrameNC"};
    TextField txtNC{*this, "txtNC"};
    Frame FrameIDC{*this, "FrameIDC"};
    TextField txtIDC{*this, "txtIDC"};
    Frame FrameAttack{*this, "FrameAttack"};
    TextField txtAttack{*this, "txtAttack", 2};
    Frame FrameDefence{*this, "FrameDefence"};
    TextField txtDefence{*this, "txtDefence", 2};
    Frame FrameDamage{*this, "FrameDamage"};
    Label lblMin{*this, "lblMin"};
    TextField txtMinDam{*this, "txtMinDam", 2};
    Label lblMax{*this, "lblMax"};
    TextField txtMaxDam{*this, "txtMaxDam", 2};
    Frame FrameHealth{*this, "FrameHealth"};
    TextField txtHealth{*this, "txtHealth", 3};
    Frame FrameTier{*this, "FrameTier"};
    ComboBox ComboTier{*this, "ComboTier"};
    Frame FrameSpeed{*this, "FrameSpeed"};
    ComboBox ComboSpeed{*this, "ComboSpeed"};
    Frame FrameInitiative{*this, "FrameInitiative"};
    ComboBox ComboInitiative{*this, "ComboInitiative"};
    Frame FrameFaction{*this, "FrameFaction"};
    ComboBox ComboFaction{*this, "ComboFaction"};
    Frame FrameFME{*this, "FrameFME"};
    ComboBox ComboFME{*this, "ComboFME"};
    Frame FrameUpgrade{*this, "FrameUpgrade"};
    ComboBox ComboUpgrade{*this, "ComboUpgrade"};
    Frame FrameSME{*this, "FrameSME"};
    ComboBox ComboSME{*this, "ComboSME"};
    Frame FramePowerf{*this, "FramePowerf"};
    TextField txtPower{*this, "txtPower", 5};
    Frame FrameExpf{*this, "FrameExpf"};
    TextField txtExp{*this, "txtExp", 4};
    Frame FrameShots{*this, "FrameShots"};
    TextField txtShots{*this, "txtShots", 2};
    Frame FrameRange{*this, "FrameRange"};
    ComboBox ComboRange{*this, "ComboRange"};
    Frame FrameGrowthf{*this, "FrameGrowthf"};
    TextField txtGrowthf{*this, "txtGrowthf", 5};
    Frame FrameCostf{*this, "FrameCostf"};
    TextField txtGoldf{*this, "txtGoldf", 4};
    Frame FrameMana{*this, "FrameMana"};
    TextField txtMana{*this, "txtMana", 3};
    Frame FrameTTC{*this, "FrameTTC"};
    ComboBox ComboTTC{*this, "ComboTTC"};
    Frame FrameWoodf{*this, "FrameWoodf"};
    TextField txtWoodf{*this, "txtWoodf", 5};
    Frame FrameOref{*this, "FrameOref"};
    TextField txtOref{*this, "txtOref", 4};
    Frame FrameMercuryf{*this, "FrameMercuryf"};
    TextField txtMercuryf{*this, "txtMercuryf", 5};
    Frame FrameCrystalf{*this, "FrameCrystalf"};
    TextField txtCrystalf{*this, "txtCrystalf", 4};
    Frame FrameSulfurf{*this, "FrameSulfurf"};
    TextField txtSulfurf{*this, "txtSulfurf", 5};
    Frame FrameGemf{*this, "FrameGemf"};
    TextField txtGemf{*this, "txtGemf", 4};

    // Never shown: the game's words for the entries chosen in ComboFaction and ComboRange.
    Frame FrameAlias{*this, "FrameAlias"};
    ComboBox ComboAlias{*this, "ComboAlias"};
    Frame FrameDiapazon{*this, "FrameDiapazon"};
    ComboBox ComboDiapazon{*this, "ComboDiapazon"};

    // The page of the parameters, the results: the panel of the main method (frmMM) has those of
    // the first method (without an ending), of the second (X) and their averages (A), that of the
    // alternative method (frmAM) two groups that nothing writes (S, D).
    Frame frmMM{*this, "frmMM"};
    Label lblValues{*this, "lblValues"};
    Frame FramePower{*this, "FramePower"};
    Label lblPowerRolvane{*this, "lblPowerRolvane"};
    Frame FrameExperience{*this, "FrameExperience"};
    Label lblExpRolvane{*this, "lblExpRolvane"};
    Frame FrameGrowth{*this, "FrameGrowth"};
    Label lblGrowthRolvane{*this, "lblGrowthRolvane"};
    Frame FrameCost{*this, "FrameCost"};
    Label lblCostRolvane{*this, "lblCostRolvane"};
    Label lblValuesX{*this, "lblValuesX"};
    Frame FramePowerX{*this, "FramePowerX"};
    Label lblPowerHesperin{*this, "lblPowerHesperin"};
    Frame FrameExperienceX{*this, "FrameExperienceX"};
    Label lblExpHesperin{*this, "lblExpHesperin"};
    Frame FrameGrowthX{*this, "FrameGrowthX"};
    Label lblGrowthHesperin{*this, "lblGrowthHesperin"};
    Frame FrameCostX{*this, "FrameCostX"};
    Label lblCostHesperin{*this, "lblCostHesperin"};
    Label lblValuesA{*this, "lblValuesA"};
    Frame FramePowerA{*this, "FramePowerA"};
    Label lblPowerAverage{*this, "lblPowerAverage"};
    Frame FrameExperienceA{*this, "FrameExperienceA"};
    Label lblExpAverage{*this, "lblExpAverage"};
    Frame FrameGrowthA{*this, "FrameGrowthA"};
    Label lblGrowthAverage{*this, "lblGrowthAverage"};
    Frame FrameCostA{*this, "FrameCostA"};
    Label lblCostAverage{*this, "lblCostAverage"};

    // The panel of the alternative method; nothing writes its labels.
    Frame frmAM{*this, "frmAM"};
    Label lblValuesS{*this, "lblValuesS"};
    Frame FramePowerS{*this, "FramePowerS"};
    Label lblPowerS{*this, "lblPowerS"};
    Frame FrameExperienceS{*this, "FrameExperienceS"};
    Label lblExpS{*this, "lblExpS"};
    Frame FrameGrowthS{*this, "FrameGrowthS"};
    Label lblGrowthS{*this, "lblGrowthS"};
    Frame FrameCostS{*this, "FrameCostS"};
    Label lblCostS{*this, "lblCostS"};
    Label lblValuesD{*this, "lblValuesD"};
    Frame FramePowerD{*this, "FramePowerD"};
    Label lblPowerD{*this, "lblPowerD"};
    Frame FrameExperienceD{*this, "FrameExperienceD"};
    Label lblExpD{*this, "lblExpD"};
    Frame FrameGrowthD{*this, "FrameGrowthD"};
    Label lblGrowthD{*this, "lblGrowthD"};
    Frame FrameCostD{*this, "FrameCostD"};
    Label lblCostD{*this, "lblCostD"};

    // The page of the parameters, its free middle: where the creature stands in the mod that has
    // been surveyed.
    Frame FrameStanding{*this, "FrameStanding"};
    Label lblStandingDeviation{*this, "lblStandingDeviation"};
    Label lblStandingPlace{*this, "lblStandingPlace"};
    DotStrip StandingStrip{*this, "StandingStrip"};

    // The check-box pages; the caption of each box is the game's token. `soq` are the mastery
    // selectors of the spells, `saz` those of the special abilities (whose
    // last is the inert one at 0, which nobody can tick).
    ControlArray<CheckBox, 1, Ability::Count> Abilities{*this, "Abilities"};
    ControlArray<CheckBox, 1, SpellCount> Spells{*this, "Spells"};
    ControlArray<MultiOption, 1, SpellCount> soq{*this, "soq"};
    ControlArray<CheckBox, 0, SpecabilityCount> Specabilities{*this, "Specabilities"};
    ControlArray<MultiOption, 0, SpecabilityCount> saz{*this, "saz"};

    // The text on the page of the file, and the parts of it that the reader looked for a mastery in
    // last: of a spell, of a special ability.
    StoredText RTBData{*this, "RTBData"};
    StoredText RTBTEMP{*this, "RTBTEMP"};
    StoredText RTBSPEC{*this, "RTBSPEC"};

    // Name and description of each ability in the current language, never shown here.
    ControlArray<StoredText, 1, Ability::Count> utbN{*this, "utbN"};
    ControlArray<StoredText, 1, Ability::Count> utbD{*this, "utbD"};

    FileDialog ComDialog{*this, "ComDialog"};

    // The button row under the pages.
    Button cmdCalc{*this, "cmdCalc"};
    Button cmdRAP{*this, "cmdRAP"};
    Button cmdRAA{*this, "cmdRAA"};
    Button cmdRAS{*this, "cmdRAS"};
    Button cmdResetAll{*this, "cmdResetAll"};
};

} // namespace Hesperin
