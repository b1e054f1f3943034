// Sessions with `talmir-cli table`: tests/data/table; and the walk through archives.
#include "cli/archive.h"
#include "cli/run_cli.h"
#include "creature_files/document.h"
#include "creature_files/mod.h"
#include "support/cases_file.h"
#include "support/without_rights.h"
#include "system/visit_all.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <atomic>

namespace Hesperin {

namespace {

const QString Sample = TALMIR_SOURCE_DIR "/samples/hill_peasant.xdb";

void ExpectTables(const char* cases) {
    if (!OnLinux)
        GTEST_SKIP() << "no shell";
    const QTemporaryDir folder;
    // `creature FILE [ELEMENT=TEXT]...` makes a file out of a sample, `columns` shows some of a CSV's.
    const QString words = "creature() { mkdir -p \"$(dirname \"$1\")\"; made=$1; shift; tr -d '\\r' <'" + Sample +
                          "' >\"$made\"; for set; do sed -i \"s|<${set%%=*}>[^<]*<|<${set%%=*}>${set#*=}<|\" \"$made\";"
                          " done; }\ncolumns() { cut -d, -f\"$1\" | tr '\\r' '^'; }\n";
    ExpectCases(cases, [&](QString line) {
        line.replace(QRegularExpression("(^|; )table\\b"), "\\1\"$0\" table");
        const CliOutcome outcome = RunShell(words + line, folder.path());
        return outcome.out.trimmed() + '\n' + outcome.err.trimmed() +
               (outcome.code == 0 ? "" : "\nexit code " + QString::number(outcome.code));
    });
}

TEST(Table, GoesAsTold) { ExpectTables("table/sessions.txt"); }

TEST(Table, FollowsALinkThatIsNamedAndNoOther) { ExpectTables("table/links.txt"); }

QJsonObject TableOf(const QStringList& arguments) {
    return QJsonDocument::fromJson(RunCli(QStringList{"table", "--json"} + arguments).out.toUtf8()).object();
}

TEST(Table, HasTheFiguresOfCalcWithAnyNumberOfThreads) {
    const QString samples = TALMIR_SOURCE_DIR "/samples";
    const std::pair<const char*, const char*> figures[] = {
        {"power", "Power"}, {"experience", "Exp"}, {"growth", "WeeklyGrowth"}, {"cost", "Gold"}};
    const QJsonObject table = TableOf({samples});
    EXPECT_EQ(TableOf({samples, "--jobs", "1"}), table);
    EXPECT_EQ(TableOf({samples, "--jobs", "7"}), table);
    const QStringList lines = RunCli({"calc", "--json", samples}).Lines();
    const QJsonArray rows = table["files"].toArray();
    ASSERT_EQ(rows.size(), lines.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QJsonObject calc = QJsonDocument::fromJson(lines[i].toUtf8()).object();
        for (const char* method : {"rolvane", "hesperin", "average"})
            for (const auto& [figure, element] : figures)
                EXPECT_EQ(rows[i][QString(method) + '.' + element], calc["figures"][figure][method]);
        EXPECT_EQ(rows[i]["product"], calc["ability_product"]);
        EXPECT_EQ(rows[i]["advised"], calc["advised_tier"]);
        EXPECT_EQ(rows[i]["name"], calc["name"]);
    }
}

TEST(Table, ExamplesOfItsHelpWorkFromTheTop) {
    if (!OnLinux)
        GTEST_SKIP() << "no shell";
    const QStringList examples = RunCli({"table", "--help"}).Lines().filter(QRegularExpression("^  talmir-cli table "));
    ASSERT_EQ(examples.size(), 4);
    for (QString example : examples) {
        const CliOutcome outcome =
            RunShell(example.replace("talmir-cli", "\"$0\"").remove(" >creatures.csv"), TALMIR_SOURCE_DIR);
        EXPECT_TRUE(outcome.code == 0 && outcome.err.isEmpty()) << example.toStdString() << outcome.err.toStdString();
        EXPECT_NE(outcome.out, "");
    }
}

TEST(Table, TellsAFolderThatMayNotBeReadAndGoesOn) {
    const QTemporaryDir folder;
    if (!OnLinux ||
        RunShell("chmod 755 . && mkdir -m 700 closed && cp '" + Sample + "' . && chmod 644 *.xdb", folder.path()).code)
        GTEST_SKIP() << "no shell";
    const WithoutRights nobody;
    const Mod mod({folder.path()});
    EXPECT_EQ(mod.Files().size(), 1U);
    ASSERT_EQ(mod.Refused().size(), 1U);
    EXPECT_EQ(mod.Refused()[0].path, folder.filePath("closed"));
    EXPECT_EQ(mod.Refused()[0].error.what, Error::What::NotAllowed);
}

/// What can be had of each document of a mod.
QStringList Told(const Mod& mod, qint64 limit) {
    QStringList told;
    for (const ModFile& file : mod.Files()) {
        const auto bytes = mod.Read(file, limit);
        told.append(file.path + (bytes ? '=' + QString(*bytes)
                                       : " refused " + QString::number(static_cast<int>(bytes.Why().what))));
    }
    return told;
}

TEST(Archives, LieOverFoldersAndEachOtherAndDamageStaysWithItsFile) {
    const QTemporaryDir folder;
    const auto path = [&](const QString& name) { return folder.filePath(name); };
    WriteFile(path("mod/A/One.xdb"), "folder");
    WriteFile(path("mod/A/Two.xdb"), "folder");
    WriteFile(path("mod/held.pak"), "is not looked into");
    WriteArchive(path("first.PAK"), {{"a\\ONE.xdb", "first"}, {"B/", ""}, {"B/three.XDB", "first"}, {"B/x.dds", "x"}});
    WriteArchive(path("last.h5u"), {{"b/Three.xdb", "earlier in it"}, {"b/Three.xdb", "last"}});
    const Mod mod({path("mod"), path("first.PAK"), path("last.h5u")});
    EXPECT_TRUE(mod.Refused().empty());
    EXPECT_EQ(Told(mod, 100), QStringList({"A/Two.xdb=folder", "a/ONE.xdb=first", "b/Three.xdb=last"}));
    EXPECT_TRUE(mod.Has("A/one.XDB") && mod.Has("b/X.dds") && mod.Has("Held.pak"));
    EXPECT_FALSE(mod.Has("b/y.dds") || mod.Has("B/"));
    ASSERT_NE(mod.Find("a/one.xdb"), nullptr);
    EXPECT_EQ(mod.Find("a/one.xdb")->source, 1U);
    EXPECT_EQ(mod.Find("b/x.dds"), nullptr) << "is no document";

    const QByteArray plain = "plain, with room for a fault in the middle of what stands here, 0123456789";
    WriteArchive(path("whole.pak"), {{"a.xdb", plain}, {"bomb.xdb", QByteArray(50 << 20, ' ')}});
    QByteArray bytes = ReadAll(path("whole.pak"));
    const qsizetype middle = bytes.indexOf("a.xdb") + 30;
    bytes[middle] = static_cast<char>(bytes[middle] ^ 0x55);
    WriteFile(path("fault.pak"), bytes);
    WriteArchive(path("secret.pak"), {{"secret.xdb", "x"}}, 1);
    WriteFile(path("cut.pak"), bytes.first(bytes.size() / 2));
    WriteArchive(path("dense.pak"), {{"dense.xdb", "x"}});
    bytes = ReadAll(path("dense.pak"));
    bytes[8] = bytes[bytes.indexOf("PK\1\2") + 10] = 12; // the number of the method, at both its places
    WriteFile(path("dense.pak"), bytes);
    const Mod odd({path("fault.pak"), path("cut.pak"), path("secret.pak"), path("dense.pak"), path("nowhere")});
    const auto number = [](Error::What what) { return QString::number(static_cast<int>(what)); };
    EXPECT_EQ(Told(odd, LargestCreatureFile), QStringList({"a.xdb refused " + number(Error::What::DamagedInArchive),
                                                           "bomb.xdb refused " + number(Error::What::FileTooLarge),
                                                           "dense.xdb refused " + number(Error::What::PackedOtherwise),
                                                           "secret.xdb refused " + number(Error::What::Encrypted)}));
    ASSERT_EQ(odd.Refused().size(), 2U);
    EXPECT_EQ(odd.Refused()[0].error.what, Error::What::NotAnArchive);
    EXPECT_EQ(odd.Refused()[1].error.what, Error::What::FileMissing);
}

TEST(Archives, AreReadByManyThreads) {
    const QTemporaryDir folder;
    ArchiveEntries entries;
    for (int i = 0; i < 300; ++i)
        entries.emplace_back(QString::number(i) + ".xdb", QByteArray::number(i).repeated(i));
    WriteArchive(folder.filePath("many.pak"), entries);
    const Mod mod({folder.filePath("many.pak")});
    std::atomic<int> right{0};
    VisitAll(mod.Files().size(), 8, [&](std::size_t at) {
        const int i = mod.Files()[at].path.section('.', 0, 0).toInt();
        const auto bytes = mod.Read(mod.Files()[at], 1 << 20);
        right += bytes && *bytes == QByteArray::number(i).repeated(i) ? 1 : 0;
        return true;
    });
    EXPECT_EQ(right, 300);
}

} // namespace

} // namespace Hesperin
