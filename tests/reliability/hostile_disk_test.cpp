// A save gives the whole new file or leaves the old one, and tells which, wherever it is sent.
#include "cli/run_cli.h"
#include "support/without_rights.h"

#include <gtest/gtest.h>

#include <QFileInfo>

namespace Hesperin {

namespace {

struct HostileDisk : testing::Test {
    /// Runs a command of the shell where files are saved, and gives what it prints.
    QString Shell(const QString& command) const { return RunShell(command, test.folder.path()).out; }

    Failure SaveTo(const QString& path, const QString& name = "wyrm") {
        test.FillInCreature();
        test.form.txtNC.SetText(name);
        test.platform.boxes.clear();
        test.platform.dialogPath = path;
        return test.form.mnuSave.Click();
    }

    bool Holds(const QString& path) const { return ReadAll(path) == test.form.RTBData.Text().toUtf8() + "\r\n"; }

    TestProgram test;
};

TEST_F(HostileDisk, APlaceThatTakesNoFileIsNamedWithTheReasonAndStaysAsItIs) {
    Shell("mkdir folder closed; echo old >file; echo old >protected; ln -s folder to_folder; ln -s /dev/full to_device;"
          "ln -s protected to_protected; chmod 444 protected; chmod 777 .; chmod 555 closed");
    const char* everything = "ls -lRi -I data; cat file protected";
    const QString before = Shell(everything);
    const std::pair<QString, Error::What> cases[] = {
        {"missing/a.xdb", Error::What::FolderMissing},
        {"file/a.xdb", Error::What::FolderMissing},
        {"folder", Error::What::IsFolder},
        {"to_folder", Error::What::IsFolder},
        {"to_device", Error::What::NotAFile},
        {"protected", Error::What::NotAllowed},
        {"to_protected", Error::What::NotAllowed},
        {"closed/a.xdb", Error::What::NotAllowed},
        {QString(300, 'x'), Error::What::NameTooLong},
    };
    for (const auto& [place, what] : cases) {
        SCOPED_TRACE(place.toStdString());
        const WithoutRights nobody;
        const QString path = test.Path(place);
        const Failure failure = SaveTo(path);
        EXPECT_TRUE(failure && failure->what == what);
        EXPECT_TRUE(test.platform.Texts().value(0).contains('"' + path + '"'));
        EXPECT_EQ(Shell(everything), before);
    }
    Shell("chmod 755 closed");
}

TEST_F(HostileDisk, EveryNameThatTheSystemTakesIsSavedAndOpenedAgain) {
    QStringList names =
        QString(" /  a  .xdb/-x.xdb/--help/%1%2.xdb/a.b.c/.hidden/Дракон.xdb/ы\u0306.xdb/\u202E.xdb/龍.xdb/"
                "\U0001F409.xdb/*?<>|\":.xdb/a\\b.xdb/'quoted'.xdb/new\nline.xdb/tab\t.xdb/~/$HOME/NUL/"
                "lang.ini./")
            .split('/');
    names.last() = QString(200, 'x');
    for (char code = 1; code < 127; ++code)
        if (code != '/')
            names.append(QString("n%1.xdb").arg(QChar(code)));
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_FALSE(SaveTo(test.Path(name)));
        EXPECT_TRUE(Holds(test.Path(name)));
        EXPECT_FALSE(test.form.mnuOpen.Click());
        EXPECT_EQ(test.platform.boxes.size(), 0U);
        EXPECT_EQ(test.form.ComDialog.FileName, test.Path(name));
    }
}

TEST_F(HostileDisk, ALinkStaysALinkAndItsTargetGetsTheNewFile) {
    Shell("echo old >target; ln -s target first; ln -s first second; ln -s later dangling");
    for (const auto& [link, target] : {std::pair("first", "target"), {"second", "target"}, {"dangling", "later"}}) {
        SCOPED_TRACE(link);
        EXPECT_FALSE(SaveTo(test.Path(link), link));
        EXPECT_TRUE(QFileInfo(test.Path(link)).isSymLink());
        EXPECT_TRUE(Holds(test.Path(target)));
    }
}

} // namespace

} // namespace Hesperin
