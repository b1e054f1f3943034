// The pages, a file that is dropped on the window, the start of a second instance and the end.
#include "window/agreement.h"
#include "window/windowed_program.h"

#include <QDragEnterEvent>
#include <QFontDatabase>
#include <QMimeData>
#include <QProcess>
#include <QStandardPaths>

namespace Hesperin {

namespace {

const QString Sample = TALMIR_SOURCE_DIR "/samples/frost_witch.xdb";

TEST(Pages, ALongCaptionIsShortened) {
    const WindowInUse use;
    use.form.Tablus.Tab(4).SetCaption("out&dir/&"); // shown whole
    EXPECT_EQ(Disagreements(use), "");
    use.form.Tablus.Tab(4).SetCaption("/home/" + QString("long").repeated(100) + "/drake.xdb");
    EXPECT_LE(use.Bar().tabRect(4).width(), use.window->width() / 2);
    EXPECT_TRUE(use.Bar().tabText(4).endsWith(".xdb"));
}

/// What the window makes of files that are dragged over it and dropped: whether it takes them.
bool Drop(const WindowInUse& use, const QList<QUrl>& files) {
    QMimeData data;
    data.setUrls(files);
    const QPoint place = use.window->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(use.window.get(), &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(use.window.get(), &drop);
    return true;
}

TEST(Drop, OpensOneFileInAnUnlockedWindow) {
    WindowInUse use;
    const QUrl file = QUrl::fromLocalFile(Sample);
    EXPECT_FALSE(Drop(use, {}));
    EXPECT_FALSE(Drop(use, {file, file}));
    EXPECT_FALSE(Drop(use, {QUrl("http://localhost/frost_witch.xdb")}));
    EXPECT_TRUE(Drop(use, {file}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return use.form.Tablus.Tab(4).On(); }));
    EXPECT_EQ(use.Text("txtNC"), "Frost_witch");
    EXPECT_EQ(Disagreements(use), "");
    ShowStatus(use.program, "Wait.");
    EXPECT_FALSE(Drop(use, {file}));
}

TEST(Start, OpensTheFileThatItIsGiven) {
    BoxAnswers answers;
    EarlyStart early;
    WindowedProgram program(early);
    ASSERT_TRUE(program.Start(Sample));
    EXPECT_TRUE(QTest::qWaitFor([] {
        const QWidget* front = QApplication::activeWindow();
        return front != nullptr && front->windowTitle().contains("Frost_witch");
    }));
}

/// What a title bar needs for a title in bold, with an icon and three buttons.
int WidthOfTitle(const QString& title) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(title) + 4 * 32;
}

TEST(Quit, AsksAndEndsOnlyAfterAYes) {
    const QStringList menu{"mnuFile", "mnuQuit"};
    const std::function<void(const WindowInUse&)> ways[] = {
        [&](const WindowInUse& use) { use.Pick(menu); },
        [](const WindowInUse& use) { use.Key(Qt::CTRL | Qt::Key_Q); },
        [](const WindowInUse& use) { use.window->windowHandle()->close(); },
    };
    for (const auto& quit : ways) {
        SCOPED_TRACE(&quit - ways);
        WindowInUse use;
        use.PickLanguage(Russian);
        for (const bool yes : {false, true}) {
            use.answers.yes = yes;
            use.answers.told.clear();
            EXPECT_EQ(Ends([&] { quit(use); }), yes);
            const QString title = "Выход из программы"; // asked once
            EXPECT_EQ(use.answers.told.join('\n'), "Question|" + title + "|Вы хотите выйти?|Да Нет");
            EXPECT_GE(use.answers.width, WidthOfTitle(title));
            EXPECT_EQ(ReadAll(use.Path("lang.ini")), yes ? "RU" : "EN");
            EXPECT_TRUE(yes || use.window->isVisible());
        }
    }
}

/// Starts the program itself without a display, unless `platform` names one.
void StartProgram(QProcess& process, const QStringList& arguments, const QString& platform = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    if (!platform.isEmpty())
        environment.insert("QT_QPA_PLATFORM", platform);
    process.setProcessEnvironment(environment);
    process.start(TestedProgram("talmir"), arguments);
}

TEST(CommandLine, AnswersWithoutADisplay) {
    const std::pair<QStringList, const char*> cases[] = {// exit code, output and complaint, as they begin
                                                         {{"--version"}, "0 TALMIR v0.0.0.44\n|"},
                                                         {{"-h"}, "0 Usage: talmir [FILE]\n"},
                                                         {{"--bogus"}, "2 |talmir: '--bogus'"},
                                                         {{"a.xdb", "b.xdb"}, "2 |talmir: 'b.xdb'"}};
    for (const auto& [arguments, expected] : cases) {
        QProcess process;
        StartProgram(process, arguments);
        ASSERT_TRUE(process.waitForFinished());
        const QString answer = QString("%1 %2|%3")
                                   .arg(process.exitCode())
                                   .arg(process.readAllStandardOutput(), process.readAllStandardError());
        EXPECT_TRUE(answer.startsWith(expected)) << answer.toStdString();
    }
}

TEST(SecondInstance, IsRefusedInTheLanguageOfTheUserWhileTheFirstRuns) {
    QProcess first;
    StartProgram(first, {}, "offscreen");
    const QString lock =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/talmir/talmir.lock";
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo(lock).size() > 0; }, 20000));

    const QTemporaryDir folder;
    WriteFile(folder.filePath("lang.ini"), "RU\r\n");
    BoxAnswers answers;
    PlatformInFolder platform(folder.path());
    Program second(platform);
    EXPECT_FALSE(Form_Load(second));
    EXPECT_TRUE(second.form.ComboTier.Items().isEmpty()) << "it has set itself up";
    const QString told = "Critical|Внимание!|Нельзя запускать эту программу дважды!";
    EXPECT_EQ(answers.told.join('\n'), told);

    first.kill(); // leaves its lock behind
    ASSERT_TRUE(first.waitForFinished());
    EXPECT_TRUE(QFile::exists(lock));
    EXPECT_EQ(QString(first.readAllStandardError()), "") << "the terminal stays clean";
    Program third(platform);
    EXPECT_TRUE(Form_Load(third));
    EXPECT_EQ(answers.told.join('\n'), told);
}

} // namespace

} // namespace Hesperin
