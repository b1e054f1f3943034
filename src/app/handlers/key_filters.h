#pragma once

#include "form/main_form.h"

namespace Hesperin {

/// Lets digits and the backspace key through; any other key code becomes 0.
void FilterDigits(std::int16_t& keyCode);

/// Lets the letters A to Z and a to z, the underscore and the backspace key through; any other key
/// code becomes 0.
void FilterName(std::int16_t& keyCode);

/// Gives every text field its filter. txtIDC has none.
void SetKeyFilters(MainForm& form);

} // namespace Hesperin
