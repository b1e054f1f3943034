// The controls of the main window that are alike, each list once.
#pragma once

#include "catalogue/parameters.h"
#include "catalogue/results.h"
#include "form/main_form.h"

namespace Hesperin {

inline constexpr EnumArray<NumberField, TextField MainForm::*> NumberFields{{{
    &MainForm::txtShots,
    &MainForm::txtMana,
    &MainForm::txtAttack,
    &MainForm::txtDefence,
    &MainForm::txtHealth,
    &MainForm::txtMinDam,
    &MainForm::txtMaxDam,
    &MainForm::txtPower,
    &MainForm::txtExp,
    &MainForm::txtGoldf,
    &MainForm::txtGrowthf,
    &MainForm::txtWoodf,
    &MainForm::txtOref,
    &MainForm::txtMercuryf,
    &MainForm::txtCrystalf,
    &MainForm::txtSulfurf,
    &MainForm::txtGemf,
}}};

inline constexpr EnumArray<ListField, ComboBox MainForm::*> ListFields{{{
    &MainForm::ComboUpgrade,
    &MainForm::ComboTier,
    &MainForm::ComboFME,
    &MainForm::ComboSME,
    &MainForm::ComboSpeed,
    &MainForm::ComboInitiative,
    &MainForm::ComboFaction,
    &MainForm::ComboAlias,
    &MainForm::ComboRange,
    &MainForm::ComboDiapazon,
    &MainForm::ComboTTC,
}}};

/// The field or the list of a parameter.
struct ParameterControl {
    TextField MainForm::*field;
    ComboBox MainForm::*list;
};

inline constexpr EnumArray<Parameter, ParameterControl> ParameterControls{{{
    {&MainForm::txtAttack, nullptr},
    {&MainForm::txtDefence, nullptr},
    {&MainForm::txtMinDam, nullptr},
    {&MainForm::txtMaxDam, nullptr},
    {&MainForm::txtHealth, nullptr},
    {nullptr, &MainForm::ComboSpeed},
    {nullptr, &MainForm::ComboInitiative},
    {nullptr, &MainForm::ComboTier},
}}};

/// A label that shows a figure, in the frame that names the figure, under the heading that names
/// the method.
struct ResultPlace {
    Label MainForm::*heading;
    Frame MainForm::*frame;
    Label MainForm::*label;
};

struct ResultRow {
    Method method;
    Figure figure;
    ResultPlace place;
};

// clang-format off
inline constexpr ResultRow ResultRows[] = {
    {Method::Rolvane,  Figure::Power,      {&MainForm::lblValues,   &MainForm::FramePower,         &MainForm::lblPowerRolvane}},
    {Method::Rolvane,  Figure::Experience, {&MainForm::lblValues,   &MainForm::FrameExperience,    &MainForm::lblExpRolvane}},
    {Method::Rolvane,  Figure::Growth,     {&MainForm::lblValues,   &MainForm::FrameGrowth,        &MainForm::lblGrowthRolvane}},
    {Method::Rolvane,  Figure::Cost,       {&MainForm::lblValues,   &MainForm::FrameCost,          &MainForm::lblCostRolvane}},
    {Method::Hesperin, Figure::Power,      {&MainForm::lblValuesX,  &MainForm::FramePowerX,        &MainForm::lblPowerHesperin}},
    {Method::Hesperin, Figure::Experience, {&MainForm::lblValuesX,  &MainForm::FrameExperienceX,   &MainForm::lblExpHesperin}},
    {Method::Hesperin, Figure::Growth,     {&MainForm::lblValuesX,  &MainForm::FrameGrowthX,       &MainForm::lblGrowthHesperin}},
    {Method::Hesperin, Figure::Cost,       {&MainForm::lblValuesX,  &MainForm::FrameCostX,         &MainForm::lblCostHesperin}},
    {Method::Average,  Figure::Power,      {&MainForm::lblValuesA,  &MainForm::FramePowerA,        &MainForm::lblPowerAverage}},
    {Method::Average,  Figure::Experience, {&MainForm::lblValuesA,  &MainForm::FrameExperienceA,   &MainForm::lblExpAverage}},
    {Method::Average,  Figure::Growth,     {&MainForm::lblValuesA,  &MainForm::FrameGrowthA,       &MainForm::lblGrowthAverage}},
    {Method::Average,  Figure::Cost,       {&MainForm::lblValuesA,  &MainForm::FrameCostA,         &MainForm::lblCostAverage}},
};

/// The panel of the alternative method, whose labels nothing writes.
inline constexpr ResultPlace AlternativeResults[] = {
    {&MainForm::lblValuesS,  &MainForm::FramePowerS,        &MainForm::lblPowerS},
    {&MainForm::lblValuesS,  &MainForm::FrameExperienceS,   &MainForm::lblExpS},
    {&MainForm::lblValuesS,  &MainForm::FrameGrowthS,       &MainForm::lblGrowthS},
    {&MainForm::lblValuesS,  &MainForm::FrameCostS,         &MainForm::lblCostS},
    {&MainForm::lblValuesD,  &MainForm::FramePowerD,        &MainForm::lblPowerD},
    {&MainForm::lblValuesD,  &MainForm::FrameExperienceD,   &MainForm::lblExpD},
    {&MainForm::lblValuesD,  &MainForm::FrameGrowthD,       &MainForm::lblGrowthD},
    {&MainForm::lblValuesD,  &MainForm::FrameCostD,         &MainForm::lblCostD},
};
// clang-format on

} // namespace Hesperin
