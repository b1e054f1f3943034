#include "form/combo_box.h"

namespace Hesperin {

void ComboBox::AddItem(const QString& item) {
    items.append(item);
    Tell(Property::Items);
}

void ComboBox::SetItems(const QStringList& values) {
    items = values;
    index = -1;
    text.clear();
    Tell(Property::Items);
}

void ComboBox::Select(std::int16_t value) {
    if (value < 0 || value >= items.size())
        return;
    const bool indexChanges = index != value;
    if (!indexChanges && text == items[value])
        return;
    const UserAct act(*this);
    index = value;
    text = items[value];
    Tell(Property::Text);
    if (indexChanges && change)
        change();
}

void ComboBox::Restore(std::int16_t newIndex, const QString& newText) {
    const QString shown =
        newText.isEmpty() && newIndex >= 0 && newIndex < items.size() ? items[newIndex] : newText;
    if (index == newIndex && text == shown)
        return;
    index = newIndex;
    text = shown;
    Tell(Property::Text);
}

} // namespace Hesperin
