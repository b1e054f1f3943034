#include "app/recent_files.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

struct RecentFilesTest : testing::Test {
    QTemporaryDir folder;
    const QString root = OnLinux ? "/" : "C:/";
    const QString list = folder.filePath("settings/recent.ini");
    const ProgramPlaces places{folder.path(), folder.filePath("settings")};

    /// Names of the files in the list, without their folder, which is the root.
    QString Names() const { return RecentFiles(places).replaceInStrings(root, "").join(' '); }
};

TEST_F(RecentFilesTest, HoldTenTheLastOneFirstAndEachOnce) {
    for (int i = 1; i <= 12; ++i)
        AddRecentFile(places, root + QString::number(i));
    EXPECT_EQ(Names(), "12 11 10 9 8 7 6 5 4 3");
    AddRecentFile(places, root + "other/../5");
    EXPECT_EQ(Names(), "5 12 11 10 9 8 7 6 4 3");
    WriteFile(list, (root + "x\n").toUtf8()); // by another program
    AddRecentFile(places, root + "y");
    EXPECT_EQ(Names(), "y x");
    RemoveRecentFile(places, root + "x");
    EXPECT_EQ(Names(), "y");
}

TEST_F(RecentFilesTest, ADamagedListCountsForNothingAndIsReplaced) {
    const QByteArray good = root.toUtf8() + "good";
    const std::pair<QByteArray, const char*> cases[] = {
        {"", ""},
        {good, "good"},
        {good + "\r\n\n" + good + "\n", "good"},
        {"relative\n../up\n" + good, "good"},
        {QByteArray("\xEF\xBB\xBF") + good, "good"},
        {good + '\0' + "\n" + good, "good"},
        {good + "\x1B[31m\n", ""},
        {good + "\xFF\n", ""},
        {"\xFF\xFE" + good, ""},
        {root.toUtf8() + QByteArray(5000, 'x') + "\n" + good, "good"},
        {(good + "\n").repeated(1 << 16), ""},
    };
    for (const auto& [content, names] : cases) {
        SCOPED_TRACE(content.left(40).toStdString());
        WriteFile(list, content);
        EXPECT_EQ(Names(), names);
        AddRecentFile(places, root + "new");
        EXPECT_EQ(Names().section(' ', 0, 0), "new");
    }
    QFile::remove(list);
    WriteFile(list + "/inside", "a folder in its place");
    AddRecentFile(places, root + "new");
    EXPECT_EQ(Names(), "");
}

} // namespace

} // namespace Hesperin
