// What the window tells of its boxes and of its file beside what its controls show.
#include "window/agreement.h"

#include "app/handlers/file_menu.h"

#include <QHelpEvent>
#include <QProcess>
#include <QStandardPaths>
#include <QToolTip>

namespace Hesperin {

namespace {

const QString Witch = TALMIR_SOURCE_DIR "/samples/frost_witch.xdb";
constexpr int Soon = 400; // milliseconds, in which a change on disk would have been seen

TEST(Finding, DimsWhatDoesNotMatchUntilItEnds) {
    const WindowInUse use;
    use.ShowPage(1);
    use.Focus("Tablus.Bar");
    const auto picture = [&](const char* name) { return use.Find(name).grab().toImage(); };
    const QImage flyer = picture("Abilities(66)");
    const QImage bash = picture("Abilities(16)");
    use.Key(Qt::CTRL | Qt::Key_F);
    use.Keys("flyer");
    EXPECT_EQ(picture("Abilities(66)"), flyer);
    EXPECT_NE(picture("Abilities(16)"), bash);
    use.Key(Qt::Key_Return);
    EXPECT_NE(picture("Abilities(66)"), flyer) << "nothing marks it";
    EXPECT_EQ(Disagreements(use), "");
    use.Key(Qt::Key_Escape);
    EXPECT_EQ(picture("Abilities(16)"), bash);
}

TEST(Boxes, TellNameAndValueBeforeTheyAreTicked) {
    const WindowInUse use(Russian);
    use.ShowPage(1);
    const auto toolTip = [&](const char* name) {
        QWidget& box = use.Find(name);
        QHelpEvent help(QEvent::ToolTip, {4, 4}, box.mapToGlobal(QPoint(4, 4)));
        QApplication::sendEvent(&box, &help);
        return QToolTip::text();
    };
    EXPECT_EQ(toolTip("Abilities(16)"), "BASH: значение 1.08");
    use.form.utbN(16).SetText("Оглушение");
    EXPECT_EQ(toolTip("Abilities(16)"), "Оглушение: значение 1.08");
    use.ClickBox("Abilities(16)");
    EXPECT_EQ(toolTip("Abilities(16)"), "Значение способности - 1.08");
    use.ClickBox("Abilities(16)");
    EXPECT_EQ(toolTip("Abilities(16)"), "Оглушение: значение 1.08");
    QToolTip::hideText();
}

/// A window that shows a file of its own.
struct WithFile : WindowInUse {
    explicit WithFile(Language language = English) : WindowInUse(language) {
        WriteFile(path, ReadAll(Witch));
        OpenSample();
    }

    void OpenSample() {
        window->OpenSoon(path);
        EXPECT_TRUE(QTest::qWaitFor([&] { return form.Tablus.Tab(4).On(); }));
        QTest::qWait(1);
    }

    bool Shows(const char* name) const {
        QTest::qWait(1);
        return Find(name).isVisible();
    }

    bool ShowsBarSoon() const {
        return QTest::qWaitFor([&] { return Find("ChangedOnDisk").isVisible(); }, 5000);
    }

    bool ShowsBarIn(int milliseconds) const {
        QTest::qWait(milliseconds);
        return Find("ChangedOnDisk").isVisible();
    }

    const QString path = Path("frost_witch.xdb");
    const QByteArray other = ReadAll(Witch).replace("<Exp>", "<Exp>1");
};

TEST(NotSaved, IsMarkedWhileTheWindowDiffersFromItsFile) {
    WithFile use;
    EXPECT_FALSE(use.Shows("NotSaved"));
    use.Type("txtHealth", "77");
    EXPECT_TRUE(use.Shows("NotSaved"));
    EXPECT_EQ(use.Find("NotSaved").toolTip(), "Not saved");
    use.answers.ownButton = "Write";
    use.Key(Qt::CTRL | Qt::Key_U);
    EXPECT_FALSE(use.Shows("NotSaved"));
    use.PickLanguage(Russian); // takes away what two lists show, and the file stays the same
    EXPECT_FALSE(use.Shows("NotSaved"));
    use.ShowPage(1);
    use.ClickBox("Abilities(16)");
    EXPECT_TRUE(use.Shows("NotSaved"));
    EXPECT_EQ(use.Find("NotSaved").toolTip(), "Не сохранено");
    use.ClickBox("Abilities(16)");
    EXPECT_FALSE(use.Shows("NotSaved"));
    use.Press("cmdRAA"); // or some special abilities would stay
    use.Press("cmdResetAll");
    EXPECT_FALSE(use.Shows("NotSaved")) << "an empty creature";
    use.form.mnuUndo.Click();
    use.form.mnuUndo.Click();
    EXPECT_FALSE(use.Shows("NotSaved")) << "the file again";
}

TEST(ChangedOnDisk, IsToldUntilTheFileIsReadAgainOrTheChangeIsKeptAside) {
    for (const bool replaced : {false, true}) {
        SCOPED_TRACE(replaced);
        WithFile use(replaced ? Russian : English);
        const auto change = [&](const QByteArray& bytes) {
            WriteFile(replaced ? use.Path("new") : use.path, bytes);
            if (replaced && std::rename(qPrintable(use.Path("new")), qPrintable(use.path)) != 0)
                ADD_FAILURE();
        };
        change(ReadAll(Witch));
        EXPECT_FALSE(use.ShowsBarIn(Soon)) << "the bytes are the same";
        change(use.other);
        EXPECT_TRUE(use.ShowsBarSoon());
        EXPECT_EQ(use.Find<QLabel>("ChangedOnDisk.Words").text(),
                  replaced ? "Файл frost_witch.xdb изменился на диске" : "frost_witch.xdb has changed on disk");
        EXPECT_TRUE(use.window->menuBar()->rect().contains(use.Find("ChangedOnDisk").geometry()));
        use.Press("ChangedOnDisk.Keep");
        change(use.other);
        EXPECT_FALSE(use.ShowsBarIn(Soon));
        change(use.other + "\n");
        EXPECT_TRUE(use.ShowsBarSoon());
        use.Press("ChangedOnDisk.Reload");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !use.Find("ChangedOnDisk").isVisible(); }));
        EXPECT_EQ(use.state.baseline->bytes, use.other + "\n");
        QFile::remove(use.path);
        QTest::qWait(Soon);
        change(use.other);
        EXPECT_TRUE(use.ShowsBarSoon()) << "it has come back as another";
        use.Press("cmdResetAll");
        EXPECT_FALSE(use.ShowsBarIn(1)) << "no file is shown any more";
        EXPECT_EQ(Disagreements(use), "");
    }
}

TEST(ChangedOnDisk, IsNotToldOfWhatThisProgramWrites) {
    WithFile use;
    use.Type("txtHealth", "77");
    use.answers.ownButton = "Write";
    use.Key(Qt::CTRL | Qt::Key_U);
    use.answers.ownButton = "Replace";
    use.answers.paths = {use.path};
    use.Key(Qt::CTRL | Qt::Key_S);
    EXPECT_NE(ReadAll(use.path), ReadAll(Witch));
    EXPECT_FALSE(use.ShowsBarIn(Soon));
    WriteFile(use.path, use.other);
    EXPECT_TRUE(use.ShowsBarSoon()) << "it isn't watched any more";
}

TEST(RecentFiles, AreOpenedFromTheMenuAndLeaveItWhenTheyAreGone) {
    WindowInUse use(English, [](const QString& folder) {
        QFile::copy(Witch, folder + "/a.xdb");
        WriteFile(folder + "/settings/recent.ini", (folder + "/gone.xdb\n" + folder + "/a.xdb\n").toUtf8());
    });
    const auto list = [&] { return QString(ReadAll(use.Path("settings/recent.ini"))).remove(use.folder.path() + '/'); };
    use.Pick({"mnuFile", "Recent(1)"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return list() == "a.xdb\n"; })) << list().toStdString();
    EXPECT_TRUE(use.answers.told.join('\n').contains("There is no such file"))
        << use.answers.told.join('\n').toStdString();
    use.ComeForward();
    use.Pick({"mnuFile", "Recent(1)"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return use.Text("txtNC") == "Frost_witch"; }));
    QFile::copy(Witch, use.Path("sub.xdb"));
    use.answers.paths = {"sub.xdb"}; // in the folder of the file used last
    use.Key(Qt::CTRL | Qt::Key_O);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list() == "sub.xdb\na.xdb\n"; })) << list().toStdString();
}

TEST(Dialogs, BeginInTheFolderUsedLastAlsoAfterARestart) {
    const QTemporaryDir other;
    QFile::copy(Witch, other.filePath("here.xdb"));
    WindowInUse use(English, [&](const QString& folder) {
        WriteFile(folder + "/settings/recent.ini", other.filePath("gone.xdb\n").toUtf8());
    });
    use.answers.paths = {"here.xdb"};
    use.Key(Qt::CTRL | Qt::Key_O);
    EXPECT_EQ(use.Text("txtNC"), "Frost_witch");
    use.answers.paths = {"saved.xdb"};
    use.Key(Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QFile::exists(other.filePath("saved.xdb")));
}

TEST(SecondStart, WaitsUntilNothingStandsInFrontOfTheWindow) {
    WindowInUse use(English, [](const QString& folder) { WriteFile(folder + "/settings/any", ""); });
    ShowStatus(use.program, "Wait.");
    use.Write("settings/talmir.open", (Witch + '\n').toUtf8());
    QTest::qWait(Soon);
    EXPECT_FALSE(QFile::exists(use.Path("settings/talmir.open")));
    EXPECT_EQ(use.Text("txtNC"), "");
    use.Second()->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return use.Text("txtNC") == "Frost_witch"; }));
}

TEST(SecondStart, HandsItsFileToTheProgramThatRuns) {
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/talmir/";
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    for (const char* name : {"a.xdb", "b.xdb"})
        QFile::copy(Witch, folder.filePath(name));
    const auto opened = [&](const char* name) {
        return QTest::qWaitFor(
            [&] { return ReadAll(settings + "recent.ini").startsWith(folder.filePath(name).toUtf8() + '\n'); }, 20000);
    };
    QProcess first;
    first.setProcessEnvironment(environment);
    first.start(TestedProgram("talmir"), {folder.filePath("a.xdb")});
    ASSERT_TRUE(opened("a.xdb"));

    QProcess second;
    second.setProcessEnvironment(environment);
    second.setWorkingDirectory(folder.path());
    second.start(TestedProgram("talmir"), {"b.xdb"});
    ASSERT_TRUE(second.waitForFinished(20000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(QString(second.readAllStandardError()), "");
    EXPECT_TRUE(opened("b.xdb"));

    first.kill();
    ASSERT_TRUE(first.waitForFinished());
    WriteFile(settings + "talmir.open", folder.filePath("a.xdb\n").toUtf8()); // left by what was killed
    QProcess third;
    third.setProcessEnvironment(environment);
    third.start(TestedProgram("talmir"), {});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(settings + "talmir.open"); }, 20000));
    QTest::qWait(Soon);
    EXPECT_TRUE(opened("b.xdb")) << "it was meant for an earlier run";
    third.kill();
    third.waitForFinished();
}

} // namespace

} // namespace Hesperin
