#pragma once

#include "window/window_in_use.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>

namespace Hesperin {

/// Compares every control of the form with what the window shows of it.
class Agreement {
public:
    explicit Agreement(const WindowInUse& shown) : use(shown) {
        for (const QWidget* widget : use.window->findChildren<QWidget*>())
            if (!widget->objectName().isEmpty())
                ++widgetCount[widget->objectName()];
        for (const Control* control : use.form.Controls())
            Compare(*control);
    }

    int compared = 0;   ///< controls that have a widget or an action
    QStringList faults; ///< one for each disagreement, with the name of its control

private:
    void Expect(bool agrees, const Control& control, const char* what) {
        if (!agrees)
            faults.append(control.Name() + ": " + what);
    }

    /// The controls that the user never sees.
    static bool IsHidden(const Control& control) {
        static const QStringList hidden{"ComboAlias", "ComboDiapazon", "FrameAlias", "FrameDiapazon", "RTBTEMP",
                                        "RTBSPEC",    "ComDialog",     "utbN",       "utbD"};
        return hidden.contains(control.ArrayName());
    }

    void Compare(const Control& control) {
        const int widgets = widgetCount.value(control.Name());
        if (IsHidden(control))
            return Expect(widgets == 0, control, "has a widget");
        ++compared;
        if (const auto* form = dynamic_cast<const Window*>(&control))
            return Expect(use.window->windowTitle() == form->Caption(), control, "title");
        if (const auto* entry = dynamic_cast<const MenuEntry*>(&control))
            return CompareEntry(*entry);
        if (widgets != 1)
            return Expect(false, control, "has not exactly one widget");
        auto& widget = use.Find(control.Name());
        if (const auto* page = dynamic_cast<const TabPage*>(&control))
            return ComparePage(*page);
        Expect(widget.isEnabledTo(widget.parentWidget()) == control.Enabled(), control, "enabled");
        Expect(widget.isVisibleTo(widget.parentWidget()) == control.Visible(), control, "visible");
        if (widget.isVisible())
            Expect(widget.isEnabled() == control.Usable(), control, "usable");
        Expect(widget.toolTip() == control.ToolTip(), control, "tool tip");
        CompareContent(control, widget);
    }

    void CompareEntry(const MenuEntry& entry) {
        const auto actions = use.window->findChildren<QAction*>(entry.Name());
        if (actions.size() != 1)
            return Expect(false, entry, "has not exactly one action");
        const QAction& action = *actions.first();
        static const QRegularExpression mnemonic("&(.)");
        Expect(QString(action.text()).replace(mnemonic, "\\1") == entry.Caption(), entry, "caption");
        Expect(action.isEnabled() == entry.Enabled(), entry, "enabled");
        Expect(action.isVisible() == entry.Visible(), entry, "visible");
        Expect(action.isChecked() == entry.Checked(), entry, "check mark");
        Expect(action.shortcut().toString() == entry.Shortcut(), entry, "shortcut");
    }

    void ComparePage(const TabPage& page) {
        const auto& bar = use.Find<QTabBar>("Tablus.Bar");
        const int index = page.ArrayIndex();
        Expect(bar.isTabVisible(index) == page.Visible(), page, "visible");
        Expect(bar.isTabEnabled(index) == page.Enabled(), page, "enabled");
        Expect(bar.tabToolTip(index) == page.Caption(), page, "tool tip");
        Expect(use.Find(page.Name()).isVisible() == (bar.currentIndex() == index), page, "in front");
        if (page.Caption().size() < 20) // a longer one may be shortened
            Expect(bar.tabText(index) == QString(page.Caption()).replace("&", "&&"), page, "caption");
    }

    void CompareContent(const Control& control, QWidget& widget) {
        if (const auto* field = dynamic_cast<const TextField*>(&control))
            Expect(TextOf<QLineEdit>(widget) == field->Text(), control, "text");
        else if (const auto* label = dynamic_cast<const Label*>(&control))
            Expect(TextOf<QLabel>(widget) == label->Caption(), control, "caption");
        else if (const auto* button = dynamic_cast<const Button*>(&control))
            Expect(TextOf<QPushButton>(widget) == button->Caption(), control, "caption");
        else if (const auto* frame = dynamic_cast<const Frame*>(&control))
            Expect(widget.accessibleName() == frame->Caption().trimmed(), control, "caption");
        else if (const auto* list = dynamic_cast<const ComboBox*>(&control))
            CompareList(*list, dynamic_cast<QComboBox&>(widget));
        else if (const auto* box = dynamic_cast<const CheckBox*>(&control))
            CompareBox(*box, dynamic_cast<QCheckBox&>(widget));
        else if (const auto* selector = dynamic_cast<const MultiOption*>(&control))
            CompareSelector(*selector, widget);
        else if (const auto* buffer = dynamic_cast<const StoredText*>(&control))
            Expect(dynamic_cast<QPlainTextEdit&>(widget).toPlainText() == buffer->Text(), control, "text");
        else
            Expect(control.Name() == "Tablus", control, "is of no known kind");
    }

    template <typename T>
    static QString TextOf(QWidget& widget) {
        return dynamic_cast<T&>(widget).text();
    }

    void CompareList(const ComboBox& list, const QComboBox& shown) {
        QStringList items;
        for (int index = 0; index < shown.count(); ++index)
            items.append(shown.itemText(index));
        Expect(items == list.Items(), list, "entries");
        Expect(shown.currentIndex() == list.Items().indexOf(list.Text()), list, "entry");
        Expect(shown.accessibleName().endsWith(list.Text()), list, "name");
        Expect(!shown.isEditable(), list, "is editable");
    }

    void CompareBox(const CheckBox& box, const QCheckBox& shown) {
        Expect(shown.isChecked() == box.Ticked(), box, "tick");
        Expect(shown.text() == box.Caption(), box, "caption");
        Expect(!shown.isTristate(), box, "has a third state");
    }

    void CompareSelector(const MultiOption& selector, QWidget& shown) {
        Expect(OptionsInPicture(shown) == QList<int>{selector.Value()}, selector, "chosen option");
        Expect(selector.Enabled() == selector.OptionsEnabled(), selector, "options enabled");
    }

    const WindowInUse& use;
    QHash<QString, int> widgetCount;
};

/// All that the window shows wrongly, empty when there is nothing.
inline QString Disagreements(const WindowInUse& use) { return Agreement(use).faults.join('\n'); }

} // namespace Hesperin
