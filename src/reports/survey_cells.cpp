// What the table of a survey shows in each column.
#include "localisation/error_text.h"
#include "model/evaluation.h"
#include "reports/survey.h"
#include "text/decimal.h"
#include "text/numbers.h"

#include <cmath>

namespace Hesperin {

namespace {

/// Where a cell comes from.
enum class Holds : std::uint8_t {
    Words,
    FileNumber,
    Result,
    Product,
    Advised,
    Scale,
    Deviation,
    Problem
};

struct ColumnRow {
    const char* heading;
    Holds holds;
    Method method = Method::Count;
    Figure figure = Figure::Count;
};

using H = Holds;
using M = Method;
using F = Figure;

// clang-format off
/// By Column.
constexpr ColumnRow ColumnRows[] = {
    {"file",                  H::Words},
    {"name",                  H::Words},
    {"town",                  H::Words},
    {"CreatureTier",          H::FileNumber},
    {"Upgrade",               H::Words},
    {"AttackSkill",           H::FileNumber},
    {"DefenceSkill",          H::FileNumber},
    {"MinDamage",             H::FileNumber},
    {"MaxDamage",             H::FileNumber},
    {"Health",                H::FileNumber},
    {"Speed",                 H::FileNumber},
    {"Initiative",            H::FileNumber},
    {"Shots",                 H::FileNumber},
    {"SpellPoints",           H::FileNumber},
    {"Range",                 H::FileNumber},
    {"Power",                 H::FileNumber},
    {"Exp",                   H::FileNumber},
    {"WeeklyGrowth",          H::FileNumber},
    {"Gold",                  H::FileNumber},
    {"Abilities",             H::Words},
    {"rolvane.Power",         H::Result, M::Rolvane,  F::Power},
    {"hesperin.Power",        H::Result, M::Hesperin, F::Power},
    {"average.Power",         H::Result, M::Average,  F::Power},
    {"rolvane.Exp",           H::Result, M::Rolvane,  F::Experience},
    {"hesperin.Exp",          H::Result, M::Hesperin, F::Experience},
    {"average.Exp",           H::Result, M::Average,  F::Experience},
    {"rolvane.WeeklyGrowth",  H::Result, M::Rolvane,  F::Growth},
    {"hesperin.WeeklyGrowth", H::Result, M::Hesperin, F::Growth},
    {"average.WeeklyGrowth",  H::Result, M::Average,  F::Growth},
    {"rolvane.Gold",          H::Result, M::Rolvane,  F::Cost},
    {"hesperin.Gold",         H::Result, M::Hesperin, F::Cost},
    {"average.Gold",          H::Result, M::Average,  F::Cost},
    {"product",               H::Product},
    {"advised",               H::Advised},
    {"scale",                 H::Scale},
    {"deviation",             H::Deviation},
    {"problem",               H::Problem},
};
// clang-format on
static_assert(std::size(ColumnRows) == static_cast<std::size_t>(Column::Count));

const ColumnRow& RowFor(Column column) {
    return ColumnRows[static_cast<std::size_t>(column)];
}

std::optional<double> InFile(const QString& text) {
    const auto number = ReadDecimal(text);
    if (!number)
        return std::nullopt;
    return static_cast<double>(number->units) / std::pow(10.0, number->places);
}

std::optional<double> ComputedIn(const SurveyRow& row, const ColumnRow& column) {
    return ResultReached(row.powers, row.figures, column.method, column.figure);
}

} // namespace

QString HeadingOf(Column column) {
    return QLatin1String(RowFor(column).heading);
}

std::optional<Column> ColumnOf(QStringView heading) {
    for (std::size_t i = 0; i < std::size(ColumnRows); ++i)
        if (heading.compare(QLatin1String(ColumnRows[i].heading), Qt::CaseInsensitive) == 0)
            return static_cast<Column>(i);
    return std::nullopt;
}

bool HoldsNumbers(Column column) {
    const Holds holds = RowFor(column).holds;
    return holds != H::Words && holds != H::Problem;
}

std::optional<double> SurveyRow::Number(Column column) const {
    const ColumnRow& which = RowFor(column);
    if (which.holds == H::FileNumber)
        return InFile(Text(column));
    if (problem)
        return std::nullopt;
    switch (which.holds) {
    case H::Result:
        return ComputedIn(*this, which);
    case H::Product:
        return FloatText(product).toDouble();
    case H::Advised:
        return figures ? std::optional<double>(advised) : std::nullopt;
    case H::Scale:
        return scale;
    case H::Deviation:
        return deviation;
    default:
        return std::nullopt;
    }
}

QString ScaleText(double scale) {
    constexpr double smallest = 0.001;
    return scale < smallest ? QString::number(scale, 'g', 3) : QString::number(scale, 'f', 4);
}

QString CellText(const SurveyRow& row, Column column, const Messages& messages) {
    const ColumnRow& which = RowFor(column);
    if (which.holds == H::Words || which.holds == H::FileNumber)
        return row.Text(column);
    if (which.holds == H::Problem)
        return row.problem ? ErrorReason(messages, *row.problem) : QString();
    const auto number = row.Number(column);
    if (!number)
        return {};
    if (which.holds == H::Product)
        return FloatText(row.product);
    if (which.holds == H::Scale)
        return ScaleText(*number);
    return which.holds == H::Deviation ? QString::number(*number, 'f', 1) : WholeText(*number);
}

} // namespace Hesperin
