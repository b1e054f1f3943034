// What mouse, keys and wheel do to the fields and lists of the first page, and what is reached without the mouse.
#include "window/agreement.h"

#include <QKeySequence>
#include <QMenuBar>
#include <QWheelEvent>

namespace Hesperin {

namespace {

TEST(Fields, AreSelectedAsFarAsTheMouseIsDragged) {
    const WindowInUse use;
    use.form.txtNC.SetText("Drakedrake");
    const auto& field = use.Find<QLineEdit>("txtNC");
    QWindow* window = use.window->windowHandle();
    const auto at = [&](int x) { return field.mapTo(use.window.get(), QPoint(x, 14)); };
    QTest::mousePress(window, Qt::LeftButton, {}, at(2));
    QTest::mouseMove(window, at(40));
    QTest::mouseRelease(window, Qt::LeftButton, {}, at(40));
    EXPECT_TRUE(QString("Drakedrak").startsWith(field.selectedText()) && field.hasSelectedText());
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

TEST(Lists, AndFieldsLeaveTheWheelToWhatScrollsAroundThem) {
    const WindowInUse use;
    for (const char* name : {"ComboTier", "txtAttack"})
        for (const char* focused : {"txtNC", name}) {
            use.Focus(focused);
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

TEST(Lists, ShowATextThatIsNoneOfTheirEntries) {
    const WindowInUse use;
    auto& list = use.Find<QComboBox>("ComboSpeed");
    const auto picture = [&] {
        use.Focus("txtNC");
        return list.grab().toImage();
    };
    const QImage atStart = picture();
    use.form.ComboSpeed.SetText("7");
    const QImage byText = picture();
    list.showPopup();
    EXPECT_EQ(list.view()->currentIndex().row(), 6) << "not the entry shown";
    list.hidePopup();
    use.Choose("ComboSpeed", 6);
    EXPECT_EQ(use.form.ComboSpeed.Index(), 6) << "the entry shown was chosen";
    EXPECT_EQ(picture(), byText);
    use.Choose("ComboSpeed", 4);
    use.form.ComboSpeed.SetText("70");
    EXPECT_TRUE(picture() != byText && picture() != atStart);
    use.Choose("ComboSpeed", 4); // the entry that was chosen all the time
    EXPECT_EQ(use.form.ComboSpeed.Text(), "5");
    EXPECT_EQ(picture(), atStart);
}

TEST(Keyboard, HasALetterOfItsOwnForEachEntryOfAMenu) {
    const WindowInUse use;
    for (const Language language : {English, Russian}) {
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
    use.Focus("txtAttack");
    use.Key(Qt::Key_F10);
    const QMenu& menu = *use.Find<QAction>("mnuFile").menu();
    ASSERT_TRUE(menu.isVisible());
    for (int steps = 0; steps < 2; ++steps) // the menu, then the bar
        use.Key(Qt::Key_Escape);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(use.Find("txtAttack").hasFocus());
}

TEST(Keyboard, LeadsFromTheTabsThroughThePageToTheButtonsAndShowsWhereItIs) {
    const QString parameters = "txtNC txtAttack txtDefence txtMinDam txtMaxDam txtHealth ComboTier ComboSpeed "
                               "ComboInitiative ComboFaction ComboFME ComboUpgrade ComboSME txtPower txtExp txtShots "
                               "ComboRange txtGrowthf txtGoldf txtMana ComboTTC txtWoodf txtOref txtMercuryf "
                               "txtCrystalf txtSulfurf txtGemf";
    const std::pair<QString, const char*> ends[] = {{parameters, "txtGemf"},
                                                    {"Abilities(1)", "Abilities(174)"},
                                                    {"soq(1) Spells(1) Spells(2)", "Spells(91)"},
                                                    {"saz(1) Specabilities(1) Specabilities(2)", "Specabilities(54)"},
                                                    {"RTBData", "RTBData"}};
    const QString buttons = "cmdCalc cmdRAP cmdRAA cmdRAS cmdResetAll Tablus.Bar";
    const WindowInUse use(English, {}, {1280, 648});
    for (const int ability : {29, 147}) // a caster and shooter has every field open but the one of the number
        use.form.Abilities(ability).SetTicked(true);
    for (int index = 1; index <= 54; index += 2) {
        use.form.Spells(index).SetTicked(true);
        use.form.Specabilities(index).SetTicked(true);
    }
    use.form.Tablus.Tab(4).Switch(true);
    int page = 0;
    for (const auto& [first, last] : ends) {
        use.Bar().setCurrentIndex(page++);
        use.Focus("Tablus.Bar");
        QStringList way;
        do {
            use.Key(Qt::Key_Tab);
            const QWidget& focus = *QApplication::focusWidget();
            way.append(focus.objectName());
            EXPECT_EQ(focus.visibleRegion().boundingRect(), focus.rect()) << way.last().toStdString();
        } while (way.last() != "Tablus.Bar" && way.size() < 400);
        EXPECT_TRUE(way.join(' ').startsWith(first + ' ')) << way.join(' ').toStdString();
        EXPECT_TRUE(way.join(' ').endsWith(last + (' ' + buttons))) << way.join(' ').toStdString();
        use.Focus("cmdCalc");
        use.Key(Qt::SHIFT | Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), last);

        QStringList operable{"Tablus.Bar"};
        use.ForEach<QWidget>([&](const QWidget& widget) {
            if (widget.isVisible() && widget.isEnabled() && widget.focusPolicy() != Qt::NoFocus)
                operable.append(widget.objectName());
        });
        way.sort();
        operable.sort();
        EXPECT_EQ(way, operable);
    }
}

} // namespace

} // namespace Hesperin
