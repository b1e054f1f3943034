#pragma once

#include "app/program.h"
#include "reports/survey_view.h"

#include <QAbstractTableModel>

namespace Hesperin {

/// The findings of a survey in the files that its view shows.
class FindingsModel : public QAbstractTableModel {
public:
    enum Part : std::uint8_t { Kind, File, Line, Words, PartCount };

    FindingsModel(const Program& owner, const SurveyView& viewed) : program(owner), view(viewed) {}

    /// The survey or its view is another, or the language.
    void LookAgain();

    const Finding& At(int row) const;

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString Text(const Finding& finding, Part part) const;

    const Program& program;
    const SurveyView& view;
    std::vector<std::size_t> shown;
};

} // namespace Hesperin
