#include "window/menu_view.h"

#include <QMenu>

#include <algorithm>

namespace Hesperin {

namespace {

/// An entry and the letter behind Alt that opens it: in English, and in Russian. The form's
/// captions stay without; a caption that is the same in all languages has one letter.
struct EntryPlan {
    MenuEntry MainForm::*entry; ///< null is a separator
    QStringView letters = {};
};

/// A menu and its entries in order.
struct MenuPlan {
    EntryPlan menu;
    std::vector<EntryPlan> entries;
};

// clang-format off
const std::vector<MenuPlan>& Plan() {
    static const std::vector<MenuPlan> plan{
        {{&MainForm::mnuFile, u"FФ"}, {
            {&MainForm::mnuNew,               u"NС"},
            {&MainForm::mnuOpen,              u"OО"},
            {&MainForm::mnuSave,              u"Sх"},
            {&MainForm::mnuUpdate,            u"Uб"},
            {nullptr},
            {&MainForm::mnuQuit,              u"QВ"},
        }},
        {{&MainForm::mnuOptions, u"OО"}, {
            {&MainForm::mnuLanguage,          u"LЯ"},
            {&MainForm::mnuAlternativeMethod, u"AА"},
            {&MainForm::mnuCalculator,        u"CК"},
            {&MainForm::mnuHighContrast,      u"HВ"},
        }},
        {{&MainForm::mnuInfo, u"IС"}, {
            {&MainForm::mnuHelp,              u"HП"},
            {nullptr},
            {&MainForm::mnuAbout,             u"AО"},
        }},
        {{&MainForm::mnuEdit, u"EП"}, {
            {&MainForm::mnuUndo,              u"UО"},
            {&MainForm::mnuRedo,              u"RВ"},
            {nullptr},
            {&MainForm::mnuFindAbility,       u"FН"},
        }},
        {{&MainForm::mnuBalance, u"BБ"}, {
            {&MainForm::mnuSurvey,            u"SО"},
            {nullptr},
            {&MainForm::mnuExplain,           u"HК"},
            {&MainForm::mnuSolve,             u"vП"},
            {&MainForm::mnuTakeOver,          u"TВ"},
            {&MainForm::mnuTakeOverByScale,   u"mБ"},
        }},
    };
    return plan;
}

constexpr EntryPlan Languages[] = {
    {&MainForm::mnuEnglish, u"E"},
    {&MainForm::mnuRussian, u"R"},
    {&MainForm::mnuFrench,  u"F"},
    {&MainForm::mnuGerman,  u"D"},
};
// clang-format on

/// The caption as the toolkit wants it: an ampersand before the first of the letters that it has.
QString WithMnemonic(QString caption, QStringView letters) {
    const auto letter = std::find_if(letters.begin(), letters.end(),
                                     [&](QChar one) { return caption.contains(one); });
    caption.replace(u'&', QLatin1String("&&"));
    if (letter != letters.end())
        caption.insert(caption.indexOf(*letter), u'&');
    return caption;
}

} // namespace

EntryView::EntryView(MenuEntry& entry, QAction& shown, QStringView mnemonics)
    : control(entry), action(shown), letters(mnemonics) {
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
    action.setText(WithMnemonic(control.Caption(), letters));
    action.setEnabled(control.Enabled());
    action.setVisible(control.Visible());
    if (control.Checked())
        action.setCheckable(true);
    action.setChecked(control.Checked());
}

std::vector<std::unique_ptr<EntryView>> BuildMenus(MainForm& form, QMenuBar& bar) {
    std::vector<std::unique_ptr<EntryView>> views;
    const auto show = [&](const EntryPlan& plan, QAction* action) {
        views.push_back(std::make_unique<EntryView>(form.*plan.entry, *action, plan.letters));
    };
    for (const auto& [planOfMenu, entries] : Plan()) {
        QMenu* menu = bar.addMenu(QString());
        show(planOfMenu, menu->menuAction());
        for (const EntryPlan& plan : entries) {
            if (plan.entry == nullptr) {
                menu->addSeparator();
            } else if (plan.entry == &MainForm::mnuLanguage) {
                QMenu* languages = menu->addMenu(QString());
                show(plan, languages->menuAction());
                for (const EntryPlan& language : Languages)
                    show(language, languages->addAction(QString()));
            } else {
                show(plan, menu->addAction(QString()));
            }
        }
    }
    return views;
}

} // namespace Hesperin
