// Every control of the form has its widget, which shows it, in both languages; what the mouse does on the pages of
// check boxes.
#include "window/agreement.h"

#include <QHelpEvent>
#include <QToolTip>

namespace Hesperin {

namespace {

// The visible kinds: 29 frames of page 0 (two of them panels) and 20 in the panels, 19 fields, 9
// lists, 27 labels, 174 + 91 + 55 boxes, 91 + 55 selectors, 5 buttons, 28 entries of the menu bar,
// the tab control with 5 pages, the text of the file, the window.
constexpr int VisibleControls = 49 + 19 + 9 + 27 + 320 + 146 + 5 + 28 + 6 + 1 + 1;

TEST(Controls, EachHasOneWidgetThatShowsItInAnyLanguage) {
    for (const Language start : {English, Russian}) {
        const WindowInUse use(start);
        for (const Language language : {start, Russian, English, Russian}) {
            use.PickLanguage(language);
            const Agreement agreement(use);
            EXPECT_EQ(agreement.faults.join('\n'), "");
            EXPECT_EQ(agreement.compared, VisibleControls);
        }
        EXPECT_TRUE(use.Find<QAction>("mnuRussian").isChecked());
        EXPECT_EQ(use.Find<QAction>("mnuFile").text(), "&Файл");
    }
}

TEST(Controls, HaveANameForThoseWhoCannotSee) {
    const WindowInUse use;
    for (const Language language : {English, Russian}) {
        use.PickLanguage(language);
        int named = 0;
        use.ForEach<QWidget>([&](const QWidget& widget) {
            named += widget.focusPolicy() != Qt::NoFocus;
            EXPECT_TRUE(widget.focusPolicy() == Qt::NoFocus || !widget.accessibleName().isEmpty());
        });
        EXPECT_EQ(named, 19 + 9 + 320 + 146 + 5 + 1);
    }
}

TEST(Boxes, EachIsHitWhereItStands) {
    const std::pair<const char*, int> pages[] = {{"Abilities", 174}, {"Spells", 91}, {"Specabilities", 54}};
    int page = 0;
    for (const auto& [array, count] : pages) {
        const WindowInUse use;
        use.form.Abilities(29).SetTicked(true); // opens the page of spells
        use.ShowPage(++page);
        for (int index = 1; index <= count; ++index) {
            const QString name = QString("%1(%2)").arg(array).arg(index);
            const bool before = use.Ticked(name);
            use.ClickBox(name);
            const bool secondNature = page == 1 && QList{65, 111, 164}.contains(index); // taken back
            EXPECT_EQ(use.Ticked(name), secondNature ? before : !before) << name.toStdString();
        }
        EXPECT_EQ(Disagreements(use), "");
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
            const QPoint place = use.OptionPlace(option);
            QHelpEvent help(QEvent::ToolTip, place, use.Find(name).mapToGlobal(place));
            QApplication::sendEvent(&use.Find(name), &help);
            EXPECT_EQ(QToolTip::text(), meanings[option]);
        }
    use.ClickOption("saz(9)", 4);
    EXPECT_EQ(use.Find("saz(9)").accessibleDescription(), meanings[4]);
    QToolTip::hideText();
}

} // namespace

} // namespace Hesperin
