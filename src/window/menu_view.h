#pragma once

#include "form/main_form.h"

#include <QAction>
#include <QMenuBar>

namespace Hesperin {

/// Shows one entry of the menu bar as an action, or one menu as the action that opens it.
class EntryView : public ControlView {
public:
    /// `letters` may open the entry: the first of them that its caption has. They must outlive the
    /// view.
    EntryView(MenuEntry& entry, QAction& action, QStringView letters);
    ~EntryView() override { control.SetView(nullptr); }
    EntryView(const EntryView&) = delete;
    EntryView& operator=(const EntryView&) = delete;

    void Changed(Control& changed, Property what) override;

private:
    void Sync();

    MenuEntry& control;
    QAction& action;
    QStringView letters;
};

/// Fills `bar` with the menus of the form.
std::vector<std::unique_ptr<EntryView>> BuildMenus(MainForm& form, QMenuBar& bar);

} // namespace Hesperin
