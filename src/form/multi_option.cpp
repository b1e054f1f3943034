#include "form/multi_option.h"

namespace Hesperin {

MultiOption::MultiOption(ControlRegistry& registry, const char* name, int index)
    : Control(registry, name, index) {
    SetEnabled(false);
}

void MultiOption::Redraw() {
    SetEnabled(optionsEnabled);
    if (value >= 0 && value < static_cast<int>(Options.size()))
        Store(selectedOption, static_cast<int>(value), Property::State);
}

void MultiOption::ClickOption(int option) {
    const UserAct act(*this);
    value = static_cast<std::int16_t>(option);
    Store(selectedOption, option, Property::State);
}

} // namespace Hesperin
