#include "app/last_explanation.h"

#include "app/creature_in_form.h"

namespace Hesperin {

std::optional<Explanation> ExplainLast(const Program& program) {
    const MainForm& form = program.form;
    const SharedState& state = program.state;
    if (form.lblPowerRolvane.Caption().isEmpty())
        return std::nullopt;
    const QString& name = form.txtNC.Text().isEmpty() ? state.CreatureName : form.txtNC.Text();
    Explanation explanation = Explain(TakeCreature(program), name, {});
    if (explanation.evaluation.validated.parameters != state.parameters)
        explanation = Explain(state.parameters, name);
    explanation.evaluation.validated.corrections = state.corrections;
    return explanation;
}

} // namespace Hesperin
