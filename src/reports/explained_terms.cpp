#include "reports/explained_terms.h"

#include "catalogue/tiers.h"

#include <QRegularExpression>

#include <algorithm>

namespace Hesperin {

namespace {

/// What a term rests on without having it in its expression.
struct Choosing {
    const char* term;
    const char* by;
};

constexpr Choosing TermsOfChoices[] = {
    {"exponent_offence", "Shooter"}, {"exp_divisor", "Tier"},
    {"growth_base", "Tier"},         {"gold_per_power", "Tier"},
    {"gold_base", "Tier"},           {"cost_divisor_taken", "cost_divisor"},
};

constexpr Choosing ChoicesOfFixedGrowth[] = {
    {"growth_rolvane", "Tier"}, {"growth_hesperin", "growth_rolvane"}, // is told with it
};

const Term* FindTerm(const std::vector<Term>& terms, const QString& id) {
    const auto term =
        std::find_if(terms.begin(), terms.end(), [&id](const Term& one) { return one.id == id; });
    return term == terms.end() ? nullptr : &*term;
}

} // namespace

QString TermOfResult(ResultKey result) {
    static constexpr EnumArray<Figure, const char*> figures{{{"power", "exp", "growth", "cost"}}};
    static constexpr EnumArray<Method, const char*> methods{{{"rolvane", "hesperin", "average"}}};
    return QStringLiteral("%1_%2").arg(QLatin1String(figures[result.figure]),
                                       QLatin1String(methods[result.method]));
}

QSet<QString> TermsBehind(const Explanation& explanation, ResultKey result) {
    static const QRegularExpression name(QStringLiteral("[A-Za-z]\\w*"));
    QString first = TermOfResult(result);
    if (FindTerm(explanation.terms, first) == nullptr)
        first = TermOfResult({Method::Rolvane, Figure::Power});
    const bool fixedGrowth =
        explanation.evaluation.validated.parameters.Tier >= FirstTierOfFixedGrowth;
    QSet<QString> behind;
    QStringList open{first};
    while (!open.isEmpty()) {
        const QString id = open.takeLast();
        if (behind.contains(id))
            continue;
        behind.insert(id);
        const auto follow = [&](const auto& choices) {
            for (const Choosing& choice : choices)
                if (id == QLatin1String(choice.term))
                    open.append(QLatin1String(choice.by));
        };
        follow(TermsOfChoices);
        if (fixedGrowth)
            follow(ChoicesOfFixedGrowth);
        if (const Term* term = FindTerm(explanation.terms, id))
            for (auto other = name.globalMatch(term->expression); other.hasNext();)
                open.append(other.next().captured());
    }
    return behind;
}

} // namespace Hesperin
