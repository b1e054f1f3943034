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

/// Validates, computes and advises, as one Calculate does.
Evaluation Evaluate(const EnteredParameters& entered);

/// The same, with every step added to `record`, which already has those of the product.
Evaluation Evaluate(const EnteredParameters& entered, Record& record);

/// The same of parameters that are validated.
Evaluation Evaluate(const Parameters& parameters, Record& record);

/// One of the twelve results, as far as the evaluation got: a zero Power stops it behind the two
/// Powers, and there are no figures.
std::optional<double> ResultReached(const Powers& powers, const std::optional<Figures>& figures,
                                    Method method, Figure figure);
std::optional<double> ResultReached(const Evaluation& evaluation, Method method, Figure figure);

} // namespace Hesperin
