#include "creature_files/creature_in_words.h"
#include "creature_files/document.h"
#include "creature_files/elements.h"
#include "creature_files/reader.h"
#include "creature_files/writer.h"
#include "support/cases_file.h"

#include <QDirIterator>
#include <QRegularExpression>

namespace Hesperin {

namespace {

constexpr double WeeklyGrowth = 7;
const QDir Project(TALMIR_SOURCE_DIR);

TEST(Writer, GivesAFileBackByteForByte) {
    QStringList paths{Project.filePath("tests/data/creature_files/whole.xdb")};
    for (QDirIterator samples(Project.filePath("samples"), {"*.xdb"}); samples.hasNext();)
        paths.append(samples.next());
    EXPECT_GE(paths.size(), 5);
    for (const QString& path : paths) {
        const auto document = LoadCreatureDocument(path);
        ASSERT_TRUE(document) << path.toStdString();
        const ReadCreature read = ReadCreatureText(document->text, EmptyCreature());
        const CreatureText text = BuildCreatureText(read.creature, *read.name, read.figures.FileGrowth);
        EXPECT_TRUE(text.plain);
        EXPECT_EQ(QString(CreatureFileBytes(text.text)), QString(ReadAll(path)));
    }
}

QStringList LinesOf(const Creature& creature) {
    const CreatureText text = BuildCreatureText(creature, creature.Name, WeeklyGrowth);
    return text.text.split('\n') + QStringList(text.plain ? "plain" : "not plain");
}

TEST(Writer, WritesWhatTheCreatureHolds) {
    ExpectCases("creature_files/writing.txt", [](const QString& act) {
        Creature creature = EmptyCreature();
        creature.Name = "Wyrm";
        const QStringList before = act == "basis" ? QStringList() : LinesOf(creature);
        if (act != "basis")
            for (const QString& words : act.split("; "))
                Enter(creature, words);
        const QStringList after = LinesOf(creature);
        QStringList changes;
        for (const QString& line : before)
            if (!after.contains(line))
                changes.append("- " + line);
        for (const QString& line : after)
            if (!before.contains(line))
                changes.append(before.isEmpty() ? line : "+ " + line);
        return changes.join('\n');
    });
}

TEST(Elements, AreEachOnceInAFileInTheOrderOfTheTable) {
    static const QRegularExpression opening("^\t+<(\\w+)", QRegularExpression::MultilineOption);
    const QString text = ReadAll(Project.filePath("tests/data/creature_files/whole.xdb"));
    QStringList written;
    for (auto found = opening.globalMatch(text); found.hasNext();)
        written.append(found.next().captured(1));
    for (const char* other : {"Item", "Spell", "Mastery", "MagicElement", "Cost"})
        written.removeAll(other);
    QStringList names;
    for (const Element& element : Elements)
        names.append(element.name.toString());
    EXPECT_EQ(names, written);
    int place = 0;
    for (const Element* element : ElementsToRead())
        EXPECT_EQ(element->readAs, ++place);
}

} // namespace

} // namespace Hesperin
