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

    void SetDropHandler(std::function<void(const QString& file)> value) { drop = std::move(value); }

    /// The user lets a file fall on the window.
    void Drop(const QString& file) {
        if (drop)
            drop(file);
    }

    void SetCloseHandler(std::function<bool()> value) { close = std::move(value); }

    /// The user closes the window. True: it may close.
    bool Close() { return !close || close(); }

private:
    std::function<void(const QString& file)> drop;
    std::function<bool()> close;
};

class Frame : public Captioned {
public:
    using Captioned::Captioned;
};

class Label : public Captioned {
public:
    using Captioned::Captioned;

    void SetDoubleClickHandler(std::function<void()> value) { doubleClick = std::move(value); }

    /// The user's double click.
    void DoubleClick() {
        if (doubleClick)
            doubleClick();
    }

private:
    std::function<void()> doubleClick;
};

/// What the user clicks on to have something done.
class Clickable : public Captioned {
public:
    using Captioned::Captioned;

    void SetClickHandler(ClickHandler handler) { click = std::move(handler); }

    /// The user's click. Gives what the command could not do; the user has been told.
    Failure Click() { return click ? click() : std::nullopt; }

private:
    ClickHandler click;
};

class Button : public Clickable {
public:
    using Clickable::Clickable;
};

/// An entry of the menu bar, or a menu that holds others (it does nothing then).
class MenuEntry : public Clickable {
public:
    MenuEntry(ControlRegistry& registry, const char* name, const char* keys = "")
        : Clickable(registry, name), shortcut(QLatin1String(keys)) {}

    /// In the form "Ctrl+N"; empty when the entry has none.
    const QString& Shortcut() const { return shortcut; }

    bool Checked() const { return checked; }
    void SetChecked(bool value) { Store(checked, value, Property::State); }

private:
    QString shortcut;
    bool checked = false;
};

} // namespace Hesperin
