#pragma once

#include "form/control.h"

#include <QWidget>

namespace Hesperin {

/// A widget that shows one control of the form under the control's own name. It holds no state of
/// its own: what the user does goes through the control's setters, and what changes is read back
/// from it.
template <typename Widget, typename ControlType>
class View : public Widget, public ControlView {
public:
    View(ControlType& shown, QWidget* parent) : Widget(parent), control(shown) {
        this->setObjectName(control.Name());
        control.SetView(this);
    }
    ~View() override { control.SetView(nullptr); }
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    void Changed(Control&, Property what) override {
        if (what == Property::Enabled)
            this->setEnabled(control.Enabled());
        else if (what == Property::Visible)
            this->setVisible(control.Visible());
        else if (what == Property::ToolTip)
            this->setToolTip(control.ToolTip());
        else
            Sync();
    }

protected:
    /// Shows the control's content: caption, text, state or entries.
    virtual void Sync() = 0;

    /// For the end of a constructor: shows all of the control.
    void SyncAll() {
        Sync();
        this->setEnabled(control.Enabled());
        this->setToolTip(control.ToolTip());
        if (!control.Visible())
            this->hide();
    }

    ControlType& control;
};

} // namespace Hesperin
