#pragma once

#include "form/control.h"

namespace Hesperin {

/// A text that the window holds and its user can't change. That of the file's page is shown, the
/// others never are.
class StoredText : public Control {
public:
    using Control::Control;

    const QString& Text() const { return text; }
    void SetText(const QString& value) { Store(text, value, Property::Text); }

protected:
    QString Content() const override { return text; }

private:
    QString text;
};

} // namespace Hesperin
