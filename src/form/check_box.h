#pragma once

#include "form/captioned.h"

namespace Hesperin {

/// A check box of the states 0 (unticked) and 1 (ticked).
class CheckBox : public Captioned {
public:
    CheckBox(ControlRegistry& registry, const char* name, int index = -1)
        : Captioned(registry, name, {}, index) {}

    bool Ticked() const { return ticked; }

    /// A real change is stored, told to the view, and runs the change rule before this returns.
    void SetTicked(bool value) {
        if (ticked == value)
            return;
        const UserAct act(*this);
        Store(ticked, value, Property::State);
        if (change)
            change();
    }

    /// The same without the rule. True: a real change.
    bool Restore(bool value) { return Store(ticked, value, Property::State); }

    void SetChangeRule(ChangeRule rule) { change = std::move(rule); }

    void SetRightClickHandler(ClickHandler handler) { rightClick = std::move(handler); }

    /// The user's click with the right button, which leaves the tick alone.
    Failure RightClick() { return rightClick ? rightClick() : std::nullopt; }

protected:
    QString Content() const override { return ticked ? QStringLiteral("1") : QStringLiteral("0"); }

private:
    bool ticked = false;
    ChangeRule change;
    ClickHandler rightClick;
};

} // namespace Hesperin
