// The windows beside the main window, which lock it until they close.
#include "window/agreement.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>

namespace Hesperin {

namespace {

/// Writes the texts of BASH in both languages.
void WriteTexts(const QString& folder, const QByteArray& description) {
    const QString place = folder + "/%1/Text/Game/Creatures/Creature_abilities/Bash/Bash_";
    WriteFile(place.arg("EN") + "name.txt", "Bash");
    WriteFile(place.arg("RU") + "name.txt", "Оглушение");
    for (const char* language : {"EN", "RU"})
        WriteFile(place.arg(language) + "desc.txt", description);
}

/// The window beside the main window; null when there is none.
QDialog* Second(const WindowInUse& use) {
    for (auto* dialog : use.window->findChildren<QDialog*>())
        if (dialog->isVisible())
            return dialog;
    return nullptr;
}

void RightClick(const WindowInUse& use, const QString& box) {
    use.ShowPage(1);
    WindowInUse::Click(use.Find(box), {8, 8}, Qt::RightButton);
}

QPushButton& ButtonOf(QDialog& dialog) { return *dialog.findChild<QPushButton*>(); }

TEST(SecondaryWindows, LockTheMainWindowUntilTheyClose) {
    const QStringList about{"mnuInfo", "mnuAbout"};
    const std::pair<const char*, std::function<void(WindowInUse&)>> windows[] = {
        {"frmAbility", [](WindowInUse& use) { RightClick(use, "Abilities(16)"); }},
        {"frmAbout", [&](WindowInUse& use) { use.Pick(about); }},
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
            const QPointer<QDialog> dialog = Second(use);
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), name);
            ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
            EXPECT_FALSE(use.form.frmMain.Enabled());
            use.ShowPage(1);
            use.ClickBox("Abilities(66)");
            use.Press("cmdCalc");
            use.Key(Qt::Key_N, Qt::ControlModifier);
            EXPECT_FALSE(use.Find<QCheckBox>("Abilities(66)").isChecked());
            EXPECT_TRUE(use.answers.boxes.empty()) << "a command ran behind the window";

            ASSERT_FALSE(dialog.isNull());
            close(*dialog);
            EXPECT_TRUE(use.form.frmMain.Enabled());
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isNull(); })) << "not unloaded";
            for (const bool ticked : {true, false}) {
                use.ClickBox("Abilities(66)");
                EXPECT_EQ(use.Find<QCheckBox>("Abilities(66)").isChecked(), ticked);
            }
        }
}

TEST(AbilityWindow, TellsTheAbilityInTheCurrentLanguage) {
    WindowInUse use(English, [](const QString& folder) { WriteTexts(folder, "Stuns."); });
    use.PickLanguage("mnuRussian");
    RightClick(use, "Abilities(16)");
    EXPECT_FALSE(use.Find<QCheckBox>("Abilities(16)").isChecked());
    QDialog* dialog = Second(use);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), "ABILITY_BASH");
    EXPECT_EQ(dialog->findChild<QLabel*>("utbName")->text(), "Оглушение");
    auto* description = dialog->findChild<QTextEdit*>("utbDesc");
    EXPECT_EQ(description->toPlainText(), "Stuns.");
    EXPECT_TRUE(description->isReadOnly());
    EXPECT_EQ(dialog->findChild<QPushButton*>("cmdQuit")->text(), "Выход");
    EXPECT_EQ(dialog->width(), 10815 / 15);
}

TEST(AbilityWindow, OnlyAbilityBoxesHaveOne) {
    const WindowInUse use;
    use.ShowPage(3);
    WindowInUse::Click(use.Find("Specabilities(4)"), {8, 8}, Qt::RightButton);
    EXPECT_EQ(Second(use), nullptr);
    EXPECT_FALSE(use.Find<QCheckBox>("Specabilities(4)").isChecked());
}

TEST(AbilityWindow, GrowsWithItsTextUpToTheScreenAndLosesNoLine) {
    WindowInUse use;
    const auto open = [&](const QString& text) {
        use.form.utbD(16).SetText(text);
        RightClick(use, "Abilities(16)");
        QDialog& dialog = *Second(use);
        auto& description = *dialog.findChild<QTextEdit*>();
        EXPECT_FALSE(description.horizontalScrollBar()->isVisible());
        EXPECT_EQ(description.horizontalScrollBar()->maximum(), 0);
        const bool scrolls = description.verticalScrollBar()->isVisible();
        description.verticalScrollBar()->setValue(description.verticalScrollBar()->maximum());
        QTextCursor end(description.document());
        end.movePosition(QTextCursor::End);
        const QRect lastLine = description.cursorRect(end); // a blank may stand beside the window
        EXPECT_GE(lastLine.top(), 0) << text.toStdString();
        EXPECT_LT(lastLine.bottom(), description.viewport()->height()) << text.toStdString();
        EXPECT_LT(description.height() - lastLine.bottom(), 600 / 15) << text.toStdString();
        EXPECT_LT(ButtonOf(dialog).geometry().bottom(), dialog.height()) << "below the text, inside the window";
        const int height = dialog.height();
        EXPECT_LE(height, dialog.screen()->availableGeometry().height());
        WindowInUse::Click(ButtonOf(dialog));
        use.ComeForward();
        return std::pair(height, scrolls);
    };
    const QString line = "Strikes.\n";
    const auto [one, oneScrolls] = open("Strikes.");
    const auto [nine, nineScrolls] = open(line.repeated(8) + "Strikes.");
    EXPECT_GE(one, (2550 - 345) / 15);
    EXPECT_GE(nine - one, 8 * 600 / 15);
    EXPECT_FALSE(oneScrolls || nineScrolls);
    EXPECT_TRUE(open(line.repeated(200)).second) << "the rest can't be read";
    QString text;
    for (int word = 1; word <= 200; ++word) { // some words are wider than the window
        text += QString("gqyjfW").repeated(word % 23 == 0 ? 20 : 1).left(word % 23 == 0 ? 120 : 1 + word * 7 % 6);
        text += word % 31 == 0 ? "\n\n" : " ";
        open(text);
    }
}

TEST(AboutWindow, TellsTheProgram) {
    const WindowInUse use(Russian);
    use.Pick({"mnuInfo", "mnuAbout"});
    QDialog* dialog = Second(use);
    ASSERT_NE(dialog, nullptr);
    const auto text = [&](const char* name) { return dialog->findChild<QLabel*>(name)->text(); };
    EXPECT_EQ(dialog->windowTitle(), "О программе...");
    EXPECT_EQ(dialog->size(), QSize(8385 / 15, 5055 / 15));
    EXPECT_TRUE(text("utbInfo").startsWith("TALMIR v0.0.0.44 - "));
    EXPECT_EQ(text("utbWhatis"), "Что такое TALMIR?");
    EXPECT_TRUE(text("utbAbout").startsWith("TALMIR это сбалансированный"));
    EXPECT_EQ(ButtonOf(*dialog).text(), "Выход");
    const QImage picture = dialog->grab().toImage();
    EXPECT_EQ(picture.pixelColor(2, 2), QColor(0, 0, 128)) << "the ground";
    EXPECT_NE(picture.pixelColor(10 + 128, 40 + 128), QColor(0, 0, 128)) << "the picture";
}

TEST(StatusWindow, ShowsTheWholeOfALongText) {
    WindowInUse use;
    for (const QString& message : {QString(), QString("Saved."), QString("Word ").repeated(200)}) {
        ShowStatus(use.program, message);
        QDialog* dialog = Second(use);
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
