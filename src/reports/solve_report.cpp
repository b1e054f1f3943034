#include "reports/solve_report.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "localisation/explanation_words.h"
#include "model/evaluation.h"
#include "reports/json.h"
#include "text/decimal.h"
#include "text/fill.h"
#include "text/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Hesperin {

namespace {

/// Average Power in the figures of a mod, by the scale of each tier; in the computed ones without.
class PowerTeller {
public:
    explicit PowerTeller(const ModScale* mod) : scaled(mod != nullptr) {
        if (mod == nullptr)
            return;
        for (std::int16_t tier = 1; tier < static_cast<std::int16_t>(scales.size()); ++tier)
            scales[static_cast<std::size_t>(tier)] = mod->Of(tier, Figure::Power);
    }

    std::optional<double> operator()(const Parameters& parameters) const {
        const auto power = AveragePowerOf(parameters);
        return power ? InFigures(*power, parameters.Tier) : std::nullopt;
    }

    std::optional<double> InFigures(double power, std::int16_t tier) const {
        if (!scaled)
            return power;
        const auto& scale = scales[static_cast<std::size_t>(tier)];
        return scale ? std::optional(std::round(power / *scale)) : std::nullopt;
    }

private:
    bool scaled;
    TierTable<std::optional<double>> scales;
};

QJsonValue CandidateJson(const std::optional<Candidate>& candidate) {
    return candidate
               ? QJsonValue(QJsonObject{{"value", candidate->value}, {"power", candidate->power}})
               : QJsonValue();
}

/// "3, 7–9, 12"
QString Ranges(const std::vector<std::int16_t>& values) {
    QStringList ranges;
    for (std::size_t first = 0; first < values.size();) {
        std::size_t last = first;
        while (last + 1 < values.size() && values[last + 1] == values[last] + 1)
            ++last;
        ranges.append(QString::number(values[first]));
        if (last > first)
            ranges.last() += (last > first + 1 ? QStringLiteral("–") : QStringLiteral(", ")) +
                             QString::number(values[last]);
        first = last + 1;
    }
    return ranges.join(QLatin1String(", "));
}

QString WantedText(const SolveGoal& goal, std::uint8_t languageId) {
    const QString lowest = WholeText(goal.band.lowest);
    if (goal.tier == 0)
        return Fill(PhraseIn(languageId, Phrase::WantedPower), {lowest});
    const QString tier = QString::number(goal.tier);
    return std::isinf(goal.band.highest)
               ? Fill(PhraseIn(languageId, Phrase::WantedHighestTier), {tier, lowest})
               : Fill(PhraseIn(languageId, Phrase::WantedTier),
                      {tier, lowest, WholeText(goal.band.highest)});
}

} // namespace

std::optional<SolveGoal> ReadSolveGoal(const QString& text) {
    const auto number =
        ReadWhole(QStringView(text).sliced(std::max<qsizetype>(0, text.indexOf(u'=') + 1)));
    if (!number || *number < 1)
        return std::nullopt;
    if (text.startsWith(QLatin1String("Power="))) {
        const auto power = static_cast<double>(*number);
        return SolveGoal{text, {power, power}, 0};
    }
    if (text.startsWith(QLatin1String("Tier=")) &&
        *number <= ParameterRanges[Parameter::Tier].highest) {
        const auto tier = static_cast<std::int16_t>(*number);
        return SolveGoal{text, BandOf(tier), tier};
    }
    return std::nullopt;
}

std::vector<Parameter> DefaultVaried() {
    std::vector<Parameter> varied;
    for (std::size_t i = 0; i < PowerParameters; ++i)
        varied.push_back(static_cast<Parameter>(i));
    return varied;
}

std::optional<Parameter> ParameterByName(QStringView name) {
    for (std::size_t i = 0; i < ParameterRanges.items.size(); ++i)
        if (ParameterRanges.items[i].name == name)
            return static_cast<Parameter>(i);
    return std::nullopt;
}

SolveReport SolveFor(const Parameters& parameters, const SolveWish& wish) {
    const PowerTeller power(wish.scale);
    SolveReport report{{}, {}, wish.goal, wish.scale != nullptr, parameters, power(parameters), {}};
    for (const Parameter which : wish.varied) {
        if (wish.goal.tier == 0) {
            report.solutions.push_back(Solve(parameters, which, wish.goal.band, power));
            continue;
        }
        // The bands are those of the computed figures.
        Solution solution = Solve(parameters, which, wish.goal.band);
        for (auto* candidate : {&solution.below, &solution.above})
            if (*candidate) {
                const std::int16_t tier =
                    which == Parameter::Tier ? (*candidate)->value : parameters.Tier;
                const auto told = power.InFigures((*candidate)->power, tier);
                *candidate =
                    told ? std::optional(Candidate{(*candidate)->value, *told}) : std::nullopt;
            }
        report.solutions.push_back(std::move(solution));
    }
    return report;
}

Result<SolveReport> SolveFile(const QString& path, const SolveWish& wish) {
    const auto document = LoadCreatureDocument(path);
    if (!document)
        return document.Why();
    const ReadCreature read = ReadCreatureText(document->text, EmptyCreature());
    const QString& tier = read.creature.Choices[ListField::Tier].text;
    if (wish.scale != nullptr &&
        !wish.scale->Of(RoundTo16Bits(TextToNumber(tier)), Figure::Power)) {
        Error error = ModScale::NoScale(tier, QStringLiteral("Power"));
        error.file = path;
        return error;
    }
    SolveReport report = SolveFor(Validate(EnteredOf(read.creature)).parameters, wish);
    report.file = path;
    report.name = read.ShownName();
    return report;
}

QJsonObject SolveJson(const SolveReport& report) {
    QJsonArray solutions;
    for (const Solution& solution : report.solutions) {
        QJsonArray exact;
        for (const std::int16_t value : solution.exact)
            exact.append(value);
        solutions.append(
            QJsonObject{{"parameter", ParameterRanges[solution.parameter].name.toString()},
                        {"exact", exact},
                        {"below", CandidateJson(solution.below)},
                        {"above", CandidateJson(solution.above)}});
    }
    return {{"file", report.file},
            {"goal", report.goal.text},
            {"now", NumberOrNull(report.now)},
            {"solutions", solutions}};
}

QString SolveHead(const SolveReport& report, std::uint8_t languageId) {
    const QString prefix = report.file.isEmpty() ? QString() : report.file + QLatin1String(": ");
    const QString head = report.now ? Fill(PhraseIn(languageId, Phrase::Average),
                                           {report.name, WholeText(*report.now)})
                                    : Fill(PhraseIn(languageId, Phrase::NoAverage), {report.name});
    const QString figures =
        report.inFiguresOfMod ? PhraseIn(languageId, Phrase::InFiguresOfMod) : QString();
    const bool isBand = report.inFiguresOfMod && report.goal.tier != 0;
    return prefix + head + figures + u'\n' + WantedText(report.goal, languageId) +
           (isBand ? PhraseIn(languageId, Phrase::ComputedFigures) : QString());
}

QString SolutionText(const Solution& solution, std::uint8_t languageId) {
    if (!solution.exact.empty())
        return Fill(PhraseIn(languageId, Phrase::Exactly), {Ranges(solution.exact)});
    QStringList values;
    for (const auto& candidate : {solution.below, solution.above})
        if (candidate)
            values << QString::number(candidate->value) << WholeText(candidate->power);
    const Phrase phrase = solution.below && solution.above ? Phrase::Nearest
                          : solution.below                 ? Phrase::AtMost
                          : solution.above                 ? Phrase::AtLeast
                                                           : Phrase::Nothing;
    return Fill(PhraseIn(languageId, phrase), values);
}

std::vector<std::int16_t> ChoicesOf(const Solution& solution, std::int16_t current,
                                    std::size_t most) {
    std::vector<std::int16_t> choices = solution.exact;
    for (const auto& candidate : {solution.below, solution.above})
        if (candidate)
            choices.push_back(candidate->value);
    std::erase(choices, current);
    std::stable_sort(choices.begin(), choices.end(), [current](std::int16_t a, std::int16_t b) {
        return std::abs(a - current) < std::abs(b - current);
    });
    choices.resize(std::min(choices.size(), most));
    return choices;
}

QString SolveText(const SolveReport& report, std::uint8_t languageId) {
    QString text = SolveHead(report, languageId);
    qsizetype width = 0;
    QStringList names;
    for (const Solution& solution : report.solutions) {
        names.append(QStringLiteral("%1 %2")
                         .arg(ParameterIn(languageId, solution.parameter))
                         .arg(report.parameters[solution.parameter]));
        width = std::max(width, names.last().size());
    }
    for (std::size_t i = 0; i < report.solutions.size(); ++i)
        text += QLatin1String("\n  ") + names[static_cast<qsizetype>(i)].leftJustified(width + 2) +
                SolutionText(report.solutions[i], languageId);
    return text;
}

} // namespace Hesperin
