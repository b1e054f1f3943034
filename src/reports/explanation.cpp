#include "reports/explanation.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"

namespace Hesperin {

namespace {

/// `record` has the steps of the product.
Explanation ExplainEntered(const EnteredParameters& entered, Record& record) {
    Explanation explanation;
    explanation.evaluation = Evaluate(entered, record);
    explanation.terms = record.Terms();
    for (std::size_t i = 0; i < PowerParameters; ++i)
        explanation.gains[i] =
            GainOfOneMore(explanation.evaluation.validated.parameters, static_cast<Parameter>(i));
    return explanation;
}

} // namespace

Explanation Explain(const Creature& creature, const QString& name, const QString& file) {
    Record record;
    Explanation explanation = ExplainEntered(EnteredOf(creature, record), record);
    explanation.name = name;
    explanation.file = file;
    return explanation;
}

Explanation Explain(const Parameters& parameters, const QString& name) {
    EnumArray<Parameter, QString> texts;
    for (std::size_t i = 0; i < texts.items.size(); ++i)
        texts.items[i] = QString::number(parameters[static_cast<Parameter>(i)]);
    EnteredParameters entered;
    entered.Attack = texts[Parameter::Attack];
    entered.Defence = texts[Parameter::Defence];
    entered.Health = texts[Parameter::Health];
    entered.MinDam = texts[Parameter::MinDam];
    entered.MaxDam = texts[Parameter::MaxDam];
    entered.Speed = texts[Parameter::Speed];
    entered.Initiative = texts[Parameter::Initiative];
    entered.Tier = texts[Parameter::Tier];
    entered.Shooter = parameters.Shooter;
    entered.Shots = u"1";
    entered.UpgradeFactor = parameters.UpgradeFactor;
    Record record;
    record.Step("product", entered.AbilityProduct, parameters.AbilityProduct);
    Explanation explanation = ExplainEntered(entered, record);
    explanation.name = name;
    return explanation;
}

Result<Explanation> ExplainFile(const QString& path) {
    const auto document = LoadCreatureDocument(path);
    if (!document)
        return document.Why();
    const ReadCreature read = ReadCreatureText(document->text, EmptyCreature());
    return Explain(read.creature, read.name.value_or(QStringLiteral("Test")), path);
}

QString CorrectedField(Correction::What what) {
    static constexpr EnumArray<Correction::What, const char*> names{
        {{"Mana", "Shots", "Attack", "Defence", "Health", "MinDam", "MaxDam", "MinDam", "Speed",
          "Initiative", "Tier"}}};
    return QString::fromLatin1(names[what]);
}

} // namespace Hesperin
