// The picture of deviation: a panel a tier, a point a creature. Laid out here once; the window and
// the HTML page draw what stands here.
#pragma once

#include "reports/survey.h"

#include <QRectF>

namespace Hesperin {

/// A creature in the picture.
struct DeviationPoint {
    std::size_t row; ///< of the survey
    double x = 0;
    double y = 0;
    double deviation = 0; ///< in percent
    bool outlier = false; ///< above 25 percent either way
    bool current = false; ///< the creature of the window
    QString label{};      ///< the name where it is shown: of outliers and the current one, without
                          ///< overlapping; a tool tip names every point
    QRectF labelPlace{};
};

struct DeviationLine {
    double y = 0;
    double deviation = 0; ///< -25, 0 or 25
};

struct DeviationPanel {
    std::int16_t tier = 0;
    QRectF place{};
    std::size_t count = 0;                ///< creatures behind the scale
    std::optional<double> scale{};        ///< of Power
    std::vector<DeviationPoint> points{}; ///< spread sideways so that none hides another
    std::vector<DeviationLine> lines{};
};

struct DeviationPicture {
    double width = 0;
    double height = 0;
    double radius = 0; ///< of a point
    double reach =
        0; ///< percent at the upper edge of the panels; beyond it a point stands at the edge
    std::vector<DeviationPanel> panels{}; ///< by tier
};

/// Lays the picture out for a width and height in device-independent pixels. `shown`: the rows
/// that take part (a filter); empty: all. `current`: the row of the window's creature.
DeviationPicture LayOutDeviations(const Survey& survey, double width, double height,
                                  const std::vector<std::size_t>& shown,
                                  std::optional<std::size_t> current);

} // namespace Hesperin
