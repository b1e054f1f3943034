#include "catalogue/links.h"

#include <algorithm>

namespace Hesperin {

namespace {

template <typename Rows>
bool Contains(const Rows& rows, int index) {
    return std::find(rows.begin(), rows.end(), index) != rows.end();
}

} // namespace

int LinkedSpecability(int ability) {
    const auto* link = std::find_if(Links.begin(), Links.end(),
                                    [ability](const Link& row) { return row.ability == ability; });
    return link == Links.end() ? -1 : link->specability;
}

int LinkedAbility(int specability) {
    const auto* link = std::find_if(Links.begin(), Links.end(), [specability](const Link& row) {
        return row.specability == specability;
    });
    return link == Links.end() ? -1 : link->ability;
}

bool IsOneSidedAbility(int ability) {
    return Contains(OneSidedAbilities, ability);
}

bool IsOneSidedSpecability(int specability) {
    return Contains(OneSidedSpecabilities, specability);
}

bool IsNature(int ability) {
    return Contains(NatureGroup, ability);
}

} // namespace Hesperin
