#include "reports/explanation_json.h"

#include "reports/json.h"

#include <charconv>

namespace Hesperin {

namespace {

QByteArray With17Digits(double value) {
    std::array<char, 32> buffer; // a sign, 17 digits, a full stop and an exponent
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::general, 17);
    return {buffer.data(), end.ptr - buffer.data()};
}

/// Neither ids nor expressions have a character that JSON writes in another way.
QByteArray TermsJson(const std::vector<Term>& terms) {
    QByteArray text;
    for (const Term& term : terms)
        text += (text.isEmpty() ? "{\"id\":\"" : ",{\"id\":\"") + term.id.toLatin1() +
                "\",\"expression\":\"" + term.expression.toLatin1() +
                "\",\"value\":" + With17Digits(term.value) + '}';
    return '[' + text + ']';
}

QJsonObject InputsJson(const Parameters& parameters) {
    QJsonObject inputs;
    for (std::size_t i = 0; i < ParameterRanges.items.size(); ++i)
        inputs.insert(ParameterRanges.items[i].name.toString(),
                      parameters[static_cast<Parameter>(i)]);
    inputs.insert(QStringLiteral("UpgradeFactor"), static_cast<double>(parameters.UpgradeFactor));
    inputs.insert(QStringLiteral("Shooter"), parameters.Shooter ? 1 : 0);
    return inputs;
}

QJsonArray CorrectionsJson(const std::vector<Correction>& corrections) {
    QJsonArray list;
    for (const Correction& correction : corrections)
        list.append(QJsonObject{{"field", CorrectedField(correction.what)},
                                {"from", correction.from},
                                {"to", correction.to}});
    return list;
}

QJsonObject ResultsJson(const Evaluation& evaluation) {
    static constexpr const char* methods[] = {"rolvane", "hesperin", "average"};
    static constexpr const char* figures[] = {"power", "experience", "growth", "cost"};
    QJsonObject results;
    for (std::size_t m = 0; m < std::size(methods); ++m) {
        QJsonObject ofMethod;
        for (std::size_t f = 0; f < std::size(figures); ++f) {
            const auto result =
                ResultReached(evaluation, static_cast<Method>(m), static_cast<Figure>(f));
            ofMethod.insert(QLatin1String(figures[f]), NumberOrNull(result));
        }
        results.insert(QLatin1String(methods[m]), ofMethod);
    }
    return results;
}

QJsonObject PlusOneJson(const Explanation& explanation) {
    QJsonObject plusOne;
    for (std::size_t i = 0; i < explanation.gains.size(); ++i) {
        const auto& gain = explanation.gains[i];
        plusOne.insert(ParameterRanges.items[i].name.toString(),
                       gain ? QJsonValue(QJsonObject{{"power", *gain}}) : QJsonValue());
    }
    return plusOne;
}

} // namespace

QByteArray ExplanationJson(const Explanation& explanation) {
    const Evaluation& evaluation = explanation.evaluation;
    QByteArray text = JsonLine({{"file", explanation.file},
                                {"name", explanation.name},
                                {"inputs", InputsJson(evaluation.validated.parameters)},
                                {"corrections", CorrectionsJson(evaluation.validated.corrections)},
                                {"results", ResultsJson(evaluation)},
                                {"plus_one", PlusOneJson(explanation)}});
    text.chop(1);
    return text + ",\"terms\":" + TermsJson(explanation.terms) + '}';
}

} // namespace Hesperin
