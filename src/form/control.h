// What every control of the main window has in common: its name, its place in the window's tree,
// the enabled and visible flags, the tool tip, and one view that is told of each real change.
#pragma once

#include "text/error.h"

#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace Hesperin {

class Control;

/// What of a control has just changed.
enum class Property : std::uint8_t {
    Caption, ///< caption, or the title of the window
    Text,    ///< text of a field, list or buffer
    State,   ///< tick of a box, check mark of a menu entry, options of a mastery selector
    Items,   ///< entries of a list
    Enabled, ///< the control's own flag
    Visible, ///< the control's own flag
    ToolTip,
};

/// Shows one control. Told after the control has stored a change and before its change rule runs.
class ControlView {
public:
    virtual ~ControlView() = default;
    virtual void Changed(Control& control, Property what) = 0;
};

/// What the user does at once.
enum class Act : std::uint8_t {
    Step,    ///< a click or a choice, with all that it changes in turn
    Editing, ///< one of the changes to a text, up to the moment when the field is left
    Aside,   ///< what isn't to be taken back: a file is written, the language changes
};

/// Hears of all that the user does.
class ActListener {
public:
    virtual ~ActListener() = default;

    /// Before the first change. Acts may lie in one another.
    virtual void Begin(const Control& control, Act act) = 0;

    /// After the last change.
    virtual void End() = 0;

    /// The user has left the field.
    virtual void Left() = 0;
};

/// The controls of one window, in the order in which they were made. Doesn't own them.
class ControlRegistry {
public:
    const std::vector<Control*>& Controls() const { return controls; }

    /// At most one, which must outlive its use; null takes it away.
    void SetActListener(ActListener* value) { listener = value; }
    ActListener* Listener() const { return listener; }

    /// The control of that name ("txtAttack", "Abilities(66)"), or null. Letter case counts.
    Control* Find(const QString& name) const;

private:
    friend class Control;
    std::vector<Control*> controls;
    ActListener* listener = nullptr;
};

class Control {
public:
    /// Registers itself in `registry`, which must outlive it. `name` must outlive the control (a
    /// literal); `index` is the place in a control array, -1 for a control of its own.
    Control(ControlRegistry& registry, const char* name, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// The full name: "txtAttack", "Abilities(66)".
    QString Name() const;
    bool HasName(QLatin1String base, int index) const {
        return arrayName == base && arrayIndex == index;
    }
    QLatin1String ArrayName() const { return arrayName; }
    int ArrayIndex() const { return arrayIndex; }

    bool Enabled() const { return enabled; }
    void SetEnabled(bool value);
    bool Visible() const { return visible; }
    void SetVisible(bool value);
    const QString& ToolTip() const { return toolTip; }
    void SetToolTip(const QString& value);

    /// The frame, page, menu or window that holds the control; null for the window itself.
    const Control* Parent() const { return parent; }
    void SetParent(const Control& value) { parent = &value; }

    const ControlRegistry& Registry() const { return holder; }

    /// Whether the user can reach and operate it now: it and all that hold it are enabled and
    /// visible.
    bool Usable() const;

    /// Its text, caption or state on one line, line breaks and backslashes written as \n, \r and
    /// \\.
    QString Shown() const;

    /// At most one view at a time; null takes it away. The view must outlive its use.
    void SetView(ControlView* value) { view = value; }

protected:
    void Tell(Property what) {
        if (view != nullptr)
            view->Changed(*this, what);
    }

    /// Stores `value` and tells the view, unless it is what `member` holds already.
    template <typename T>
    bool Store(T& member, const T& value, Property what) {
        if (member == value)
            return false;
        member = value;
        Tell(what);
        return true;
    }

    /// The text, caption or state behind Shown().
    virtual QString Content() const = 0;

private:
    const ControlRegistry& holder;
    QLatin1String arrayName;
    int arrayIndex;
    bool enabled = true;
    bool visible = true;
    QString toolTip;
    const Control* parent = nullptr;
    ControlView* view = nullptr;
};

/// Holds something that the user does to a control between its begin and its end.
class UserAct {
public:
    explicit UserAct(const Control& control, Act act = Act::Step)
        : listener(control.Registry().Listener()) {
        if (listener != nullptr)
            listener->Begin(control, act);
    }
    ~UserAct() {
        if (listener != nullptr)
            listener->End();
    }
    UserAct(const UserAct&) = delete;
    UserAct& operator=(const UserAct&) = delete;

private:
    ActListener* listener;
};

/// What runs, nested inside the setter, when the state of a box or the choice in a list has really
/// changed, whether the user or a program step changed it.
using ChangeRule = std::function<void()>;

/// What the user's click has done. Gives what could not be done; the user has been told.
using ClickHandler = std::function<Failure()>;

} // namespace Hesperin
