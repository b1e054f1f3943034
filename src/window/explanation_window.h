#pragma once

#include "reports/explanation.h"
#include "window/companion_window.h"
#include "window/gain_bars.h"
#include "window/tier_bands.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>

namespace Hesperin {

/// Tells how a result was computed, or all of them: the steps, where the creature stands in the
/// bands of the tiers, what one more of each parameter would add.
class ExplanationWindow : public CompanionWindow {
public:
    explicit ExplanationWindow(Program& program);

    /// At the result that the user asked for.
    void ShowAsked();

protected:
    void Refresh() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildTop();
    QWidget* BuildBottom();
    void Retranslate();
    void OfferResults();
    void ShowPage(const std::vector<ExplainedChapter>& chapters);
    void ShowBelow(const std::vector<ExplainedChapter>& chapters);
    void CopyText();
    void CopyMarkdown();
    std::optional<ResultKey> Chosen() const;

    std::optional<Explanation> explanation;
    QLabel* figureLabel;
    QComboBox* figures; ///< the twelve results in the order of ResultRows, and all
    QPushButton* copy;
    QPushButton* copyMarkdown;
    QTextBrowser* text;
    QLabel* bandsHeading;
    TierBands* bands;
    QLabel* bandsWords;
    QLabel* gainsHeading;
    GainBars* gains;
    QWidget* below;
    QString shownPage;
};

} // namespace Hesperin
