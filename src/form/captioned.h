// The controls that are little more than a caption: window, frame, label, button, menu entry.
#pragma once

#include "form/control.h"

namespace Hesperin {

class Captioned : public Control {
public:
    Captioned(ControlRegistry& registry, const char* name, const QString& initialCaption = {},
              int index = -1)
        : Control(registry, name, index), caption(initialCaption) {}

    const QString& Caption() const { return caption; }
    void SetCaption(const QString& value) { Store(caption, value, Property::Caption); }
    void SetCaption(QStringView value) {
        if (caption != value)
            SetCaption(value.toString());
    }

protected:
    QString Content() const override { return caption; }

private:
    QString caption;
};

/// A window; its caption is the title.
class Window : public Captioned {
public:
    using Captioned::Captioned;
};

class Frame : public Captioned {
public:
    using Captioned::Captioned;
};

class Label : public Captioned {
public:
    using Captioned::Captioned;
};

class Button : public Captioned {
public:
    using Captioned::Captioned;

    void SetClick(ClickOperation operation) { click = std::move(operation); }

    /// Runs the click operation, as a press by the user does.
    void Click() {
        if (click)
            click();
    }

private:
    ClickOperation click;
};

/// An entry of the menu bar, or a menu that holds others (it has no operation then).
class MenuEntry : public Captioned {
public:
    MenuEntry(ControlRegistry& registry, const char* name, const char* keys = "")
        : Captioned(registry, name), shortcut(QLatin1String(keys)) {}

    /// In the form "Ctrl+N"; empty when the entry has none.
    const QString& Shortcut() const { return shortcut; }

    bool Checked() const { return checked; }
    void SetChecked(bool value) { Store(checked, value, Property::State); }

    void SetClick(ClickOperation operation) { click = std::move(operation); }

    /// Runs the entry's operation, as a pick by the user does.
    void Click() {
        if (click)
            click();
    }

private:
    QString shortcut;
    bool checked = false;
    ClickOperation click;
};

} // namespace Hesperin
