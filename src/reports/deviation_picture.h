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
    bool outlier = false; ///< above OutlierPercent either way
    bool current = false; ///< the creature of the window
    QString label{};      ///< the name where it is shown: of outliers and the current one, without
                          ///< overlapping; a tool tip names every point
    QRectF labelPlace{}; ///< a text beside the point begins at the point's side, else it is centred
};

struct DeviationLine {
    double y = 0;
    double deviation = 0; ///< -25, 0 or 25
    QRectF labelPlace{}; ///< for "+25 %", to be set right; only in the first panel of a row of them
};

struct DeviationPanel {
    std::int16_t tier = 0;
    QRectF place{};                       ///< where the points are
    std::size_t count = 0;                ///< creatures behind the scale
    std::optional<double> scale{};        ///< of Power
    std::vector<DeviationPoint> points{}; ///< spread sideways so that none hides another, from the
                                          ///< highest deviation to the lowest
    std::vector<DeviationLine> lines{};   ///< from the highest
    QRectF titlePlace{};                  ///< above: for the tier
    QRectF scalePlace{};                  ///< below: for the scale
    QRectF countPlace{};                  ///< below that: for the number of creatures
};

struct DeviationPicture {
    double width = 0;
    double height = 0; ///< above the one asked for when the panels don't fit into that
    double radius = 0; ///< of a point
    double reach =
        0; ///< percent at the upper edge of the panels; beyond it a point stands at the edge
    double depth = 0;                     ///< percent at the lower edge, below 0
    std::vector<DeviationPanel> panels{}; ///< by tier, in rows from left to right
};

/// The size of all texts in the picture, in pixels; the places for them are made for it.
inline constexpr double DeviationFontSize = 11;

/// Lays the picture out for a width and height in device-independent pixels. `shown`: the rows
/// that take part (a filter); none given: all. `current`: the row of the window's creature.
DeviationPicture LayOutDeviations(const Survey& survey, double width, double height,
                                  const std::optional<std::vector<std::size_t>>& shown = {},
                                  std::optional<std::size_t> current = {});

} // namespace Hesperin
