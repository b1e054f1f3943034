#include "model/evaluation.h"

namespace Hesperin {

namespace {

/// `record` is one or none.
template <typename... Records>
Evaluation EvaluateWith(Validated&& validated, Records&... record) {
    Evaluation evaluation;
    evaluation.validated = std::move(validated);
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
    return EvaluateWith(Validate(entered));
}

Evaluation Evaluate(const EnteredParameters& entered, Record& record) {
    return EvaluateWith(Validate(entered), record);
}

Evaluation Evaluate(const Parameters& parameters, Record& record) {
    return EvaluateWith(Validated{parameters, {}}, record);
}

std::optional<double> ResultReached(const Powers& powers, const std::optional<Figures>& figures,
                                    Method method, Figure figure) {
    if (figures)
        return ResultOf(powers, *figures, method, figure);
    if (figure != Figure::Power || method == Method::Average)
        return std::nullopt;
    return method == Method::Rolvane ? powers.PowerRolvane : powers.PowerHesperin;
}

std::optional<double> ResultReached(const Evaluation& evaluation, Method method, Figure figure) {
    return ResultReached(evaluation.powers, evaluation.figures, method, figure);
}

} // namespace Hesperin
