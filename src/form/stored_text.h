#pragma once

#include "form/control.h"

namespace Hesperin {

/// A text that the window holds without showing it.
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
