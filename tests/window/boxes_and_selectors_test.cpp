// What mouse and keys do on the pages of check boxes.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

namespace Hesperin {

namespace {

TEST(Boxes, EachIsHitWhereItStands) {
    const std::pair<const char*, int> pages[] = {{"Abilities", 174}, {"Spells", 91}, {"Specabilities", 54}};
    int page = 0;
    for (const auto& [array, count] : pages) {
        const WindowInUse use;
        use.form.Abilities(29).SetTicked(true); // opens the page of spells
        use.ShowPage(++page);
        for (int index = 1; index <= count; ++index) {
            const QString name = QString("%1(%2)").arg(array).arg(index);
            const auto& box = use.Find<QCheckBox>(name);
            const bool before = box.isChecked();
            use.ClickBox(name);
            const bool secondNature = page == 1 && QList{65, 111, 164}.contains(index); // taken back
            EXPECT_EQ(box.isChecked(), secondNature ? before : !before) << name.toStdString();
        }
        EXPECT_EQ(Disagreements(use), "");
    }
}

TEST(Selectors, TakeEachOptionByMouse) {
    const WindowInUse use;
    use.form.Specabilities(1).SetTicked(true);
    use.ShowPage(3);
    for (const int option : {4, 2, 0, 1, 3}) {
        use.ClickOption("saz(1)", option);
        EXPECT_EQ(use.form.saz(1).Value(), option);
        EXPECT_EQ(OptionsInPicture(use.Find("saz(1)")), QList<int>{option});
    }
    WindowInUse::Click(use.Find("saz(1)"), WindowInUse::OptionPlace(0), Qt::RightButton);
    EXPECT_EQ(use.form.saz(1).Value(), 3) << "only the left button chooses";
    use.ClickOption("saz(5)", 2);
    EXPECT_EQ(use.form.saz(5).Value(), 0) << "the selector of an unticked box";
}

TEST(Selectors, TakeEachOptionByKeyboard) {
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Right, 1}, {Qt::Key_Down, 2}, {Qt::Key_Left, 1}, {Qt::Key_End, 4}, {Qt::Key_Right, 4},
        {Qt::Key_Up, 3},    {Qt::Key_Home, 0}, {Qt::Key_Left, 0}, {Qt::Key_X, 0},
    };
    const WindowInUse use;
    use.form.Specabilities(54).SetTicked(true);
    use.ShowPage(3);
    use.Find("saz(54)").setFocus();
    for (const auto& [key, option] : steps) {
        use.Key(key);
        EXPECT_EQ(use.form.saz(54).Value(), option) << key;
        EXPECT_EQ(OptionsInPicture(use.Find("saz(54)")), QList<int>{option}) << key;
    }
}

TEST(Selectors, TellTheMeaningOfEachOption) {
    const char* const meanings[] = {"MASTERY_NONE", "MASTERY_BASIC", "MASTERY_ADVANCED", "MASTERY_EXPERT",
                                    "MASTERY_EXTRA_EXPERT"};
    const WindowInUse use(Russian); // the game's words follow no language
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

} // namespace

} // namespace Hesperin
