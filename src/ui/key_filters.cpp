#include "ui/key_filters.h"

namespace Hesperin {

namespace {

constexpr std::int16_t Backspace = 8;

constexpr TextField MainForm::*DigitFields[] = {
    &MainForm::txtAttack, &MainForm::txtDefence,  &MainForm::txtHealth,   &MainForm::txtMana,
    &MainForm::txtMinDam, &MainForm::txtMaxDam,   &MainForm::txtPower,    &MainForm::txtExp,
    &MainForm::txtShots,  &MainForm::txtGoldf,    &MainForm::txtGrowthf,  &MainForm::txtWoodf,
    &MainForm::txtOref,   &MainForm::txtMercuryf, &MainForm::txtCrystalf, &MainForm::txtSulfurf,
    &MainForm::txtGemf,
};

bool IsBetween(std::int16_t code, char first, char last) {
    return code >= first && code <= last;
}

} // namespace

void FilterDigits(std::int16_t& keyCode) {
    if (!IsBetween(keyCode, '0', '9') && keyCode != Backspace)
        keyCode = 0;
}

void FilterName(std::int16_t& keyCode) {
    if (!IsBetween(keyCode, 'A', 'Z') && !IsBetween(keyCode, 'a', 'z') && keyCode != '_' &&
        keyCode != Backspace)
        keyCode = 0;
}

void SetKeyFilters(MainForm& form) {
    form.txtNC.SetFilter(FilterName);
    for (const auto field : DigitFields)
        (form.*field).SetFilter(FilterDigits);
}

} // namespace Hesperin
