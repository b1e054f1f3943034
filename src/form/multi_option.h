#pragma once

#include "form/control.h"

#include <array>

namespace Hesperin {

/// A row of five radio buttons that selects one of the five masteries. Writing `Value` or `Enabled`
/// only stores: `Redraw` brings the buttons into line with the two.
class MultiOption : public Control {
public:
    /// One radio button of the row: its name, and the tool tip that tells its meaning in every
    /// language.
    struct Option {
        const char* name;
        const char* toolTip;
    };
    static constexpr std::array<Option, 5> Options{{
        {"Opt_None", "MASTERY_NONE"},
        {"Opt_Basic", "MASTERY_BASIC"},
        {"Opt_Advanced", "MASTERY_ADVANCED"},
        {"Opt_Expert", "MASTERY_EXPERT"},
        {"Opt_Extra", "MASTERY_EXTRA_EXPERT"},
    }};

    MultiOption(ControlRegistry& registry, const char* name, int index);

    std::int16_t Value() const { return value; }
    void SetValue(std::int16_t level) { value = level; }

    bool OptionsEnabled() const { return optionsEnabled; }
    void SetOptionsEnabled(bool flag) { optionsEnabled = flag; }

    /// Enables or disables the five buttons by the stored flag and selects the button of the stored
    /// value; a value outside 0 to 4 leaves the selection of the buttons alone.
    void Redraw();

    /// The button that is drawn as selected, 0 to 4.
    int SelectedOption() const { return selectedOption; }

    /// The user's click on button `option`, 0 to 4: stores its number as the value.
    void ClickOption(int option);

protected:
    QString Content() const override { return QString::number(value); }

private:
    std::int16_t value = 0;
    bool optionsEnabled = false;
    int selectedOption = 0;
};

} // namespace Hesperin
