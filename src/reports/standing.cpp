#include "reports/standing.h"

#include <algorithm>

namespace Hesperin {

std::optional<Standing> StandIn(const Survey& survey, const StandingOf& creature) {
    const auto deviation = DeviationOf(creature.averagePower, creature.power,
                                       survey.scale.Of(creature.tier, Figure::Power));
    if (!deviation)
        return std::nullopt;
    Standing standing{*deviation};
    for (std::size_t row = 0; row < survey.rows.size(); ++row)
        if (const SurveyRow& other = survey.rows[row];
            other.tier == creature.tier && other.deviation && row != creature.row)
            standing.others.push_back(*other.deviation);
    standing.place = 1 + static_cast<std::size_t>(std::count_if(
                             standing.others.begin(), standing.others.end(),
                             [&](double other) { return other > standing.deviation; }));
    return standing;
}

} // namespace Hesperin
