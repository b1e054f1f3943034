#pragma once

#include "app/program.h"

class QWidget;

namespace Hesperin {

/// Tells on the page of the parameters, whose top is `top` pixels below the tab control's, where
/// the creature stands in the mod. It is built when a survey is loaded for the first time.
class StandingPanel : public ControlView {
public:
    StandingPanel(MainForm& owner, QWidget& onPage, int pageTop)
        : form(owner), page(onPage), top(pageTop) {
        form.FrameStanding.SetView(this);
    }
    ~StandingPanel() override;
    StandingPanel(const StandingPanel&) = delete;
    StandingPanel& operator=(const StandingPanel&) = delete;

    /// The frame is to be seen: its own view takes over.
    void Changed(Control& control, Property what) override;

private:
    MainForm& form;
    QWidget& page;
    int top;
    bool built = false;
};

} // namespace Hesperin
