#include "app/solve_now.h"

#include "app/creature_in_form.h"
#include "reports/survey.h"

namespace Hesperin {

Result<SolveReport> SolveNow(const Program& program, const SolveGoal& goal, bool byScale) {
    const Parameters parameters = Validate(EnteredIn(program)).parameters;
    SolveWish wish{goal};
    if (byScale) {
        wish.scale = &program.survey->scale;
        if (!wish.scale->Of(parameters.Tier, Figure::Power))
            return ModScale::NoScale(QString::number(parameters.Tier), QStringLiteral("Power"));
    }
    SolveReport report = SolveFor(parameters, wish);
    const QString& name = program.form.txtNC.Text();
    report.name = name.isEmpty() ? program.state.CreatureName : name;
    return report;
}

} // namespace Hesperin
