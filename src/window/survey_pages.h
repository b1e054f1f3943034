#pragma once

#include "window/deviation_view.h"
#include "window/findings_model.h"
#include "window/survey_table_model.h"

#include <QLabel>
#include <QTabWidget>
#include <QTableView>

namespace Hesperin {

/// What a survey shows: the table of creatures above the picture of deviation, and the findings as
/// a second page. What is chosen in table or picture is chosen in both.
class SurveyPages : public QTabWidget {
public:
    explicit SurveyPages(const Program& program);

    std::function<void(std::size_t row)> open; ///< the user wants the creature in the main window

    const SurveyView& View() const { return view; }

    /// Shows another survey; null: none.
    void Load(std::shared_ptr<const Survey> survey);

    void Filter(const SurveyFilter& filter);

    /// The window's creature may be another one.
    void LookForCurrent() { picture->LookAgain(); }

    void Retranslate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildTable();
    void BuildFindings();
    void FitColumns();
    void SortBy(int column);
    void Refresh();
    template <typename Change>
    void Rearrange(Change change);
    void Choose(std::size_t row);
    std::optional<std::size_t> Chosen() const;

    const Program& program;
    SurveyView view;
    SurveyFilter chosenFilter;
    SurveyTableModel rows;
    FindingsModel findings;
    QTableView* table;
    QTableView* findingsTable;
    DeviationView* picture;
    QLabel* hint; ///< in the middle of an empty table
    std::optional<RowOrder> order;
    std::uint8_t fittedFor = 0; ///< the language whose headings have room
};

} // namespace Hesperin
