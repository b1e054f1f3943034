// The windows beside the main window, which lock it until they close.
#include "window/agreement.h"

#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>

namespace Hesperin {

namespace {

QPushButton& ButtonOf(QDialog& dialog) { return *dialog.findChild<QPushButton*>(); }

TEST(SecondaryWindows, LockTheMainWindowUntilTheyClose) {
    const std::pair<const char*, std::function<void(WindowInUse&)>> windows[] = {
        {"frmAbility", [](WindowInUse& use) { use.ClickBox("Abilities(16)", Qt::RightButton); }},
        {"frmAbout",
         [](WindowInUse& use) {
             use.Pick({"mnuInfo", "mnuAbout"});
         }},
        {"frmStatus", [](WindowInUse& use) { ShowStatus(use.program, "Done."); }},
    };
    const std::pair<const char*, void (*)(QDialog&)> closings[] = {
        {"button", [](QDialog& dialog) { WindowInUse::Click(ButtonOf(dialog)); }},
        {"Return", [](QDialog& dialog) { QTest::keyClick(dialog.windowHandle(), Qt::Key_Return); }},
        {"Escape", [](QDialog& dialog) { QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape); }},
        {"window manager", [](QDialog& dialog) { dialog.windowHandle()->close(); }},
    };
    WindowInUse use;
    use.ShowPage(1);
    for (const auto& [name, open] : windows)
        for (const auto& [how, close] : closings) {
            SCOPED_TRACE(testing::Message() << name << ' ' << how);
            open(use);
            const QPointer<QDialog> dialog = use.Second();
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), name);
            ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
            EXPECT_FALSE(use.form.frmMain.Enabled());
            use.ClickBox("Abilities(66)");
            use.Press("cmdCalc");
            use.Key(Qt::CTRL | Qt::Key_N);
            EXPECT_FALSE(use.Ticked("Abilities(66)") || use.Ticked("Abilities(16)"));
            EXPECT_TRUE(use.answers.told.isEmpty()) << "a command ran behind the window";

            ASSERT_FALSE(dialog.isNull());
            close(*dialog);
            EXPECT_TRUE(use.form.frmMain.Enabled());
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isNull(); })) << "not unloaded";
            for (const bool ticked : {true, false}) {
                use.ClickBox("Abilities(66)");
                EXPECT_EQ(use.Ticked("Abilities(66)"), ticked);
            }
        }
}

TEST(AbilityWindow, GrowsWithItsTextUpToTheScreenAndLosesNoLine) {
    const WindowInUse use;
    use.ShowPage(1);
    const auto open = [&](const QString& text) {
        SCOPED_TRACE(text.toStdString());
        use.form.utbD(16).SetText(text);
        use.ClickBox("Abilities(16)", Qt::RightButton);
        QDialog& dialog = *use.Second();
        auto& description = *dialog.findChild<QTextEdit*>();
        QScrollBar& bar = *description.verticalScrollBar();
        EXPECT_EQ(description.horizontalScrollBar()->maximum(), 0);
        bar.setValue(bar.maximum());
        QTextCursor end(description.document());
        end.movePosition(QTextCursor::End);
        const QRect lastLine = description.cursorRect(end); // a blank may stand beside the window
        EXPECT_GE(lastLine.top(), 0);
        EXPECT_LT(lastLine.bottom(), description.viewport()->height());
        EXPECT_LT(description.height() - lastLine.bottom(), 600 / 15);
        EXPECT_LT(ButtonOf(dialog).geometry().bottom(), dialog.height()) << "below the text, inside the window";
        EXPECT_LE(dialog.height(), dialog.screen()->availableGeometry().height());
        const std::pair result(dialog.height(), bar.isVisible());
        WindowInUse::Click(ButtonOf(dialog));
        use.ComeForward();
        return result;
    };
    const auto [one, oneScrolls] = open("Strikes.");
    const auto [nine, nineScrolls] = open(QString("Strikes.\n").repeated(8) + "Strikes.");
    EXPECT_GE(one, (2550 - 345) / 15);
    EXPECT_GE(nine - one, 8 * 600 / 15);
    EXPECT_FALSE(oneScrolls || nineScrolls);
    EXPECT_TRUE(open(QString("Strikes.\n").repeated(200)).second) << "the rest can't be read";
    QString text;
    for (int word = 1; word <= 200; ++word) { // some words are wider than the window
        text += QString("gqyjfW").repeated(word % 23 == 0 ? 20 : 1).left(word % 23 == 0 ? 120 : 1 + word * 7 % 6);
        text += word % 31 == 0 ? "\n\n" : " ";
        open(text);
    }
}

TEST(AboutWindow, ShowsThePictures) {
    const WindowInUse use;
    use.Pick({"mnuInfo", "mnuAbout"});
    const QImage picture = use.Second()->grab().toImage();
    EXPECT_EQ(picture.size(), QSize(8385 / 15, 5055 / 15));
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(0, 0, 128)) << "the background";
    EXPECT_NE(picture.pixelColor(10 + 128, 40 + 128), QColor(0, 0, 128)) << "the picture";
}

TEST(StatusWindow, ShowsTheWholeOfALongText) {
    WindowInUse use;
    for (const QString& message : {QString(), QString("Saved."), QString("Word ").repeated(200)}) {
        ShowStatus(use.program, message);
        QDialog* dialog = use.Second();
        ASSERT_NE(dialog, nullptr);
        const auto& words = *dialog->findChild<QLabel*>("lblStatus");
        EXPECT_EQ(words.text(), message);
        EXPECT_GE(words.height(), words.heightForWidth(words.width()));
        EXPECT_TRUE(dialog->rect().contains(words.geometry()));
        EXPECT_FALSE(words.geometry().intersects(ButtonOf(*dialog).geometry()));
        QSet<QRgb> colours;
        const QImage title = dialog->grab({10, 10, 110, 50}).toImage();
        for (int pixel = 0; pixel < title.width() * title.height(); ++pixel)
            colours.insert(title.pixel(pixel % title.width(), pixel / title.width()));
        EXPECT_TRUE(colours.contains(0xFFFF0000) && colours.contains(0xFFFFFFFF)) << "the title and its shadow";
        WindowInUse::Click(ButtonOf(*dialog));
    }
}

} // namespace

} // namespace Hesperin
