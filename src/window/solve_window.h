#pragma once

#include "reports/solve_report.h"
#include "window/companion_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace Hesperin {

/// Finds the values that give a Power or a tier: a row a parameter. A click on a value, or Enter,
/// puts it into the main window and calculates.
class SolveWindow : public CompanionWindow {
public:
    explicit SolveWindow(Program& program);

    /// With the Power of the file, or else the computed one, where the user has wanted nothing yet.
    void ShowWithGoal();

protected:
    void Refresh() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildTop();
    void BuildTable();
    void Retranslate();
    std::optional<SolveGoal> Goal() const;
    void ShowReport(const SolveReport& report);
    void ShowRow(int row, const SolveReport& report);
    void Take(const QTableWidgetItem* item);

    QLabel* goalLabel;
    QLineEdit* goal;
    QLabel* tierLabel;
    QComboBox* tier; ///< the first entry: none is wanted
    QCheckBox* byScale;
    QLabel* head;
    QTableWidget* table;
    QLabel* hint;
};

} // namespace Hesperin
