#pragma once

#include "app/program.h"
#include "reports/survey.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>

namespace Hesperin {

/// A line that tells how far a survey has come, once it takes longer than half a second, with a
/// button that cancels it.
class SurveyProgressLine : public QWidget {
public:
    explicit SurveyProgressLine(const Program& program);

    QPushButton& CancelButton() const { return *cancel; }

    void Begin() { since.start(); }
    void Tell(const SurveyProgress& progress);
    void Retranslate();

private:
    const Program& program;
    QProgressBar* bar;
    QPushButton* cancel;
    QElapsedTimer since;
};

} // namespace Hesperin
