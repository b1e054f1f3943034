#include "catalogues/links.h"

#include <algorithm>

namespace Hesperin {

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

} // namespace Hesperin
