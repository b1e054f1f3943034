#pragma once

#include "form/captioned.h"
#include "form/control_array.h"

#include <QStringList>

namespace Hesperin {

/// The pages of the main window, by their place.
enum class Page : std::uint8_t { Parameters, Abilities, Spells, Specabilities, File, Count };

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
    static constexpr int PageCount = static_cast<int>(Page::Count);

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
    TabPage& At(Page page) { return Tab(static_cast<int>(page)); }
    const TabPage& At(Page page) const { return Tab(static_cast<int>(page)); }

    ControlArray<TabPage, 0, PageCount - 1> Tab;
};

} // namespace Hesperin
