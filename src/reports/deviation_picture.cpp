#include "reports/deviation_picture.h"

#include "reports/deviation_labels.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace Hesperin {

namespace {

constexpr double LineHeight = 16; ///< of a text
constexpr double AxisWidth = 44;  ///< for "+25 %" at the left
constexpr double Gap = 10;        ///< between panels
constexpr double SmallestPanel = 104;
constexpr double SmallestHeight = 48;        ///< of a panel in a picture of one row of them
constexpr double SmallestHeightOfMany = 150; ///< and of several
constexpr double Radii[] = {4.5, 4, 3.5, 3, 2.5, 2};

/// The points of each tier, from the highest deviation to the lowest.
using PointsByTier = std::map<std::int16_t, std::vector<DeviationPoint>>;

PointsByTier PointsOf(const Survey& survey, const std::optional<std::vector<std::size_t>>& shown,
                      std::optional<std::size_t> current) {
    PointsByTier tiers;
    const auto add = [&](std::size_t row) {
        if (row >= survey.rows.size())
            return;
        const auto& deviation = survey.rows[row].deviation;
        if (!deviation || !std::isfinite(*deviation))
            return;
        DeviationPoint point{row};
        point.deviation = *deviation;
        point.outlier = std::abs(*deviation) > OutlierPercent;
        point.current = row == current;
        tiers[survey.rows[row].tier].push_back(std::move(point));
    };
    if (shown)
        std::for_each(shown->begin(), shown->end(), add);
    else
        for (std::size_t row = 0; row < survey.rows.size(); ++row)
            add(row);
    for (auto& [tier, points] : tiers)
        std::stable_sort(points.begin(), points.end(),
                         [](const DeviationPoint& one, const DeviationPoint& other) {
                             return one.deviation > other.deviation;
                         });
    return tiers;
}

/// Percent at the upper edge, in steps of 25: most points lie below it.
double ReachOf(const PointsByTier& tiers) {
    constexpr double step = 25;
    constexpr double least = 50;
    constexpr double most = 400;
    std::vector<double> sizes;
    for (const auto& [tier, points] : tiers)
        for (const DeviationPoint& point : points)
            sizes.push_back(std::abs(point.deviation));
    if (sizes.empty())
        return least;
    const auto most97 = sizes.begin() + static_cast<std::ptrdiff_t>((sizes.size() - 1) * 97 / 100);
    std::nth_element(sizes.begin(), most97, sizes.end());
    return std::clamp(std::ceil(*most97 / step) * step, least, most);
}

/// How many panels stand in a row, and how large they are.
struct Grid {
    std::size_t columns;
    std::size_t rows;
    double width;
    double height; ///< of the points alone

    static constexpr double Texts = 3 * LineHeight; ///< above and below

    double Height() const {
        const auto count = static_cast<double>(rows);
        return count * (height + Texts) + (count - 1) * Gap;
    }
};

Grid GridFor(std::size_t panels, double width, double height) {
    const double room = width - AxisWidth - 1;
    const auto fitting = std::clamp(static_cast<std::size_t>((room + Gap) / (SmallestPanel + Gap)),
                                    std::size_t(1), panels);
    Grid grid{};
    grid.rows = (panels + fitting - 1) / fitting;
    grid.columns = (panels + grid.rows - 1) / grid.rows;
    const auto columns = static_cast<double>(grid.columns);
    const auto rows = static_cast<double>(grid.rows);
    grid.width = (room - (columns - 1) * Gap) / columns;
    grid.height = std::max((height - (rows - 1) * Gap) / rows - Grid::Texts,
                           grid.rows == 1 ? SmallestHeight : SmallestHeightOfMany);
    return grid;
}

/// The panel at that place of the grid, still without points.
DeviationPanel PanelAt(const Grid& grid, std::size_t at) {
    DeviationPanel panel;
    const std::size_t rowsAbove = at / grid.columns;
    const auto column = static_cast<double>(at % grid.columns);
    const auto row = static_cast<double>(rowsAbove);
    const double left = AxisWidth + column * (grid.width + Gap);
    const double top = row * (grid.height + Grid::Texts + Gap);
    panel.titlePlace = QRectF(left, top, grid.width, LineHeight);
    panel.place = QRectF(left, top + LineHeight, grid.width, grid.height);
    panel.scalePlace = panel.titlePlace.translated(0, LineHeight + grid.height);
    panel.countPlace = panel.scalePlace.translated(0, LineHeight);
    return panel;
}

/// Where a deviation stands in a panel; what is beyond its edges stands there.
class Axis {
public:
    Axis(const QRectF& place, const DeviationPicture& picture)
        : top(place.top() + Radii[0] + 1), bottom(place.bottom() - Radii[0] - 1),
          reach(picture.reach), depth(picture.depth) {}

    double Of(double deviation) const {
        return top +
               (reach - std::clamp(deviation, depth, reach)) / (reach - depth) * (bottom - top);
    }

private:
    double top;
    double bottom;
    double reach;
    double depth;
};

void AddLines(DeviationPanel& panel, const Axis& axis, bool first) {
    for (const double deviation : {OutlierPercent, 0.0, -OutlierPercent}) {
        DeviationLine line{axis.Of(deviation), deviation};
        if (first)
            line.labelPlace = QRectF(0, line.y - LineHeight / 2, AxisWidth - 6, LineHeight);
        panel.lines.push_back(line);
    }
}

/// Spreads the points of a panel, which come from top to bottom, sideways from its middle: each
/// takes the nearest place at which it touches none above it. Where there is no such place it takes
/// the one that was taken longest ago. False when that happened.
bool Spread(std::vector<DeviationPoint>& points, const QRectF& place, double radius) {
    const double step = radius / 2;
    const double reach = 2 * radius;
    constexpr double grain = 1e-6;
    const auto side = std::max(
        std::ptrdiff_t(0), static_cast<std::ptrdiff_t>((place.width() / 2 - radius - 1) / step));
    const auto near = static_cast<std::ptrdiff_t>(reach / step);
    // Down to where each place is taken, from the leftmost; the middle is at `side`.
    std::vector<double> takenTo(static_cast<std::size_t>(2 * side + 1), place.top() - reach);
    bool fits = true;
    bool rightFirst = true;
    for (DeviationPoint& point : points) {
        const auto isFree = [&](std::ptrdiff_t at) {
            return takenTo[static_cast<std::size_t>(side + at)] <= point.y;
        };
        std::ptrdiff_t found = 0;
        for (std::ptrdiff_t far = 0; far <= side; ++far) {
            found = rightFirst ? far : -far;
            if (isFree(found))
                break;
            found = -found;
            if (isFree(found))
                break;
        }
        if (!isFree(found)) {
            fits = false;
            found = std::min_element(takenTo.begin(), takenTo.end()) - takenTo.begin() - side;
        }
        rightFirst = !rightFirst;
        point.x = place.center().x() + static_cast<double>(found) * step;
        const auto last = std::min(side, found + near);
        for (auto at = std::max(-side, found - near); at <= last; ++at) {
            const double aside = static_cast<double>(at - found) * step;
            double& taken = takenTo[static_cast<std::size_t>(side + at)];
            const double down = std::sqrt(std::max(0.0, reach * reach - aside * aside));
            if (std::abs(at - found) < near) // the grain lets overlapping points take turns
                taken = std::max(taken, point.y + down) + grain;
        }
    }
    return fits;
}

/// Spreads the points of all panels with the largest radius with which they fit.
double SpreadAll(std::vector<DeviationPanel>& panels) {
    for (const double radius : Radii) {
        const bool last = radius == *std::rbegin(Radii);
        const auto fits = [&](DeviationPanel& panel) {
            return Spread(panel.points, panel.place, radius) || last;
        };
        if (std::all_of(panels.begin(), panels.end(), fits))
            return radius;
    }
    return *std::rbegin(Radii);
}

} // namespace

DeviationPicture LayOutDeviations(const Survey& survey, double width, double height,
                                  const std::optional<std::vector<std::size_t>>& shown,
                                  std::optional<std::size_t> current) {
    PointsByTier tiers = PointsOf(survey, shown, current);
    DeviationPicture picture;
    picture.width = std::max(width, AxisWidth + SmallestPanel + 1);
    picture.height = std::max(height, 0.0);
    picture.reach = ReachOf(tiers);
    picture.depth = -std::min(picture.reach, 100.0);
    if (tiers.empty())
        return picture;
    const Grid grid = GridFor(tiers.size(), picture.width, height);
    picture.height = std::max(picture.height, grid.Height());
    for (auto& [tier, points] : tiers) {
        const std::size_t at = picture.panels.size();
        DeviationPanel panel = PanelAt(grid, at);
        const Axis axis(panel.place, picture);
        panel.tier = tier;
        panel.count = survey.scale.CountOf(tier, Figure::Power);
        panel.scale = survey.scale.Of(tier, Figure::Power);
        AddLines(panel, axis, at % grid.columns == 0);
        for (DeviationPoint& point : points)
            point.y = axis.Of(point.deviation);
        panel.points = std::move(points);
        picture.panels.push_back(std::move(panel));
    }
    picture.radius = SpreadAll(picture.panels);
    for (DeviationPanel& panel : picture.panels)
        PlaceLabels(panel, picture.radius, survey);
    return picture;
}

} // namespace Hesperin
