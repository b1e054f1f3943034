#include "window/field_view.h"

#include "window/fonts.h"

#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace Hesperin {

namespace {

/// Whether the focus only goes to a window, menu or list in front and comes back from there.
bool IsForAWhile(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

FieldView::FieldView(TextField& field, QWidget* parent, const QRect& place, const QFont& fieldFont,
                     Colour textColour)
    : View(field, parent), wantedFont(fieldFont), colour(textColour) {
    setGeometry(place);
    setPalette(TextPalette(OutlinedPalette(), colour));
    setFont(wantedFont);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& text) { control.SetText(text); });
    SyncAll();
}

void FieldView::Sync() {
    if (text() != control.Text()) {
        const int cursor = cursorPosition();
        setText(control.Text());
        setCursorPosition(cursor);
        isLeftForAWhile = false;
        if (hasFocus())
            selectAll();
    }
    FitFont();
}

bool FieldView::Admits(const QString& typed) const {
    const bool allAccepted = std::all_of(
        typed.begin(), typed.end(), [this](QChar key) { return control.Accepts(key.unicode()); });
    const qsizetype length = text().size() - selectedText().size() + typed.size();
    return allAccepted &&
           (control.MaxLength() == TextField::NoLimit || length <= control.MaxLength());
}

void FieldView::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!std::exchange(isLeftForAWhile, false) || !IsForAWhile(event->reason()))
        selectAll();
    hasFocusByPress = event->reason() == Qt::MouseFocusReason;
}

void FieldView::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    isLeftForAWhile = IsForAWhile(event->reason());
}

void FieldView::mousePressEvent(QMouseEvent* event) {
    selectsOnRelease = std::exchange(hasFocusByPress, false) && event->button() == Qt::LeftButton;
    QLineEdit::mousePressEvent(event); // places the cursor, where a drag begins
}

void FieldView::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(selectsOnRelease, false) && !hasSelectedText())
        selectAll();
}

bool FieldView::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange)
        setPalette(TextPalette(OutlinedPalette(), colour));
    return QLineEdit::event(event);
}

void FieldView::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    const auto modifiers = event->modifiers() & ~Qt::ShiftModifier;
    const bool isCommand = modifiers == Qt::ControlModifier || typed.isEmpty() ||
                           typed.at(0).unicode() < u' ' || typed.at(0) == QChar(0x7F);
    if (isCommand || Admits(typed))
        QLineEdit::keyPressEvent(event); // any other key is swallowed
}

void FieldView::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty() && !Admits(event->commitString()))
        event->setCommitString({});
    QLineEdit::inputMethodEvent(event);
}

void FieldView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->ignore(); // a file belongs to the window, which opens it
    else
        QLineEdit::dragEnterEvent(event);
}

void FieldView::FitFont() {
    constexpr int margins = 12;
    const QFont fitting = FittingFont(wantedFont, control.Text(), width() - margins);
    if (fitting != font())
        setFont(fitting);
}

} // namespace Hesperin
