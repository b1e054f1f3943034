// The way back from a Power: which value of one parameter gives it, the others as they are. Every
// value of the range is tried, so nothing is missed.
#pragma once

#include "model/advice.h"

#include <functional>
#include <optional>
#include <vector>

namespace Hesperin {

/// The first seven parameters: those that Power depends on.
inline constexpr std::size_t PowerParameters = static_cast<std::size_t>(Parameter::Tier);

/// The values that a parameter can take, both ends included.
struct ValueRange {
    std::int16_t lowest;
    std::int16_t highest;
};

/// Its range, without the values for which the minimum damage would be above the maximum.
ValueRange RangeOf(const Parameters& parameters, Parameter which);

/// None when the first method's Power is 0.
std::optional<double> AveragePowerOf(const Parameters& parameters);

/// What one more of `which` adds to the average Power; none at the end of its range, or where there
/// is no average Power.
std::optional<double> GainOfOneMore(const Parameters& parameters, Parameter which);

/// A value of a parameter, and the Power that it gives.
struct Candidate {
    std::int16_t value = 0;
    double power = 0;

    bool operator==(const Candidate&) const = default;
};

struct Solution {
    Parameter parameter = Parameter::Attack;
    std::vector<std::int16_t> exact; ///< rising; all whose Power lies in the band
    std::optional<Candidate> below;  ///< of the nearest Power below it, when none does
    std::optional<Candidate> above;  ///< of several values the one nearest to the parameter's own
};

/// The Power that is compared; none: the value doesn't count.
using PowerOf = std::function<std::optional<double>(const Parameters&)>;

/// Every value of the range of `which`.
Solution Solve(const Parameters& parameters, Parameter which, PowerBand wanted,
               const PowerOf& powerOf = AveragePowerOf);

} // namespace Hesperin
