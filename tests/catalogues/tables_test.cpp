#include "catalogues/ability_catalogue.h"
#include "catalogues/spell_catalogue.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QSet>

#include <cmath>

namespace Hesperin {

namespace {

/// 32-bit FNV-1a over the UTF-16 units.
std::uint32_t Hash(const QString& text) {
    std::uint32_t hash = 2166136261U;
    for (const QChar unit : text)
        hash = (hash ^ unit.unicode()) * 16777619U;
    return hash;
}

int Hundredths(float value) { return static_cast<int>(std::lround(static_cast<double>(value) * 100)); }

template <typename Boxes>
QStringList Captions(const Boxes& boxes) {
    QStringList captions;
    for (const CheckBox& box : boxes)
        captions.append(box.Caption());
    return captions;
}

void ExpectTokens(const QStringList& tokens, qsizetype count) {
    EXPECT_EQ(tokens.size(), count);
    EXPECT_EQ(QSet<QString>(tokens.begin(), tokens.end()).size(), count) << "a token stands twice";
    for (const QString& token : tokens)
        for (const QChar unit : token)
            EXPECT_TRUE((unit >= u'A' && unit <= u'Z') || (unit >= u'0' && unit <= u'9') || unit == u'_')
                << token.toStdString();
}

TEST(AbilityCatalogue, HoldsTheGamesRows) {
    // Sums over the rows of the published table, worked out apart from this program: of the values
    // in hundredths, of index times value, and of the hash of each row's "index token stem
    // hundredths".
    int sum = 0;
    int weighted = 0;
    std::uint32_t hashes = 0;
    for (int i = 1; i <= Ability::Count; ++i) {
        const AbilityRow& row = AbilityCatalogue[static_cast<std::size_t>(i)];
        const int hundredths = Hundredths(row.value);
        EXPECT_EQ(row.value, static_cast<float>(hundredths / 100.0)) << i;
        sum += hundredths;
        weighted += i * hundredths;
        hashes += Hash(QString("%1 %2 %3 %4")
                           .arg(i)
                           .arg(QString::fromUtf16(row.token), QString::fromUtf16(row.stem))
                           .arg(hundredths));
    }
    EXPECT_EQ(sum, 19275);
    EXPECT_EQ(weighted, 1695269);
    EXPECT_EQ(hashes, 0x060662F1U);
}

TEST(AbilityCatalogue, SpotChecks) {
    const struct {
        int index;
        const char* token;
        const char* stem;
        int hundredths;
    } rows[] = {
        {1, "ACID_BLOOD", "AcidBlood", 105},
        {15, "BALOR_SUMMONIG", "Balor_summoning", 110},
        {22, "BLADE_BARRIER", "Blade_Barrier", 176},
        {28, "CALL_STORM", "Presence_of_the_storm", 105},
        {64, "FLAMEWAVE", "Firestorm", 105},
        {75, "HOWL", "Howl", 183},
        {91, "LARGE_CREATURE", "Large_creature", 87},
        {98, "LIZARD_BITE", "Lizard_bite_name", 110},
        {130, "RANGE_PENALTY", "Range_penalty", 83},
        {147, "SHOOTER", "Shooter", 120},
        {164, "UNDEAD", "Undead", 100},
        {174, "WOUND", "Wound", 115},
    };
    const TestProgram test;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.token);
        EXPECT_EQ(test.form.Abilities(row.index).Caption(), row.token);
        const AbilityRow& entry = AbilityCatalogue[static_cast<std::size_t>(row.index)];
        EXPECT_EQ(QString::fromUtf16(entry.stem), row.stem);
        EXPECT_EQ(Hundredths(entry.value), row.hundredths);
    }
}

TEST(AbilityCatalogue, StandsInAlphabeticalOrder) {
    const TestProgram test;
    QStringList tokens = Captions(test.form.Abilities);
    ExpectTokens(tokens, 174);
    tokens.replaceInStrings("_", " "); // words count, as in a dictionary
    EXPECT_TRUE(std::is_sorted(tokens.begin(), tokens.end()));
}

TEST(AbilityCatalogue, NamesTheTextFilesInThreeWays) {
    // Number and index sum of the abilities of each way.
    int count[3] = {};
    int sum[3] = {};
    for (int i = 1; i <= Ability::Count; ++i) {
        const auto way = static_cast<std::size_t>(AbilityCatalogue[static_cast<std::size_t>(i)].files);
        ++count[way];
        sum[way] += i;
    }
    EXPECT_EQ(count[static_cast<int>(TextFileNames::Stem)], 84);
    EXPECT_EQ(sum[static_cast<int>(TextFileNames::Stem)], 7591);
    EXPECT_EQ(count[static_cast<int>(TextFileNames::Plain)], 82);
    EXPECT_EQ(sum[static_cast<int>(TextFileNames::Plain)], 6854);
    EXPECT_EQ(count[static_cast<int>(TextFileNames::Odd)], 8);
    EXPECT_EQ(sum[static_cast<int>(TextFileNames::Odd)], 37 + 68 + 95 + 98 + 102 + 103 + 132 + 145);
}

TEST(SpellCatalogue, HoldsTheGamesSpellsAndSpecialAbilities) {
    // Sums of the hashes of "index token" over the published lists.
    const TestProgram test(Russian); // tokens don't follow the language
    std::uint32_t spells = 0;
    std::uint32_t specabilities = 0;
    for (const CheckBox& box : test.form.Spells)
        spells += Hash(QString::number(box.ArrayIndex()) + ' ' + box.Caption());
    for (const CheckBox& box : test.form.Specabilities)
        specabilities += Hash(QString::number(box.ArrayIndex()) + ' ' + box.Caption());
    EXPECT_EQ(spells, 0x79D335F2U);
    EXPECT_EQ(specabilities, 0xE1DD5D93U);
    ExpectTokens(Captions(test.form.Spells), 91);
    ExpectTokens(Captions(test.form.Specabilities), 55);
    EXPECT_EQ(test.form.Spells(1).Caption(), "ANIMATE_DEAD");
    EXPECT_EQ(test.form.Spells(91).Caption(), "WEAKNESS");
    EXPECT_EQ(test.form.Specabilities(0).Caption(), "WEAKNING_STRIKE");
    EXPECT_EQ(test.form.Specabilities(1).Caption(), "AGILITY");
    EXPECT_EQ(test.form.Specabilities(54).Caption(), "VENOM");
}

TEST(SpellCatalogue, MasteriesInRisingOrder) {
    QStringList tokens;
    for (const char16_t* token : MasteryToken)
        tokens.append(QString::fromUtf16(token));
    EXPECT_EQ(tokens.join(' '), "NONE BASIC ADVANCED EXPERT EXTRA_EXPERT");
}

} // namespace

} // namespace Hesperin
