#include "system/file_place.h"
#include "system/files.h"
#include "system/path_lookup.h"
#include "system/program_places.h"
#include "system/read_file.h"
#include "system/visit_all.h"

#include <atomic>

namespace Hesperin {

namespace {

using ReadFileTest = Files;

TEST_F(ReadFileTest, GivesTheBytesUpToTheLimitOrTellsWhyNot) {
    const QByteArray bytes("a\0b\r\n\xFF", 6);
    const QString six = Write("six", bytes);
    EXPECT_EQ(*ReadFile(six, 6), bytes);
    EXPECT_TRUE(ReadFile(Write("empty", {}), 0)->isEmpty());
    EXPECT_EQ(ReadFile(six, 5).Why(), (Error{Error::What::FileTooLarge, {}, "5"}));
    const std::pair<QString, const char*> refused[] = {
        {Path("nowhere"), "FileMissing"},
        {Path("no/where"), OnLinux ? "FileMissing" : "FolderMissing"},
        {six + "/where", "FolderMissing"},
        {folder.path(), "IsFolder"},
        {OnLinux ? Path(QString(300, 'x')) : folder.path(), OnLinux ? "NameTooLong" : "IsFolder"},
        {OnLinux ? "/dev/zero" : folder.path(), OnLinux ? "NotAFile" : "IsFolder"},
    };
    for (const auto& [path, why] : refused)
        EXPECT_EQ(NameOf(ReadFile(path, 6)), why) << path.toStdString();
    if (QFile::exists("/proc/version")) {
        EXPECT_EQ(NameOf(ReadFile("/proc/version", 6)), "FileTooLarge") << "a file that doesn't tell its size";
    }
}

using PathLookupTest = Files;

TEST_F(PathLookupTest, PrefersTheExactSpellingAndElseDisregardsLetterCase) {
    Write("EN/Text/Bash/name.txt", "1");
    Write("ru/TEXT/bash/NAME.TXT", "2");
    Write("ru/TEXT/bash/other.txt", "3");
    Write("ru/TEXT/bash/Other.txt", "4");
    const std::pair<const char*, const char*> cases[] = {
        // the content; none: there is no such file
        {"EN/Text/Bash/name.txt", "1"},      {"en/tEXT/BASH/Name.Txt", "1"},
        {"RU/Text/Bash/name.txt", "2"},      {"ru/TEXT/bash/other.txt", OnLinux ? "3" : "4"},
        {"RU/Text/Bash/Other.txt", "4"},     {"RU/Text/Bash/other.txt", OnLinux ? "3" : "4"},
        {"EN/Text/Bash/names.txt", nullptr}, {"FR/Text/Bash/name.txt", nullptr},
        {"EN/Texts/Bash/name.txt", nullptr},
    };
    PathLookup lookup(folder.path());
    for (const auto& [levels, content] : cases) {
        const QString path = lookup.Find(QString(levels).split('/'));
        EXPECT_EQ(path.isEmpty() ? QByteArray() : ReadAll(path), content) << levels;
        EXPECT_EQ(path.isEmpty(), content == nullptr) << levels;
    }
    EXPECT_EQ(PathLookup(Path("missing")).Find({"EN"}), "");
}

TEST_F(PathLookupTest, AFileHasOnePlaceWhateverLeadsToIt) {
    const QString place = FilePlace(Write("a/One.xdb", "1"));
    Write("a/other.xdb", "1");
    EXPECT_EQ(FilePlace(Path("a/../a//One.xdb")), place);
    EXPECT_EQ(FilePlace(Path("A/ONE.XDB")), OnLinux ? "" : place);
    EXPECT_EQ(FilePlace(Path("a/two.xdb")), "");
    EXPECT_NE(FilePlace(Path("a/other.xdb")), place);
}

#ifdef Q_OS_UNIX
TEST(SystemFolder, IsWhereAllUsersFindTheirPrograms) {
    for (const char* folder : {"/usr/bin", "/usr/local/bin", "/bin", "/home/a/../../usr/bin"})
        EXPECT_TRUE(IsSystemFolder(folder)) << folder;
    for (const char* folder : {"/home/a/usr/bin", "/opt/talmir", "/usr2/bin", ""})
        EXPECT_FALSE(IsSystemFolder(folder)) << folder;
}
#endif

TEST(VisitAll, EndsEarlyAndHandsOnWhatIsThrown) {
    for (const unsigned jobs : {1U, 3U, 200U}) {
        std::atomic<int> visits{0};
        VisitAll(10'000, jobs, [&](std::size_t) { return ++visits < 5; });
        EXPECT_LT(visits, 5 + 200);
        EXPECT_THROW(VisitAll(9, jobs, [](std::size_t at) { return at < 4 ? true : throw std::bad_alloc(); }),
                     std::bad_alloc);
    }
    VisitAll(0, 0, [](std::size_t) -> bool { throw std::bad_alloc(); });
}

} // namespace

} // namespace Hesperin
