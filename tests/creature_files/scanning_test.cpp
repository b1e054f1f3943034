#include "creature_files/scanning.h"
#include "support/cases_file.h"

namespace Hesperin {

namespace {

QString Asked(const QString& verb, const QString& argument, const QString& text) {
    const TextBuffer buffer(text);
    if (verb == "number") {
        const TagNumberResult number = TagNumber(buffer, QString('<' + argument + '>'), QString("</" + argument + '>'));
        return QString("%1%2%3 '%4'")
            .arg(number.found ? "" : "not found: ", number.limited ? "limited: " : "")
            .arg(number.value)
            .arg(number.text);
    }
    if (verb == "true")
        return QString::number(TagIsTrue(buffer, argument));
    if (verb == "find") {
        ScanPositions first{99, 99};
        ScanPositions second{99, 99};
        const std::int16_t found = FindToken(first, buffer, argument);
        EXPECT_EQ(FindSpecabilityToken(second, buffer, argument), found);
        EXPECT_EQ(second.SpecabilityTokenPosition, first.TokenPosition);
        EXPECT_EQ(first.SpecabilityTokenPosition + second.TokenPosition, 2 * 99) << "belongs to the other search";
        return QString("%1 at %2").arg(found).arg(first.TokenPosition);
    }
    return '\'' + CreatureNameIn(buffer).value_or("none") + '\'';
}

TEST(Scanning, EveryAnswerRestsOnTheFirstOccurrence) {
    ExpectCases("creature_files/scanning.txt", [](const QString& act) {
        const QString verb = act.section(' ', 0, 0);
        const QString argument = act.section('|', 0, 0).section(' ', 1);
        QString text = act.section('|', 1);
        text.replace("MARKED", ".(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)");
        text.replace("PLAIN", ".xdb#xpointer(/AdvMapMonsterShared)");
        QString answer = Asked(verb, argument, text);
        const QString blanks(400, ' '); // long texts are searched in another way than short ones
        EXPECT_EQ(Asked(verb, argument, text + blanks), answer) << act.toStdString();
        return answer;
    });
    const QString token = "SPELL_CURSE";
    EXPECT_EQ(Asked("find", token, QString(32767 - token.size(), 'x') + token), "1 at 32756");
}

} // namespace

} // namespace Hesperin
