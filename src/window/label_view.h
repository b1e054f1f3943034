#pragma once

#include "form/captioned.h"
#include "window/palette.h"
#include "window/view.h"

#include <QLabel>

namespace Hesperin {

/// A label whose text shrinks until it fits.
class LabelView : public View<QLabel, Label> {
public:
    LabelView(Label& label, QWidget* parent, const QRect& place, const QFont& wantedFont,
              Colour colour, Qt::Alignment alignment);

protected:
    void Sync() override;
    bool event(QEvent* event) override;

private:
    void Dress();

    QFont wantedFont;
    Colour colour;
};

} // namespace Hesperin
