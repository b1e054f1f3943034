#include "window/menu_view.h"

#include <QMenu>

namespace Hesperin {

namespace {

/// The menus and their entries in order; null is a separator.
struct MenuPlan {
    MenuEntry MainForm::*menu;
    std::vector<MenuEntry MainForm::*> entries;
};

const std::vector<MenuPlan>& Plan() {
    static const std::vector<MenuPlan> plan{
        {&MainForm::mnuFile,
         {&MainForm::mnuNew, &MainForm::mnuOpen, &MainForm::mnuSave, nullptr, &MainForm::mnuQuit}},
        {&MainForm::mnuOptions,
         {&MainForm::mnuLanguage, &MainForm::mnuAlternativeMethod, &MainForm::mnuCalculator,
          &MainForm::mnuHighContrast}},
        {&MainForm::mnuInfo, {&MainForm::mnuHelp, nullptr, &MainForm::mnuAbout}},
    };
    return plan;
}

constexpr MenuEntry MainForm::*Languages[] = {&MainForm::mnuEnglish, &MainForm::mnuRussian,
                                              &MainForm::mnuFrench, &MainForm::mnuGerman};

} // namespace

EntryView::EntryView(MenuEntry& entry, QAction& shown) : control(entry), action(shown) {
    action.setObjectName(control.Name());
    if (!control.Shortcut().isEmpty())
        action.setShortcut(QKeySequence(control.Shortcut()));
    QObject::connect(&action, &QAction::triggered, &action, [this] {
        control.Click();
        Sync(); // a checkable action changes its mark by itself
    });
    control.SetView(this);
    Sync();
}

void EntryView::Changed(Control&, Property) {
    Sync();
}

void EntryView::Sync() {
    action.setText(control.Caption());
    action.setEnabled(control.Enabled());
    action.setVisible(control.Visible());
    if (control.Checked())
        action.setCheckable(true);
    action.setChecked(control.Checked());
}

std::vector<std::unique_ptr<EntryView>> BuildMenus(MainForm& form, QMenuBar& bar) {
    std::vector<std::unique_ptr<EntryView>> views;
    const auto show = [&](MenuEntry& entry, QAction* action) {
        views.push_back(std::make_unique<EntryView>(entry, *action));
    };
    for (const MenuPlan& plan : Plan()) {
        QMenu* menu = bar.addMenu(QString());
        show(form.*plan.menu, menu->menuAction());
        for (const auto entry : plan.entries) {
            if (entry == nullptr) {
                menu->addSeparator();
            } else if (entry == &MainForm::mnuLanguage) {
                QMenu* languages = menu->addMenu(QString());
                show(form.mnuLanguage, languages->menuAction());
                for (const auto language : Languages)
                    show(form.*language, languages->addAction(QString()));
            } else {
                show(form.*entry, menu->addAction(QString()));
            }
        }
    }
    return views;
}

} // namespace Hesperin
