// Every control of the form has its widget, which shows it, in both languages.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QScreen>

namespace Hesperin {

namespace {

// The visible kinds: 29 frames of page 0 (two of them panels) and 20 in the panels, 19 fields, 9
// lists, 27 labels, 174 + 91 + 55 boxes, 91 + 55 selectors, 5 buttons, 17 entries of the menu bar,
// the tab control with 5 pages, the text of the file, the window.
constexpr int VisibleControls = 49 + 19 + 9 + 27 + 320 + 146 + 5 + 17 + 6 + 1 + 1;

TEST(Controls, EachHasOneWidgetThatShowsIt) {
    for (const Language language : {English, Russian}) {
        const WindowInUse use(language);
        const Agreement agreement(use);
        EXPECT_EQ(agreement.faults.join('\n'), "");
        EXPECT_EQ(agreement.compared, VisibleControls);
    }
}

TEST(Controls, FollowASwitchOfTheLanguage) {
    const WindowInUse use;
    for (const char* entry : {"mnuRussian", "mnuEnglish", "mnuRussian"}) {
        use.PickLanguage(entry);
        EXPECT_EQ(Disagreements(use), "") << entry;
    }
    EXPECT_TRUE(use.Find<QAction>("mnuRussian").isChecked());
    EXPECT_EQ(use.Find<QAction>("mnuFile").text(), "Файл");
}

TEST(Controls, HaveANameForThoseWhoCannotSee) {
    const struct {
        const char* name;
        const char* texts[3]; // none, English, Russian
    } cases[] = {
        {"txtAttack", {"", "Attack", "Нападение"}},      {"txtMinDam", {"", "Damage min", "Урон мин."}},
        {"txtMaxDam", {"", "Damage max", "Урон макс."}}, {"ComboTier", {"", "Tier", "Уровень"}},
        {"cmdCalc", {"", "Calculate", "Рассчёт"}},       {"Spells(46)", {"", "MAGIC_ARROW", "MAGIC_ARROW"}},
    };
    WindowInUse use;
    for (const Language language : {English, Russian}) {
        use.PickLanguage(language == English ? "mnuEnglish" : "mnuRussian");
        for (const auto& test : cases)
            EXPECT_EQ(use.Find(test.name).accessibleName(), test.texts[language]) << test.name;
        int named = 0;
        for (const Control* control : use.form.Controls())
            if (QWidget* widget = use.window->WidgetOf(*control);
                widget != nullptr && widget->focusPolicy() != Qt::NoFocus) {
                ++named;
                EXPECT_NE(widget->accessibleName(), "") << control->Name().toStdString();
            }
        EXPECT_EQ(named, 19 + 9 + 320 + 146 + 5 + 1);
    }
}

TEST(Controls, StandInAWindowNoLargerThanTheScreen) {
    WindowInUse use;
    const MainWindow fresh(use.program);
    EXPECT_LE(fresh.width(), fresh.screen()->availableSize().width());
    EXPECT_LE(fresh.height(), fresh.screen()->availableSize().height());
    EXPECT_EQ(fresh.minimumSize(), fresh.maximumSize());
    EXPECT_EQ(use.window->windowTitle(), "TALMIR v0.0.0.44");
}

} // namespace

} // namespace Hesperin
