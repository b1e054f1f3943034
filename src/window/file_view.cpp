#include "window/file_view.h"

#include "window/fonts.h"

#include <QKeyEvent>

namespace Hesperin {

FileView::FileView(StoredText& buffer, QWidget* parent) : View(buffer, parent) {
    constexpr int tabWidth = 24;
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(FileFont());
    setTabStopDistance(tabWidth);
    setAccessibleName(QStringLiteral("XDB"));
    SyncAll();
}

void FileView::Sync() {
    setPlainText(control.Text());
}

bool FileView::event(QEvent* event) {
    // Here Ctrl+C and Ctrl+A copy and select; they don't reach the menu.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            event->accept();
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

} // namespace Hesperin
