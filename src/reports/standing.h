// Where one creature stands among those of its tier.
#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// The creature that is compared, as it is now.
struct StandingOf {
    std::int16_t tier = 0;
    double averagePower = 0;             ///< computed
    double power = 0;                    ///< its own
    std::optional<std::size_t> row = {}; ///< its row in the survey, which doesn't count then
};

struct Standing {
    double deviation = 0;         ///< in percent
    std::size_t place = 0;        ///< from 1, the highest deviation first
    std::vector<double> others{}; ///< deviations of the others of its tier
};

/// None when there is no scale in the tier, or one of the two Powers is 0 or less.
std::optional<Standing> StandIn(const Survey& survey, const StandingOf& creature);

} // namespace Hesperin
