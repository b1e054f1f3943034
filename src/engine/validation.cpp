#include "engine/validation.h"

#include "engine/numbers.h"

#include <optional>

namespace Hesperin {

namespace {

const QString Zero = QStringLiteral("0");

QString OutOfRange(const SharedState& state, const QString& caption) {
    return state.MsgValueFor + caption + state.MsgOutOfRange;
}

/// "Min damage" out of the captions "min" and "Damage".
QString DamageCaption(const MainForm& form, const Label& end) {
    return ProperCase(end.Caption()) + u' ' + form.FrameDamage.Caption().toLower();
}

/// The value that takes the place of `value`, if it needs one.
std::optional<std::int16_t> Correction(std::int16_t value, std::int16_t limit) {
    if (value <= 0)
        return std::int16_t{1};
    if (value > limit)
        return limit;
    return std::nullopt;
}

/// Mana and shots: any number above 0 will do, and no formula uses it.
void CheckSupply(Program& program, TextField& field, const Frame& frame) {
    if (TextToNumber(TextOrDefault(field.Text(), Zero)) > 0)
        return;
    field.SetText(QStringLiteral("1"));
    program.Warn(BoxIcon::Critical, OutOfRange(program.state, frame.Caption()));
}

struct NumberRule {
    TextField MainForm::*field;
    std::int16_t SharedState::*parameter;
    std::int16_t limit;
    QString (*caption)(const MainForm&);
};

constexpr NumberRule NumberRules[] = {
    {&MainForm::txtAttack, &SharedState::Attack, 50,
     [](const MainForm& form) { return form.FrameAttack.Caption(); }},
    {&MainForm::txtDefence, &SharedState::Defence, 50,
     [](const MainForm& form) { return form.FrameDefence.Caption(); }},
    {&MainForm::txtHealth, &SharedState::Health, 400,
     [](const MainForm& form) { return form.FrameHealth.Caption(); }},
    {&MainForm::txtMinDam, &SharedState::MinDam, 90,
     [](const MainForm& form) { return DamageCaption(form, form.lblMin); }},
    {&MainForm::txtMaxDam, &SharedState::MaxDam, 95,
     [](const MainForm& form) { return DamageCaption(form, form.lblMax); }},
};

void CheckNumber(Program& program, const NumberRule& rule) {
    TextField& field = program.form.*rule.field;
    std::int16_t& parameter = program.state.*rule.parameter;
    parameter = RoundTo16Bits(TextToNumber(TextOrDefault(field.Text(), Zero)));
    if (const auto corrected = Correction(parameter, rule.limit)) {
        parameter = *corrected;
        field.SetText(QString::number(parameter));
        program.Warn(BoxIcon::Critical, OutOfRange(program.state, rule.caption(program.form)));
    }
}

/// The minimum damage follows the maximum, never the reverse.
void CheckDamageOrder(Program& program) {
    SharedState& state = program.state;
    MainForm& form = program.form;
    if (state.MinDam <= state.MaxDam)
        return;
    state.MinDam = state.MaxDam;
    form.txtMinDam.SetText(QString::number(state.MinDam));
    form.txtMaxDam.SetText(QString::number(state.MaxDam));
    program.Warn(BoxIcon::Critical, state.MsgValueFor + DamageCaption(form, form.lblMax) +
                                        state.MsgCannotBeLess + DamageCaption(form, form.lblMin) +
                                        QLatin1String("'!"));
}

struct ListRule {
    ComboBox MainForm::*list;
    std::int16_t SharedState::*parameter;
    std::int16_t limit;
    const char* warning; ///< the same in every language
};

constexpr ListRule ListRules[] = {
    {&MainForm::ComboSpeed, &SharedState::Speed, 9, "Value for 'Speed' out of the range!"},
    {&MainForm::ComboInitiative, &SharedState::Initiative, 20,
     "Value for 'Initiative' out of the range!"},
    {&MainForm::ComboTier, &SharedState::Tier, 8, "Value for 'Tier' out of the range!"},
};

void CheckList(Program& program, const ListRule& rule) {
    ComboBox& list = program.form.*rule.list;
    std::int16_t& parameter = program.state.*rule.parameter;
    parameter = RoundTo16Bits(TextToNumber(list.Text()));
    if (const auto corrected = Correction(parameter, rule.limit)) {
        parameter = *corrected;
        list.SetText(QString::number(parameter));
        program.Warn(BoxIcon::Critical, QString::fromLatin1(rule.warning));
    }
}

} // namespace

void ValidateParameters(Program& program) {
    MainForm& form = program.form;
    if (form.Abilities(Ability::Caster).Ticked())
        CheckSupply(program, form.txtMana, form.FrameMana);
    if (form.Abilities(Ability::Shooter).Ticked())
        CheckSupply(program, form.txtShots, form.FrameShots);
    for (const NumberRule& rule : NumberRules)
        CheckNumber(program, rule);
    CheckDamageOrder(program);
    for (const ListRule& rule : ListRules)
        CheckList(program, rule);
}

} // namespace Hesperin
