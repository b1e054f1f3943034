#include "cli/archive.h"
#include "cli/run_cli.h"

#include "game_texts/ability_texts.h"

#include <QDir>
#include <QRegularExpression>

namespace Hesperin {

namespace {

const QString Tree = "Text/Game/Creatures/Creature_abilities/";
constexpr int Encrypted = 1;

/// A copy of the program in a folder of its own, where it keeps its texts, and places to take them from.
struct TextsTest : testing::Test {
    TextsTest() {
        QDir(folder.path()).mkpath("program");
        qputenv("XDG_CONFIG_HOME", Path("settings").toUtf8());
        EXPECT_TRUE(QFile::copy(TestedProgram("talmir-cli"), program));
    }
    ~TextsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    using Entries = ArchiveEntries;

    QString Path(const QString& name) const { return folder.filePath(name); }

    void Write(const QString& name, const QByteArray& bytes) const { WriteFile(Path(name), bytes); }

    void WriteArchive(const QString& name, const Entries& entries, unsigned long flags = 0) const {
        Hesperin::WriteArchive(Path(name), entries, flags);
    }

    /// Takes the texts out of these places.
    CliOutcome Take(const QStringList& places, const QStringList& options = {}) const {
        return RunCli(QStringList{"texts"} + places + options, {}, folder.path(), program);
    }

    QByteArray Text(const QString& name) const { return ReadAll(Path("program/EN/" + Tree + name)); }

    QTemporaryDir folder;
    const QString program = Path(OnLinux ? "program/talmir-cli" : "program/talmir-cli.exe");
};

TEST_F(TextsTest, ComeOutOfTreesAndArchivesInAnySpelling) {
    const QString name = Tree + "Bash/Bash_name.txt";
    Write("tree/" + name, "1");
    Write("data/DATA/" + name.toUpper(), "2");
    Write("language/EN/" + name, "3");
    Write("language/" + name, "not this one");
    WriteArchive("plain.pak", {{name, "4"}, {"MapObjects/Bash_name.txt", "not this one"}});
    WriteArchive("windows.pak", {{QString(name).replace('/', '\\').toUpper(), "5"}});
    WriteArchive("rooted.pak", {{"./data/EN/" + name.toLower(), "6"}});
    WriteArchive("twice.pak", {{name, "not this one"}, {name, "7"}});
    QDir(folder.path()).mkpath("game/data");
    WriteArchive("game/data/a.pak", {{name, "not this one"}});
    WriteArchive("game/data/b.pak", {{name, "8"}});
    WriteArchive("game/data/c.pak", {{"MapObjects/x.xdb", "not this one"}});
    WriteArchive("Архив.pak", {{name, ""}});
    const std::pair<const char*, const char*> cases[] = {{"tree", "1"},      {"data", "2"},        {"language", "3"},
                                                         {"plain.pak", "4"}, {"windows.pak", "5"}, {"rooted.pak", "6"},
                                                         {"twice.pak", "7"}, {"Архив.pak", ""},    {"game", "8"}};
    for (const auto& [place, text] : cases) {
        SCOPED_TRACE(place);
        const CliOutcome outcome = Take({place});
        EXPECT_EQ(outcome.code, 1); // the others are missing
        EXPECT_EQ(Text("Bash/Bash_name.txt"), text);
        EXPECT_EQ(outcome.Lines().filter("Bash/Bash_name.txt: " + QString(place)).size(), 1);
        EXPECT_TRUE(outcome.Lines().contains("Bash/Bash_desc.txt: missing"));
        EXPECT_TRUE(outcome.Lines().last().startsWith("1 of 348 texts copied to "));
    }
}

TEST_F(TextsTest, ThatLieElsewhereAreFoundByTheGamesTable) {
    const QString table = "GameMechanics/RefTables/CombatAbilities.xdb";
    const QByteArray xml = ReadAll(TALMIR_SOURCE_DIR "/tests/data/texts/CombatAbilities.xdb").trimmed();
    const Entries entries{{Tree + "Bash/Bash_name.txt", "regular"},
                          {"Text/Jump/A.txt", "name"},
                          {"Text/Jump/B.txt", "description"},
                          {"GameMechanics/RefTables/large.txt", QByteArray((1 << 16) + 1, 'x')},
                          {"no.txt", "not this one"}};
    for (const auto& [name, bytes] : entries)
        Write("tree/data/en/" + name, bytes);
    Write("no.txt", "not this one");
    WriteArchive("texts.pak", entries);
    const auto withTable = [&](const QByteArray& content) {
        Write("tree/data/" + table, content);
        Write("loose/" + table.toLower(), content);
        WriteArchive("table.pak", {{"data\\" + table.toUpper(), content}});
    };
    for (const QStringList& places : {QStringList{"tree"}, {"texts.pak", "table.pak"}, {"texts.pak", "loose"}}) {
        SCOPED_TRACE(places.join(' ').toStdString());
        withTable(xml);
        QDir(Path("program/EN")).removeRecursively();
        const CliOutcome outcome = Take(places);
        EXPECT_EQ(Text("Leap/name.txt"), "name");
        EXPECT_EQ(Text("Leap/description.txt"), "description");
        EXPECT_EQ(Text("Bash/Bash_name.txt"), "regular");
        EXPECT_EQ(outcome.Lines().filter(QRegularExpression("^Leap/name.txt: .*: Text/Jump/A.txt$")).size(), 1);
        EXPECT_TRUE(outcome.Lines().last().startsWith("3 of 348 texts copied to "));
        EXPECT_EQ(outcome.err,
                  places.first() + (": GameMechanics/RefTables/large.txt: It is larger than 65536 bytes.\n"));

        const std::pair<QByteArray, const char*> refused[] = {
            {xml.chopped(1), "It is not well-formed XML: "},
            {xml + QByteArray(4 << 20, ' '), "It is larger than 4194304 bytes."},
            {"<T><I " + QByteArray(" a=''").repeated(1 << 16) + "/></T>",
             "It has a tag or a document type without end."}};
        for (const auto& [content, reason] : refused) {
            withTable(content);
            const CliOutcome without = Take(places);
            EXPECT_EQ(without.Complaints().size(), 1);
            EXPECT_TRUE(without.err.startsWith(places.last() + ": " + table + ": " + reason))
                << without.err.toStdString();
            EXPECT_TRUE(without.Lines().last().startsWith("1 of 348 texts copied to "));
        }
    }
}

TEST_F(TextsTest, AreAllCopiedByteByByteTheLaterLaidOverTheEarlier) {
    Entries all;
    for (const AbilityText& text : AbilityTexts())
        all.emplace_back(Tree + text.folder + '/' + text.file, ("\xFF\xFE" + text.file.toUtf8() + "\r\n").repeated(20));
    WriteArchive("all.pak", all);
    WriteArchive("patch.pak", {{all[7].first, "new"}});
    Write("tree/" + all[9].first, "newest");
    const CliOutcome outcome = Take({"all.pak", "patch.pak", "tree"});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.Lines().size(), 349);
    EXPECT_EQ(outcome.Lines().filter(": all.pak").size(), 346);
    all[7].second = "new";
    all[9].second = "newest";
    for (const auto& [name, bytes] : all)
        EXPECT_EQ(ReadAll(Path("program/EN/" + name)), bytes) << name.toStdString();
    EXPECT_EQ(Take({"patch.pak"}).code, 1);
    EXPECT_EQ(ReadAll(Path("program/EN/" + all[8].first)), all[8].second); // what isn't found is left
}

TEST_F(TextsTest, SayWhatCantBeRead) {
    const QString name = Tree + "Bash/Bash_name.txt";
    Write("no.pak", "PK no archive");
    WriteArchive("large.pak", {{name, QByteArray((1 << 16) + 1, 'x')}});
    WriteArchive("secret.pak", {{name, "x"}}, Encrypted);
    WriteArchive("good.pak", {{name, "good text"}});
    QByteArray damaged = ReadAll(Path("good.pak"));
    damaged[30 + static_cast<int>(name.size()) + 3] ^= 1; // in the packed text
    Write("damaged.pak", damaged);
    const struct {
        const char* place;
        const char* complaint;
    } cases[] = {
        {"nothing", "nothing: There is no such file."},
#ifdef Q_OS_UNIX
        {"/dev/null", "/dev/null: It is a device or a pipe; a file was expected."},
#endif
        {"no.pak", "no.pak: It is no zip archive, or an empty one."},
        {"large.pak", "large.pak: Bash/Bash_name.txt: It is larger than 65536 bytes."},
        {"secret.pak", "secret.pak: Bash/Bash_name.txt: It is encrypted."},
        {"damaged.pak", "damaged.pak: Bash/Bash_name.txt: It is damaged in the archive."},
        {"program", "talmir-cli texts: there are no ability texts in these places"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.place);
        QDir(Path("program/EN")).removeRecursively();
        const CliOutcome alone = Take({row.place});
        EXPECT_EQ(alone.code, 1);
        EXPECT_EQ(alone.Complaints().value(0), row.complaint);
        EXPECT_FALSE(QFileInfo::exists(Path("program/EN")));
        const CliOutcome laidOver = Take({"good.pak", row.place}); // the rest is done
        EXPECT_EQ(laidOver.code, 1);
        EXPECT_EQ(Text("Bash/Bash_name.txt"), "good text");
    }
}

TEST_F(TextsTest, GoIntoTheUsersFolderWhereTheProgramsCantBeWritten) {
    if (!OnLinux)
        GTEST_SKIP() << "the user's real folder would be written";
    const QString name = Tree + "Bash/Bash_name.txt";
    WriteArchive("good.pak", {{name, "Оглушение"}});
    Write("program/RU", "in the way");
    const QString users = "settings/talmir/RU/" + name;
    EXPECT_TRUE(Take({"good.pak"}, {"--lang", "RU"}).Lines().contains("Bash/Bash_name.txt: good.pak"));
    EXPECT_EQ(ReadAll(Path(users)), "Оглушение");
    QFile::remove(Path("program/RU"));
    WriteArchive("good.pak", {{name, "Удар"}});
    Take({"good.pak"}, {"--lang", "RU"}); // there they win, so there they stay
    EXPECT_EQ(ReadAll(Path(users)), "Удар");
}

} // namespace

} // namespace Hesperin
