// A creature file may hold anything: it is opened in order, or refused with a reason and nothing changed.
#include "app/creature_in_form.h"
#include "app/handlers/file_menu.h"
#include "app/handlers/form_load.h"
#include "cli/run_cli.h"
#include "cli/state_json.h"
#include "creature_files/document.h"
#include "creature_files/writer.h"
#include "reliability/damage.h"
#include "support/invariants.h"
#include "support/peak_memory.h"
#include "support/repetitions.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

namespace {

/// A program that opens files.
struct Opener {
    explicit Opener(std::uint8_t language) { Form_Load(program, {language, false}); }

    /// What is wrong with how it takes the file; empty when nothing is.
    QString WrongAbout(const QString& path) {
        const QJsonObject before = StateJson(program, platform);
        failure = OpenCreatureFile(program, path);
        const std::vector<ShownMessage> boxes = std::exchange(platform.messages, {});
        if (!failure)
            return program.form.RTBData.Text().size() > LongestCreatureText ? "it is longer than its positions reach"
                   : !BuildCreatureText(TakeCreature(program), "Name", 0).text.endsWith("</Creature>")
                       ? "it cannot be written"
                       : BrokenInvariant(program);
        const QString named = '"' + path + '"';
        const QString told = boxes.empty() ? QString() : boxes[0].text;
        if (boxes.size() != 1 || boxes[0].icon != BoxIcon::Critical || !told.contains(named))
            return "a refusal is one critical box that names the file: " + told;
        if (told.size() < named.size() + 30 || told.size() > named.size() + 400)
            return "the reason is a sentence: " + told;
        return StateJson(program, platform) == before ? "" : "a refusal changes the window";
    }

    CliPlatform platform;
    Program program{platform};
    Failure failure; ///< of the last file
};

TEST(DamagedFiles, AreOpenedInOrderOrRefusedWithNothingChanged) {
    constexpr unsigned damagesOfEach = Repetitions(2500U);
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.xdb");
    const QDir samples(TALMIR_SOURCE_DIR "/samples");
    const QStringList names = samples.entryList({"*.xdb"});
    ASSERT_GE(names.size(), 4);
    for (const QString& name : names) {
        Opener opener(name.size() % 2 == 0 ? English : Russian);
        ASSERT_EQ(opener.WrongAbout(samples.filePath(name)), "");
        ASSERT_FALSE(opener.failure);
        const QByteArray whole = ReadAll(samples.filePath(name));
        unsigned refused = 0;
        const qint64 before = PeakMemory();
        for (unsigned seed = 1; seed <= damagesOfEach; ++seed) {
            Damage damage(seed);
            WriteFile(path, damage.Do(whole));
            ASSERT_EQ(opener.WrongAbout(path), "")
                << name.toStdString() << ", " << seed << ": " << damage.Story().data();
            refused += opener.failure ? 1 : 0;
        }
        EXPECT_GT(refused, damagesOfEach / 4) << "the damages are too slight";
        EXPECT_LT(refused, damagesOfEach * 3 / 4) << "the damages are too heavy";
        EXPECT_LT(PeakMemory() - before, PeakMemoryAllowed);
    }
}

TEST(DamagedFiles, AFileOfAnySizeIsRefusedInLittleMemory) {
    const QTemporaryDir folder;
    Opener opener(English);
    const qint64 before = PeakMemory();
    for (const char* write : {"yes '' | head -c 100M >a.xdb", "truncate -s 4G a.xdb"}) { // blank lines, then nulls too
        EXPECT_EQ(RunShell(write, folder.path()).code, 0);
        EXPECT_EQ(opener.WrongAbout(folder.filePath("a.xdb")), "");
        EXPECT_TRUE(opener.failure && opener.failure->what == Error::What::FileTooLarge);
    }
    EXPECT_LT(PeakMemory() - before, qint64{4} << 20);
}

} // namespace

} // namespace Hesperin
