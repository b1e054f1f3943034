#include "catalogue/ability_catalogue.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Hesperin {

namespace {

TEST(AbilityCatalogue, HoldsTheGamesRows) {
    // Sums over the rows of the published table, worked out apart from this program: of the values
    // in hundredths, of index times value, and of the hash of each row's "index token stem
    // hundredths".
    const TestProgram test;
    int sum = 0;
    int weighted = 0;
    std::uint32_t hashes = 0;
    for (int i = 1; i <= Ability::Count; ++i) {
        const AbilityRow& row = AbilityCatalogue[static_cast<std::size_t>(i)];
        const int hundredths = static_cast<int>(std::lround(row.value * 100));
        EXPECT_EQ(row.value, static_cast<float>(hundredths / 100.0)) << i;
        sum += hundredths;
        weighted += i * hundredths;
        hashes += Hash(QString("%1 %2 %3 %4")
                           .arg(i)
                           .arg(test.form.Abilities(i).Caption(), QString::fromUtf16(row.stem))
                           .arg(hundredths));
    }
    EXPECT_EQ(sum, 19275);
    EXPECT_EQ(weighted, 1695269);
    EXPECT_EQ(hashes, 0x060662F1U);
}

TEST(AbilityCatalogue, NamesTheTextFilesInThreeWays) {
    // Number and index sum of the abilities of each way.
    std::map<TextFileNames, int> count;
    std::map<TextFileNames, int> sum;
    for (int i = 1; i <= Ability::Count; ++i) {
        const TextFileNames way = AbilityCatalogue[static_cast<std::size_t>(i)].files;
        ++count[way];
        sum[way] += i;
    }
    EXPECT_EQ(count[TextFileNames::Stem], 84);
    EXPECT_EQ(sum[TextFileNames::Stem], 7591);
    EXPECT_EQ(count[TextFileNames::Plain], 82);
    EXPECT_EQ(sum[TextFileNames::Plain], 6854);
    EXPECT_EQ(count[TextFileNames::Odd], 8);
    EXPECT_EQ(sum[TextFileNames::Odd], 37 + 68 + 95 + 98 + 102 + 103 + 132 + 145);
}

TEST(SpellCatalogue, HoldsTheGamesSpellsAndSpecialAbilities) {
    // Sums of the hashes of "index token" over the published lists.
    const TestProgram test(Russian); // tokens don't follow the language
    const auto sum = [](const auto& boxes) {
        std::uint32_t hashes = 0;
        for (const CheckBox& box : boxes)
            hashes += Hash(QString::number(box.ArrayIndex()) + ' ' + box.Caption());
        return hashes;
    };
    EXPECT_EQ(sum(test.form.Spells), 0x79D335F2U);
    EXPECT_EQ(sum(test.form.Specabilities), 0xE1DD5D93U);
}

} // namespace

} // namespace Hesperin
