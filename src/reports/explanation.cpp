#include "reports/explanation.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"

namespace Hesperin {

Explanation Explain(const Creature& creature, const QString& name, const QString& file) {
    Explanation explanation{file, name, {}, {}, {}};
    Record record;
    explanation.evaluation = Evaluate(EnteredOf(creature, record), record);
    explanation.terms = record.Terms();
    for (std::size_t i = 0; i < PowerParameters; ++i)
        explanation.gains[i] =
            GainOfOneMore(explanation.evaluation.validated.parameters, static_cast<Parameter>(i));
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
