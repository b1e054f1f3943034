#pragma once

#include "form/stored_text.h"
#include "window/view.h"

#include <QPlainTextEdit>

namespace Hesperin {

/// The text of the creature file last read or written: read-only, to be looked at and copied.
class FileView : public View<QPlainTextEdit, StoredText> {
public:
    FileView(StoredText& buffer, QWidget* parent);

protected:
    void Sync() override;
    bool event(QEvent* event) override;
};

} // namespace Hesperin
