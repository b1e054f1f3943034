// Which abilities are tied to other things of the game.
#pragma once

#include "catalogue/ability_index.h"

#include <array>

namespace Hesperin {

/// An ability and a special ability that stand for one effect of the game.
struct Link {
    int ability;
    int specability;
};

// clang-format off
inline constexpr std::array<Link, 36> Links{{
    {  4,  2}, // AMMO_STEAL           AMMO_STEAL
    { 17,  4}, // BATTLE_DIVE          BATTLE_DIVE
    { 21,  6}, // BERSERKER_RAGE       BERSERKER_RAGE
    { 27,  7}, // CALL_LIGHTNING       CALL_LIGHTNING
    { 28,  8}, // CALL_STORM           CALL_STORM
    { 38,  9}, // DASH                 DASH
    { 42, 12}, // DEFILE_MAGIC         DEFILE_MAGIC
    { 56, 15}, // EXPLOSION            EXPLOSION
    { 63, 17}, // FLAMESTRIKE          FLAMESTRIKE
    { 70, 20}, // HARM_TOUCH           HARM_TOUCH
    { 71, 21}, // HARPOON_STRIKE       HARPOON_STRIKE
    { 87, 22}, // INCINERATE           INCINERATE
    { 89, 23}, // INVISIBILITY         INVISIBILITY
    { 93, 24}, // LAY_HANDS            LAY_HANDS
    { 94, 25}, // LEAP                 LEAP
    { 99, 27}, // LUCK_GAMBLER         LUCK_GAMBLER
    {107, 30}, // MANA_FEED            MANA_FEED
    {115, 32}, // ORDER_OF_THE_CHIEF   ORDER_OF_THE_CHIEF
    {116, 33}, // PACK_DIVE            PACK_DIVE
    {121, 35}, // POWER_FEED           POWER_FEED
    {126, 36}, // RAGE_OF_THE_FOREST   RAGE_OF_THE_FOREST
    {128, 37}, // RANDOM_CASTER        RANDOM_CAST_DARK
    {129, 38}, // RANDOM_CASTER_BLESS  RANDOM_CAST_DARK_LIGHT
    {134, 40}, // REPAIR               REPAIR
    {135, 41}, // RESURRECT_ALLIES     RESURRECT_ALLIES
    {138, 42}, // SABOTAGE             SABOTAGE
    {139, 43}, // SACRIFICE_GOBLIN     SACRIFICE_GOBLIN
    {140, 44}, // SCATTER_SHOT         SCATTER_SHOT
    {141, 45}, // SCAVENGER            SCAVENGER
    {143, 46}, // SEDUCE               SEDUCE
    {144, 47}, // SET_SNARES           SET_SNARES
    {152, 48}, // STORMBOLT            STORMBOLT
    {155, 50}, // SUMMON_OTHER         SUMMON_OTHER
    {156, 51}, // SWALLOW_GOBLIN       SWALLOW_GOBLIN
    {157, 52}, // SYPHON_MANA          SYPHON_MANA
    {163, 53}, // TREEANT_UNION        TREEANT_UNION
}};
// clang-format on

/// Abilities that count as a charge and have no special ability: HOWL and REBIRTH.
inline constexpr std::array<int, 2> OneSidedAbilities{75, 132};

/// Special abilities that count as a charge and have no ability: AVATAR_OF_DEATH and SUMMON_BALOR.
inline constexpr std::array<int, 2> OneSidedSpecabilities{3, 49};

/// What a creature is by nature: at most one of these.
inline constexpr std::array<int, 4> NatureGroup{Ability::Elemental, Ability::FleshAndBlood,
                                                Ability::Mechanical, Ability::Undead};

/// The special ability linked to an ability, or -1.
int LinkedSpecability(int ability);

/// The ability linked to a special ability, or -1.
int LinkedAbility(int specability);

/// Whether the ability, or the special ability, counts as a charge without a partner.
bool IsOneSidedAbility(int ability);
bool IsOneSidedSpecability(int specability);

bool IsNature(int ability);

} // namespace Hesperin
