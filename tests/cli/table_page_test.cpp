#include "cli/run_cli.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace Hesperin {

namespace {

TEST(TablePage, IsWrittenIntoAFileWithTheRowsAskedForOrRefusedWithoutLoss) {
    const QTemporaryDir folder;
    const QString mod = TALMIR_SOURCE_DIR "/samples";
    const QString path = folder.filePath("mod.html");
    const CliOutcome whole = RunCli({"table", mod, folder.filePath("missing"), "--html", path, "--sort", "-Power"});
    EXPECT_EQ(whole.code, 1); // for what is missing
    EXPECT_EQ(whole.out, "");
    const QString page = QString::fromUtf8(ReadAll(path));
    EXPECT_GT(page.indexOf("<b>hill_peasant.xdb</b>"), page.indexOf("<b>ash_wyvern.xdb</b>"));
    EXPECT_EQ(page.count("<b>"), 4);
    EXPECT_EQ(page.count("missing</strong> There is no such file."), 1);

    EXPECT_EQ(RunCli({"table", mod, "--html", path, "--outliers", "1000"}).code, 0);
    EXPECT_EQ(ReadAll(path).count("<b>"), 0);
    const CliOutcome refused = RunCli({"table", mod, "--html", folder.path()});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.err.contains("was not saved. It is a folder")) << refused.err.toStdString();
}

} // namespace

} // namespace Hesperin
