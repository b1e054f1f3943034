#pragma once

#include "app/program.h"
#include "reports/explanation.h"

namespace Hesperin {

/// How the results that the window shows were computed; none while it shows none. Once the fields
/// are others, the abilities stand in it as their product alone.
std::optional<Explanation> ExplainLast(const Program& program);

} // namespace Hesperin
