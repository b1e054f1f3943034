#include "catalogue/ability_catalogue.h"
#include "catalogue/links.h"
#include "catalogue/spell_catalogue.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Hesperin {

namespace {

QString Token(const char16_t* text) { return QString::fromUtf16(text); }

TEST(Catalogue, HoldsTheGamesRows) {
    // Sums over the published tables, worked out apart from this program: of the abilities' values in hundredths, of
    // index times value, of the hashes of "index token stem hundredths"; for the others of "index token".
    constexpr int ownFileNames[] = {37, 68, 95, 98, 102, 103, 132, 145};
    int sum = 0;
    int weighted = 0;
    std::uint32_t hashes[3]{};
    int named[2]{}; // index sums of the abilities by the names of their text files
    for (int i = 1; i <= Ability::Count; ++i) {
        const AbilityRow& row = AbilityCatalogue[static_cast<std::size_t>(i)];
        const int hundredths = static_cast<int>(std::lround(row.value * 100));
        EXPECT_EQ(row.value, static_cast<float>(hundredths / 100.0)) << i;
        sum += hundredths;
        weighted += i * hundredths;
        hashes[0] += Hash(QString("%1 %2 %3 %4").arg(i).arg(Token(row.token), Token(row.stem)).arg(hundredths));
        if (std::find(std::begin(ownFileNames), std::end(ownFileNames), i) == std::end(ownFileNames))
            named[static_cast<int>(row.files)] += i;
    }
    for (std::size_t i = 1; i < SpellToken.size(); ++i)
        hashes[1] += Hash(QString("%1 %2").arg(i).arg(Token(SpellToken[i])));
    for (std::size_t j = 0; j < SpecabilityToken.size(); ++j)
        hashes[2] += Hash(QString("%1 %2").arg(j).arg(Token(SpecabilityToken[j])));
    EXPECT_EQ((std::vector{sum, weighted, named[0], named[1]}), (std::vector{19275, 1695269, 7591, 6854}));
    EXPECT_EQ(std::vector<std::uint32_t>(std::begin(hashes), std::end(hashes)),
              (std::vector{0x060662F1U, 0x79D335F2U, 0xE1DD5D93U}));
}

TEST(Links, AreThoseOfTheGame) {
    // They follow the tokens but for two pairs of different tokens, and eleven equal ones that are not linked.
    const QStringList unlinked{"AGILITY",    "BEAR_ROAR",  "DEATH_CLOUD",      "DEATH_WAIL", "ENRAGED",         "FEAR",
                               "LIFE_DRAIN", "MANA_DRAIN", "ENTANGLING_ROOTS", "VENOM",      "POISONOUS_ATTACK"};
    int links = 0;
    for (int i = 1; i <= Ability::Count; ++i) {
        EXPECT_EQ(IsOneSidedAbility(i), i == 75 || i == 132) << i;
        EXPECT_EQ(IsOneSidedSpecability(i), i == 3 || i == 49) << i;
        EXPECT_EQ(IsNature(i), i == 49 || i == 65 || i == 111 || i == 164) << i;
        for (int j = 0; j <= SpecabilityCount; ++j) {
            const QString token = Token(AbilityCatalogue[static_cast<std::size_t>(i)].token);
            const bool same = token == Token(SpecabilityToken[static_cast<std::size_t>(j)]);
            const bool linked = (same && !unlinked.contains(token)) || (i == 128 && j == 37) || (i == 129 && j == 38);
            EXPECT_EQ(LinkedSpecability(i) == j, linked) << i << ' ' << j;
            EXPECT_EQ(LinkedAbility(j) == i, linked) << i << ' ' << j;
            links += linked;
        }
    }
    EXPECT_EQ(links, 36);
}

} // namespace

} // namespace Hesperin
