#include "app/handlers/key_filters.h"

#include "form/form_lists.h"

namespace Hesperin {

namespace {

constexpr std::int16_t Backspace = 8;

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
    for (const auto field : NumberFields)
        (form.*field).SetFilter(FilterDigits);
}

} // namespace Hesperin
