#pragma once

#include "app/program.h"
#include "reports/survey_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <functional>

namespace Hesperin {

/// The line of choices that narrows the survey: words, tier, town, outliers; and how many creatures
/// are left.
class SurveyBar : public QWidget {
public:
    explicit SurveyBar(const Program& program);

    std::function<void()> changed; ///< by the user

    SurveyFilter Chosen() const;

    /// Offers the tiers and towns of the survey; what is chosen stays where it is still there.
    void Offer(const SurveyView& view);

    void ShowCount(const SurveyView& view);

    void Retranslate();
    void FocusWords();

    /// Empties the words; false when they are empty already.
    bool ClearWords();

private:
    QLabel* AddLabelled(QWidget& field, const char* name);

    const Program& program;
    QLineEdit* words;
    QComboBox* tier;
    QComboBox* town;
    QCheckBox* outliers;
    QLabel* wordsLabel;
    QLabel* tierLabel;
    QLabel* townLabel;
    QLabel* count;
};

} // namespace Hesperin
