#include "app/take_over.h"

#include "app/calculate.h"
#include "app/standing.h"
#include "form/form_lists.h"
#include "text/numbers.h"

#include <cmath>

namespace Hesperin {

namespace {

/// The field or the list of a parameter.
struct ParameterControl {
    TextField MainForm::*field;
    ComboBox MainForm::*list;
};

constexpr EnumArray<Parameter, ParameterControl> ParameterControls{{{
    {&MainForm::txtAttack, nullptr},
    {&MainForm::txtDefence, nullptr},
    {&MainForm::txtMinDam, nullptr},
    {&MainForm::txtMaxDam, nullptr},
    {&MainForm::txtHealth, nullptr},
    {nullptr, &MainForm::ComboSpeed},
    {nullptr, &MainForm::ComboInitiative},
    {nullptr, &MainForm::ComboTier},
}}};

} // namespace

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
            const auto scale = program.survey->scale.Of(state.parameters.Tier, place.figure);
            if (!scale) {
                Error error{Error::What::NoScale, QString::number(state.parameters.Tier)};
                error.element = place.element.toString();
                return program.Refuse(error);
            }
            figure = std::round(figure / *scale);
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
