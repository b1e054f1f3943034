#pragma once

#include "form/check_box.h"
#include "window/view.h"

#include <QCheckBox>

namespace Hesperin {

/// A check box whose caption shrinks until it fits.
class BoxView : public View<QCheckBox, CheckBox> {
public:
    BoxView(CheckBox& box, QWidget* parent, const QRect& place);

protected:
    void Sync() override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace Hesperin
