#pragma once

#include "form/control.h"

#include <deque>

namespace Hesperin {

/// Controls of one kind under one name, numbered `First` to `Last`: Abilities(1) to Abilities(174).
template <typename T, int First, int Last>
class ControlArray {
public:
    static constexpr int FirstIndex = First;
    static constexpr int LastIndex = Last;

    ControlArray(ControlRegistry& registry, const char* name) {
        for (int index = First; index <= Last; ++index)
            elements.emplace_back(registry, name, index);
    }

    /// `index` must lie in First to Last.
    T& operator()(int index) { return elements[static_cast<std::size_t>(index - First)]; }
    const T& operator()(int index) const {
        return elements[static_cast<std::size_t>(index - First)];
    }

    auto begin() { return elements.begin(); }
    auto end() { return elements.end(); }
    auto begin() const { return elements.begin(); }
    auto end() const { return elements.end(); }

private:
    std::deque<T> elements; // never moves its elements, and a control can't be moved
};

} // namespace Hesperin
