#pragma once

#include "form/captioned.h"
#include "window/view.h"

#include <QLabel>

namespace Hesperin {

/// A label whose text shrinks until it fits.
class LabelView : public View<QLabel, Label> {
public:
    LabelView(Label& label, QWidget* parent, const QRect& place, const QFont& face, QRgb ink,
              Qt::Alignment alignment);

protected:
    void Sync() override;

private:
    QFont face;
};

} // namespace Hesperin
