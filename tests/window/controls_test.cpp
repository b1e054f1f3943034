// Every control of the form has its widget, which shows it, in both languages.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>

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
    EXPECT_EQ(use.window->windowTitle(), "TALMIR v0.0.0.44");
    EXPECT_EQ(use.Find<QAction>("mnuFile").text(), "&Файл");
}

TEST(Controls, HaveANameForThoseWhoCannotSee) {
    const struct {
        const char* name;
        const char* texts[3]; // none, English, Russian
    } cases[] = {
        {"txtAttack", {"", "Attack", "Нападение"}},
        {"txtMinDam", {"", "Damage min", "Урон мин."}},
        {"txtMaxDam", {"", "Damage max", "Урон макс."}},
        {"ComboTier", {"", "Tier 40", "Уровень 40"}},
        {"cmdCalc", {"", "Calculate", "Рассчёт"}},
        {"Spells(46)", {"", "MAGIC_ARROW", "MAGIC_ARROW"}},
        {"lblPowerRolvane", {"", "Power by Rolvane 1615", "Сила по Rolvane'у 1615"}},
        {"lblExpAverage", {"", "Average Experience 70", "Опыт в среднем 70"}},
        {"lblGrowthHesperin", {"", "Growth by Hesperin", "Прирост по Hesperin'ю"}},
        {"lblCostS", {"", "Gold by Quintarell", "Золото по Quintarell'у"}},
        {"lblCostD", {"", "Gold by Bravik", "Золото по Bravik'у"}},
    };
    WindowInUse use;
    use.form.ComboTier.SetText("40"); // none of its entries
    use.form.lblPowerRolvane.SetCaption(QString("1615"));
    use.form.lblExpAverage.SetCaption(QString("70"));
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

TEST(Controls, StandWhollyInAWindowThatFitsTheScreen) {
    const struct {
        QSize available, window;
        bool scrollsDown, scrollsAside;
    } cases[] = {
        {{1920, 1080}, {1030, 704}, false, false}, {{1030, 741}, {1030, 704}, false, false},
        {{1366, 720}, {1030, 683}, false, false},  {{1366, 696}, {1044, 659}, true, false},
        {{1280, 648}, {1044, 611}, true, false},   {{1024, 768}, {1024, 704}, false, false},
        {{1024, 696}, {1024, 659}, true, false},   {{800, 600}, {800, 563}, true, true},
    };
    for (const auto& [available, window, scrollsDown, scrollsAside] : cases) {
        SCOPED_TRACE(available.width() * 10000 + available.height());
        const WindowInUse use(
            Russian, [](const QString&) {}, available);
        EXPECT_EQ(use.window->size(), window);
        EXPECT_EQ(use.window->minimumSize(), use.window->maximumSize());
        const auto& scroll = use.Find<QScrollArea>("Tablus.Scroll");
        EXPECT_EQ(scroll.verticalScrollBar()->isVisible(), scrollsDown);
        EXPECT_EQ(scroll.horizontalScrollBar()->isVisible(), scrollsAside);
        for (const Control* control : use.form.Controls()) {
            const QWidget* widget = use.window->WidgetOf(*control);
            if (widget == nullptr || widget->isWindow())
                continue;
            EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << control->Name().toStdString();
        }
    }
}

} // namespace

} // namespace Hesperin
