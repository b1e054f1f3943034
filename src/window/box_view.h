#pragma once

#include "form/check_box.h"
#include "window/view.h"

#include <QCheckBox>

#include <functional>

namespace Hesperin {

/// A check box whose caption shrinks until it fits.
class BoxView : public View<QCheckBox, CheckBox> {
public:
    BoxView(CheckBox& box, QWidget* parent, const QRect& place);

    /// What the tool tip tells while the box isn't ticked, in place of the control's own.
    void SetUntickedToolTip(std::function<QString()> value) { untickedToolTip = std::move(value); }

    enum class Standing : std::uint8_t { Plain, Dimmed, Marked };

    /// Steps back behind the others, though it can be used all the same, or stands out of them.
    void SetStanding(Standing value);

protected:
    void Sync() override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<QString()> untickedToolTip;
    Standing standing = Standing::Plain;
};

} // namespace Hesperin
