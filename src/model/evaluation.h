#pragma once

#include "model/advice.h"

#include <optional>

namespace Hesperin {

/// All that Calculate finds out about a creature.
struct Evaluation {
    Validated validated;
    Powers powers;
    std::optional<Figures> figures; ///< none when PowerRolvane is 0
    std::optional<Advice> advice;   ///< the same
};

Evaluation Evaluate(const EnteredParameters& entered);

/// The same, with every step added to `record`, which already has those of the product.
Evaluation Evaluate(const EnteredParameters& entered, Record& record);

} // namespace Hesperin
