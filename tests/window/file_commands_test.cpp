// The file commands through the real dialogs, and a whole job from the first field to the opened
// file.
#include "window/agreement.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

void ExpectBox(const BoxAnswers::Box& box, QMessageBox::Icon icon, const QString& title, const QString& text) {
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.text, text);
}

/// Fills in a creature whose figures are known: power 137, experience 12, growth 16, cost 58.
void FillIn(const WindowInUse& use) {
    const struct {
        const char* field;
        const char* text;
    } entries[] = {
        {"txtNC", "frost_Drake"}, {"txtAttack", "4"}, {"txtDefence", "3"},
        {"txtMinDam", "2"},       {"txtMaxDam", "3"}, {"txtHealth", "10"},
    };
    use.ShowPage(0);
    for (const auto& entry : entries)
        use.Type(entry.field, entry.text);
    use.Choose("ComboTier", 1);
}

TEST(FileCommands, AWholeJobFromTheFirstFieldToTheOpenedFile) {
    const struct {
        Language language;
        const char* warning;
        const char* advice;
        const char* calculated; // titles, behind the version
        const char* opened;
        const char* offered; // name of the file
    } cases[] = {
        {English, "Warning!", "It is recommended to lower tier from 2 to 1",
         " [Creature: Test, Power=0{137}, Experience=0{12}, Growth=0{16}, Gold=0{58}]",
         " [Creature: Frost_drake, Power=137{137}, Experience=12{12}, Growth=16{16}, Gold=58{58}]",
         "Creature_{Creature's item in TCX Project}"},
        {Russian, "Внимание!", "Рекомендуется снизить уровень от 2 до 1",
         " [Существо: Test, Сила=0{137}, Опыт=0{12}, Прирост=0{16}, Золото=0{58}]",
         " [Существо: Frost_drake, Сила=137{137}, Опыт=12{12}, Прирост=16{16}, Золото=58{58}]",
         "Creature_{Номер существа в проекте TCX}"},
    };
    for (const auto& test : cases) {
        WindowInUse use(test.language);
        const QString start = "TALMIR v0.0.0.44";
        FillIn(use);
        use.ShowPage(1);
        use.ClickBox("Abilities(29)");
        use.ClickBox("Abilities(164)");
        use.ShowPage(2);
        use.ClickBox("Spells(46)");
        use.ClickOption("soq(46)", 3);
        use.ShowPage(0);
        use.Type("txtMana", "7");

        use.Press("cmdCalc");
        ASSERT_EQ(use.answers.boxes.size(), 1U);
        ExpectBox(use.answers.boxes[0], QMessageBox::Information, test.warning, test.advice);
        EXPECT_EQ(use.window->windowTitle(), start + test.calculated);
        EXPECT_EQ(use.Find<QLabel>("lblPowerRolvane").text(), "129");
        EXPECT_EQ(use.Find<QLabel>("lblCostAverage").text(), "58");

        use.Type("txtPower", "137");
        use.Type("txtExp", "12");
        use.Type("txtGoldf", "58");
        const QString path = use.Path("Creature_183.xdb");
        use.answers.paths = {path, path};
        use.Pick({"mnuFile", "mnuSave"});
        EXPECT_EQ(use.answers.offeredNames.value(0), test.offered);
        const QString saved = QString::fromUtf8(ReadAll(path));
        EXPECT_TRUE(saved.contains("<SpellPoints>7</SpellPoints>"));
        use.ShowPage(4);
        EXPECT_EQ(use.Find<QPlainTextEdit>("RTBData").toPlainText() + "\r\n", saved);
        EXPECT_EQ(use.Find<QTabBar>("Tablus.Bar").tabToolTip(4), path);

        use.Press("cmdResetAll");
        EXPECT_EQ(use.window->windowTitle(), start);
        EXPECT_FALSE(use.Find<QAction>("mnuSave").isEnabled());
        EXPECT_EQ(use.Find<QTabBar>("Tablus.Bar").currentIndex(), 0);
        EXPECT_EQ(use.Find<QLineEdit>("txtAttack").text(), "0");

        use.answers.boxes.clear();
        use.Pick({"mnuFile", "mnuOpen"});
        ASSERT_EQ(use.answers.boxes.size(), 1U);
        ExpectBox(use.answers.boxes[0], QMessageBox::Information, test.warning, test.advice);
        EXPECT_EQ(use.window->windowTitle(), start + test.opened);
        EXPECT_EQ(use.Find<QLineEdit>("txtNC").text(), "Frost_drake");
        EXPECT_EQ(use.Find<QLineEdit>("txtIDC").text(), "183");
        EXPECT_EQ(use.Find<QLineEdit>("txtMana").text(), "7");
        EXPECT_TRUE(use.Find<QCheckBox>("Abilities(164)").isChecked());
        EXPECT_EQ(OptionsInPicture(use.Find("soq(46)")), QList<int>{3});
        EXPECT_EQ(Disagreements(use), "");
    }
}

TEST(FileCommands, CalculateWarnsOfEachFieldInTurn) {
    const struct {
        Language language;
        const char* title;
        QStringList texts;
    } cases[] = {
        {English,
         "Warning!",
         {"Value for 'Attack' out of the range!", "Value for 'Defence' out of the range!",
          "Value for 'Health' out of the range!", "Value for 'Min damage' out of the range!",
          "Value for 'Max damage' out of the range!"}},
        {Russian,
         "Внимание!",
         {"Значение для 'Нападение' недопустимо!", "Значение для 'Защита' недопустимо!",
          "Значение для 'Ед. жизни' недопустимо!", "Значение для 'Мин. урон' недопустимо!",
          "Значение для 'Макс. урон' недопустимо!"}},
    };
    for (const auto& test : cases) {
        WindowInUse use(test.language);
        use.Press("cmdCalc");
        for (const BoxAnswers::Box& box : use.answers.boxes) {
            EXPECT_EQ(box.icon, QMessageBox::Critical);
            EXPECT_EQ(box.title, test.title);
        }
        EXPECT_EQ(use.answers.TakeTexts(), test.texts);
        EXPECT_EQ(use.Find<QLineEdit>("txtHealth").text(), "1");
        EXPECT_FALSE(use.Find<QAction>("mnuSave").isEnabled()) << "without a name";
    }
}

TEST(FileCommands, NewAsksForAName) {
    WindowInUse use;
    FillIn(use);
    use.Key(Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(use.answers.boxes.size(), 1U);
    ExpectBox(use.answers.boxes[0], QMessageBox::Critical, "Warning!",
              "Please introduce creature's name in the project TCX!");
    use.ComeForward();
    EXPECT_EQ(QApplication::focusWidget(), &use.Find("txtNC"));
    EXPECT_EQ(use.Find<QLineEdit>("txtHealth").text(), "0");
}

/// A creature that may be saved.
void Calculated(WindowInUse& use) {
    FillIn(use);
    use.Press("cmdCalc");
    use.answers.boxes.clear();
}

TEST(FileCommands, SaveRefusesAPlaceThatCannotBeWritten) {
    WindowInUse use;
    Calculated(use);
    const QString missing = use.Path("missing/drake.xdb");
    use.answers.paths = {missing, use.Path("drake")};
    use.Pick({"mnuFile", "mnuSave"});
    ASSERT_EQ(use.answers.boxes.size(), 1U);
    EXPECT_EQ(use.answers.boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(use.answers.boxes[0].title, "Warning!");
    EXPECT_TRUE(use.answers.boxes[0].text.startsWith("The file \"" + missing + "\" was not saved"));
    EXPECT_EQ(use.answers.offeredNames.size(), 2) << "it asks again";
    EXPECT_TRUE(ReadAll(use.Path("drake.xdb")).endsWith("</Creature>\r\n")) << "with its extension";
}

TEST(FileCommands, SaveGivenUpLeavesAllAsItWas) {
    WindowInUse use;
    Calculated(use);
    use.answers.paths = {use.Path("missing/drake.xdb")}; // refused, then cancelled
    use.Pick({"mnuFile", "mnuSave"});
    EXPECT_EQ(use.answers.offeredNames.size(), 2);
    EXPECT_FALSE(use.Find<QTabBar>("Tablus.Bar").isTabVisible(4));
    EXPECT_EQ(use.state.CreatureName, "Test");
    EXPECT_EQ(QDir(use.folder.path()).entryList({"*.xdb"}), QStringList());
}

TEST(FileCommands, SaveAsksBeforeItReplaces) {
    for (const bool yes : {false, true}) {
        WindowInUse use;
        Calculated(use);
        use.Write("drake.xdb", "old");
        use.answers.yes = yes;
        use.answers.paths = {use.Path("drake.xdb")};
        use.Key(Qt::Key_S, Qt::ControlModifier);
        ASSERT_EQ(use.answers.boxes.size(), 1U);
        EXPECT_TRUE(use.answers.boxes[0].text.contains("drake.xdb"));
        EXPECT_EQ(ReadAll(use.Path("drake.xdb")) != "old", yes);
    }
}

TEST(FileCommands, OpenTellsWhatIsWrongAndKeepsTheWindow) {
    WindowInUse use;
    FillIn(use);
    use.Write("broken.xdb", "<Creature><AttackSkill>5</Creature>");
    use.answers.paths = {use.Path("broken.xdb")};
    use.Key(Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(use.answers.boxes.size(), 1U);
    EXPECT_EQ(use.answers.boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(use.answers.boxes[0].title, "Warning!");
    EXPECT_TRUE(use.answers.boxes[0].text.contains(use.Path("broken.xdb")));
    EXPECT_EQ(use.Find<QLineEdit>("txtNC").text(), "frost_Drake");
    EXPECT_FALSE(use.Find<QTabBar>("Tablus.Bar").isTabVisible(4));
    EXPECT_EQ(Disagreements(use), "");
}

} // namespace

} // namespace Hesperin
