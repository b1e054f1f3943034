#include "app/take_over.h"

#include "app/calculate.h"
#include "app/standing.h"
#include "creature_files/reader.h"
#include "form/form_lists.h"
#include "reports/survey.h"
#include "text/numbers.h"

namespace Hesperin {

Failure TakeOverComputed(Program& program) {
    MainForm& form = program.form;
    const SharedState& state = program.state;
    const bool computed = !form.lblPowerRolvane.Caption().isEmpty();
    if (!computed)
        Calculate(program);
    if (state.powers.PowerRolvane == 0) {
        const Error error{Error::What::NoPower};
        return computed ? program.Refuse(error) : error; // Calculate has told it
    }
    const bool scaled = program.survey && form.mnuTakeOverByScale.Checked();
    std::array<QString, std::size(FiguresInFile)> texts;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const FigureInFile& place = FiguresInFile[i];
        double figure = ResultOf(state.powers, state.figures, Method::Average, place.figure);
        if (scaled) {
            const auto inMod = program.survey->scale.Scaled(figure, state.parameters.Tier,
                                                            place.figure, place.element.toString());
            if (!inMod)
                return program.Refuse(inMod.Why());
            figure = *inMod;
        }
        texts[i] = WholeText(figure);
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        (form.*NumberFields[FiguresInFile[i].field]).SetText(texts[i]);
    FollowResults(program);
    return {};
}

void TakeParameter(Program& program, Parameter which, std::int16_t value) {
    const ParameterControl& control = ParameterControls[which];
    const QString text = QString::number(value);
    if (control.field != nullptr) {
        TextField& field = program.form.*control.field;
        const UserAct act(field);
        field.SetText(text);
        Calculate(program);
    } else {
        ComboBox& list = program.form.*control.list;
        const UserAct act(list);
        list.Select(static_cast<std::int16_t>(list.Items().indexOf(text)));
        Calculate(program);
    }
}

} // namespace Hesperin
