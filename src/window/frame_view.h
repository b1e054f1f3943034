#pragma once

#include "form/captioned.h"
#include "window/view.h"

#include <QGroupBox>

namespace Hesperin {

/// A frame with its caption in the line; the caption shrinks until it fits. It lends its caption to
/// the fields inside as their accessible name.
class FrameView : public View<QGroupBox, Frame> {
public:
    FrameView(Frame& frame, QWidget* parent, const QFont& face, const QRect& place);

    /// Gives each field inside the caption as its accessible name, behind it the text of the label
    /// whose buddy it is.
    void NameFields();

protected:
    void Sync() override;
    void paintEvent(QPaintEvent* event) override;

private:
    QFont face;    ///< as asked for
    QFont fitting; ///< in which the caption fits
    QRect captionPlace;
};

} // namespace Hesperin
