#include "creature_files/file_tokens.h"

#include "catalogue/ability_catalogue.h"

namespace Hesperin {

namespace {

template <std::size_t Count, typename TokenOf>
std::array<QString, Count> Prefixed(const char* prefix, TokenOf tokenOf) {
    std::array<QString, Count> tokens;
    for (std::size_t i = 0; i < Count; ++i)
        tokens[i] = QLatin1String(prefix) + QString::fromUtf16(tokenOf(i));
    return tokens;
}

} // namespace

const std::array<QString, Ability::Count + 1>& AbilityTokens() {
    static const auto tokens = Prefixed<Ability::Count + 1>(
        "ABILITY_", [](std::size_t i) { return AbilityCatalogue[i].token; });
    return tokens;
}

const std::array<QString, SpellCount + 1>& SpellTokens() {
    static const auto tokens =
        Prefixed<SpellCount + 1>("SPELL_", [](std::size_t i) { return SpellToken[i]; });
    return tokens;
}

const std::array<QString, SpecabilityCount + 1>& SpecabilityTokens() {
    static const auto tokens = Prefixed<SpecabilityCount + 1>(
        "SPELL_ABILITY_", [](std::size_t i) { return SpecabilityToken[i]; });
    return tokens;
}

const std::array<QString, MasteryCount>& MasteryTokens() {
    static const auto tokens =
        Prefixed<MasteryCount>("MASTERY_", [](std::size_t level) { return MasteryToken[level]; });
    return tokens;
}

} // namespace Hesperin
