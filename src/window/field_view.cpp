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

constexpr QKeyCombination UndoKeys = Qt::CTRL | Qt::Key_Z;

bool IsRedo(QKeyCombination keys) {
    return keys == (Qt::CTRL | Qt::Key_Y) || keys == (Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
}

} // namespace

FieldView::FieldView(TextField& field, QWidget* parent, const QRect& place, const QFont& fieldFont,
                     Colour textColour)
    : View(field, parent), wantedFont(fieldFont), colour(textColour) {
    setGeometry(place);
    setPalette(TextPalette(OutlinedPalette(), colour));
    setFont(wantedFont);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& text) { control.Edit(text); });
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
    if (isLeftForAWhile)
        return;
    ForgetTyping();
    control.Leave();
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
    if (event->type() == QEvent::ShortcutOverride) {
        const auto keys = static_cast<const QKeyEvent*>(event)->keyCombination();
        if ((keys == UndoKeys && !isUndoAvailable()) || (IsRedo(keys) && !isRedoAvailable())) {
            ForgetTyping();
            event->ignore(); // it goes to the menu entry
            return false;
        }
        if (IsRedo(keys)) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void FieldView::ForgetTyping() {
    if (!isUndoAvailable() && !isRedoAvailable())
        return;
    const int cursor = cursorPosition();
    setText(text());
    setCursorPosition(cursor);
}

void FieldView::keyPressEvent(QKeyEvent* event) {
    if (IsRedo(event->keyCombination()))
        return redo();
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
