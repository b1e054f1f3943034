#include "model/validation.h"

#include "catalogue/ability_catalogue.h"
#include "text/numbers.h"

#include <span>

namespace Hesperin {

namespace {

using Corrected = Correction::What;

/// A number and the field that it comes from, in the order in which they are read.
struct Row {
    QStringView EnteredParameters::*entered;
    Corrected what;
    Parameter parameter;
};

constexpr Row Fields[] = {
    {&EnteredParameters::Attack, Corrected::Attack, Parameter::Attack},
    {&EnteredParameters::Defence, Corrected::Defence, Parameter::Defence},
    {&EnteredParameters::Health, Corrected::Health, Parameter::Health},
    {&EnteredParameters::MinDam, Corrected::MinDam, Parameter::MinDam},
    {&EnteredParameters::MaxDam, Corrected::MaxDam, Parameter::MaxDam},
};

constexpr Row Lists[] = {
    {&EnteredParameters::Speed, Corrected::Speed, Parameter::Speed},
    {&EnteredParameters::Initiative, Corrected::Initiative, Parameter::Initiative},
    {&EnteredParameters::Tier, Corrected::Tier, Parameter::Tier},
};

/// The value that takes the place of `value`, if it needs one.
std::optional<std::int16_t> InRange(std::int16_t value, std::int16_t highest) {
    if (value <= 0)
        return std::int16_t{1};
    if (value > highest)
        return highest;
    return std::nullopt;
}

class Validation {
public:
    explicit Validation(const EnteredParameters& source) : entered(source) {}

    Validated Run() {
        if (entered.Caster)
            CheckSupply(Corrected::Mana, entered.Mana);
        if (entered.Shooter)
            CheckSupply(Corrected::Shots, entered.Shots);
        for (const Row& row : Fields)
            CheckNumber(row);
        CheckDamageOrder();
        for (const Row& row : Lists)
            CheckNumber(row);
        result.parameters.AbilityProduct = entered.AbilityProduct;
        result.parameters.UpgradeFactor = entered.UpgradeFactor;
        result.parameters.Shooter = entered.Shooter;
        return std::move(result);
    }

private:
    void CheckSupply(Corrected what, QStringView text) {
        if (TextToNumber(text) <= 0)
            result.corrections.push_back({what, text.toString(), 1});
    }

    void CheckNumber(const Row& row) {
        const QStringView text = entered.*row.entered;
        std::int16_t& value = result.parameters[row.parameter];
        value = RoundTo16Bits(TextToNumber(text));
        if (const auto corrected = InRange(value, ParameterRanges[row.parameter].highest)) {
            value = *corrected;
            result.corrections.push_back({row.what, text.toString(), value});
        }
    }

    void CheckDamageOrder() {
        Parameters& parameters = result.parameters;
        if (parameters.MinDam <= parameters.MaxDam)
            return;
        result.corrections.push_back(
            {Corrected::DamageOrder, WholeText(parameters.MinDam), parameters.MaxDam});
        parameters.MinDam = parameters.MaxDam;
    }

    const EnteredParameters& entered;
    Validated result;
};

using AbilityValues = std::array<float, Ability::Count + 1>;

/// `counts` tells which abilities are a step of their own; an unticked one has the value 1.
template <typename Record, typename Counts>
float ProductWith(Record&& record, const AbilityValues& values, Counts counts) {
    typename std::remove_reference_t<Record>::Product product = 1.0F;
    for (std::size_t i = 1; i < values.size(); ++i)
        if (counts(i))
            product = record.Step("product_", AbilityCatalogue[i].token,
                                  CutTo32Bits(product * values[i]));
    float result = 1.0F;
    record.Step("product", result, product);
    return result;
}

EnteredParameters EnteredWith(const Creature& creature, float product) {
    const auto number = [&creature](NumberField field) {
        return QStringView(creature.Numbers[field]);
    };
    const auto choice = [&creature](ListField list) {
        return QStringView(creature.Choices[list].text);
    };
    return {number(NumberField::Attack),
            number(NumberField::Defence),
            number(NumberField::Health),
            number(NumberField::MinDam),
            number(NumberField::MaxDam),
            choice(ListField::Speed),
            choice(ListField::Initiative),
            choice(ListField::Tier),
            number(NumberField::Mana),
            number(NumberField::Shots),
            creature.Has(Ability::Caster),
            creature.Has(Ability::Shooter),
            product,
            UpgradeFactorOf(choice(ListField::Upgrade))};
}

AbilityValues ValuesOf(const Creature& creature) {
    AbilityValues values{};
    for (std::size_t i = 1; i < values.size(); ++i)
        values[i] = creature.Abilities[i] ? AbilityCatalogue[i].value : 1.0F;
    return values;
}

} // namespace

std::int16_t Parameters::*Parameters::Member(Parameter which) {
    static constexpr EnumArray<Parameter, std::int16_t Parameters::*> members{
        {{&Parameters::Attack, &Parameters::Defence, &Parameters::MinDam, &Parameters::MaxDam,
          &Parameters::Health, &Parameters::Speed, &Parameters::Initiative, &Parameters::Tier}}};
    return members[which];
}

std::optional<Parameter> ParameterOf(Correction::What what) {
    if (what == Corrected::DamageOrder)
        return Parameter::MinDam;
    for (const auto& rows : {std::span<const Row>(Fields), std::span<const Row>(Lists)})
        for (const Row& row : rows)
            if (row.what == what)
                return row.parameter;
    return std::nullopt;
}

Validated Validate(const EnteredParameters& entered) {
    return Validation(entered).Run();
}

EnteredParameters EnteredOf(const Creature& creature) {
    return EnteredWith(creature, ProductOf(ValuesOf(creature)));
}

EnteredParameters EnteredOf(const Creature& creature, Record& record) {
    return EnteredWith(creature,
                       ProductWith(record, ValuesOf(creature), [&creature](std::size_t ability) {
                           return creature.Abilities[ability];
                       }));
}

float UpgradeFactorOf(QStringView entry) {
    return entry == u"False" ? PlainFactor : UpgradedFactor;
}

float ProductOf(const AbilityValues& values) {
    return ProductWith(Unrecorded{}, values, [&values](std::size_t ability) {
        return values[ability] != 1.0F; // nearly all are 1: no product waits for the one before
    });
}

} // namespace Hesperin
