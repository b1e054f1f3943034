#pragma once

#include "form/captioned.h"

namespace Hesperin {

/// A check box of the states 0 (unticked) and 1 (ticked).
class CheckBox : public Captioned {
public:
    CheckBox(ControlRegistry& registry, const char* name, int index = -1)
        : Captioned(registry, name, {}, index) {}

    bool Ticked() const { return ticked; }

    /// A real change is stored, told to the view, and runs the click operation before this returns.
    void SetTicked(bool value) {
        if (Store(ticked, value, Property::State) && click)
            click();
    }

    void SetClick(ClickOperation operation) { click = std::move(operation); }

protected:
    QString Content() const override { return ticked ? QStringLiteral("1") : QStringLiteral("0"); }

private:
    bool ticked = false;
    ClickOperation click;
};

} // namespace Hesperin
