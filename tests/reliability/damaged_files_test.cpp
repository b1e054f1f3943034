// A creature file may hold anything: it is opened in order, or refused with a reason and nothing changed.
#include "creature_files/creature_xml.h"
#include "app/handlers/file_menu.h"
#include "app/window_snapshot.h"
#include "creature_files/writer.h"
#include "reliability/damage.h"
#include "support/invariants.h"
#include "support/peak_memory.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

namespace {

/// Opens files, and tells what is wrong with how the program took them.
class Opener {
public:
    explicit Opener(TestProgram& owner) : test(owner), window(Snapshot(owner)) {}

    /// Empty when nothing is wrong.
    QString WrongAbout(const QString& path) {
        test.platform.boxes.clear();
        const bool opened = OpenCreatureFile(test.program, path);
        QStringList before = std::exchange(window, Snapshot(test));
        if (opened)
            return WrongAboutOpened();
        const ScriptedPlatform::Box box =
            test.platform.boxes.empty() ? ScriptedPlatform::Box{} : test.platform.boxes[0];
        const QString named = '"' + path + '"';
        if (test.platform.boxes.size() != 1 || box.icon != BoxIcon::Critical || !box.text.contains(named))
            return "a refusal is one critical box that names the file: " + test.platform.Texts().join(" | ");
        if (box.text.size() < named.size() + 30 || box.text.size() > named.size() + 400)
            return "the reason is a sentence: " + box.text;
        return window == before ? "" : "a refusal changes the window";
    }

private:
    QString WrongAboutOpened() const {
        if (test.form.RTBData.Text().size() > 32767)
            return "the text is longer than its positions reach";
        if (!BuildCreatureText(test.program, "Name").text.endsWith("</Creature>"))
            return "it cannot be written";
        return BrokenInvariant(test.program);
    }

    TestProgram& test;
    QStringList window;
};

TEST(DamagedFiles, AreOpenedInOrderOrRefusedWithNothingChanged) {
#ifdef __SANITIZE_ADDRESS__ // ten times slower
    constexpr unsigned damagesOfEach = 500;
#else
    constexpr unsigned damagesOfEach = 2000;
#endif
    const QDir samples(TALMIR_SOURCE_DIR "/samples");
    const QStringList names = samples.entryList({"*.xdb"});
    ASSERT_GE(names.size(), 4);
    for (const QString& name : names) {
        const QByteArray whole = ReadAll(samples.filePath(name));
        TestProgram test(name.size() % 2 == 0 ? English : Russian);
        ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("Creature_200.xdb", CreatureXml().Bytes())));
        Opener opener(test);
        unsigned refused = 0;
        const qint64 before = PeakMemory();
        for (unsigned seed = 1; seed <= damagesOfEach; ++seed) {
            Damage damage(seed);
            const QString path = test.Write("a.xdb", damage.Do(whole));
            ASSERT_EQ(opener.WrongAbout(path), "")
                << name.toStdString() << ", " << seed << ": " << damage.Story().data();
            refused += test.program.failure.isEmpty() ? 0 : 1;
        }
        EXPECT_GT(refused, damagesOfEach / 4) << "the damages are too slight";
        EXPECT_LT(refused, damagesOfEach * 3 / 4) << "the damages are too heavy";
        EXPECT_LT(PeakMemory() - before, PeakMemoryAllowed);
    }
}

TEST(DamagedFiles, AFileOfAnySizeIsRefusedInLittleMemory) {
    TestProgram test;
    QFile blanks(test.Path("blanks.xdb"));
    ASSERT_TRUE(blanks.open(QIODevice::WriteOnly));
    const QByteArray megabyte(1 << 20, ' ');
    for (int written = 0; written < 100; ++written)
        ASSERT_EQ(blanks.write(megabyte), megabyte.size());
    blanks.close();
    QFile nulls(test.Path("nulls.xdb"));
    ASSERT_TRUE(nulls.open(QIODevice::WriteOnly));
    ASSERT_TRUE(nulls.resize(qint64{1} << 32)); // takes no room on disk
    nulls.close();
    Opener opener(test);
    const qint64 before = PeakMemory();
    for (const char* name : {"blanks.xdb", "nulls.xdb"}) {
        EXPECT_EQ(opener.WrongAbout(test.Path(name)), "");
        EXPECT_TRUE(test.program.failure.contains("1048576")) << test.program.failure.toStdString();
    }
    EXPECT_LT(PeakMemory() - before, qint64{4} << 20);
}

} // namespace

} // namespace Hesperin
