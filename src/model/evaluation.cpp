#include "model/evaluation.h"

namespace Hesperin {

Evaluation Evaluate(const EnteredParameters& entered) {
    Evaluation evaluation;
    evaluation.validated = Validate(entered);
    const Parameters& parameters = evaluation.validated.parameters;
    evaluation.powers = ComputePowers(parameters);
    if (evaluation.powers.PowerRolvane == 0)
        return evaluation;
    evaluation.figures = ComputeFigures(parameters, evaluation.powers);
    evaluation.advice = AdviseOn(parameters, evaluation.figures->PowerAverage);
    return evaluation;
}

} // namespace Hesperin
