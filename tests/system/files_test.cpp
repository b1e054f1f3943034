#include "system/files.h"

#include "text/code_page.h"
#include "system/path_lookup.h"
#include "system/read_file.h"
#include "system/single_instance.h"
#include "text/decode_text.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>

namespace Hesperin {

namespace {

using ReadFileTest = Files;

TEST_F(ReadFileTest, GivesTheBytesUpToTheLimit) {
    const QByteArray bytes("a\0b\r\n\xFF", 6);
    const QString path = Write("six", bytes);
    const auto six = ReadFile(path, 6);
    ASSERT_TRUE(std::holds_alternative<QByteArray>(six));
    EXPECT_EQ(std::get<QByteArray>(six), bytes);
    const auto empty = ReadFile(Write("empty", {}), 0);
    ASSERT_TRUE(std::holds_alternative<QByteArray>(empty));
    EXPECT_TRUE(std::get<QByteArray>(empty).isEmpty());
}

TEST_F(ReadFileTest, TellsWhyAFileCannotBeRead) {
    using Kind = FileObstacle::Kind;
    const struct {
        QString path;
        Kind kind;
    } cases[] = {
        {Path("nowhere"), Kind::Missing},
        {Path("no/where"), OnLinux ? Kind::Missing : Kind::FolderMissing},
        {Write("six", "sixsix") + "/where", Kind::FolderMissing},
        {folder.path(), Kind::IsFolder},
        {Write("six", "sixsix"), Kind::TooLarge},
        {OnLinux ? Path(QString(300, 'x')) : folder.path() + "/.", OnLinux ? Kind::NameTooLong : Kind::IsFolder},
        {OnLinux ? "/dev/zero" : folder.path() + "/.", OnLinux ? Kind::NotAFile : Kind::IsFolder},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.path.toStdString());
        const auto content = ReadFile(test.path, 5);
        ASSERT_TRUE(std::holds_alternative<FileObstacle>(content));
        EXPECT_EQ(static_cast<int>(std::get<FileObstacle>(content).kind), static_cast<int>(test.kind));
    }
}

TEST(DecodeText, RecognisesTheEncoding) {
    const QString dragon = QString::fromUtf8("Дракон");
    const QByteArray cyrillic = "\xC4\xF0\xE0\xEA\xEE\xED";
    const auto utf16 = [](const QString& text, bool bigEndian) {
        QByteArray bytes;
        for (const QChar unit : text) {
            const char pair[] = {static_cast<char>(unit.unicode() & 0xFF), static_cast<char>(unit.unicode() >> 8)};
            bytes.append(pair[bigEndian ? 1 : 0]).append(pair[bigEndian ? 0 : 1]);
        }
        return bytes;
    };
    const QByteArray longAscii(64, 'a');
    const struct {
        const char* what;
        QByteArray bytes;
        CodePage fallback;
        QString text;
    } cases[] = {
        {"nothing", "", CodePage::Windows1251, ""},
        {"ASCII", "Bash", CodePage::Windows1251, "Bash"},
        {"one character", "a", CodePage::Windows1251, "a"},
        {"UTF-8", dragon.toUtf8(), CodePage::Windows1252, dragon},
        {"UTF-8 with mark", "\xEF\xBB\xBF" + dragon.toUtf8(), CodePage::Windows1252, dragon},
        {"UTF-16 little-endian with mark", "\xFF\xFE" + utf16(dragon, false), CodePage::Windows1251, dragon},
        {"UTF-16 big-endian with mark", "\xFE\xFF" + utf16(dragon, true), CodePage::Windows1251, dragon},
        {"a mark alone", "\xFF\xFE", CodePage::Windows1251, ""},
        {"UTF-16 without mark", utf16("Bash!", false), CodePage::Windows1252, "Bash!"},
        {"every second byte of the first 64 counts, later ones don't", utf16(longAscii.left(32) + dragon, false),
         CodePage::Windows1252, longAscii.left(32) + dragon},
        {"one second byte of the first 64 isn't 0", QByteArray("a\0\0b", 4), CodePage::Windows1252,
         QString::fromUtf16(u"a\0\0b", 4)},
        {"Windows-1251", cyrillic, CodePage::Windows1251, dragon},
        {"Windows-1252", "Caf\xE9 \x80", CodePage::Windows1252, QString::fromUtf8("Café €")},
        {"a last byte that begins a longer UTF-8 sequence", "Caf\xE9", CodePage::Windows1252,
         QString::fromUtf8("Café")},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        EXPECT_EQ(DecodeText(test.bytes, test.fallback), test.text);
    }
}

TEST(DecodeCodePage, KnowsTheOddCornersOfBothSets) {
    EXPECT_EQ(DecodeCodePage("\xA8\xB8\xC0\xDF\xE0\xFF\x80\x88\xB9~", CodePage::Windows1251),
              QString::fromUtf8("ЁёАЯаяЂ€№~"));
    EXPECT_EQ(DecodeCodePage("\x80\x8A\x8C\x9C\x9F\xA0\xDF\xFF~", CodePage::Windows1252),
              QString::fromUtf8("€ŠŒœŸ\u00A0ßÿ~"));
    EXPECT_EQ(DecodeCodePage("\x98", CodePage::Windows1251), QString(QChar::ReplacementCharacter));
    EXPECT_EQ(DecodeCodePage("\x81\x8D\x8F\x90\x9D", CodePage::Windows1252), QString(5, QChar::ReplacementCharacter));
}

using PathLookupTest = Files;

TEST_F(PathLookupTest, PrefersTheExactSpellingAndElseDisregardsLetterCase) {
    Write("EN/Text/Bash/name.txt", "1");
    Write("ru/TEXT/bash/NAME.TXT", "2");
    Write("ru/TEXT/bash/other.txt", "3");
    Write("ru/TEXT/bash/Other.txt", "4");
    const struct {
        QStringList levels;
        const char* content; // null: there is no such file
    } cases[] = {
        {{"EN", "Text", "Bash", "name.txt"}, "1"},      {{"en", "tEXT", "BASH", "Name.Txt"}, "1"},
        {{"RU", "Text", "Bash", "name.txt"}, "2"},      {{"ru", "TEXT", "bash", "other.txt"}, OnLinux ? "3" : "4"},
        {{"RU", "Text", "Bash", "Other.txt"}, "4"},     {{"RU", "Text", "Bash", "other.txt"}, OnLinux ? "3" : "4"},
        {{"EN", "Text", "Bash", "names.txt"}, nullptr}, {{"FR", "Text", "Bash", "name.txt"}, nullptr},
        {{"EN", "Texts", "Bash", "name.txt"}, nullptr},
    };
    PathLookup lookup(folder.path());
    for (const auto& test : cases) {
        SCOPED_TRACE(test.levels.join('/').toStdString());
        const QString path = lookup.Find(test.levels);
        ASSERT_EQ(path.isEmpty(), test.content == nullptr);
        if (test.content != nullptr) {
            EXPECT_EQ(ReadAll(path), test.content);
        }
    }
    EXPECT_EQ(PathLookup(Path("missing")).Find({"EN"}), "");
}

struct SingleInstanceTest : Files {
    /// The lines of a lock that this process holds.
    QList<QByteArray> OwnLock() const {
        SingleInstance holder(Path("own"));
        EXPECT_FALSE(holder.Other());
        return ReadAll(Path("own/talmir.lock")).split('\n');
    }
};

TEST_F(SingleInstanceTest, TheSecondSeesTheFirstUntilItEnds) {
    SingleInstance second(Path("settings/deep"));
    {
        SingleInstance first(Path("settings/deep"));
        EXPECT_FALSE(first.Other());
        EXPECT_FALSE(first.Other()) << "asked again, it is still the only one";
        EXPECT_TRUE(second.Other());
        EXPECT_FALSE(SingleInstance(Path("elsewhere")).Other());
    }
    EXPECT_FALSE(second.Other());
}

TEST_F(SingleInstanceTest, TakesOverTheLockOfAProcessThatNoLongerRuns) {
    QProcess ended;
    ended.start(TestedProgram("talmir-cli"), {"--version"});
    const qint64 endedId = ended.processId();
    ASSERT_TRUE(ended.waitForFinished());
    ASSERT_GT(endedId, 0);

    QList<QByteArray> lock = OwnLock();
    ASSERT_EQ(lock.first(), QByteArray::number(QCoreApplication::applicationPid()));
    Write("b/talmir.lock", lock.join('\n'));
    EXPECT_TRUE(SingleInstance(Path("b")).Other()) << "the process of this lock does run";
    lock.first() = QByteArray::number(endedId);
    Write("c/talmir.lock", lock.join('\n'));
    EXPECT_FALSE(SingleInstance(Path("c")).Other());
}

TEST_F(SingleInstanceTest, TakesOverTheLockOfAProcessThatHadItsNumber) {
    QFile left(Write("b/talmir.lock", OwnLock().join('\n')));
    ASSERT_TRUE(left.open(QIODevice::ReadWrite));
    ASSERT_TRUE(left.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
    left.close();
    EXPECT_FALSE(SingleInstance(Path("b")).Other());
}

TEST_F(SingleInstanceTest, TellsTheLockOfAnotherComputerByItsNumberOrElseItsName) {
    const QString here = QSysInfo::machineHostName();
    const QByteArray number = QSysInfo::machineUniqueId();
    struct Case {
        QString host;
        QByteArray number;
        QString otherHost;
    };
    QList<Case> cases{{"attic", "", "attic"}, {here, "", ""}};
    if (!number.isEmpty())
        cases += {{"attic", "another", "attic"}, {here, "another", here}, {"its old name", number, ""}};
    for (const Case& test : cases) {
        SCOPED_TRACE(test.host.toStdString() + ' ' + test.number.toStdString());
        QByteArrayList lock = OwnLock();
        lock[2] = test.host.toUtf8();
        lock[3] = test.number;
        const QString path = Write("b/talmir.lock", lock.join('\n'));
        const auto other = SingleInstance(Path("b")).Other();
        ASSERT_TRUE(other);
        EXPECT_EQ(other->otherHost, test.otherHost);
        EXPECT_EQ(other->lockFile, path);
        EXPECT_EQ(ReadAll(path), lock.join('\n')) << "it is left alone";
    }
}

TEST_F(SingleInstanceTest, TakesOverALockThatCannotBeRead) {
    const char* const damaged[] = {"", "not a lock", "12\n"};
    for (const char* content : damaged) {
        SCOPED_TRACE(content);
        Write("d/talmir.lock", content);
        SingleInstance first(Path("d"));
        EXPECT_FALSE(first.Other());
        EXPECT_TRUE(SingleInstance(Path("d")).Other()) << "it holds the lock now";
    }
}

TEST_F(SingleInstanceTest, TheProgramStartsWhereNoLockCanBeHad) {
    Write("file", "no folder");
    EXPECT_FALSE(SingleInstance(Path("file/settings")).Other());
    Write("e/talmir.lock/inside", "a folder in its place");
    EXPECT_FALSE(SingleInstance(Path("e")).Other());
}

} // namespace

} // namespace Hesperin
