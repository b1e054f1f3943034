// What is left of a program that was cut off, and what the next one makes of it.
#include "creature_files/document.h"
#include "window/agreement.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace Hesperin {

namespace {

constexpr const char* DataVariable = "TALMIR_TEST_DATA";
constexpr const char* File = "<Creature><Health>30</Health><Gold>5</Gold></Creature>";

/// The folder in which the programs of a test keep their copies.
struct Recovery : testing::Test {
    Recovery() { qputenv(DataVariable, data.path().toUtf8()); }
    ~Recovery() override { qunsetenv(DataVariable); }

    QString Copy() const { return data.filePath("recovery.json"); }
    bool Kept() const {
        return QTest::qWaitFor([this] { return QFile::exists(Copy()); }, 20000);
    }

    /// A program that was cut off after these acts: its window goes, and its copy stays.
    template <typename Acts>
    void CutOff(Acts acts) const {
        WindowInUse use;
        acts(use);
        ASSERT_TRUE(Kept());
        QTest::qWait(50); // it is written
    }

    const QTemporaryDir data;
    const QString file = data.filePath("Creature_200.xdb");
};

/// Not a test by itself: the process that is killed.
TEST(RecoveryVictim, TypesAndWaits) {
    if (!qEnvironmentVariableIsSet("TALMIR_TEST_VICTIM"))
        GTEST_SKIP() << "runs in a process of its own";
    const WindowInUse use;
    use.form.frmMain.Drop(qEnvironmentVariable("TALMIR_TEST_VICTIM"));
    use.Type("txtAttack", "17");
    use.ShowPage(1);
    use.ClickBox("Abilities(66)");
    QTest::qWait(60000);
}

TEST_F(Recovery, AKilledProgramsCreatureIsOfferedAndShownAsOneStep) {
    WriteFile(file, File);
    QProcess victim;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TALMIR_TEST_VICTIM", file);
    for (const char* folder : {"TMPDIR", "TEMP"}) // what it leaves behind goes with `data`
        environment.insert(folder, data.path());
    victim.setProcessEnvironment(environment);
    victim.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=RecoveryVictim.*"});
    ASSERT_TRUE(Kept());
    QTest::qWait(50);
    {
        const WindowInUse beside; // while the first still runs
        beside.form.txtNC.Edit("other");
        QTest::qWait(2500);
        EXPECT_EQ(beside.answers.told, QStringList());
        EXPECT_FALSE(ReadAll(Copy()).contains("other")) << "another's copy was touched";
    }
    victim.kill();
    ASSERT_TRUE(victim.waitForFinished());

    const WindowInUse use;
    EXPECT_EQ(use.answers.told.value(0).section('|', 0, 1), "Question|Restore");
    EXPECT_EQ(use.answers.told.size(), 1) << use.answers.told.join('\n').toStdString();
    EXPECT_EQ(use.Text("txtAttack") + ' ' + use.Text("txtHealth"), "17 30");
    EXPECT_TRUE(use.form.Abilities(66).Ticked() && use.form.mnuUpdate.Enabled());
    EXPECT_EQ(use.form.frmMain.Caption(), "TALMIR v0.0.0.44 [Creature: Test, Power=0, Experience=0, Growth=0, Cost=5]");
    EXPECT_EQ(use.form.RTBData.Text(), LoadCreatureDocument(file)->text);
    EXPECT_EQ(Disagreements(use), "");
    use.form.mnuUpdate.Click();
    EXPECT_TRUE(ReadAll(file).contains("<AttackSkill>17</AttackSkill>")) << ReadAll(file).toStdString();
    use.form.mnuUndo.Click();
    EXPECT_EQ(use.Text("txtAttack") + use.form.frmMain.Caption(), "0TALMIR v0.0.0.44");
    EXPECT_FALSE(use.form.mnuUpdate.Enabled() || use.form.mnuUndo.Enabled());
}

TEST_F(Recovery, OfAFileThatHasChangedSinceTellsSoAndLeavesItAlone) {
    WriteFile(file, File);
    CutOff([&](WindowInUse& use) {
        use.form.frmMain.Drop(file);
        use.Type("txtAttack", "17");
    });
    WriteFile(file, QByteArray(File).replace("30", "31"));
    const WindowInUse use(Russian);
    ASSERT_EQ(use.answers.told.size(), 2);
    EXPECT_EQ(use.answers.told[0].section('|', 1), "Восстановление|В прошлый раз TALMIR завершилась аварийно. "
                                                   "Восстановить существо, которое было в её окне?|&Да &Нет");
    EXPECT_TRUE(use.answers.told[1].contains("Существо восстановлено без него")) << use.answers.told[1].toStdString();
    EXPECT_EQ(use.Text("txtAttack") + ' ' + use.Text("txtHealth"), "17 30");
    EXPECT_FALSE(use.form.mnuUpdate.Enabled() || use.form.Tablus.At(Page::File).On());
}

TEST_F(Recovery, IsOfferedNeitherAfterAnOrderlyEndNorForWhatAFileHolds) {
    WriteFile(file, File);
    {
        WindowInUse use;
        use.form.frmMain.Drop(file);
        QTest::qWait(2500);
        EXPECT_FALSE(QFile::exists(Copy())) << "the file holds all of it";
        use.PickLanguage(Russian);
        use.Type("txtAttack", "17");
        EXPECT_TRUE(Kept());
        EXPECT_TRUE(Ends([&] { use.window->close(); }));
    }
    EXPECT_FALSE(QFile::exists(Copy()));
    const WindowInUse use;
    EXPECT_EQ(use.answers.told, QStringList());
}

TEST_F(Recovery, HostileCopiesAreToldAndPutAside) {
    CutOff([](WindowInUse& use) {
        use.Type("txtAttack", "17");
        for (const int ability : {29, 147})
            use.form.Abilities(ability).SetTicked(true);
        use.form.Spells(46).SetTicked(true);
    });
    const QByteArray good = ReadAll(Copy());
    const auto changed = [&](std::initializer_list<const char*> path, const QJsonValue& value) {
        QJsonObject whole = QJsonDocument::fromJson(good).object();
        QJsonObject creature = whole["creature"].toObject();
        const bool inside = path.size() == 2;
        (inside ? creature : whole)[QLatin1String(*(path.end() - 1))] = value;
        if (inside)
            whole["creature"] = creature;
        return QJsonDocument(whole).toJson();
    };
    const QByteArray hostile[] = {
        "",
        "{",
        "[]",
        QByteArray(3000, '['),
        QByteArray("\0\xff\xfe", 3),
        good.left(good.size() / 2),
        QByteArray(2 << 20, ' ') + good,
        changed({"version"}, 2),
        changed({"version"}, "1"),
        changed({"name"}, 5),
        changed({"figures"}, QJsonArray{1, 2, 3}),
        changed({"figures"}, QJsonArray{1, 2, 3, 32768}),
        changed({"figures"}, QJsonArray{1, 2, 3, "4"}),
        changed({"creature"}, QJsonArray()),
        changed({"path"}, file), // without the creature as it was opened
        changed({"creature", "Name"}, 5),
        changed({"creature", "Numbers"}, QJsonArray{"1", "2"}),
        changed({"creature", "Choices"}, QJsonValue()),
        QByteArray(good).replace("[\n                8,", "[ 9,"), // the last of the factions
        changed({"creature", "Abilities"}, QJsonArray{0}),
        changed({"creature", "Abilities"}, QJsonArray{175}),
        changed({"creature", "Abilities"}, QJsonArray{1.5}),
        changed({"creature", "Spells"}, QJsonArray{QJsonArray{46, 5}}),
        changed({"creature", "Spells"}, QJsonArray{QJsonArray{92, 1}}),
        changed({"creature", "Specabilities"}, QJsonArray{QJsonArray{}}),
        changed({"creature", "SpellPoints1Count"}, 1e300),
    };
    for (const QByteArray& bytes : hostile) {
        SCOPED_TRACE(bytes.left(300).toStdString());
        WriteFile(Copy(), bytes);
        const WindowInUse use;
        EXPECT_TRUE(
            use.answers.told.value(use.answers.told.size() - 1).startsWith("Information|Warning!|What was kept"));
        EXPECT_EQ(use.Text("txtAttack"), "0");
        EXPECT_EQ(ReadAll(data.filePath("recovery.old.json")), bytes);
        EXPECT_FALSE(QFile::exists(Copy()));
    }
    WriteFile(Copy(), good);
    {
        const WindowInUse use;
        EXPECT_EQ(use.Text("txtAttack") + QString::number(use.form.Spells(46).Ticked()), "171");
        EXPECT_TRUE(use.form.txtShots.Enabled() && use.form.Tablus.At(Page::Spells).On());
    }
    QFile::remove(data.filePath("recovery.old.json"));
    QDir().mkpath(data.filePath("recovery.old.json/inside")); // so that nothing can be put aside
    WriteFile(Copy(), "{");
    {
        const WindowInUse use;
        EXPECT_TRUE(use.answers.told.constLast().contains(Copy())) << use.answers.told.join('\n').toStdString();
    }
    QFile::remove(Copy());
    QDir().mkpath(Copy()); // a folder of that name
    const WindowInUse use;
    EXPECT_EQ(use.answers.told.size(), 1);
}

} // namespace

} // namespace Hesperin
