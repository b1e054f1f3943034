#include "model/search.h"

#include <algorithm>
#include <cstdlib>

namespace Hesperin {

namespace {

/// How far a candidate lies from the band, and how far from the current value.
std::pair<double, int> DistanceOf(const Candidate& candidate, PowerBand wanted, int current) {
    return {candidate.power < wanted.lowest ? wanted.lowest - candidate.power
                                            : candidate.power - wanted.highest,
            std::abs(candidate.value - current)};
}

} // namespace

ValueRange RangeOf(const Parameters& parameters, Parameter which) {
    const ParameterRange& range = ParameterRanges[which];
    if (which == Parameter::MinDam)
        return {range.lowest, std::min(range.highest, parameters.MaxDam)};
    if (which == Parameter::MaxDam)
        return {std::max(range.lowest, parameters.MinDam), range.highest};
    return {range.lowest, range.highest};
}

std::optional<double> AveragePowerOf(const Parameters& parameters) {
    const Powers powers = ComputePowers(parameters);
    if (powers.PowerRolvane == 0)
        return std::nullopt;
    return AverageOf(powers.PowerRolvane, powers.PowerHesperin);
}

std::optional<double> GainOfOneMore(const Parameters& parameters, Parameter which) {
    if (parameters[which] >= RangeOf(parameters, which).highest)
        return std::nullopt;
    Parameters more = parameters;
    ++more[which];
    const auto now = AveragePowerOf(parameters);
    const auto then = AveragePowerOf(more);
    return now && then ? std::optional(*then - *now) : std::nullopt;
}

Solution Solve(const Parameters& parameters, Parameter which, PowerBand wanted,
               const PowerOf& powerOf) {
    Solution solution;
    solution.parameter = which;
    Parameters tried = parameters;
    const ValueRange range = RangeOf(parameters, which);
    for (int value = range.lowest; value <= range.highest; ++value) {
        tried[which] = static_cast<std::int16_t>(value);
        const auto power = powerOf(tried);
        if (!power)
            continue;
        const Candidate candidate{tried[which], *power};
        if (*power >= wanted.lowest && *power <= wanted.highest) {
            solution.exact.push_back(candidate.value);
            continue;
        }
        auto& nearest = *power < wanted.lowest ? solution.below : solution.above;
        if (!nearest || DistanceOf(candidate, wanted, parameters[which]) <
                            DistanceOf(*nearest, wanted, parameters[which]))
            nearest = candidate;
    }
    if (!solution.exact.empty())
        solution.below = solution.above = std::nullopt;
    return solution;
}

} // namespace Hesperin
