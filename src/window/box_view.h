#pragma once

#include "form/check_box.h"
#include "window/view.h"

#include <QCheckBox>

namespace Hesperin {

/// A check box whose caption shrinks until it fits.
class BoxView : public View<QCheckBox, CheckBox> {
public:
    /// `rightClick` runs at a click with the right button, which leaves the tick alone.
    BoxView(CheckBox& box, QWidget* parent, const QRect& place, ClickOperation rightClick = {});

protected:
    void Sync() override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    ClickOperation rightClicked;
};

} // namespace Hesperin
