#include "reports/explanation.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"

namespace Hesperin {

namespace {

/// `record` has the steps of the product. `input`: what Evaluate takes.
template <typename Input>
Explanation ExplainWith(const Input& input, Record& record) {
    Explanation explanation;
    explanation.evaluation = Evaluate(input, record);
    explanation.terms = record.Terms();
    for (std::size_t i = 0; i < PowerParameters; ++i)
        explanation.gains[i] =
            GainOfOneMore(explanation.evaluation.validated.parameters, static_cast<Parameter>(i));
    return explanation;
}

} // namespace

Explanation Explain(const Creature& creature, const QString& name, const QString& file) {
    Record record;
    Explanation explanation = ExplainWith(EnteredOf(creature, record), record);
    explanation.name = name;
    explanation.file = file;
    return explanation;
}

Explanation Explain(const Parameters& parameters, const QString& name) {
    Record record;
    float product = 0;
    record.Step("product", product, parameters.AbilityProduct);
    Explanation explanation = ExplainWith(parameters, record);
    explanation.name = name;
    return explanation;
}

Result<Explanation> ExplainFile(const QString& path) {
    const auto document = LoadCreatureDocument(path);
    if (!document)
        return document.Why();
    const ReadCreature read = ReadCreatureText(document->text, EmptyCreature());
    return Explain(read.creature, read.ShownName(), path);
}

QString CorrectedField(Correction::What what) {
    if (const auto parameter = ParameterOf(what))
        return ParameterRanges[*parameter].name.toString();
    return what == Correction::What::Mana ? QStringLiteral("Mana") : QStringLiteral("Shots");
}

} // namespace Hesperin
