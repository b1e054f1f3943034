#pragma once

#include "form/control.h"

namespace Hesperin {

/// Judges a typed character code and replaces it by 0 to swallow the key.
using KeyFilter = void (*)(std::int16_t& keyCode);

/// A field of text. The key filter and the longest text bind typing only: a program step or a paste
/// sets any text.
class TextField : public Control {
public:
    static constexpr int NoLimit = 0;

    explicit TextField(ControlRegistry& registry, const char* name, int longest = NoLimit)
        : Control(registry, name), maxLength(longest) {}

    const QString& Text() const { return text; }
    void SetText(const QString& value) { Store(text, value, Property::Text); }

    /// The user changes the text, and may go on with it.
    void Edit(const QString& value) {
        const UserAct act(*this, Act::Editing);
        SetText(value);
    }

    /// The user leaves the field.
    void Leave() const {
        if (ActListener* listener = Registry().Listener())
            listener->Left();
    }

    /// Longest text that typing can make, in UTF-16 code units; NoLimit when there is no limit.
    int MaxLength() const { return maxLength; }

    KeyFilter Filter() const { return filter; }
    void SetFilter(KeyFilter value) { filter = value; }

    /// Whether the key filter lets the key of that character code through.
    bool Accepts(char16_t key) const {
        auto code = static_cast<std::int16_t>(key);
        if (filter != nullptr)
            filter(code);
        return code != 0;
    }

    /// Types one key at the end of the text: a backspace (code 8) takes the last character away, a
    /// key that the filter swallows or that finds no room changes nothing.
    void Type(char16_t key);

protected:
    QString Content() const override { return text; }

private:
    QString text;
    int maxLength;
    KeyFilter filter = nullptr;
};

} // namespace Hesperin
