// The 91 spells, the 55 special abilities and the five masteries, by the game's tokens.
#pragma once

#include <array>

namespace Hesperin {

inline constexpr int SpellCount = 91;
inline constexpr int SpecabilityCount = 54; ///< without that at 0, which nobody can tick
inline constexpr int MasteryCount = 5;

extern const std::array<const char16_t*, SpellCount + 1> SpellToken;             ///< from 1
extern const std::array<const char16_t*, SpecabilityCount + 1> SpecabilityToken; ///< from 0

/// By the level that a mastery selector holds.
inline constexpr std::array<const char16_t*, MasteryCount> MasteryToken{
    u"NONE", u"BASIC", u"ADVANCED", u"EXPERT", u"EXTRA_EXPERT"};

/// The boolean words of creature files.
inline constexpr const char16_t* TokenTrue = u"true";
inline constexpr const char16_t* TokenFalse = u"false";

} // namespace Hesperin
