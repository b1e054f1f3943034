// The twelve results: four figures, by two methods and as their averages.
#pragma once

#include <cstdint>

namespace Hesperin {

/// Rolvane is the first method, Hesperin the second; they bear the names of their authors.
enum class Method : std::uint8_t { Rolvane, Hesperin, Average, Count };

enum class Figure : std::uint8_t { Power, Experience, Growth, Cost, Count };

/// One of the twelve.
struct ResultKey {
    Method method;
    Figure figure;

    bool operator==(const ResultKey&) const = default;
};

} // namespace Hesperin
