#include "window/label_view.h"

#include "window/fonts.h"
#include "window/frame_view.h"

#include <QEvent>

namespace Hesperin {

LabelView::LabelView(Label& label, QWidget* parent, const QRect& place, const QFont& labelFont,
                     Colour textColour, Qt::Alignment alignment)
    : View(label, parent), wantedFont(labelFont), colour(textColour) {
    setGeometry(place);
    Dress();
    setAlignment(alignment);
    setTextFormat(Qt::PlainText);
    SyncAll();
}

void LabelView::Sync() {
    setText(control.Caption());
    setAccessibleName(control.Caption());
    if (!control.Caption().isEmpty())
        setFont(FittingFont(wantedFont, control.Caption(), width()));
    if (buddy() != nullptr)
        FrameView::NameFieldsAround(*this);
}

bool LabelView::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange)
        Dress();
    return QLabel::event(event);
}

void LabelView::Dress() {
    QPalette dress = TextPalette(ProgramPalette(), colour);
    dress.setColor(QPalette::Disabled, QPalette::WindowText,
                   QColor(Colours().*colour)); // results stand in disabled frames
    setPalette(dress);
}

} // namespace Hesperin
