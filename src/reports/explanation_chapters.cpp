#include "reports/explanation_chapters.h"

#include "catalogue/tiers.h"
#include "localisation/judgement_text.h"
#include "reports/explained_terms.h"
#include "text/fill.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace Hesperin {

namespace {

const QString AbilityTermPrefix = QStringLiteral("product_");

/// Whether `next` is what `term` becomes without its fraction.
bool IsCutOf(const Term& next, const Term& term) {
    const QString of = u'(' + term.id + u')';
    return next.expression == QLatin1String("round16") + of ||
           next.expression == QLatin1String("whole") + of ||
           next.expression == QLatin1String("round16(whole") + of + u')';
}

class Explainer {
public:
    Explainer(const Explanation& source, std::uint8_t language, std::optional<ResultKey> only)
        : explanation(source), languageId(language),
          parameters(source.evaluation.validated.parameters),
          fixedGrowth(parameters.Tier >= FirstTierOfFixedGrowth) {
        if (only) {
            result = TermOfResult(*only);
            behind = TermsBehind(source, *only);
        }
    }

    std::vector<ExplainedChapter> Run() {
        TellCorrections();
        TellEntered();
        for (std::size_t i = 0; i < explanation.terms.size(); ++i)
            if (!Tells(explanation.terms[i].id)) {
                continue;
            } else if (i + 1 < explanation.terms.size() &&
                       IsCutOf(explanation.terms[i + 1], explanation.terms[i])) {
                TellStep(explanation.terms[i + 1].id, CutStep(i));
                ++i;
            } else {
                const Term& term = explanation.terms[i];
                TellStep(term.id, StepOf(term, ReadableNumber(term.value)));
            }
        if (explanation.evaluation.advice)
            TellBand(*explanation.evaluation.advice);
        else
            Tell(Chapter::RolvanePower, Words(Phrase::NoPower));
        TellGains();
        return std::move(chapters);
    }

private:
    QString Words(Phrase phrase, const QStringList& values = {}) const {
        return Fill(PhraseIn(languageId, phrase), values);
    }

    bool Tells(const QString& id) const { return !behind || behind->contains(id); }

    void Tell(Chapter chapter, const QString& what, const QString& value = {}) {
        Tell(chapter, {what, {}, value});
    }

    void Tell(Chapter chapter, ExplainedStep step) {
        auto place = std::find_if(chapters.begin(), chapters.end(), [chapter](const auto& known) {
            return known.chapter >= chapter;
        });
        if (place == chapters.end() || place->chapter != chapter)
            place = chapters.insert(place, {chapter, ChapterIn(languageId, chapter), {}});
        place->steps.push_back(std::move(step));
    }

    void TellCorrections() {
        using Corrected = Correction::What;
        for (const Correction& correction : explanation.evaluation.validated.corrections) {
            const auto parameter = ParameterOf(correction.what);
            QString reason = Words(Phrase::AllowedFrom, {QStringLiteral("1")});
            if (correction.what == Corrected::DamageOrder)
                reason = Words(Phrase::NotAboveMax);
            else if (parameter)
                reason =
                    Words(Phrase::Allowed, {QString::number(ParameterRanges[*parameter].lowest),
                                            QString::number(ParameterRanges[*parameter].highest)});
            Tell(Chapter::Corrected, CorrectedIn(languageId, correction.what),
                 QStringLiteral("\"%1\" → %2 (%3)")
                     .arg(correction.from.simplified(), QString::number(correction.to), reason));
        }
    }

    void TellEntered() {
        for (std::size_t i = 0; i < ParameterRanges.items.size(); ++i) {
            const auto parameter = static_cast<Parameter>(i);
            if (Tells(ParameterRanges[parameter].name.toString()))
                Tell(Chapter::Entered, ParameterIn(languageId, parameter),
                     QString::number(parameters[parameter]));
        }
        const bool upgraded = parameters.UpgradeFactor != PlainFactor;
        if (Tells(QStringLiteral("UpgradeFactor")))
            Tell(Chapter::Entered, Words(Phrase::Upgraded),
                 Words(upgraded ? Phrase::Yes : Phrase::No));
        if (Tells(QStringLiteral("Shooter")))
            Tell(Chapter::Entered, Words(Phrase::Shooter),
                 Words(parameters.Shooter ? Phrase::Yes : Phrase::No));
    }

    /// Without what it is. `value` is that of the term in words.
    static ExplainedStep StepOf(const Term& term, const QString& value) {
        return {{}, term.numbers == value ? QString() : term.numbers, value};
    }

    /// Of the step at `at` and the next, which cuts it.
    ExplainedStep CutStep(std::size_t at) const {
        const Term& exact = explanation.terms[at];
        const Term& cut = explanation.terms[at + 1];
        ExplainedStep step = StepOf(exact, NumberBeforeCut(exact.value));
        if (exact.value == cut.value)
            return step;
        step.value += QStringLiteral(" → ") + ReadableNumber(cut.value);
        if (exact.value > std::numeric_limits<std::int16_t>::max() && cut.value + 1 < exact.value)
            step.value += QLatin1String(" (") + Words(Phrase::LimitedTo16Bits) + u')';
        else if (exact.value < 1)
            step.value +=
                QLatin1String(" (") +
                Words(cut.value == 0 ? Phrase::ZeroInsteadOfOne : Phrase::OneInsteadOfLess) + u')';
        return step;
    }

    void TellStep(const QString& id, ExplainedStep step) {
        step.isResult = id == result;
        const auto tell = [&](Chapter chapter, const QString& what) {
            step.what = what;
            Tell(chapter, std::move(step));
        };
        if (id.startsWith(AbilityTermPrefix))
            return tell(Chapter::Abilities, id.mid(AbilityTermPrefix.size()));
        if (id == QLatin1String("product") && parameters.AbilityProduct == 1 &&
            (chapters.empty() || chapters.back().chapter != Chapter::Abilities))
            return tell(Chapter::Abilities, Words(Phrase::NoAbility));
        if (id == QLatin1String("exponent_offence"))
            return TellExponents();
        const QString tier = QString::number(parameters.Tier);
        if (fixedGrowth && id == QLatin1String("growth_rolvane")) {
            step.isResult |= result == QLatin1String("growth_hesperin");
            return tell(Chapter::Growth, Words(Phrase::GrowthFixed, {tier}));
        }
        if (fixedGrowth &&
            (id == QLatin1String("growth_hesperin") || id == QLatin1String("growth_numerator")))
            return;
        const StepWords* words = WordsOfStep(id);
        if (words == nullptr)
            return;
        // Where the growth is fixed, its base counts for the cost alone.
        const bool forTheCost = fixedGrowth && (id == QLatin1String("growth_base") ||
                                                id == QLatin1String("both_numerators"));
        tell(forTheCost ? Chapter::Gold : words->chapter, Fill(StepIn(languageId, *words), {tier}));
    }

    void TellExponents() {
        QStringList exponents;
        for (const Term& term : explanation.terms)
            if (term.id.startsWith(QLatin1String("exponent_")))
                exponents.append(ReadableNumber(term.value));
        Tell(Chapter::RolvanePower,
             Words(parameters.Shooter ? Phrase::ExponentsOfShooter : Phrase::ExponentsOfOthers),
             exponents.join(QLatin1String(", ")));
    }

    void TellBand(const Advice& advice) {
        const double average = explanation.evaluation.figures->PowerAverage;
        const PowerBand band = BandOf(advice.AdvisedTier);
        if (std::isinf(band.highest)) {
            Tell(Chapter::AdvisedTier, Words(Phrase::Band),
                 Words(Phrase::BandFrom, {WholeText(band.lowest)}));
        } else {
            const double way = 100 * (average - band.lowest) / (band.highest - band.lowest);
            Tell(Chapter::AdvisedTier, Words(Phrase::Band),
                 Words(Phrase::BandFromTo, {WholeText(band.lowest), WholeText(band.highest),
                                            WholeText(average), WholeText(std::round(way))}));
            Tell(Chapter::AdvisedTier,
                 Words(Phrase::ToNextTier, {QString::number(advice.AdvisedTier + 1)}),
                 Words(Phrase::MoreNeeded, {WholeText(band.highest + 1 - average)}));
        }
        if (advice.AdvisedTier != parameters.Tier)
            Tell(Chapter::AdvisedTier,
                 TierAdviceText(MessagesIn(languageId), parameters.Tier, advice.AdvisedTier));
    }

    /// The strongest first; those at the end of their range last.
    void TellGains() {
        if (!explanation.evaluation.figures)
            return;
        std::array<std::size_t, PowerParameters> order;
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return explanation.gains[a] > explanation.gains[b]; // none is less than any
        });
        for (const std::size_t i : order) {
            const auto parameter = static_cast<Parameter>(i);
            const std::int16_t highest = RangeOf(parameters, parameter).highest;
            const auto& gain = explanation.gains[i];
            const bool heldByMaximum =
                parameter == Parameter::MinDam && highest < ParameterRanges[parameter].highest;
            const double strongest = explanation.gains[order.front()].value_or(0);
            Tell(Chapter::OneMore,
                 {.what = ParameterIn(languageId, parameter),
                  .numbers = {},
                  .value = gain            ? u'+' + WholeText(*gain)
                           : heldByMaximum ? Words(Phrase::NotAboveMax)
                                           : Words(Phrase::Highest, {QString::number(highest)}),
                  .share = gain && strongest > 0 ? *gain / strongest : 0});
        }
    }

    const Explanation& explanation;
    const std::uint8_t languageId;
    const Parameters& parameters;
    const bool fixedGrowth;
    QString result; ///< the term that was asked for; empty: all
    std::optional<QSet<QString>> behind;
    std::vector<ExplainedChapter> chapters;
};

} // namespace

std::vector<ExplainedChapter> ChaptersOf(const Explanation& explanation, std::uint8_t languageId,
                                         std::optional<ResultKey> only) {
    return Explainer(explanation, languageId, only).Run();
}

} // namespace Hesperin
