#pragma once

#include "form/captioned.h"
#include "window/view.h"

#include <QGroupBox>

namespace Hesperin {

/// What stands in a frame and has an accessible name that tells more than the frame's caption.
class NamedInFrame {
public:
    virtual ~NamedInFrame() = default;

    /// The accessible name in a frame of that caption.
    virtual QString NameIn(const QString& caption) const = 0;
};

/// A frame with its caption in the line; the caption shrinks until it fits. It lends its caption to
/// what stands inside for the accessible name.
class FrameView : public View<QGroupBox, Frame> {
public:
    FrameView(Frame& frame, QWidget* parent, const QFont& wantedFont, const QRect& place);

    /// Gives each field inside the caption as its accessible name, behind it the text of the label
    /// whose buddy it is; a NamedInFrame gets the name that it asks for.
    void NameFields();

    /// The same in the frame that holds `child`, if one does.
    static void NameFieldsAround(const QWidget& child);

protected:
    void Sync() override;
    void paintEvent(QPaintEvent* event) override;

private:
    QFont wantedFont; ///< as asked for
    QFont fitting;    ///< in which the caption fits
    QRect captionPlace;
};

} // namespace Hesperin
