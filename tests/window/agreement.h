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
            ++widgetCount[widget->objectName()];
        for (const Control* control : use.form.Controls())
            Compare(*(current = control));
    }

    int compared = 0;   ///< controls that have a widget or an action
    QStringList faults; ///< one for each disagreement, with the name of its control

private:
    void Expect(bool agrees, const char* what) {
        if (!agrees)
            faults.append(current->Name() + ": " + what);
    }

    void Compare(const Control& control) {
        static const QStringList hidden{"ComboAlias", "ComboDiapazon", "FrameAlias", "FrameDiapazon", "RTBTEMP",
                                        "RTBSPEC",    "ComDialog",     "utbN",       "utbD"}; // from the user
        const int widgets = widgetCount.value(control.Name());
        if (hidden.contains(control.ArrayName()))
            return Expect(widgets == 0, "has a widget");
        static const QStringList late{"FrameStanding", "lblStandingDeviation", "lblStandingPlace", "StandingStrip"};
        if (late.contains(control.Name()) && widgets == 0)
            return Expect(!use.form.FrameStanding.Visible(), "has no widget");
        ++compared;
        if (const auto* form = dynamic_cast<const Window*>(&control))
            return Expect(use.window->windowTitle() == form->Caption(), "title");
        if (const auto* entry = dynamic_cast<const MenuEntry*>(&control))
            return CompareEntry(*entry);
        if (widgets != 1)
            return Expect(false, "has not exactly one widget");
        auto& widget = use.Find(control.Name());
        if (const auto* page = dynamic_cast<const TabPage*>(&control))
            return ComparePage(*page);
        Expect(widget.isEnabledTo(widget.parentWidget()) == control.Enabled(), "enabled");
        Expect(widget.isVisibleTo(widget.parentWidget()) == control.Visible(), "visible");
        if (widget.isVisible())
            Expect(widget.isEnabled() == control.Usable(), "usable");
        Expect(widget.toolTip() == control.ToolTip(), "tool tip");
        CompareContent(control, widget);
    }

    void CompareEntry(const MenuEntry& entry) {
        const auto actions = use.window->findChildren<QAction*>(entry.Name());
        if (actions.size() != 1)
            return Expect(false, "has not exactly one action");
        const QAction& action = *actions.first();
        static const QRegularExpression mnemonic("&(.)");
        Expect(QString(action.text()).replace(mnemonic, "\\1") == entry.Caption(), "caption");
        Expect(action.isEnabled() == entry.Enabled(), "enabled");
        Expect(action.isVisible() == entry.Visible(), "visible");
        Expect(action.isChecked() == entry.Checked(), "check mark");
        Expect(action.shortcut().toString() == entry.Shortcut(), "shortcut");
    }

    void ComparePage(const TabPage& page) {
        const QTabBar& bar = use.Bar();
        const int index = page.ArrayIndex();
        Expect(bar.isTabVisible(index) == page.Visible(), "visible");
        Expect(bar.isTabEnabled(index) == page.Enabled(), "enabled");
        Expect(bar.tabToolTip(index) == page.Caption(), "tool tip");
        Expect(use.Find(page.Name()).isVisible() == (bar.currentIndex() == index), "in front");
        if (page.Caption().size() < 20) // a longer one may be shortened
            Expect(bar.tabText(index) == QString(page.Caption()).replace("&", "&&"), "caption");
    }

    void CompareContent(const Control& control, QWidget& widget) {
        if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
            const auto& shown = dynamic_cast<const QCheckBox&>(widget);
            Expect(shown.isChecked() == box->Ticked() && !shown.isTristate(), "tick");
            Expect(shown.text() == box->Caption(), "caption");
        } else if (const auto* list = dynamic_cast<const ComboBox*>(&control))
            CompareList(*list, dynamic_cast<QComboBox&>(widget));
        else if (const auto* selector = dynamic_cast<const MultiOption*>(&control))
            Expect(OptionsInPicture(widget) == QList<int>{selector->Value()} &&
                       selector->Enabled() == selector->OptionsEnabled(),
                   "options");
        else if (qobject_cast<const QGroupBox*>(&widget))
            Expect(widget.accessibleName() == control.Shown().trimmed(), "caption");
        else if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget))
            Expect(text->toPlainText() == dynamic_cast<const StoredText&>(control).Text(), "text");
        else if (control.Name() != "Tablus" && control.Name() != "StandingStrip") // a field, label or button
            Expect(widget.property("text") == control.Shown(), "text");
    }

    void CompareList(const ComboBox& list, const QComboBox& shown) {
        QStringList items;
        for (int index = 0; index < shown.count(); ++index)
            items.append(shown.itemText(index));
        Expect(items == list.Items(), "entries");
        Expect(shown.currentIndex() == list.Items().indexOf(list.Text()), "entry");
        Expect(shown.accessibleName().endsWith(list.Text()), "name");
        Expect(!shown.isEditable(), "is editable");
    }

    const WindowInUse& use;
    const Control* current = nullptr;
    QHash<QString, int> widgetCount;
};

/// All that the window shows wrongly, empty when there is nothing.
inline QString Disagreements(const WindowInUse& use) { return Agreement(use).faults.join('\n'); }

} // namespace Hesperin
