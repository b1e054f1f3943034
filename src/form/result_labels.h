#pragma once

#include "form/main_form.h"

#include <array>

namespace Hesperin {

/// The labels that show the figures of the two methods and their averages.
inline constexpr std::array<Label MainForm::*, 12> ResultLabels{
    &MainForm::lblPowerRolvane,  &MainForm::lblCostRolvane,    &MainForm::lblExpRolvane,
    &MainForm::lblGrowthRolvane, &MainForm::lblPowerHesperin,  &MainForm::lblCostHesperin,
    &MainForm::lblExpHesperin,   &MainForm::lblGrowthHesperin, &MainForm::lblPowerAverage,
    &MainForm::lblCostAverage,   &MainForm::lblExpAverage,     &MainForm::lblGrowthAverage,
};

} // namespace Hesperin
