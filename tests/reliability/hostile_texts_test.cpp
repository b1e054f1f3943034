// The program starts whatever lies in the place of lang.ini and of the ability texts.
#include "support/peak_memory.h"
#include "support/test_program.h"
#include "support/without_rights.h"
#include "app/handlers/form_load.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>

#include <functional>

namespace Hesperin {

namespace {

const QString Tree = "RU/Text/Game/Creatures/Creature_abilities";

struct HostileTexts : testing::Test {
    /// A program that hasn't started, whose language is Russian and whose first ability has a name.
    HostileTexts() {
        QFile::setPermissions(test.folder.path(), QFile::Permissions(0x7777));
        QDir(test.folder.path()).mkpath(Tree + "/AcidBlood");
        test.Write("lang.ini", "RU");
    }

    /// The language after a start.
    int Start() {
        const WithoutRights nobody;
        EXPECT_TRUE(Form_Load(test.program));
        return test.state.LanguageId;
    }

    QStringList Texts() const {
        QStringList texts;
        for (const StoredText& text : test.form.utbN)
            texts.append(text.Text());
        texts.removeAll("");
        return texts;
    }

    TestProgram test{English, TestProgram::Start::Bare};
};

TEST_F(HostileTexts, AnythingInThePlaceOfLangIniGivesALanguage) {
    const QString path = test.Path("lang.ini");
    const struct {
        const char* what;
        std::function<void()> place;
        int language;
    } cases[] = {
        {"protected", [&] { QFile::setPermissions(path, {}); }, English},
        {"can only be read", [&] { QFile::setPermissions(path, QFile::Permissions(0x4444)); }, Russian},
        {"a folder",
         [&] {
             QFile::remove(path);
             QDir().mkpath(path + "/inside");
         },
         English},
        {"a pipe", [&] { QProcess::execute("mkfifo", {path}); }, English},
        {"a device", [&] { QFile::link("/dev/zero", path); }, English},
        {"a link in a loop", [&] { QFile::link(path, path); }, English},
        {"UTF-16", [&] { test.Write("lang.ini", QByteArray("\xFF\xFER\0U\0", 6)); }, English},
        {"100 MiB",
         [&] {
             QFile file(test.Write("lang.ini", "RU\n"));
             EXPECT_TRUE(file.resize(100 << 20));
         },
         Russian},
        {"100 MiB without a line",
         [&] {
             QFile file(test.Write("lang.ini", "RU"));
             EXPECT_TRUE(file.resize(100 << 20));
         },
         English},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        QFile::setPermissions(path, QFile::Permissions(0x6666));
        QFile::remove(path);
        QDir(path).removeRecursively();
        test.Write("lang.ini", "RU");
        if (row.language == English)
            QFile::remove(path);
        row.place();
        const qint64 before = PeakMemory();
        EXPECT_EQ(Start(), row.language);
        EXPECT_LT(PeakMemory() - before, qint64{8} << 20);
    }
}

TEST_F(HostileTexts, AnythingInThePlaceOfATextGivesNone) {
    const QString name = test.Path(Tree + "/AcidBlood/name.txt");
    const struct {
        const char* what;
        std::function<void()> place;
        QStringList texts = {};
    } cases[] = {
        {"nothing", [] {}},
        {"a text, so that this is a place that is read", [&] { test.Write(Tree + "/AcidBlood/name.txt", "x"); }, {"x"}},
        {"a folder", [&] { QDir().mkpath(name); }},
        {"protected",
         [&] {
             test.Write(Tree + "/AcidBlood/name.txt", "x");
             QFile::setPermissions(name, {});
         }},
        {"100 MiB",
         [&] {
             QFile file(test.Write(Tree + "/AcidBlood/name.txt", "x"));
             EXPECT_TRUE(file.resize(100 << 20));
         }},
        {"a pipe", [&] { QProcess::execute("mkfifo", {name}); }},
        {"a link in a loop", [&] { QFile::link(name, name); }},
        {"a folder in a loop",
         [&] {
             QDir().rmdir(test.Path(Tree + "/AcidBlood"));
             EXPECT_TRUE(QFile::link(test.Path("RU"), test.Path(Tree + "/AcidBlood")));
         }},
        {"a file in place of the tree",
         [&] {
             QDir(test.Path("RU")).removeRecursively();
             test.Write("RU", "x");
         }},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        QFile::remove(test.Path("RU"));
        QDir(test.Path("RU")).removeRecursively();
        QDir(test.folder.path()).mkpath(Tree + "/AcidBlood");
        row.place();
        const qint64 before = PeakMemory();
        EXPECT_EQ(Start(), Russian);
        EXPECT_EQ(Texts(), row.texts);
        EXPECT_LT(PeakMemory() - before, qint64{8} << 20);
    }
}

} // namespace

} // namespace Hesperin
