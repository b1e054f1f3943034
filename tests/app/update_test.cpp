// Sessions with a file that is updated in place: tests/data/updates.
#include "reports/line_diff.h"
#include "support/cases_file.h"
#include "support/without_rights.h"
#include "system/backups.h"

#include <QRegularExpression>

#include <memory>

namespace Hesperin {

namespace {

/// Does what a line says and tells the boxes and what has changed in the file a.xdb.
class UpdateSession {
public:
    QString Outcome(const QString& line) {
        program->platform.boxes.clear();
        QByteArray before = ReadAll(File());
        QString told;
        for (const QString& act : line.split(" ; ")) {
            const QString verb = act.section(' ', 0, 0);
            told += Do(verb, act.section(' ', 1, 1), act.section(' ', 2));
            if (verb == "start" || verb == "disk")
                before = ReadAll(File());
        }
        for (const auto& box : program->platform.boxes)
            told += "box, " + box.title + ": " + QString(box.text).replace('\n', "\\n") + '\n';
        QStringList changed;
        for (const QByteArray& change : LineDiff(before, ReadAll(File())).split('\n'))
            if (change.startsWith('+') || change.startsWith('-'))
                changed.append(QString::fromUtf8(change));
        told += changed.size() > 12 ? QString("%1 lines\n").arg(changed.size()) : changed.join('\n');
        told.replace(QDir::toNativeSeparators(program->folder.path()), program->folder.path());
        return told.replace(program->folder.path(), "...").replace("...\\", ".../").replace("data\\", "data/");
    }

private:
    QString File() const { return program->Path("a.xdb"); }

    QString Do(const QString& verb, const QString& name, const QString& rest) {
        Control* control = program->form.Find(name);
        if (verb == "start") {
            program = std::make_unique<TestProgram>(name == "RU" ? Russian : English);
            program->Write("a.xdb",
                           ReadAll(TALMIR_SOURCE_DIR "/tests/data/updates/creature.xdb").replace("\r\n", "\n"));
            program->platform.dialogPath = File();
        } else if (verb == "click") {
            if (!control->Enabled())
                return name + " is off\n";
            if (const auto failure = dynamic_cast<Clickable*>(control)->Click())
                return "failed\n";
        } else if (verb == "set") {
            program->SetText(name, rest);
        } else if (verb == "tick" || verb == "untick") {
            dynamic_cast<CheckBox*>(control)->SetTicked(verb == "tick");
        } else if (verb == "option") {
            dynamic_cast<MultiOption*>(control)->ClickOption(rest.toInt());
        } else if (verb == "answer") {
            program->platform.answer = name.isEmpty() ? std::optional<int>() : name.toInt();
        } else if (verb == "dialog") {
            program->platform.dialogPath = program->Path(name);
        } else if (verb == "disk") { // someone else changes the file
            QString text = QString::fromUtf8(ReadAll(File()));
            const QString whole = name + (rest.isEmpty() ? "" : " " + rest);
            text.replace(QRegularExpression(whole.section("=>", 0, 0)), whole.section("=>", 1).replace("\\n", "\n"));
            WriteFile(File(), text.toUtf8());
        } else if (verb == "remove") {
            QFile::remove(File());
        } else if (verb == "folder") {
            QDir().mkpath(program->Path(name));
        } else if (verb == "copies") {
            const QDir folder(program->Path("data/backups"));
            QString told;
            for (const QString& copy : folder.entryList(QDir::Files))
                told += copy.section(' ', 1) + ' ' + QString::number(ReadAll(folder.filePath(copy)).size()) + '\n';
            return told;
        } else if (verb == "state") {
            return QString("update is %1, name %2, page %3, %4 units\n")
                .arg(program->form.mnuUpdate.Enabled() ? "on" : "off", program->form.txtNC.Text(),
                     program->form.Tablus.At(Page::File).Caption())
                .arg(program->form.RTBData.Text().size());
        } else {
            return "no such verb\n";
        }
        return {};
    }

    std::unique_ptr<TestProgram> program = std::make_unique<TestProgram>();
};

TEST(Update, GoesAsTold) {
    UpdateSession session;
    ExpectCases("updates/sessions.txt", [&](const QString& line) { return session.Outcome(line); });
}

TEST(Backups, TheNewestTwoHundredStay) {
    const TestProgram files;
    const QDir folder(files.Path("copies"));
    for (int i = 0; i < 203; ++i)
        ASSERT_EQ(KeepBackup(folder.path(), QString(120, 'x') + ".xdb", QByteArray::number(i)), Failure());
    const QStringList names = folder.entryList(QDir::Files);
    ASSERT_EQ(names.size(), 200);
    QSet<QByteArray> kept;
    for (const QString& name : names)
        kept.insert(ReadAll(folder.filePath(name)));
    EXPECT_TRUE(kept.size() == 200 && !kept.contains("2") && kept.contains("3") && kept.contains("202"));
    const QString file = files.Write("file", "");
    EXPECT_TRUE(KeepBackup(file + "/copies", "a.xdb", "x"));
}

#ifdef Q_OS_UNIX
TEST(Update, OfAFileThatMayNotBeWrittenOrIsALink) {
    TestProgram program;
    const QString file = program.Write("real.xdb", "<Creature><Health>40</Health></Creature>");
    QFile::link(file, program.Path("link.xdb"));
    program.platform.dialogPath = program.Path("link.xdb");
    program.form.mnuOpen.Click();
    program.SetText("txtHealth", "41");
    EXPECT_FALSE(program.form.mnuUpdate.Click());
    EXPECT_TRUE(QFileInfo(program.Path("link.xdb")).isSymLink());
    EXPECT_EQ(ReadAll(file), "<Creature><Health>41</Health></Creature>");
    QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther);
    QFile::setPermissions(program.folder.path(), QFile::Permissions(0x7777));
    program.SetText("txtHealth", "42");
    {
        const WithoutRights nobody;
        EXPECT_TRUE(program.form.mnuUpdate.Click());
    }
    EXPECT_EQ(ReadAll(file), "<Creature><Health>41</Health></Creature>");
}
#endif

} // namespace

} // namespace Hesperin
