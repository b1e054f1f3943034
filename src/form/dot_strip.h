#pragma once

#include "form/control.h"

#include <optional>

namespace Hesperin {

/// Values as dots on a strip around 0, one of them marked.
class DotStrip : public Control {
public:
    struct Values {
        std::vector<double> dots;
        std::optional<double> mark;

        bool operator==(const Values&) const = default;
    };

    DotStrip(ControlRegistry& registry, const char* name) : Control(registry, name) {}

    const Values& Shows() const { return values; }
    void Show(const Values& value) { Store(values, value, Property::State); }

protected:
    QString Content() const override { return {}; }

private:
    Values values;
};

} // namespace Hesperin
