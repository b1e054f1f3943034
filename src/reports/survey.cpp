#include "reports/survey.h"

#include "creature_files/document.h"
#include "creature_files/reader.h"
#include "model/evaluation.h"
#include "reports/check_mod.h"
#include "reports/survey_texts.h"
#include "system/visit_all.h"
#include "text/numbers.h"

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

/// By Figure.
constexpr double SurveyRow::*OwnFigures[] = {&SurveyRow::power, &SurveyRow::experience,
                                             &SurveyRow::growth, &SurveyRow::gold};
static_assert(std::size(OwnFigures) == static_cast<std::size_t>(Figure::Count));

/// The figure that the file has, which may lie outside the 16 bits that are read of it.
double InFile(const ReadCreature& read, const FigureInFile& figure) {
    for (const LimitedNumber& limited : read.limited)
        if (limited.element == figure.element)
            return TextToNumber(limited.text);
    return read.figures.*figure.value;
}

void Compute(const QString& normalised, SurveyRow& row) {
    const ReadCreature read = ReadCreatureText(normalised, EmptyCreature());
    const Evaluation evaluation = Evaluate(EnteredOf(read.creature));
    row.Text(Column::Name) = read.name.value_or(QString());
    if (!read.missing.contains(QLatin1String("CreatureTier")))
        row.tier = RoundTo16Bits(TextToNumber(read.creature.Choices[ListField::Tier].text));
    for (const FigureInFile& figure : FiguresInFile)
        row.*OwnFigures[static_cast<std::size_t>(figure.figure)] = InFile(read, figure);
    row.powers = evaluation.powers;
    row.figures = evaluation.figures;
    row.product = evaluation.validated.parameters.AbilityProduct;
    if (evaluation.advice)
        row.advised = evaluation.advice->AdvisedTier;
}

void AddTo(ModScale& scale, const SurveyRow& row) {
    if (!row.figures)
        return;
    for (const FigureInFile& figure : FiguresInFile)
        scale.Add(row.tier, figure.figure,
                  ResultOf(row.powers, *row.figures, Method::Average, figure.figure),
                  row.*OwnFigures[static_cast<std::size_t>(figure.figure)]);
}

Result<QString> Normalised(const Result<QByteArray>& bytes) {
    auto text = bytes ? NormaliseCreature(*bytes) : Result<QString>(bytes.Why());
    if (!text)
        text.Why().doing = Error::Doing::Opening;
    return text;
}

SurveyRow RowFrom(const ModFile& file, const Result<QString>& normalised) {
    SurveyRow row;
    row.place = file.place;
    row.packed = file.packed;
    row.Text(Column::File) = file.path;
    if (normalised) {
        ReadElementTexts(*normalised, row);
        Compute(*normalised, row);
    } else {
        row.problem = normalised.Why();
    }
    return row;
}

/// One survey while it is taken.
class Taking {
public:
    Taking(const SurveyWish& asked, SurveyProgress& told) : wish(asked), progress(told) {}

    Survey Take() {
        const auto goOn = [this] { return !progress.cancel; };
        const Mod mod(wish.paths, goOn);
        if (wish.findings)
            check = std::make_unique<ModCheck>(mod, wish.game, goOn);
        rows.resize(mod.Files().size());
        progress.all = mod.Files().size();
        VisitAll(mod.Files().size(), wish.jobs, [&](std::size_t at) {
            LookAt(mod, at);
            ++progress.done;
            return goOn();
        });
        Survey survey;
        survey.cancelled = progress.cancel;
        if (survey.cancelled)
            return survey;
        survey.refused = mod.Refused();
        survey.other = other;
        Collect(survey);
        return survey;
    }

private:
    /// A thread writes the row of its own file alone.
    void LookAt(const Mod& mod, std::size_t at) {
        const ModFile& file = mod.Files()[at];
        const auto bytes = mod.Read(file, LargestCreatureFile);
        const auto normalised = Normalised(bytes);
        auto row = std::make_unique<SurveyRow>(RowFrom(file, normalised));
        if (row->problem && IsOther(mod, file, bytes, *row->problem)) {
            ++other;
            return;
        }
        rows[at] = std::move(row);
        if (check)
            check->LookAt(at, bytes ? *bytes : QByteArray(), normalised);
    }

    /// Whether what can't be used is no creature in the first place.
    static bool IsOther(const Mod& mod, const ModFile& file, const Result<QByteArray>& bytes,
                        const Error& problem) {
        constexpr qint64 enoughForTheRoot = 1 << 16;
        if (problem.what == Error::What::WrongRoot)
            return true;
        if (bytes)
            return IsOtherDocument(*bytes);
        if (problem.what != Error::What::FileTooLarge)
            return false;
        const auto start = mod.ReadStart(file, enoughForTheRoot);
        return start && IsOtherDocument(*start);
    }

    void Collect(Survey& survey) {
        survey.rows.reserve(rows.size() - other);
        for (std::unique_ptr<SurveyRow>& row : rows)
            if (row) {
                AddTo(survey.scale, *row);
                survey.rows.push_back(std::move(*row));
                row.reset();
            }
        TierTable<std::optional<double>> scales; // no creature has tier 0
        for (std::size_t tier = 1; tier < scales.size(); ++tier)
            scales[tier] = survey.scale.Of(static_cast<std::int16_t>(tier), Figure::Power);
        for (SurveyRow& row : survey.rows) {
            const auto tier = static_cast<std::size_t>(std::max<int>(row.tier, 0));
            row.scale = tier < scales.size() ? scales[tier] : std::nullopt;
            if (row.figures)
                row.deviation = DeviationOf(row.figures->PowerAverage, row.power, row.scale);
        }
        if (check)
            check->AddTo(survey);
    }

    const SurveyWish& wish;
    SurveyProgress& progress;
    std::unique_ptr<ModCheck> check;              ///< null: no findings are wanted
    std::vector<std::unique_ptr<SurveyRow>> rows; ///< by file; null: another document
    std::atomic<std::size_t> other{0};
};

} // namespace

std::optional<double> DeviationOf(double averagePower, double power, std::optional<double> scale) {
    constexpr double steps = 1000; // of a tenth of a percent
    if (averagePower <= 0 || power <= 0 || scale.value_or(0) <= 0)
        return std::nullopt;
    return std::round((averagePower / power / *scale - 1) * steps) / (steps / 100);
}

SurveyRow RowOf(const ModFile& file, const Result<QByteArray>& bytes) {
    return RowFrom(file, Normalised(bytes));
}

Survey TakeSurvey(const SurveyWish& wish, SurveyProgress* progress) {
    SurveyProgress own;
    return Taking(wish, progress != nullptr ? *progress : own).Take();
}

QString ShownName(const SurveyRow& row) {
    const QString name = row.Name().simplified();
    return name.isEmpty() ? row.File().section('/', -1).section('.', 0, 0).simplified() : name;
}

bool IsOutlier(const SurveyRow& row) {
    return row.deviation && std::abs(*row.deviation) > OutlierPercent;
}

QString DeviationText(double deviation, int decimals) {
    const QChar minus(0x2212);
    QString text = QString::number(deviation, 'f', decimals).replace('-', minus);
    return (deviation > 0 ? "+" : "") + text + " %";
}

} // namespace Hesperin
