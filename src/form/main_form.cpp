#include "form/form_lists.h"

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
    Hold(form.frmMain,
         {&form.mnuFile, &form.mnuOptions, &form.mnuInfo, &form.mnuEdit, &form.mnuBalance});
    Hold(form.mnuFile,
         {&form.mnuNew, &form.mnuOpen, &form.mnuSave, &form.mnuUpdate, &form.mnuQuit});
    Hold(form.mnuOptions, {&form.mnuLanguage, &form.mnuAlternativeMethod, &form.mnuCalculator,
                           &form.mnuHighContrast});
    Hold(form.mnuLanguage, {&form.mnuEnglish, &form.mnuRussian, &form.mnuFrench, &form.mnuGerman});
    Hold(form.mnuInfo, {&form.mnuHelp, &form.mnuAbout});
    Hold(form.mnuEdit, {&form.mnuUndo, &form.mnuRedo, &form.mnuFindAbility});
    Hold(form.mnuBalance, {&form.mnuSurvey, &form.mnuExplain, &form.mnuSolve, &form.mnuTakeOver,
                           &form.mnuTakeOverByScale});
}

void HoldParameters(MainForm& form) {
    const TabPage& page = form.Tablus.At(Page::Parameters);
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
    Hold(form.Tablus.At(Page::Parameters), {&form.frmMM, &form.frmAM, &form.FrameStanding});
    Hold(form.FrameStanding,
         {&form.lblStandingDeviation, &form.lblStandingPlace, &form.StandingStrip});
    const auto hold = [&form](const Frame& panel, const ResultPlace& place) {
        (form.*place.heading).SetParent(panel);
        (form.*place.frame).SetParent(panel);
        (form.*place.label).SetParent(form.*place.frame);
    };
    for (const ResultRow& row : ResultRows)
        hold(form.frmMM, row.place);
    for (const ResultPlace& place : AlternativeResults)
        hold(form.frmAM, place);
}

} // namespace

MainForm::MainForm() {
    HoldMenus(*this);
    Hold(frmMain, {&Tablus, &cmdCalc, &cmdRAP, &cmdRAA, &cmdRAS, &cmdResetAll, &RTBTEMP, &RTBSPEC,
                   &ComDialog});
    HoldParameters(*this);
    HoldResults(*this);
    HoldAll(Tablus.At(Page::Abilities), Abilities);
    HoldAll(Tablus.At(Page::Spells), Spells);
    HoldAll(Tablus.At(Page::Spells), soq);
    HoldAll(Tablus.At(Page::Specabilities), Specabilities);
    HoldAll(Tablus.At(Page::Specabilities), saz);
    Hold(Tablus.At(Page::File), {&RTBData});
    HoldAll(frmMain, utbN);
    HoldAll(frmMain, utbD);

    Tablus.At(Page::File).SetCaption(QStringLiteral("XDB"));
    Disable({&mnuSave,
             &mnuUpdate,
             &mnuUndo,
             &mnuRedo,
             &mnuFrench,
             &mnuGerman,
             &mnuAlternativeMethod,
             &mnuHelp,
             &mnuTakeOverByScale,
             &FrameIDC,
             &FrameShots,
             &txtShots,
             &FrameMana,
             &txtMana,
             &FrameRange,
             &ComboRange,
             &frmMM,
             &frmAM,
             &cmdRAS,
             &Specabilities(0)});
    Hide({&frmAM, &FrameStanding, &FrameAlias, &FrameDiapazon, &RTBTEMP, &RTBSPEC});
    for (auto& text : utbN)
        text.SetVisible(false);
    for (auto& text : utbD)
        text.SetVisible(false);
}

} // namespace Hesperin
