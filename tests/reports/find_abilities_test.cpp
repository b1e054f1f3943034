#include "reports/find_abilities.h"
#include "support/cases_file.h"

namespace Hesperin {

namespace {

TEST(FindAbilities, MatchesAllWordsInTokenNameAndDescription) {
    AllAbilityWords words;
    words[16] = {"Оглушение", "Бьёт врага.\nСнова и снова"};
    words[66] = {"Полёт", "Летает над стенами"};
    ExpectCases("reports/find.txt", [&](const QString& text) {
        QStringList lines;
        for (const QString& line : FoundTable(FindAbilities(text, words), words).split('\n', Qt::SkipEmptyParts))
            lines.append(line.simplified().section(' ', 0, 1));
        return lines.join('\n');
    });
    EXPECT_EQ(FindAbilities(" ", words).size(), 174U);
}

} // namespace

} // namespace Hesperin
