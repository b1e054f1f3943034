#include "model/evaluation.h"

namespace Hesperin {

namespace {

/// `record` is one or none.
template <typename... Records>
Evaluation EvaluateWith(const EnteredParameters& entered, Records&... record) {
    Evaluation evaluation;
    evaluation.validated = Validate(entered);
    const Parameters& parameters = evaluation.validated.parameters;
    evaluation.powers = ComputePowers(parameters, record...);
    if (evaluation.powers.PowerRolvane == 0)
        return evaluation;
    evaluation.figures = ComputeFigures(parameters, evaluation.powers, record...);
    evaluation.advice = AdviseOn(parameters, evaluation.figures->PowerAverage, record...);
    return evaluation;
}

} // namespace

Evaluation Evaluate(const EnteredParameters& entered) {
    return EvaluateWith(entered);
}

Evaluation Evaluate(const EnteredParameters& entered, Record& record) {
    return EvaluateWith(entered, record);
}

std::optional<double> ResultReached(const Evaluation& evaluation, Method method, Figure figure) {
    const bool beforeTheStop = figure == Figure::Power && method != Method::Average;
    if (!evaluation.figures && !beforeTheStop)
        return std::nullopt;
    return ResultOf(evaluation.powers, evaluation.figures.value_or(Figures()), method, figure);
}

} // namespace Hesperin
