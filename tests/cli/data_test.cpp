// Each NAME.txt in tests/data/scripts begins with the arguments of talmir-cli behind a "# ", and is its input.
// NAME.expected is what comes of it; what came instead is written beside it as NAME.expected.new, to be accepted by
// moving it over.
#include "cli/run_cli.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace Hesperin {

namespace {

/// The output, with a line for each member of an object that the object before had not. It lasts over versions.
QString Readable(const QString& output) {
    QString text;
    QJsonObject before;
    for (const QString& line : output.split('\n')) {
        const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
        text += object.isEmpty() ? line + '\n' : "object:\n";
        for (const QString& key : object.keys())
            if (object[key] != before[key])
                text += "  " + key + ": " +
                        QJsonDocument({object[key]}).toJson(QJsonDocument::Compact).chopped(1).mid(1) + '\n';
        before = object;
    }
    return text.chopped(1).replace(QRegularExpression("TALMIR v[0-9.]+"), "TALMIR");
}

TEST(Data, TheCommandLineGivesWhatIsExpected) {
    const QDir data(TALMIR_SOURCE_DIR "/tests/data/scripts");
    const QStringList scripts = data.entryList({"*.txt"});
    ASSERT_GE(scripts.size(), 10);
    for (const QString& script : scripts) {
        const QTemporaryDir folder;
        for (QDirIterator files(data.path(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            const QString path = files.next();
            WriteFile(folder.filePath(data.relativeFilePath(path)), ReadAll(path));
        }
        const QByteArray input = ReadAll(data.filePath(script));
        const QString arguments = QString::fromUtf8(input.left(input.indexOf('\n'))).mid(2);
        const CliOutcome outcome = RunCli(arguments.split(' '), input, folder.path());
        const QString actual =
            Readable(outcome.out) + "complaints:\n" + outcome.err + "exit code " + QString::number(outcome.code) + '\n';
        const QString expected = data.filePath(script.chopped(3) + "expected");
        EXPECT_EQ(actual.toStdString(), ReadAll(expected).toStdString()) << script.toStdString();
        if (actual != ReadAll(expected))
            WriteFile(expected + ".new", actual.toUtf8());
    }
}

} // namespace

} // namespace Hesperin
