#pragma once

#include "model/search.h"
#include "reports/mod_scale.h"
#include "text/error.h"

#include <QJsonObject>

namespace Hesperin {

/// What is looked for: an average Power, or a tier and its band of average Power.
struct SolveGoal {
    QString text; ///< "Power=392", "Tier=4"
    PowerBand band;
    std::int16_t tier = 0; ///< 0: a Power is wanted
};

/// Power=N with a whole number from 1, or Tier=N with a tier; none for anything else.
std::optional<SolveGoal> ReadSolveGoal(const QString& text);

/// The parameters that Power depends on.
std::vector<Parameter> DefaultVaried();

/// The parameter by its name in the model, letter for letter.
std::optional<Parameter> ParameterByName(QStringView name);

struct SolveWish {
    SolveGoal goal;
    std::vector<Parameter> varied = DefaultVaried();
    const ModScale* scale = nullptr; ///< in whose figures Power is told; null: the computed ones
};

struct SolveReport {
    QString file; ///< empty: none
    QString name;
    SolveGoal goal;
    bool inFiguresOfMod = false;
    Parameters parameters;     ///< as they are
    std::optional<double> now; ///< average Power, in the figures of the wish
    std::vector<Solution> solutions;
};

/// Of a creature without a file and a name. `parameters` must be validated.
SolveReport SolveFor(const Parameters& parameters, const SolveWish& wish);

/// Of the creature file `path`. The error names it.
Result<SolveReport> SolveFile(const QString& path, const SolveWish& wish);

QJsonObject SolveJson(const SolveReport& report);

/// Whose Power it is, and what is wanted: two lines.
QString SolveHead(const SolveReport& report, std::uint8_t languageId);

/// "not exactly: 4 gives 148, 5 gives 151"
QString SolutionText(const Solution& solution, std::uint8_t languageId);

/// At most `most` of the values that come to what is wanted, or else next to it: those nearest to
/// `current` first, which is none itself.
std::vector<std::int16_t> ChoicesOf(const Solution& solution, std::int16_t current,
                                    std::size_t most);

/// A line a parameter, in the language of that number.
QString SolveText(const SolveReport& report, std::uint8_t languageId);

} // namespace Hesperin
