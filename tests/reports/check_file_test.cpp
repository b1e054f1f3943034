// What is found in one creature file: tests/data/reports/check_file.txt. A case is the sample of an archer with texts
// in it replaced ("old => new", several parted by " | ", \n for a line feed).
#include "creature_files/document.h"
#include "localisation/languages.h"
#include "reports/check_file.h"
#include "reports/finding_text.h"
#include "support/cases_file.h"

namespace Hesperin {

namespace {

QByteArray Spoiled(QByteArray bytes, const QString& replacements) {
    for (const QString& replacement : replacements.split(" | ")) {
        const auto text = [&](int part) {
            return replacement.section(" => ", part, part).replace("\\n", "\n").toUtf8();
        };
        EXPECT_TRUE(bytes.contains(text(0))) << replacement.toStdString();
        bytes.replace(text(0), text(1));
    }
    return bytes;
}

TEST(CheckFile, FindsWhatIsWrong) {
    const QByteArray archer = ReadAll(TALMIR_SOURCE_DIR "/samples/swamp_archer.xdb").replace("\r\n", "\n");
    Vocabulary vocabulary;
    EXPECT_FALSE(vocabulary.Add("<T><Item><ID>\n ability_Of_a_mod\n</ID></Item><ID>SPELL_OF_A_MOD</ID></T>"));
    EXPECT_TRUE(vocabulary.Add("<T><ID>SPELL_ABILITY_OF_A_MOD</ID></U>"));
    const auto findingsIn = [&](const QByteArray& bytes) {
        const auto normalised = NormaliseCreature(bytes);
        return normalised ? CheckFile("a.xdb", bytes, *normalised, vocabulary).findings
                          : std::vector{UnreadableFile("a.xdb", normalised.Why())};
    };
    EXPECT_TRUE(findingsIn(archer).empty());
    ExpectCases("reports/check_file.txt", [&](const QString& act) {
        const bool russian = act.startsWith("RU ");
        const Messages& messages = MessagesIn(russian ? Russian : English);
        QStringList lines;
        for (const Finding& finding : findingsIn(Spoiled(archer, act.mid(russian ? 3 : 0))))
            lines.append(
                QString("%1:%2 %3 %4: %5")
                    .arg(finding.line)
                    .arg(finding.column)
                    .arg(SeverityText(messages, finding.severity), RuleName(finding), FindingText(messages, finding)));
        return lines.join('\n');
    });
}

} // namespace

} // namespace Hesperin
