// The heart of the balance model: what depends on the tier.
#pragma once

#include <array>
#include <cstdint>

namespace Hesperin {

inline constexpr std::int16_t HighestTier = 8;

/// Indexed by tier, from 1; entry 0 is never read.
template <typename T>
using TierTable = std::array<T, HighestTier + 1>;

// clang-format off
//                                                        tier      1      2      3      4      5      6      7      8
inline constexpr TierTable<std::uint8_t> ExpDivisor        {0,     10,    11,    12,    14,    16,    18,    20,    22};
inline constexpr TierTable<std::int16_t> GrowthBase        {0,   2000,  2400,  2900,  3650,  4650,  5000,  7000,  9000};
inline constexpr TierTable<std::int16_t> GoldBase          {0,   1400,  1900,  2500,  3500,  5500,  6800,  9000, 11250};
inline constexpr TierTable<float>        GoldPerPower      {0,  0.35F, 0.40F, 0.43F, 0.48F, 0.59F, 0.68F, 0.75F, 0.80F};
inline constexpr TierTable<std::int16_t> TierPower         {0,     78,   152,   260,   512,   978,  2052,  4697,  6500};
inline constexpr TierTable<std::int16_t> TierPowerUpgraded {0,    129,   227,   367,   723,  1336,  2463,  5954,  8000};
// clang-format on

/// Highest average Power of each tier's band from tier 1 to 7; all above belongs to tier 8.
inline constexpr std::array<double, 7> BandEnds{151, 259, 511, 977, 2051, 4696, 6500};

/// From this tier on weekly growth is the same by both methods, whatever the Power and the upgrade.
inline constexpr std::int16_t FirstTierOfFixedGrowth = 5;
inline constexpr std::array<std::int16_t, 4> FixedGrowth{3, 2, 1, 1};

} // namespace Hesperin
