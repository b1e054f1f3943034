// From what was entered to what the formulas take. Nothing is refused: a value outside its range is
// corrected, and the correction is told.
#pragma once

#include "model/creature.h"
#include "model/terms.h"

#include <optional>
#include <vector>

namespace Hesperin {

/// What the formulas take: every number within its range (ParameterRanges).
struct Parameters {
    std::int16_t Attack = 1;
    std::int16_t Defence = 1;
    std::int16_t Health = 1;
    std::int16_t MinDam = 1;
    std::int16_t MaxDam = 1;
    std::int16_t Speed = 1;
    std::int16_t Initiative = 1;
    std::int16_t Tier = 1;
    float AbilityProduct = 1.0F;
    float UpgradeFactor = PlainFactor;
    bool Shooter = false;

    bool operator==(const Parameters&) const = default;

    std::int16_t& operator[](Parameter which) { return this->*Member(which); }
    std::int16_t operator[](Parameter which) const { return this->*Member(which); }

private:
    static std::int16_t Parameters::*Member(Parameter which);
};

/// The texts and ticks that validation looks at, wherever they are kept. The views must outlive its
/// use.
struct EnteredParameters {
    QStringView Attack;
    QStringView Defence;
    QStringView Health;
    QStringView MinDam;
    QStringView MaxDam;
    QStringView Speed;
    QStringView Initiative;
    QStringView Tier;
    QStringView Mana;  ///< counts for a caster only
    QStringView Shots; ///< counts for a shooter only
    bool Caster = false;
    bool Shooter = false;
    float AbilityProduct = 1.0F;
    float UpgradeFactor = PlainFactor;
};

/// A value that validation has changed.
struct Correction {
    /// In the order in which values are corrected.
    enum class What : std::uint8_t {
        Mana,
        Shots,
        Attack,
        Defence,
        Health,
        MinDam,
        MaxDam,
        DamageOrder, ///< the minimum followed the maximum
        Speed,
        Initiative,
        Tier,
        Count
    };
    What what;
    QString from; ///< as entered; for DamageOrder the minimum as it stood then
    std::int16_t to;

    bool operator==(const Correction&) const = default;
};

/// The parameter that is corrected; none for mana and shots, of DamageOrder the minimum.
std::optional<Parameter> ParameterOf(Correction::What what);

struct Validated {
    Parameters parameters;
    std::vector<Correction> corrections;
};

/// A value of 0 or below becomes 1, one above its range the end of the range; a minimum damage
/// above the maximum becomes the maximum. An empty field reads as 0. Mana and shots need only be
/// above 0.
Validated Validate(const EnteredParameters& entered);

/// The parameters of a creature, with the product of its abilities' values.
EnteredParameters EnteredOf(const Creature& creature);
EnteredParameters EnteredOf(Creature&&) = delete; // which would be gone before its texts are read

/// The same, with a step a ticked ability added to `record`.
EnteredParameters EnteredOf(const Creature& creature, Record& record);

/// The upgrade factor behind the entry chosen in the list Upgrade: 1.0 for "False", 1.6 for any
/// other text.
float UpgradeFactorOf(QStringView entry);

/// Product of 174 values in the order of their abilities. It is a 32-bit float throughout, so the
/// order is part of the result.
float ProductOf(const std::array<float, Ability::Count + 1>& values);

} // namespace Hesperin
