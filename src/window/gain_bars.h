#pragma once

#include "reports/explanation_chapters.h"

#include <QWidget>

namespace Hesperin {

/// What one more of each parameter adds, as bars, in the given order.
class GainBars : public QWidget {
public:
    GainBars();

    void Show(std::vector<ExplainedStep> steps);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<ExplainedStep> gains;
};

} // namespace Hesperin
