#include "form/main_form.h"

#include <initializer_list>

namespace Hesperin {

namespace {

void Hold(const Control& parent, std::initializer_list<Control*> children) {
    for (Control* child : children)
        child->SetParent(parent);
}

template <typename Array>
void HoldAll(const Control& parent, Array& children) {
    for (auto& child : children)
        child.SetParent(parent);
}

void Disable(std::initializer_list<Control*> controls) {
    for (Control* control : controls)
        control->SetEnabled(false);
}

void Hide(std::initializer_list<Control*> controls) {
    for (Control* control : controls)
        control->SetVisible(false);
}

void HoldMenus(MainForm& form) {
    Hold(form.frmMain, {&form.mnuFile, &form.mnuOptions, &form.mnuInfo});
    Hold(form.mnuFile, {&form.mnuNew, &form.mnuOpen, &form.mnuSave, &form.mnuQuit});
    Hold(form.mnuOptions, {&form.mnuLanguage, &form.mnuAlternativeMethod, &form.mnuCalculator,
                           &form.mnuHighContrast});
    Hold(form.mnuLanguage, {&form.mnuEnglish, &form.mnuRussian, &form.mnuFrench, &form.mnuGerman});
    Hold(form.mnuInfo, {&form.mnuHelp, &form.mnuAbout});
}

void HoldParameters(MainForm& form) {
    const TabPage& page = form.Tablus.Tab(0);
    const std::initializer_list<std::pair<Frame*, Control*>> fields{
        {&form.FrameNC, &form.txtNC},
        {&form.FrameIDC, &form.txtIDC},
        {&form.FrameAttack, &form.txtAttack},
        {&form.FrameDefence, &form.txtDefence},
        {&form.FrameDamage, &form.lblMin},
        {&form.FrameDamage, &form.txtMinDam},
        {&form.FrameDamage, &form.lblMax},
        {&form.FrameDamage, &form.txtMaxDam},
        {&form.FrameHealth, &form.txtHealth},
        {&form.FrameTier, &form.ComboTier},
        {&form.FrameSpeed, &form.ComboSpeed},
        {&form.FrameInitiative, &form.ComboInitiative},
        {&form.FrameFaction, &form.ComboFaction},
        {&form.FrameFME, &form.ComboFME},
        {&form.FrameUpgrade, &form.ComboUpgrade},
        {&form.FrameSME, &form.ComboSME},
        {&form.FramePowerf, &form.txtPower},
        {&form.FrameExpf, &form.txtExp},
        {&form.FrameShots, &form.txtShots},
        {&form.FrameRange, &form.ComboRange},
        {&form.FrameGrowthf, &form.txtGrowthf},
        {&form.FrameCostf, &form.txtGoldf},
        {&form.FrameMana, &form.txtMana},
        {&form.FrameTTC, &form.ComboTTC},
        {&form.FrameWoodf, &form.txtWoodf},
        {&form.FrameOref, &form.txtOref},
        {&form.FrameMercuryf, &form.txtMercuryf},
        {&form.FrameCrystalf, &form.txtCrystalf},
        {&form.FrameSulfurf, &form.txtSulfurf},
        {&form.FrameGemf, &form.txtGemf},
        {&form.FrameAlias, &form.ComboAlias},
        {&form.FrameDiapazon, &form.ComboDiapazon},
    };
    for (const auto& [frame, child] : fields) {
        frame->SetParent(page);
        child->SetParent(*frame);
    }
}

void HoldResults(MainForm& form) {
    Hold(form.Tablus.Tab(0), {&form.frmMM, &form.frmAM});
    Hold(form.frmMM, {&form.lblValues, &form.FramePower, &form.FrameExperience, &form.FrameGrowth,
                      &form.FrameCost, &form.lblValuesX, &form.FramePowerX, &form.FrameExperienceX,
                      &form.FrameGrowthX, &form.FrameCostX, &form.lblValuesA, &form.FramePowerA,
                      &form.FrameExperienceA, &form.FrameGrowthA, &form.FrameCostA});
    Hold(form.frmAM, {&form.lblValuesS, &form.FramePowerS, &form.FrameExperienceS,
                      &form.FrameGrowthS, &form.FrameCostS, &form.lblValuesD, &form.FramePowerD,
                      &form.FrameExperienceD, &form.FrameGrowthD, &form.FrameCostD});
    const std::initializer_list<std::pair<Frame*, Label*>> results{
        {&form.FramePower, &form.lblPowerRolvane},
        {&form.FrameExperience, &form.lblExpRolvane},
        {&form.FrameGrowth, &form.lblGrowthRolvane},
        {&form.FrameCost, &form.lblCostRolvane},
        {&form.FramePowerX, &form.lblPowerHesperin},
        {&form.FrameExperienceX, &form.lblExpHesperin},
        {&form.FrameGrowthX, &form.lblGrowthHesperin},
        {&form.FrameCostX, &form.lblCostHesperin},
        {&form.FramePowerA, &form.lblPowerAverage},
        {&form.FrameExperienceA, &form.lblExpAverage},
        {&form.FrameGrowthA, &form.lblGrowthAverage},
        {&form.FrameCostA, &form.lblCostAverage},
        {&form.FramePowerS, &form.lblPowerS},
        {&form.FrameExperienceS, &form.lblExpS},
        {&form.FrameGrowthS, &form.lblGrowthS},
        {&form.FrameCostS, &form.lblCostS},
        {&form.FramePowerD, &form.lblPowerD},
        {&form.FrameExperienceD, &form.lblExpD},
        {&form.FrameGrowthD, &form.lblGrowthD},
        {&form.FrameCostD, &form.lblCostD},
    };
    for (const auto& [frame, label] : results)
        label->SetParent(*frame);
}

} // namespace

MainForm::MainForm() {
    HoldMenus(*this);
    Hold(frmMain, {&Tablus, &cmdCalc, &cmdRAP, &cmdRAA, &cmdRAS, &cmdResetAll, &RTBTEMP, &RTBSPEC,
                   &ComDialog});
    HoldParameters(*this);
    HoldResults(*this);
    HoldAll(Tablus.Tab(1), Abilities);
    HoldAll(Tablus.Tab(2), Spells);
    HoldAll(Tablus.Tab(2), soq);
    HoldAll(Tablus.Tab(3), Specabilities);
    HoldAll(Tablus.Tab(3), saz);
    Hold(Tablus.Tab(4), {&RTBData});
    HoldAll(frmMain, utbN);
    HoldAll(frmMain, utbD);

    Tablus.Tab(4).SetCaption(QStringLiteral("XDB"));
    Disable({&mnuSave, &mnuFrench, &mnuGerman, &mnuAlternativeMethod, &mnuHelp, &FrameIDC,
             &FrameShots, &txtShots, &FrameMana, &txtMana, &FrameRange, &ComboRange, &frmMM, &frmAM,
             &cmdRAS, &Specabilities(0)});
    Hide({&frmAM, &FrameAlias, &FrameDiapazon, &RTBTEMP, &RTBSPEC});
    for (auto& text : utbN)
        text.SetVisible(false);
    for (auto& text : utbD)
        text.SetVisible(false);
}

} // namespace Hesperin
