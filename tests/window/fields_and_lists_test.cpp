// What mouse, keys, clipboard and wheel do to the fields and lists of the first page.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QWheelEvent>

namespace Hesperin {

namespace {

/// A caster and shooter, so that every field but the one of the number is open.
void OpenAllFields(const WindowInUse& use) {
    use.form.Abilities(29).SetTicked(true);
    use.form.Abilities(147).SetTicked(true);
}

QString TextOf(const WindowInUse& use, const QString& field) { return use.Find<QLineEdit>(field).text(); }

TEST(Fields, AreTypedIntoWhereTheCursorStands) {
    const WindowInUse use;
    use.Type("txtHealth", "13");
    use.Key(Qt::Key_Left);
    use.Key(Qt::Key_2);
    EXPECT_EQ(TextOf(use, "txtHealth"), "123");
    use.Key(Qt::Key_9);
    EXPECT_EQ(TextOf(use, "txtHealth"), "123") << "full";
    use.Key(Qt::Key_Backspace);
    use.Key(Qt::Key_4);
    EXPECT_EQ(TextOf(use, "txtHealth"), "143");
    use.Key(Qt::Key_A, Qt::ControlModifier);
    use.Key(Qt::Key_7);
    EXPECT_EQ(TextOf(use, "txtHealth"), "7") << "what is selected makes room";
    EXPECT_EQ(use.form.txtHealth.Text(), "7");
}

TEST(Fields, HaveTheirContentSelectedWhenTheyGetTheFocus) {
    const WindowInUse use;
    const auto expectTyped = [&](const char* field, const char* typed, const char* expected) {
        use.Keys(typed);
        EXPECT_EQ(TextOf(use, field), expected) << field;
    };
    WindowInUse::Click(use.Find("txtAttack"));
    expectTyped("txtAttack", "25", "25");
    use.Key(Qt::Key_Tab);
    expectTyped("txtDefence", "12", "12");
    use.ShowPage(1);
    use.ClickBox("Abilities(29)");
    use.ShowPage(0);
    expectTyped("txtMana", "12", "12");
    use.form.txtMana.SetText("0");
    expectTyped("txtMana", "1", "1");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.close();
    use.ComeForward();
    expectTyped("txtMana", "2", "12"); // goes on
    WindowInUse::Click(use.Find("txtMana"), {2, 14});
    expectTyped("txtMana", "3", "312");

    use.form.txtNC.SetText("Drakedrake");
    auto& field = use.Find<QLineEdit>("txtNC");
    const auto drag = [&](auto act, int x) {
        act(use.window->windowHandle(), field.mapTo(use.window.get(), QPoint(x, 14)));
    };
    drag([](QWindow* window, QPoint place) { QTest::mousePress(window, Qt::LeftButton, {}, place); }, 2);
    drag([](QWindow* window, QPoint place) { QTest::mouseMove(window, place); }, 40);
    drag([](QWindow* window, QPoint place) { QTest::mouseRelease(window, Qt::LeftButton, {}, place); }, 40);
    EXPECT_TRUE(QString("Drakedrak").startsWith(field.selectedText())) << "dragged over, not all";
    EXPECT_NE(field.selectedText(), "");
}

TEST(Fields, HaveNoWayRoundTheirFilter) {
    const WindowInUse use;
    auto& field = use.Find<QLineEdit>("txtAttack");
    const auto expectAfter = [&](QEvent&& event, const char* expected) {
        use.Type("txtAttack", "4");
        QApplication::sendEvent(&field, &event);
        EXPECT_EQ(field.text(), expected);
        EXPECT_EQ(use.form.txtAttack.Text(), expected);
    };
    const struct {
        Qt::KeyboardModifiers modifiers;
        QString typed;
        const char* expected;
    } keys[] = {
        {Qt::NoModifier, "x", "4"},           {Qt::KeypadModifier, "7", "47"},
        {Qt::ShiftModifier, "X", "4"},        {Qt::AltModifier, "x", "4"},
        {Qt::MetaModifier, "x", "4"},         {Qt::ControlModifier | Qt::AltModifier, "x", "4"},
        {Qt::NoModifier, QChar(0x200D), "4"}, {Qt::NoModifier, QChar(0xE000), "4"},
    };
    for (const auto& row : keys) {
        SCOPED_TRACE(testing::Message() << row.modifiers.toInt() << ' ' << row.typed.toStdString());
        expectAfter(QKeyEvent(QEvent::KeyPress, Qt::Key_unknown, row.modifiers, row.typed), row.expected);
    }
    for (const char* committed : {"x", "7", "78", "7x"}) {
        SCOPED_TRACE(committed);
        QInputMethodEvent input;
        input.setCommitString(committed);
        expectAfter(std::move(input), QString(committed) == "7" ? "47" : "4");
    }
}

TEST(Fields, LetAPastePass) {
    const WindowInUse use;
    QGuiApplication::clipboard()->setText("-12.5 drake99");
    use.Type("txtAttack", "");
    use.Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf(use, "txtAttack"), "-12.5 drake99");
    EXPECT_EQ(Disagreements(use), "");
}

TEST(Fields, LeaveNoKeyToTheWindow) {
    WindowInUse use;
    use.Type("txtNC", "Drake");
    use.Key(Qt::Key_A, Qt::ControlModifier); // not the about window
    use.Key(Qt::Key_C, Qt::ControlModifier); // not the calculator
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Drake");
    EXPECT_TRUE(use.form.frmMain.Enabled()) << "a secondary window has opened";
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        use.Key(key);
    EXPECT_TRUE(use.answers.boxes.empty());
    EXPECT_EQ(use.window->windowTitle(), "TALMIR v0.0.0.44");
}

TEST(Lists, AndFieldsLeaveTheWheelToWhatScrollsAroundThem) {
    const WindowInUse use;
    for (const char* name : {"ComboTier", "txtAttack"})
        for (const char* focused : {"txtNC", name}) {
            use.Find(focused).setFocus();
            QWidget& widget = use.Find(name);
            const QPointF place = widget.rect().center();
            QWheelEvent wheel(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            wheel.accept();
            static_cast<QObject&>(widget).event(&wheel);
            EXPECT_FALSE(wheel.isAccepted()) << name << ", focus in " << focused;
        }
    EXPECT_EQ(use.form.ComboTier.Text() + use.form.txtAttack.Text(), "10");
}

TEST(Lists, ChooseByKeyboard) {
    const struct {
        const char* list;
        Qt::Key key;
        const char* expected;
        const char* textBefore = nullptr; ///< set by the program, which leaves the index alone
    } steps[] = {
        {"ComboTier", Qt::Key_Down, "6", "5"},
        {"ComboTier", Qt::Key_PageUp, "3", "4"},
        {"ComboTier", Qt::Key_Down, "1", "40"}, // is no entry
        {"ComboTier", Qt::Key_Home, "1", "5"},  // whose index it has
        {"ComboInitiative", Qt::Key_1, "1", "20"},
        {"ComboInitiative", Qt::Key_1, "13", "12"},
        {"ComboTier", Qt::Key_End, "8"},
        {"ComboTier", Qt::Key_Up, "7"},
        {"ComboSpeed", Qt::Key_9, "9"},
        {"ComboInitiative", Qt::Key_Down, "14"},
        {"ComboFME", Qt::Key_F, "Fire"},
        {"ComboSME", Qt::Key_F, "None"}, // falls back
        {"ComboSME", Qt::Key_W, "Water"},
        {"ComboUpgrade", Qt::Key_T, "True"},
        {"ComboTTC", Qt::Key_Down, "15"},
        {"ComboFaction", Qt::Key_Home, "Haven"},
    };
    QApplication::setKeyboardInputInterval(0); // each letter begins a new search
    const WindowInUse use;
    for (const auto& step : steps) {
        use.Find(step.list).setFocus();
        if (step.textBefore != nullptr)
            dynamic_cast<ComboBox&>(*use.form.Find(step.list)).SetText(step.textBefore);
        use.Key(step.key);
        EXPECT_EQ(use.Find<QComboBox>(step.list).currentText(), step.expected) << step.list;
        EXPECT_EQ(Disagreements(use), "");
    }
}

TEST(Lists, ShowATextThatIsNoneOfTheirEntries) {
    const WindowInUse use;
    QWidget& list = use.Find("ComboSpeed");
    use.Find("txtNC").setFocus();
    const auto picture = [&] { return list.grab().toImage(); };
    const QImage atStart = picture();
    use.form.ComboSpeed.SetText("7");
    const QImage byText = picture();
    auto& dropDown = use.Find<QComboBox>("ComboSpeed");
    dropDown.showPopup();
    EXPECT_EQ(dropDown.view()->currentIndex().row(), 6) << "not the entry shown";
    dropDown.hidePopup();
    use.Choose("ComboSpeed", 6);
    EXPECT_EQ(use.form.ComboSpeed.Index(), 6) << "the entry shown was chosen";
    use.Choose("ComboSpeed", 4);
    use.form.ComboSpeed.SetText("70");
    EXPECT_NE(picture(), byText);
    use.Choose("ComboSpeed", 4); // the entry that was chosen all the time
    EXPECT_EQ(use.form.ComboSpeed.Text(), "5");
    use.Find("txtNC").setFocus();
    EXPECT_EQ(picture(), atStart);
    use.Choose("ComboSpeed", 6);
    use.Find("txtNC").setFocus();
    EXPECT_EQ(picture(), byText);
}

/// Names of the widgets that the tab key reaches, from `first` until it comes back there.
QStringList TabRound(const WindowInUse& use, const QString& first) {
    use.Find(first).setFocus();
    QStringList names;
    do {
        names.append(QApplication::focusWidget()->objectName());
        use.Key(Qt::Key_Tab);
    } while (QApplication::focusWidget()->objectName() != first && names.size() < 1000);
    return names;
}

TEST(TabKey, ReachesInReadingOrderWhatTheUserMayOperate) {
    const WindowInUse use;
    OpenAllFields(use);
    for (int index = 1; index <= 54; index += 2) {
        use.form.Spells(index).SetTicked(true);
        use.form.Specabilities(index).SetTicked(true);
    }
    use.form.Tablus.Tab(4).Switch(true);
    for (int page = 0; page < 5; ++page) {
        SCOPED_TRACE(page);
        use.ShowPage(page);
        QStringList operable{"Tablus.Bar"};
        for (const Control* control : use.form.Controls()) {
            const QWidget* widget = use.window->WidgetOf(*control);
            const bool isShown = widget != nullptr && widget->isVisible() && control->Usable();
            if (isShown && !dynamic_cast<const Frame*>(control) && !dynamic_cast<const Label*>(control) &&
                !dynamic_cast<const TabPage*>(control) && control->Name() != "Tablus")
                operable.append(control->Name());
        }
        QStringList reached = TabRound(use, "Tablus.Bar");
        if (page == 0) {
            EXPECT_EQ(reached.join(' '),
                      "Tablus.Bar txtNC txtAttack txtDefence txtMinDam txtMaxDam txtHealth ComboTier ComboSpeed "
                      "ComboInitiative ComboFaction ComboFME ComboUpgrade ComboSME txtPower txtExp txtShots "
                      "ComboRange txtGrowthf txtGoldf txtMana ComboTTC txtWoodf txtOref txtMercuryf "
                      "txtCrystalf txtSulfurf txtGemf cmdCalc cmdRAP cmdRAA cmdRAS cmdResetAll");
        }
        reached.sort();
        operable.sort();
        EXPECT_EQ(reached, operable);
    }
}

} // namespace

} // namespace Hesperin
