#pragma once

#include "model/evaluation.h"
#include "model/search.h"
#include "text/error.h"

#include <array>

namespace Hesperin {

/// How a creature's figures come about.
struct Explanation {
    QString file; ///< empty: none
    QString name;
    std::vector<Term> terms; ///< every step, in the order in which it is taken
    Evaluation evaluation;
    std::array<std::optional<double>, PowerParameters> gains; ///< GainOfOneMore
};

Explanation Explain(const Creature& creature, const QString& name, const QString& file);

/// Of parameters alone: the product of the abilities' values is given.
Explanation Explain(const Parameters& parameters, const QString& name);

/// Of the creature file `path`. The error names it.
Result<Explanation> ExplainFile(const QString& path);

/// The name by which the model knows the field of a corrected value; a minimum that followed the
/// maximum is MinDam.
QString CorrectedField(Correction::What what);

} // namespace Hesperin
