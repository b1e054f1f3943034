#include "window/label_view.h"

#include "window/faces.h"
#include "window/frame_view.h"
#include "window/palette.h"

namespace Hesperin {

LabelView::LabelView(Label& label, QWidget* parent, const QRect& place, const QFont& labelFace,
                     QRgb ink, Qt::Alignment alignment)
    : View(label, parent), face(labelFace) {
    setGeometry(place);
    QPalette inks = InkPalette(ink);
    inks.setColor(QPalette::Disabled, QPalette::WindowText,
                  QColor(ink)); // results stand in disabled frames
    setPalette(inks);
    setAlignment(alignment);
    setTextFormat(Qt::PlainText);
    SyncAll();
}

void LabelView::Sync() {
    setText(control.Caption());
    setAccessibleName(control.Caption());
    if (!control.Caption().isEmpty())
        setFont(FittingFace(face, control.Caption(), width()));
    if (buddy() != nullptr)
        FrameView::NameFieldsAround(*this);
}

} // namespace Hesperin
