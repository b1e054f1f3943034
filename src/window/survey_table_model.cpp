#include "window/survey_table_model.h"

#include "reports/column_words.h"
#include "window/palette.h"

#include <QFont>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int ColumnTotal = static_cast<int>(Column::Count);

constexpr auto Order = [] {
    // clang-format off
    constexpr Column first[] = {
        Column::Name,      Column::Town,         Column::CreatureTier,
        Column::Power,     Column::AveragePower, Column::Deviation,
        Column::Exp,       Column::AverageExp,   Column::WeeklyGrowth,
        Column::AverageWeeklyGrowth, Column::Gold, Column::AverageGold,
        Column::Advised,   Column::Problem,      Column::File,
    };
    // clang-format on
    std::array<Column, ColumnTotal> order{};
    auto last = std::copy(std::begin(first), std::end(first), order.begin());
    for (int column = 0; column < ColumnTotal; ++column)
        if (std::find(order.begin(), last, static_cast<Column>(column)) == last)
            *last++ = static_cast<Column>(column);
    return order;
}();

QVariant ColourOf(const SurveyRow& row, Column column) {
    const ColourTable& colours = Colours();
    if (row.problem)
        return QColor(column == Column::Problem ? colours.Rolvane : colours.TextOff);
    if (column == Column::Deviation && IsOutlier(row))
        return QColor(colours.Rolvane);
    return {};
}

} // namespace

std::span<const Column> ColumnsInOrder() {
    return Order;
}

void SurveyTableModel::Retranslate() {
    emit headerDataChanged(Qt::Horizontal, 0, ColumnTotal - 1);
    if (!view.Shown().empty())
        emit dataChanged(index(0, 0), index(rowCount({}) - 1, ColumnTotal - 1));
}

int SurveyTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(view.Shown().size());
}

int SurveyTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnTotal;
}

QVariant SurveyTableModel::data(const QModelIndex& index, int role) const {
    const auto place = static_cast<std::size_t>(index.row());
    if (!index.isValid() || place >= view.Shown().size())
        return {};
    const SurveyRow& row = view.Whole().rows[view.Shown()[place]];
    const auto column = static_cast<Column>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return CellText(row, column, program.state.messages);
    case Qt::ToolTipRole:
        return HoldsNumbers(column) ? QVariant()
                                    : CellText(row, column, program.state.messages).toHtmlEscaped();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (HoldsNumbers(column) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
        return ColourOf(row, column);
    default:
        return {};
    }
}

QVariant SurveyTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnTotal)
        return {};
    const auto column = static_cast<Column>(section);
    switch (role) {
    case Qt::DisplayRole:
        return ColumnWords(column, program.state.LanguageId);
    case Qt::ToolTipRole:
        return QString(HeadingOf(column) + QLatin1String(": ") +
                       program.state.messages.SurveyWindowSort);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (HoldsNumbers(column) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

} // namespace Hesperin
