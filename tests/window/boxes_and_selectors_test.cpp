// What mouse and keys do on the pages of check boxes.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

namespace Hesperin {

namespace {

bool IsTicked(const WindowInUse& use, const QString& box) { return use.Find<QCheckBox>(box).isChecked(); }

TEST(Boxes, EachIsHitWhereItStands) {
    const struct {
        int page;
        const char* array;
        int first;
        int last;
    } pages[] = {{1, "Abilities", 1, 174}, {2, "Spells", 1, 91}, {3, "Specabilities", 1, 54}};
    for (const auto& page : pages) {
        const WindowInUse use;
        use.form.Abilities(29).SetTicked(true); // opens the page of spells
        use.ShowPage(page.page);
        for (int index = page.first; index <= page.last; ++index) {
            const QString name = QString("%1(%2)").arg(page.array).arg(index);
            const bool before = IsTicked(use, name);
            use.ClickBox(name);
            const bool takenBack = QList{65, 111, 164}.contains(index) && page.page == 1;
            EXPECT_EQ(IsTicked(use, name), takenBack ? before : !before) << name.toStdString();
        }
        EXPECT_EQ(Disagreements(use), "");
    }
}

TEST(Boxes, TheInertOneCannotBeTicked) {
    const WindowInUse use;
    use.ShowPage(3);
    use.ClickBox("Specabilities(0)");
    use.ClickOption("saz(0)", 3);
    EXPECT_FALSE(IsTicked(use, "Specabilities(0)"));
    EXPECT_EQ(OptionsInPicture(use.Find("saz(0)")), QList<int>{0});
}

TEST(Boxes, ALinkedPairMovesTogether) {
    const WindowInUse use;
    use.ShowPage(1);
    use.ClickBox("Abilities(17)");
    EXPECT_EQ(use.Find("Abilities(17)").toolTip(), "Value for this ability is 1.1");
    use.ShowPage(3);
    EXPECT_TRUE(IsTicked(use, "Specabilities(4)"));
    EXPECT_TRUE(use.Find("saz(4)").isEnabled());
    use.ClickOption("saz(4)", 3);
    use.ClickBox("Specabilities(4)");
    EXPECT_FALSE(IsTicked(use, "Abilities(17)"));
    EXPECT_EQ(use.Find("Abilities(17)").toolTip(), "1");
    EXPECT_FALSE(use.Find("saz(4)").isEnabled());
    EXPECT_EQ(OptionsInPicture(use.Find("saz(4)")), QList<int>{0});
}

TEST(Boxes, ASecondNatureIsTakenBackAtOnce) {
    const WindowInUse use;
    use.ShowPage(1);
    use.ClickBox("Abilities(164)");
    for (const char* other : {"Abilities(49)", "Abilities(65)", "Abilities(111)"}) {
        use.ClickBox(other);
        EXPECT_FALSE(IsTicked(use, other)) << other;
    }
    EXPECT_TRUE(IsTicked(use, "Abilities(164)"));
    use.ClickBox("Abilities(164)");
    use.ClickBox("Abilities(49)");
    EXPECT_TRUE(IsTicked(use, "Abilities(49)"));
}

TEST(Boxes, TheSpaceBarTicks) {
    const WindowInUse use;
    use.ShowPage(1);
    use.Find("Abilities(66)").setFocus();
    use.Key(Qt::Key_Space);
    EXPECT_TRUE(IsTicked(use, "Abilities(66)"));
    use.Key(Qt::Key_Space);
    EXPECT_FALSE(IsTicked(use, "Abilities(66)"));
}

TEST(Boxes, CasterOpensThePageOfSpellsAndItsField) {
    const WindowInUse use;
    auto& bar = use.Find<QTabBar>("Tablus.Bar");
    use.ShowPage(1);
    EXPECT_FALSE(bar.isTabVisible(2));
    use.ClickBox("Abilities(29)");
    EXPECT_TRUE(bar.isTabVisible(2));
    EXPECT_TRUE(use.Find("cmdRAS").isEnabled());
    use.ShowPage(0);
    EXPECT_TRUE(use.Find("txtMana").isEnabled());
    use.Type("txtMana", "12");
    use.ShowPage(2);
    use.ClickBox("Spells(46)");
    use.ClickOption("soq(46)", 2);
    use.ShowPage(1);
    use.ClickBox("Abilities(29)");
    EXPECT_FALSE(bar.isTabVisible(2));
    EXPECT_EQ(use.Find<QLineEdit>("txtMana").text(), "");
    EXPECT_FALSE(use.Find("txtMana").isEnabled());
    use.ClickBox("Abilities(29)");
    use.ShowPage(2);
    EXPECT_TRUE(IsTicked(use, "Spells(46)"));
    EXPECT_EQ(OptionsInPicture(use.Find("soq(46)")), QList<int>{2});
    use.Press("cmdRAS");
    EXPECT_FALSE(IsTicked(use, "Spells(46)"));
    EXPECT_EQ(Disagreements(use), "");
}

TEST(Boxes, ShooterOpensItsFields) {
    const WindowInUse use;
    const QStringList names{"txtShots", "FrameShots", "ComboRange", "FrameRange"};
    for (const bool ticked : {true, false}) {
        use.ShowPage(1);
        use.ClickBox("Abilities(147)");
        for (const QString& name : names)
            EXPECT_EQ(use.Find(name).isEnabled(), ticked) << name.toStdString();
        use.ShowPage(0);
        if (!ticked)
            continue;
        use.Type("txtShots", "8");
        use.Choose("ComboRange", 2);
        EXPECT_EQ(use.form.ComboDiapazon.Text(), "-2");
    }
    EXPECT_EQ(use.Find<QLineEdit>("txtShots").text(), "");
    EXPECT_EQ(use.Find<QComboBox>("ComboRange").currentIndex(), 0);
}

TEST(Selectors, TakeEachOptionByMouse) {
    const WindowInUse use;
    use.form.Specabilities(1).SetTicked(true);
    use.ShowPage(3);
    for (const int option : {4, 2, 0, 1, 3}) {
        use.ClickOption("saz(1)", option);
        EXPECT_EQ(use.form.saz(1).Value(), option);
        EXPECT_EQ(OptionsInPicture(use.Find("saz(1)")), QList<int>{option});
        EXPECT_FALSE(use.form.Abilities(3).Ticked());
    }
    WindowInUse::Click(use.Find("saz(1)"), WindowInUse::OptionPlace(0), Qt::RightButton);
    EXPECT_EQ(use.form.saz(1).Value(), 3) << "only the left button chooses";
    use.ClickOption("saz(5)", 2);
    EXPECT_EQ(use.form.saz(5).Value(), 0) << "the selector of an unticked box";
}

TEST(Selectors, TakeEachOptionByKeyboard) {
    const struct {
        Qt::Key key;
        int expected;
    } steps[] = {
        {Qt::Key_Right, 1}, {Qt::Key_Up, 2},   {Qt::Key_Left, 1}, {Qt::Key_End, 4}, {Qt::Key_Right, 4},
        {Qt::Key_Down, 3},  {Qt::Key_Home, 0}, {Qt::Key_Left, 0}, {Qt::Key_X, 0},
    };
    const WindowInUse use;
    use.form.Specabilities(54).SetTicked(true);
    use.ShowPage(3);
    use.Find("saz(54)").setFocus();
    for (const auto& step : steps) {
        use.Key(step.key);
        EXPECT_EQ(use.form.saz(54).Value(), step.expected) << step.key;
        EXPECT_EQ(OptionsInPicture(use.Find("saz(54)")), QList<int>{step.expected}) << step.key;
    }
}

TEST(Selectors, TellTheMeaningOfEachOption) {
    const char* const meanings[] = {"MASTERY_NONE", "MASTERY_BASIC", "MASTERY_ADVANCED", "MASTERY_EXPERT",
                                    "MASTERY_EXTRA_EXPERT"};
    for (const Language language : {English, Russian}) {
        const WindowInUse use(language);
        use.form.Specabilities(9).SetTicked(true);
        use.ShowPage(3);
        for (const char* name : {"saz(9)", "saz(10)"}) // the second is disabled
            for (int option = 0; option < 5; ++option) {
                QWidget& selector = use.Find(name);
                const QPoint place = WindowInUse::OptionPlace(option);
                QHelpEvent help(QEvent::ToolTip, place, selector.mapToGlobal(place));
                QApplication::sendEvent(&selector, &help);
                EXPECT_EQ(QToolTip::text(), meanings[option]);
            }
        use.ClickOption("saz(9)", 4);
        EXPECT_EQ(use.Find("saz(9)").accessibleDescription(), "MASTERY_EXTRA_EXPERT");
        QToolTip::hideText();
    }
}

} // namespace

} // namespace Hesperin
