#pragma once

#include <array>
#include <cstddef>

namespace Hesperin {

/// A T for each value of an enumeration that begins with 0 and ends with Count.
template <typename Enum, typename T>
struct EnumArray {
    std::array<T, static_cast<std::size_t>(Enum::Count)> items{};

    constexpr T& operator[](Enum at) { return items[static_cast<std::size_t>(at)]; }
    constexpr const T& operator[](Enum at) const { return items[static_cast<std::size_t>(at)]; }
    constexpr auto begin() { return items.begin(); }
    constexpr auto end() { return items.end(); }
    constexpr auto begin() const { return items.begin(); }
    constexpr auto end() const { return items.end(); }

    bool operator==(const EnumArray&) const = default;
};

} // namespace Hesperin
