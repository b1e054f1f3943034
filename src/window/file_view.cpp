#include "window/file_view.h"

#include "window/faces.h"

namespace Hesperin {

FileView::FileView(TextBuffer& buffer, QWidget* parent) : View(buffer, parent) {
    constexpr int tabWidth = 24;
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(FileFace());
    setTabStopDistance(tabWidth);
    setAccessibleName(QStringLiteral("XDB"));
    SyncAll();
}

void FileView::Sync() {
    setPlainText(control.Text());
}

} // namespace Hesperin
