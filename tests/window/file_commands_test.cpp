// The file commands through the real dialogs, and a whole job from the first field to the opened
// file.
#include "window/agreement.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// Just one box came up, which this takes away; its text begins with `text`.
void ExpectBox(BoxAnswers& answers, QMessageBox::Icon icon, const QString& title, const QString& text) {
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].icon, icon);
    EXPECT_EQ(answers.boxes[0].title, title);
    EXPECT_EQ(answers.boxes[0].text.left(text.size()), text);
    answers.boxes.clear();
}

/// Fills in a creature whose figures are known: power 137, experience 12, growth 16, cost 58.
void FillIn(const WindowInUse& use) {
    const std::pair<const char*, const char*> texts[] = {{"txtNC", "frost_Drake"}, {"txtAttack", "4"},
                                                         {"txtDefence", "3"},      {"txtMinDam", "2"},
                                                         {"txtMaxDam", "3"},       {"txtHealth", "10"}};
    use.ShowPage(0);
    for (const auto& [field, text] : texts)
        use.Type(field, text);
    use.Choose("ComboTier", 1);
}

TEST(FileCommands, AWholeJobFromTheFirstFieldToTheOpenedFile) {
    WindowInUse use(Russian);
    const QString start = "TALMIR v0.0.0.44";
    const QString advice = "Рекомендуется снизить уровень от 2 до 1";
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
    ExpectBox(use.answers, QMessageBox::Information, "Внимание!", advice);
    EXPECT_EQ(use.window->windowTitle(),
              start + " [Существо: Test, Сила=0{137}, Опыт=0{12}, Прирост=0{16}, Золото=0{58}]");
    EXPECT_EQ(use.Find<QLabel>("lblPowerRolvane").text(), "129");

    use.Type("txtPower", "137");
    const QString path = use.Path("Creature_183.xdb");
    use.answers.paths = {path, path};
    use.Pick({"mnuFile", "mnuSave"});
    EXPECT_EQ(use.answers.offeredNames.value(0), "Creature_{Номер существа в проекте TCX}");
    const QString saved = QString::fromUtf8(ReadAll(path));
    EXPECT_TRUE(saved.contains("<SpellPoints>7</SpellPoints>"));
    use.ShowPage(4);
    EXPECT_EQ(use.Find<QPlainTextEdit>("RTBData").toPlainText() + "\r\n", saved);

    use.Press("cmdResetAll");
    EXPECT_EQ(use.window->windowTitle(), start);
    EXPECT_EQ(use.Find<QTabBar>("Tablus.Bar").currentIndex(), 0);
    EXPECT_EQ(use.Find<QLineEdit>("txtAttack").text(), "0");

    use.Pick({"mnuFile", "mnuOpen"});
    ExpectBox(use.answers, QMessageBox::Information, "Внимание!", advice);
    EXPECT_EQ(use.window->windowTitle(),
              start + " [Существо: Frost_drake, Сила=137{137}, Опыт=0{12}, Прирост=16{16}, Золото=0{58}]");
    EXPECT_EQ(use.Find<QLineEdit>("txtIDC").text(), "183");
    EXPECT_EQ(use.Find<QLineEdit>("txtMana").text(), "7");
    EXPECT_TRUE(use.Find<QCheckBox>("Abilities(164)").isChecked());
    EXPECT_EQ(OptionsInPicture(use.Find("soq(46)")), QList<int>{3});
    EXPECT_EQ(Disagreements(use), "");
}

TEST(FileCommands, NewAsksForAName) {
    WindowInUse use;
    FillIn(use);
    use.Key(Qt::Key_N, Qt::ControlModifier);
    ExpectBox(use.answers, QMessageBox::Critical, "Warning!", "Please introduce creature's name in the project TCX!");
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

TEST(FileCommands, SaveAsksAgainWhenAPlaceCannotBeWritten) {
    WindowInUse use;
    Calculated(use);
    const QString missing = use.Path("missing/drake.xdb");
    for (const bool givenUp : {true, false}) {
        use.answers.offeredNames.clear();
        use.answers.paths = {missing};
        if (!givenUp)
            use.answers.paths.append(use.Path("drake"));
        use.Pick({"mnuFile", "mnuSave"});
        ExpectBox(use.answers, QMessageBox::Critical, "Warning!", "The file \"" + missing + "\" was not saved");
        EXPECT_EQ(use.answers.offeredNames.size(), 2);
        EXPECT_EQ(use.Find<QTabBar>("Tablus.Bar").isTabVisible(4), !givenUp);
    }
    EXPECT_TRUE(ReadAll(use.Path("drake.xdb")).endsWith("</Creature>\r\n")) << "with its extension";
}

TEST(FileCommands, SaveAsksBeforeItReplaces) {
    const struct {
        Language start;
        const char* change; ///< of the language, after the start
        bool yes;
        const char* question;
        QStringList buttons;
    } cases[] = {{English, nullptr, false, "already exists", {"&Yes", "&No"}},
                 {Russian, nullptr, true, "уже существует", {"&Да", "&Нет"}},
                 {Russian, "mnuEnglish", false, "already exists", {"&Yes", "&No"}},
                 {English, "mnuRussian", true, "уже существует", {"&Да", "&Нет"}}};
    for (const auto& row : cases) {
        WindowInUse use(row.start);
        if (row.change != nullptr)
            use.PickLanguage(row.change);
        Calculated(use);
        use.Write("drake.xdb", "old");
        use.answers.yes = row.yes;
        use.answers.paths = {use.Path("drake.xdb")};
        use.Key(Qt::Key_S, Qt::ControlModifier);
        const QString question = use.answers.TakeTexts().join('|');
        EXPECT_TRUE(question.contains("drake.xdb") && question.contains(row.question)) << question.toStdString();
        EXPECT_EQ(use.answers.buttonTexts, row.buttons);
        EXPECT_EQ(ReadAll(use.Path("drake.xdb")) != "old", row.yes);
    }
}

TEST(FileCommands, OpenTellsWhatIsWrongAndKeepsTheWindow) {
    WindowInUse use;
    FillIn(use);
    use.Write("broken.xdb", "<Creature><AttackSkill>5</Creature>");
    use.answers.paths = {use.Path("broken.xdb")};
    use.Key(Qt::Key_O, Qt::ControlModifier);
    ExpectBox(use.answers, QMessageBox::Critical, "Warning!",
              "The file \"" + use.Path("broken.xdb") + "\" was not opened");
    EXPECT_EQ(use.Find<QLineEdit>("txtNC").text(), "frost_Drake");
    EXPECT_FALSE(use.Find<QTabBar>("Tablus.Bar").isTabVisible(4));
    EXPECT_EQ(Disagreements(use), "");
}

} // namespace

} // namespace Hesperin
