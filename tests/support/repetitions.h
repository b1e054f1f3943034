#pragma once

namespace Hesperin {

/// How often a test at random repeats what it usually does so often: the sanitizers make all ten times slower.
template <typename Number>
constexpr Number Repetitions(Number usual) {
#ifdef __SANITIZE_ADDRESS__
    return usual / 5;
#else
    return usual;
#endif
}

} // namespace Hesperin
