#pragma once

#include "form/captioned.h"
#include "form/control_array.h"

namespace Hesperin {

class TabPage : public Captioned {
public:
    TabPage(ControlRegistry& registry, const char* name, int index)
        : Captioned(registry, name, {}, index) {}

    /// Switches the page on or off: its enabled and its visible flag together.
    void Switch(bool on) {
        SetEnabled(on);
        SetVisible(on);
    }
    bool On() const { return Enabled() && Visible(); }
};

/// The pages of the main window, numbered from 0 and named by their place: "Tablus.Tab(0)".
class TabControl : public Control {
public:
    static constexpr int PageCount = 5;

    TabControl(ControlRegistry& registry, const char* name, const char* pageName)
        : Control(registry, name), Tab(registry, pageName) {
        for (TabPage& page : Tab)
            page.SetParent(*this);
    }

protected:
    QString Content() const override {
        QStringList captions;
        for (const TabPage& page : Tab)
            if (page.On())
                captions.append(page.Caption());
        return captions.join(QLatin1String(" | "));
    }

public:
    ControlArray<TabPage, 0, PageCount - 1> Tab;
};

} // namespace Hesperin
