#include "reports/deviation_labels.h"

#include <algorithm>
#include <cmath>

namespace Hesperin {

namespace {

constexpr double LabelHeight = 13;
constexpr double BesideGap = 2;   ///< between point and name
constexpr qsizetype Longest = 24; ///< characters of a name

/// The width of a text in the picture, by that of a mean character.
double WidthInPicture(const QString& text) {
    constexpr double mean = 0.6 * DeviationFontSize;
    constexpr char16_t firstWide = 0x1100; // from where on characters are as wide as high
    const auto wide = std::count_if(text.begin(), text.end(),
                                    [](QChar character) { return character >= QChar(firstWide); });
    return mean * static_cast<double>(text.size()) +
           (DeviationFontSize - mean) * static_cast<double>(wide);
}

/// The name, cut so that it fits the panel.
QString Fitting(const QString& name, double room) {
    const QString ellipsis(QChar(0x2026));
    QString text = name.size() > Longest ? name.first(Longest - 1) + ellipsis : name;
    while (text.size() > 1 && WidthInPicture(text) > room)
        text = text.first(text.size() - 2) + ellipsis;
    if (text.size() > 1 && text[text.size() - 2].isHighSurrogate())
        text.remove(text.size() - 2, 1);
    return text;
}

/// A name and where it might stand.
struct LabelChoice {
    QString text;
    QRectF place;
};

/// Beside the point, and slightly above or below of that. What would leave the panel is cut.
void AddBeside(std::vector<LabelChoice>& choices, const DeviationPoint& point, double radius,
               const QRectF& panel, const QString& name) {
    constexpr qsizetype least = 8; ///< characters of a cut name
    const double side = radius + BesideGap;
    for (const double shift : {0.0, -0.45, 0.45, -0.8, 0.8})
        for (const bool onRight : {true, false}) {
            const double room = onRight ? panel.right() - point.x : point.x - panel.left();
            const QString text = Fitting(name, room - side - 1);
            const double width = WidthInPicture(text);
            const double left = onRight ? point.x + side : point.x - side - width;
            const double top = point.y + (shift - 0.5) * LabelHeight;
            if (text == name || text.size() >= least)
                choices.push_back({text, {left, top, width, LabelHeight}});
        }
}

/// Where the name of a point might stand, the best first: whole before cut, beside before above.
std::vector<LabelChoice> ChoicesFor(const DeviationPoint& point, double radius, const QRectF& panel,
                                    const QString& name) {
    std::vector<LabelChoice> choices;
    AddBeside(choices, point, radius, panel, name);
    const double width = WidthInPicture(name);
    for (const double top : {point.y - radius - LabelHeight, point.y + radius})
        for (const double part : {0.5, 0.2, 0.8})
            choices.push_back({name, {point.x - width * part, top, width, LabelHeight}});
    std::stable_partition(choices.begin(), choices.end(),
                          [&](const LabelChoice& choice) { return choice.text == name; });
    return choices;
}

/// What is taken in a panel: its points, and the names that have been placed.
class TakenPlaces {
public:
    TakenPlaces(const DeviationPanel& ofPanel, double ofPoint)
        : panel(ofPanel), free(ofPanel.place.adjusted(1, 1, -1, -1)), radius(ofPoint) {}

    bool IsFree(const QRectF& place) const {
        return free.contains(place) &&
               std::none_of(names.begin(), names.end(),
                            [&](const QRectF& name) { return name.intersects(place); }) &&
               !HidesAPoint(place);
    }

    void Take(const QRectF& place) { names.push_back(place); }

private:
    bool HidesAPoint(const QRectF& place) const {
        const auto& points = panel.points; // from the top
        const auto first =
            std::partition_point(points.begin(), points.end(), [&](const DeviationPoint& point) {
                return point.y < place.top() - radius;
            });
        for (auto point = first; point != points.end() && point->y <= place.bottom() + radius;
             ++point) {
            const double x = std::clamp(point->x, place.left(), place.right());
            const double y = std::clamp(point->y, place.top(), place.bottom());
            if (std::hypot(point->x - x, point->y - y) < radius)
                return true;
        }
        return false;
    }

    const DeviationPanel& panel;
    QRectF free;
    double radius;
    std::vector<QRectF> names;
};

} // namespace

void PlaceLabels(DeviationPanel& panel, double radius, const Survey& survey) {
    std::vector<DeviationPoint*> named;
    for (DeviationPoint& point : panel.points)
        if (point.outlier || point.current)
            named.push_back(&point);
    std::stable_sort(named.begin(), named.end(),
                     [](const DeviationPoint* one, const DeviationPoint* other) {
                         return one->current != other->current
                                    ? one->current
                                    : std::abs(one->deviation) > std::abs(other->deviation);
                     });
    TakenPlaces taken(panel, radius);
    for (DeviationPoint* point : named) {
        const QString name =
            Fitting(ShownName(survey.rows[point->row]), panel.place.width() - 2 * BesideGap);
        for (const LabelChoice& choice : ChoicesFor(*point, radius, panel.place, name))
            if (taken.IsFree(choice.place)) {
                taken.Take(choice.place);
                point->label = choice.text;
                point->labelPlace = choice.place;
                break;
            }
    }
}

} // namespace Hesperin
