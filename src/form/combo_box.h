#pragma once

#include "form/control.h"

#include <QStringList>

namespace Hesperin {

/// A list with a selected entry and a text of its own. Selecting an entry sets the text; setting
/// the text selects nothing.
class ComboBox : public Control {
public:
    using Control::Control;

    const QStringList& Items() const { return items; }
    void AddItem(const QString& item);

    /// Empties the list and fills it anew: nothing is selected and the text is empty afterwards.
    /// The change rule doesn't run.
    void SetItems(const QStringList& values);

    /// Index of the selected entry, -1 when there is none.
    std::int16_t Index() const { return index; }

    /// Selects entry `value`, 0 to the number of entries - 1; any other value does nothing. The
    /// text becomes that entry in any case; the change rule runs when the index really changed.
    void Select(std::int16_t value);

    const QString& Text() const { return text; }

    /// Leaves the index alone and runs nothing.
    void SetText(const QString& value) { Store(text, value, Property::Text); }

    /// Sets both without the rule. An empty `newText` is that of the entry.
    void Restore(std::int16_t newIndex, const QString& newText);

    void SetChangeRule(ChangeRule rule) { change = std::move(rule); }

protected:
    QString Content() const override { return text; }

private:
    QStringList items;
    QString text;
    std::int16_t index = -1;
    ChangeRule change;
};

} // namespace Hesperin
