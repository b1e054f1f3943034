// A save gives the whole new file or leaves the old one, and tells which, wherever it is sent.
#include "support/test_program.h"
#include "support/without_rights.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

namespace Hesperin {

namespace {

constexpr QFile::Permissions Readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions Enterable = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
constexpr QFile::Permissions Writable = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

struct HostileDisk : testing::Test {
    HostileDisk() { QFile::setPermissions(test.folder.path(), Readable | Enterable | Writable); }

    void Fill(const QString& name) {
        test.FillInCreature();
        test.form.txtNC.SetText(name);
    }

    /// Saves, and gives what the user was told.
    QString SaveTo(const QString& path) {
        test.platform.dialogPath = path;
        return test.BoxesOf([&] { test.form.mnuSave.Click(); }).join('|');
    }

    /// Everything in the folder, with the content of files.
    QStringList Disk() const {
        QStringList disk;
        for (const QFileInfo& entry :
             QDir(test.folder.path())
                 .entryInfoList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot))
            disk.append(entry.fileName() + (entry.isFile() ? QString(ReadAll(entry.filePath())) : ""));
        return disk;
    }

    TestProgram test;
};

TEST_F(HostileDisk, APlaceThatTakesNoFileIsNamedWithTheReasonAndStaysAsItIs) {
    const auto at = [this](const char* name) { return test.Path(name); };
    QDir(test.folder.path()).mkdir("folder");
    QDir(test.folder.path()).mkdir("closed");
    test.Write("file", "old");
    test.Write("protected", "old");
    QFile::link(at("folder"), at("to folder"));
    QFile::link("/dev/full", at("to device"));
    QFile::link(at("protected"), at("to protected"));
    QFile::setPermissions(at("protected"), Readable);
    QFile::setPermissions(at("closed"), Readable | Enterable);
    const QStringList before = Disk();
    const struct {
        QString place;
        const char* english;
        const char* russian;
    } cases[] = {
        {at("missing/a.xdb"), "There is no such folder.", "Такой папки нет."},
        {at("file/a.xdb"), "There is no such folder.", "Такой папки нет."},
        {at("folder"), "It is a folder; a file was expected.", "Это папка, а нужен файл."},
        {at("to folder"), "It is a folder; a file was expected.", "Это папка, а нужен файл."},
        {at("to device"), "It is a device or a pipe; a file was expected.", "Это устройство или канал, а нужен файл."},
        {at("protected"), "Access is denied.", "Доступ запрещён."},
        {at("to protected"), "Access is denied.", "Доступ запрещён."},
        {at("closed/a.xdb"), "Access is denied.", "Доступ запрещён."},
        {test.Path(QString(300, 'x')), "Its name is too long.", "Его имя слишком длинное."},
    };
    for (const Language language : {English, Russian})
        for (const auto& row : cases) {
            SCOPED_TRACE(row.place.toStdString());
            (language == English ? test.form.mnuEnglish : test.form.mnuRussian).Click();
            Fill("wyrm");
            const WithoutRights nobody;
            const QString told = SaveTo(row.place);
            EXPECT_TRUE(told.contains('"' + row.place + '"')) << told.toStdString();
            EXPECT_TRUE(told.contains(QString::fromUtf8(language == English ? row.english : row.russian)))
                << told.toStdString();
            EXPECT_EQ(told, test.program.failure);
            EXPECT_EQ(Disk(), before);
        }
    QFile::setPermissions(at("closed"), Readable | Enterable | Writable);
}

TEST_F(HostileDisk, EveryNameThatTheSystemTakesIsSavedAndOpenedAgain) {
    QStringList names{" ",
                      "  a  .xdb",
                      "-x.xdb",
                      "--help",
                      "%1%2.xdb",
                      "a.b.c",
                      ".hidden",
                      "Дракон.xdb",
                      "ы\u0306.xdb",
                      "\u202E.xdb",
                      "龍.xdb",
                      "\U0001F409.xdb",
                      "*?<>|\":.xdb",
                      "a\\b.xdb",
                      "'quoted'.xdb",
                      "new\nline.xdb",
                      "tab\t.xdb",
                      "~",
                      "$HOME",
                      "NUL",
                      "lang.ini.",
                      QString(200, 'x')};
    for (char code = 1; code < 127; ++code)
        if (code != '/')
            names.append(QString("n%1.xdb").arg(QChar(code)));
    int saved = 0;
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        Fill("wyrm");
        const QString path = test.Path(name);
        if (const QString told = SaveTo(path); !told.isEmpty()) {
            EXPECT_FALSE(QFile::exists(path));
            continue;
        }
        ++saved;
        EXPECT_EQ(ReadAll(path), test.form.RTBData.Text().toUtf8() + "\r\n");
        test.platform.dialogPath = path;
        test.form.mnuOpen.Click();
        EXPECT_EQ(test.program.failure, "");
        EXPECT_EQ(test.form.ComDialog.FileName, path);
    }
#ifdef Q_OS_UNIX
    EXPECT_EQ(saved, names.size()) << "all but / and 0 may stand in a name";
#endif
    EXPECT_GT(saved, names.size() / 2);
}

TEST_F(HostileDisk, ALinkStaysALinkAndItsTargetGetsTheNewFile) {
    test.Write("target", "old");
    QFile::link(test.Path("target"), test.Path("first"));
    QFile::link(test.Path("first"), test.Path("second"));
    QFile::link(test.Path("made later"), test.Path("dangling"));
    if (!QFileInfo(test.Path("second")).isSymLink())
        GTEST_SKIP() << "no symbolic links here";
    for (const auto& [link, target] :
         {std::pair("first", "target"), std::pair("second", "target"), std::pair("dangling", "made later")}) {
        SCOPED_TRACE(link);
        Fill(link);
        EXPECT_EQ(SaveTo(test.Path(link)), "");
        EXPECT_TRUE(QFileInfo(test.Path(link)).isSymLink());
        EXPECT_EQ(ReadAll(test.Path(target)), test.form.RTBData.Text().toUtf8() + "\r\n");
    }
}

} // namespace

} // namespace Hesperin
