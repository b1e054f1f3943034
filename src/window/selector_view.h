#pragma once

#include "form/multi_option.h"
#include "window/view.h"

namespace Hesperin {

/// A mastery selector: one light widget that looks and acts like a row of five radio buttons. Left
/// and Up choose the option before, Right and Down the one behind, Home and End the outer ones.
class SelectorView : public View<QWidget, MultiOption> {
public:
    /// `token` is the caption of the box that it belongs to.
    SelectorView(MultiOption& selector, QWidget* parent, const QRect& place, const QString& token);

protected:
    void Sync() override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static int OptionAt(QPoint place);
    void Click(int option);
};

} // namespace Hesperin
