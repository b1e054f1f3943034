#pragma once

#include "app/program.h"
#include "reports/survey_view.h"

#include <QAbstractTableModel>

namespace Hesperin {

/// The order in which the table shows the columns: what tells most comes first.
std::span<const Column> ColumnsInOrder();

/// The creatures that a survey's view shows, as a table of the toolkit. The places of its columns
/// are those of Column.
class SurveyTableModel : public QAbstractTableModel {
public:
    SurveyTableModel(const Program& owner, const SurveyView& shown) : program(owner), view(shown) {}

    /// Makes `change` of the view, after which all of it may be another.
    template <typename Change>
    void Reset(Change change) {
        beginResetModel();
        change();
        endResetModel();
    }

    /// The words of headings and problems are another language's.
    void Retranslate();

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Program& program;
    const SurveyView& view;
};

} // namespace Hesperin
