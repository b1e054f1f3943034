// The abilities that rules outside the catalogue refer to, by their place in it.
#pragma once

namespace Hesperin::Ability {

inline constexpr int Count = 174;

inline constexpr int Caster = 29;
inline constexpr int Elemental = 49;
inline constexpr int FleshAndBlood = 65;
inline constexpr int Flyer = 66;
inline constexpr int LargeCreature = 91;
inline constexpr int Mechanical = 111;
inline constexpr int Shooter = 147;
inline constexpr int Undead = 164;

} // namespace Hesperin::Ability
