#pragma once

#include <cstddef>
#include <functional>

namespace Hesperin {

/// Calls `visit` for each of `count` places from 0, with `jobs` threads at once (0: one for each
/// core). `visit` gives false to end early. The order of the calls is open.
void VisitAll(std::size_t count, unsigned jobs, const std::function<bool(std::size_t)>& visit);

} // namespace Hesperin
