#pragma once

#include "form/text_buffer.h"
#include "window/view.h"

#include <QPlainTextEdit>

namespace Hesperin {

/// The text of the creature file last read or written: read-only, to be looked at and copied.
class FileView : public View<QPlainTextEdit, TextBuffer> {
public:
    FileView(TextBuffer& buffer, QWidget* parent);

protected:
    void Sync() override;
    bool event(QEvent* event) override;
};

} // namespace Hesperin
