// The windows that explain results and find values, beside the main window.
#include "form/form_lists.h"
#include "window/agreement.h"
#include "window/explanation_window.h"
#include "window/solve_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>

namespace Hesperin {

namespace {

/// A window with a creature of an average Power of 137.
struct Computed : WindowInUse {
    explicit Computed(Language language = English) : WindowInUse(language) {
        const std::pair<const char*, const char*> fields[] = {
            {"txtAttack", "4"}, {"txtDefence", "3"}, {"txtMinDam", "2"}, {"txtMaxDam", "3"}, {"txtHealth", "10"}};
        for (const auto& [field, value] : fields)
            Type(field, value);
        form.ComboTier.Select(1);
        Press("cmdCalc");
        answers.told.clear();
    }

    /// The window of that name, which is up.
    QWidget& Beside(const QString& name) const {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == name && top->isVisible() && QTest::qWaitForWindowExposed(top))
                return *top;
        qFatal("no %s", qPrintable(name));
    }

    /// A key of that window itself.
    static void KeyIn(QWidget& window, QKeyCombination keys) {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window did not come forward");
        QTest::keyClick(window.windowHandle(), keys.key(), keys.keyboardModifiers());
    }

    template <typename T>
    static T& In(const QWidget& holder, const QString& name) {
        auto* found = holder.findChild<T*>(name);
        if (found == nullptr)
            qFatal("no %s", qPrintable(name));
        return *found;
    }
};

QString Clipboard() { return QGuiApplication::clipboard()->text(); }

TEST(ExplanationWindow, OpensAtTheResultThatIsDoubleClickedAndFollowsCalculate) {
    Computed use;
    for (const ResultRow& row : ResultRows) {
        QWidget& label = use.Find((use.form.*row.place.label).Name());
        QTest::mouseDClick(use.window->windowHandle(), Qt::LeftButton, {},
                           label.mapTo(use.window.get(), label.rect().center()));
        const auto& figures = use.In<QComboBox>(use.Beside("ExplanationWindow"), "ExplanationFigure");
        EXPECT_EQ(figures.currentText().toStdString(), label.accessibleName().toStdString());
    }
    EXPECT_TRUE(use.form.frmMain.Enabled()) << "it locks nothing";

    use.state.explained = {Method::Average, Figure::Power};
    use.KeyIn(*use.window, Qt::Key_F2);
    QWidget& window = use.Beside("ExplanationWindow");
    const auto& text = use.In<QTextBrowser>(window, "ExplanationText");
    const auto shows = [&](const char* words) {
        return QTest::qWaitFor([&] { return text.toPlainText().contains(words); });
    };
    EXPECT_TRUE(shows("= 137.5 → 137")) << text.toPlainText().toStdString();
    EXPECT_FALSE(text.toPlainText().contains("Gold"));
    const QImage before = use.In<QWidget>(window, "TierBands").grab().toImage();
    use.Type("txtHealth", "450");
    use.Press("cmdCalc");
    EXPECT_TRUE(shows("\"450\" → 400 (1 to 400 is allowed)"));
    EXPECT_NE(use.In<QWidget>(window, "TierBands").grab().toImage(), before) << "the mark has moved";
    use.PickLanguage(Russian);
    EXPECT_TRUE(shows("Исходные данные"));
    EXPECT_EQ(window.windowTitle(), "Как это получено?");
    use.Pick({"mnuFile", "mnuNew"});
    EXPECT_TRUE(shows("Пока ничего не вычислено"));
    EXPECT_FALSE(use.In<QWidget>(window, "ExplanationCopy").isEnabled());
    use.KeyIn(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST(ExplanationWindow, CopiesWhatItShows) {
    const Computed use;
    use.Pick({"mnuBalance", "mnuExplain"});
    QWidget& window = use.Beside("ExplanationWindow");
    auto& figures = use.In<QComboBox>(window, "ExplanationFigure");
    figures.setCurrentIndex(figures.count() - 1); // all
    auto& text = use.In<QTextBrowser>(window, "ExplanationText");
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(Clipboard().startsWith("Test, tier 2") && Clipboard().contains("Weekly growth"));
    use.KeyIn(window, Qt::ALT | Qt::Key_M);
    EXPECT_TRUE(QTest::qWaitFor([] { return Clipboard().startsWith("# Test, tier 2"); })) << "a button springs back";
    EXPECT_TRUE(Clipboard().contains("\n| "));
    figures.setCurrentIndex(0);
    WindowInUse::Click(use.In<QWidget>(window, "ExplanationCopy"));
    EXPECT_FALSE(Clipboard().contains("Weekly growth")) << "one figure";
    text.selectAll();
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(Clipboard().contains("Advised tier")) << "the selection alone";
}

TEST(TierBands, StandInOrderAndFillTheStrip) {
    double last = 0;
    for (const double power : {1.0, 60.0, 151.0, 152.0, 259.0, 4697.0, 6500.0, 6501.0, 9000.0, 40000.0, 1e9}) {
        const double place = TierBands::PlaceOf(power);
        EXPECT_GE(place, last) << power;
        EXPECT_EQ(std::min(static_cast<int>(place * 8), 7) + 1, AdviseTier(power)) << power;
        last = place;
    }
    EXPECT_LE(last, 1);
}

TEST(SolveWindow, FindsValuesAsTheGoalIsTypedAndPutsThemIntoTheirFields) {
    Computed use;
    use.Key(Qt::Key_F3);
    QWidget& window = use.Beside("SolveWindow");
    auto& table = use.In<QTableWidget>(window, "SolveTable");
    auto& goal = use.In<QLineEdit>(window, "SolveGoal");
    const auto row = [&](int at) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells.append(table.item(at, column)->text());
        return cells.join('|');
    };
    EXPECT_EQ(goal.text(), use.form.lblPowerAverage.Caption());
    EXPECT_FALSE(use.In<QWidget>(window, "SolveByScale").isEnabled()) << "no survey";
    goal.clear();
    QTest::keyClicks(&goal, "150");
    ASSERT_EQ(table.rowCount(), 7);
    EXPECT_EQ(row(4), "Health|10|11|12||not exactly: 11 gives 145, 12 gives 151");
    const QRect cell = table.visualItemRect(table.item(4, 3));
    WindowInUse::Click(*table.viewport(), cell.center());
    EXPECT_EQ(use.Text("txtHealth"), "12");
    EXPECT_EQ(use.form.lblPowerAverage.Caption(), "151");
    EXPECT_EQ(Disagreements(use), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return table.item(4, 1)->text() == "12"; })) << "follows";

    use.In<QComboBox>(window, "SolveTier").setCurrentIndex(3);
    EXPECT_EQ(goal.text(), "");
    EXPECT_EQ(table.item(2, 2)->text() + table.item(2, 3)->text(), "3") << "not above the maximum";
    table.setCurrentCell(3, 2);
    const QString value = table.item(3, 2)->text();
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(use.Text("txtMaxDam"), value);
    EXPECT_EQ(use.state.advice.AdvisedTier, 3);
    use.form.frmMain.SetEnabled(false); // as when a secondary window locks it
    table.setCurrentCell(4, 2);
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(use.Text("txtHealth"), "12");
    use.form.frmMain.SetEnabled(true);

    goal.setFocus();
    for (const char* nothing : {"x", "0", ""}) {
        goal.selectAll();
        QTest::keyClicks(&goal, nothing);
        EXPECT_TRUE(*nothing == '\0' || table.rowCount() == 0) << nothing;
    }
    use.PickLanguage(Russian);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.windowTitle() == "Подбор"; }));
    use.KeyIn(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST(TakeOver, ComputesFirstAndFillsTheFields) {
    const Computed use;
    use.Key(Qt::CTRL | Qt::Key_T);
    EXPECT_EQ(use.Text("txtPower"), use.form.lblPowerAverage.Caption());
    EXPECT_EQ(use.Text("txtGoldf"), use.form.lblCostAverage.Caption());
    EXPECT_EQ(Disagreements(use), "");
}

} // namespace

} // namespace Hesperin
