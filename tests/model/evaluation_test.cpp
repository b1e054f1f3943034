#include "model/evaluation.h"

#include "support/cases_file.h"
#include "text/numbers.h"

#include <gtest/gtest.h>

#include <QMap>

namespace Hesperin {

namespace {

/// What Validate makes of a creature of fives, with the values that `words` gives it: its corrections, and the
/// parameters that aren't 5.
QString Validation(const QString& words) {
    static const QMap<QString, NumberField> numbers{{"Mana", NumberField::Mana},     {"Shots", NumberField::Shots},
                                                    {"Attack", NumberField::Attack}, {"Defence", NumberField::Defence},
                                                    {"Health", NumberField::Health}, {"MinDam", NumberField::MinDam},
                                                    {"MaxDam", NumberField::MaxDam}};
    static const QMap<QString, ListField> lists{
        {"Speed", ListField::Speed}, {"Initiative", ListField::Initiative}, {"Tier", ListField::Tier}};
    static const QStringList corrected =
        QString("Mana Shots Attack Defence Health MinDam MaxDam DamageOrder Speed Initiative Tier").split(' ');
    Creature creature = EmptyCreature();
    creature.Numbers.items.fill("5");
    for (const ListField list : lists)
        creature.Choices[list].text = "5";
    for (const QString& word : words.split(' ')) {
        const QString name = word.section('=', 0, 0);
        if (numbers.contains(name))
            creature.Numbers[numbers[name]] = word.section('=', 1);
        else if (lists.contains(name))
            creature.Choices[lists[name]].text = word.section('=', 1);
        else if (name == "Ticked")
            creature.Abilities[Ability::Caster] = creature.Abilities[Ability::Shooter] = true;
    }
    const Validated validated = Validate(EnteredOf(creature));
    EXPECT_EQ(validated.parameters.Shooter, creature.Has(Ability::Shooter));
    QStringList told;
    for (const Correction& correction : validated.corrections)
        told.append(QString("%1 '%2' becomes %3")
                        .arg(corrected[int(correction.what)], correction.from, QString::number(correction.to)));
    QStringList taken;
    for (std::size_t i = 0; i < ParameterRanges.items.size(); ++i)
        if (const auto value = validated.parameters[static_cast<Parameter>(i)]; value != 5)
            taken.append(QString("%1 %2").arg(ParameterRanges.items[i].name).arg(value));
    return told.join('\n') + '\n' + taken.join(", ");
}

TEST(Validation, CorrectsAndTellsIt) { ExpectCases("model/validation.txt", Validation); }

TEST(AbilityProduct, IsAThirtyTwoBitFloatFormedInIndexOrder) {
    // Products of the catalogue's values, each step rounded to 32 bits. In 64 bits, or backwards, the last of the
    // seven digits differs.
    const struct {
        std::vector<int> abilities;
        float product;
        const char* text;
    } cases[] = {
        {{}, 1, "1"},
        {{9, 33, 48, 162, 174}, 0.983465254F, "0.9834653"},
        {{10, 40, 46, 62, 75, 83, 94, 125, 132}, 6.48509741F, "6.485097"},
        {{2, 3, 19, 22, 24, 26, 33, 36, 55, 57, 62, 74, 78, 81, 88, 100, 106, 107, 108, 119, 130, 135, 157, 165, 166},
         9.63098907F,
         "9.630989"},
    };
    for (const auto& row : cases) {
        Creature creature;
        for (const int ability : row.abilities)
            creature.Set(ability, true);
        const float product = EnteredOf(creature).AbilityProduct;
        EXPECT_EQ(product, row.product);
        EXPECT_EQ(FloatText(product), row.text);
    }
}

TEST(Advice, FollowsTheBandsAndComparesWithThePlainOrUpgradedReference) {
    const std::pair<double, std::int16_t> bands[] = {{1, 1},    {151, 1},  {152, 2},  {259, 2},   {260, 3},   {511, 3},
                                                     {512, 4},  {977, 4},  {978, 5},  {2051, 5},  {2052, 6},  {4696, 6},
                                                     {4697, 7}, {6500, 7}, {6501, 8}, {24000, 8}, {24001, 8}, {1e9, 8}};
    for (const auto& [power, tier] : bands)
        EXPECT_EQ(AdviseTier(power), tier) << power;
    constexpr std::int16_t plain[] = {78, 152, 260, 512, 978, 2052, 4697, 6500};
    constexpr std::int16_t upgraded[] = {129, 227, 367, 723, 1336, 2463, 5954, 8000};
    for (std::int16_t tier = 1; tier <= 8; ++tier)
        for (const char* upgrade : {"False", "True"}) {
            Parameters parameters;
            parameters.Tier = tier;
            parameters.UpgradeFactor = UpgradeFactorOf(QString(upgrade));
            const Advice advice = AdviseOn(parameters, 600);
            const std::int16_t reference = (*upgrade == 'T' ? upgraded : plain)[tier - 1];
            EXPECT_EQ(advice.TierReferencePower, reference);
            EXPECT_EQ(advice.PowerRatio, static_cast<float>(600.0 / reference));
            EXPECT_EQ(advice.AdvisedTier, 4);
        }
}

} // namespace

} // namespace Hesperin
