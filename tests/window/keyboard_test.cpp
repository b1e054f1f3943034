// What is reached and done without the mouse.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QKeySequence>
#include <QMenuBar>

namespace Hesperin {

namespace {

TEST(Keyboard, HasALetterOfItsOwnForEachEntryOfAMenu) {
    const WindowInUse use;
    for (const char* language : {"mnuEnglish", "mnuRussian"}) {
        use.PickLanguage(language);
        const std::function<void(const QList<QAction*>&)> expectOwn = [&](const QList<QAction*>& actions) {
            QSet<QKeySequence> letters{QKeySequence()};
            for (const QAction* action : actions) {
                const auto letter = QKeySequence::mnemonic(action->text());
                EXPECT_TRUE(action->isSeparator() || !letters.contains(letter)) << action->text().toStdString();
                letters.insert(letter);
                if (const QMenu* menu = action->menu())
                    expectOwn(menu->actions());
            }
        };
        expectOwn(use.window->menuBar()->actions());
    }
    use.form.mnuNew.SetCaption(QString("A & New"));
    EXPECT_EQ(use.Find<QAction>("mnuNew").text(), "A && &New");
}

TEST(Keyboard, OpensTheMenuBar) {
    const WindowInUse use;
    use.Find("txtAttack").setFocus();
    use.Key(Qt::Key_F10);
    const QMenu& menu = *use.Find<QAction>("mnuFile").menu();
    ASSERT_TRUE(menu.isVisible());
    for (int steps = 0; steps < 2; ++steps) // the menu, then the bar
        use.Key(Qt::Key_Escape);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(use.Find("txtAttack").hasFocus());
}

TEST(Keyboard, CalculatesWhereTheButtonCan) {
    const WindowInUse use;
    for (const bool can : {false, true}) {
        use.form.cmdCalc.SetEnabled(can);
        use.Key(Qt::Key_F5);
        EXPECT_EQ(use.form.lblPowerRolvane.Caption().isEmpty(), !can);
    }
}

TEST(Keyboard, GoesThroughThePagesThatAreOn) {
    constexpr auto both = Qt::ControlModifier | Qt::ShiftModifier;
    const struct {
        const char* focus;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int page;
    } steps[] = {
        {"txtAttack", Qt::Key_Tab, Qt::ControlModifier, 1},
        {"Abilities(9)", Qt::Key_Tab, Qt::ControlModifier, 3},
        {"saz(1)", Qt::Key_PageDown, Qt::ControlModifier, 4},
        {"RTBData", Qt::Key_Tab, Qt::ControlModifier, 0},
        {"ComboTier", Qt::Key_PageUp, Qt::ControlModifier, 4},
        {"RTBData", Qt::Key_Backtab, both, 3},
        {"cmdRAA", Qt::Key_Backtab, both, 1},
        {"cmdCalc", Qt::Key_PageUp, Qt::ControlModifier, 0},
        {"Tablus.Bar", Qt::Key_PageDown, Qt::ControlModifier, 1},
    };
    const WindowInUse use;
    use.form.Specabilities(1).SetTicked(true);
    use.form.Tablus.Tab(4).Switch(true);
    for (const auto& [focus, key, modifiers, page] : steps) {
        use.Find(focus).setFocus();
        ASSERT_TRUE(use.Find(focus).hasFocus()) << focus;
        use.Key(key, modifiers);
        EXPECT_EQ(use.Find<QTabBar>("Tablus.Bar").currentIndex(), page) << focus;
    }
}

TEST(Keyboard, LeadsFromTheTabsThroughThePageToTheButtonsAndShowsWhereItIs) {
    const std::pair<const char*, const char*> ends[] = {{"txtNC", "txtGemf"},
                                                        {"Abilities(1)", "Abilities(174)"},
                                                        {"soq(1)", "Spells(91)"},
                                                        {"Specabilities(1)", "Specabilities(54)"},
                                                        {"RTBData", "RTBData"}};
    const WindowInUse use(English, [](const QString&) {}, {1280, 648});
    use.form.Spells(1).SetTicked(true);
    for (const int page : {2, 4})
        use.form.Tablus.Tab(page).Switch(true);
    int page = 0;
    for (const auto& [first, last] : ends) {
        use.Find<QTabBar>("Tablus.Bar").setCurrentIndex(page++);
        use.Find("Tablus.Bar").setFocus();
        QStringList way;
        do {
            use.Key(Qt::Key_Tab);
            const QWidget& focus = *QApplication::focusWidget();
            way.append(focus.objectName());
            EXPECT_EQ(focus.visibleRegion().boundingRect(), focus.rect()) << way.last().toStdString();
        } while (way.last() != "Tablus.Bar" && way.size() < 400);
        EXPECT_EQ(way.first(), first);
        const auto calculate = way.indexOf("cmdCalc");
        EXPECT_EQ(way.value(calculate - 1), last);
        EXPECT_EQ(way.mid(calculate), (QStringList{"cmdCalc", "cmdRAP", "cmdRAA", "cmdResetAll", "Tablus.Bar"}));
        use.Find("cmdCalc").setFocus();
        use.Key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), last);
    }
}

} // namespace

} // namespace Hesperin
