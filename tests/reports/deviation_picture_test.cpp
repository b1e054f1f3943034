#include "reports/deviation_picture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace Hesperin {

namespace {

/// A made mod and the size of its picture, with what is known of it beforehand.
struct PictureCase {
    const char* about;
    std::size_t creatures;
    std::int16_t tiers;
    double spread; ///< deviations lie from -spread to spread
    double width;
    double height;
    std::size_t columns; ///< panels in a row
    bool roomy;          ///< there is room for all points
};

Survey MadeSurvey(const PictureCase& made) {
    Survey survey;
    for (std::size_t at = 0; at < made.creatures; ++at) {
        SurveyRow row;
        row.tier = static_cast<std::int16_t>(1 + at % static_cast<std::size_t>(made.tiers));
        const auto mixed = static_cast<double>(at * 7919 % 1009) / 1009 - 0.5;
        row.deviation = std::round(mixed * mixed * mixed * 80 * made.spread) / 10;
        row.texts[static_cast<std::size_t>(Column::Name)] = QString("Creature_%1").arg(at);
        survey.scale.Add(row.tier, Figure::Power, 1, 1);
        survey.rows.push_back(row);
    }
    return survey;
}

/// No point lies on another one where there is room; else they lie on each other evenly.
void ExpectApart(const DeviationPanel& panel, double radius, bool roomy) {
    std::set<std::pair<double, double>> places;
    for (std::size_t one = 0; one < panel.points.size(); ++one) {
        const DeviationPoint& lower = panel.points[one];
        places.emplace(lower.x, lower.y);
        for (std::size_t other = 0; other < one; ++other) {
            const DeviationPoint& upper = panel.points[other];
            EXPECT_LE(upper.y, lower.y);
            EXPECT_GE(upper.deviation, lower.deviation);
            EXPECT_TRUE(!roomy || std::hypot(upper.x - lower.x, upper.y - lower.y) > 2 * radius - 0.01);
            EXPECT_FALSE(upper.labelPlace.intersects(lower.labelPlace)) << upper.row << ' ' << lower.row;
        }
    }
    EXPECT_GT(2 * places.size(), panel.points.size());
}

TEST(DeviationPicture, HidesNothing) {
    const PictureCase cases[] = {
        {"nothing", 0, 1, 50, 800, 300, 1, true},
        {"one creature", 1, 1, 0, 800, 300, 1, true},
        {"a mod", 180, 7, 60, 1000, 320, 7, true},
        {"a narrow window", 180, 7, 60, 400, 300, 3, true},
        {"far too narrow", 180, 7, 60, 10, 10, 1, true},
        {"a large mod", 2000, 8, 90, 1400, 420, 8, false},
        {"one large tier", 2000, 1, 300, 700, 300, 1, false},
        {"all the same", 300, 2, 0, 300, 200, 2, false},
    };
    for (const PictureCase& made : cases) {
        SCOPED_TRACE(made.about);
        const Survey survey = MadeSurvey(made);
        const DeviationPicture picture = LayOutDeviations(survey, made.width, made.height, {}, 0);
        const QRectF whole(0, 0, picture.width, picture.height);
        EXPECT_GE(picture.width, made.width);
        EXPECT_GE(picture.height, made.height);
        std::size_t points = 0;
        std::size_t labels = 0;
        for (std::size_t at = 0; at < picture.panels.size(); ++at) {
            const DeviationPanel& panel = picture.panels[at];
            EXPECT_EQ(panel.tier, at + 1);
            EXPECT_EQ(panel.count, panel.points.size());
            EXPECT_EQ(panel.place.top(), picture.panels[at / made.columns * made.columns].place.top());
            EXPECT_EQ(panel.lines[1].labelPlace.isEmpty(), at % made.columns != 0);
            for (const QRectF& place : {panel.titlePlace, panel.scalePlace, panel.countPlace, panel.place})
                EXPECT_TRUE(whole.contains(place));
            ExpectApart(panel, picture.radius, made.roomy);
            for (const DeviationPoint& point : panel.points) {
                ++points;
                labels += point.label.isEmpty() ? 0 : 1;
                EXPECT_TRUE(panel.place.contains(
                    QRectF(point.x, point.y, 0, 0)
                        .adjusted(-picture.radius, -picture.radius, picture.radius, picture.radius)));
                EXPECT_TRUE(point.label.isEmpty() || panel.place.contains(point.labelPlace));
                EXPECT_EQ(point.outlier, std::abs(point.deviation) > 25);
                EXPECT_TRUE(point.label.isEmpty() || point.outlier || point.current);
            }
        }
        EXPECT_EQ(points, made.creatures);
        EXPECT_EQ(labels == 0, made.creatures == 0);
    }
}

TEST(DeviationPicture, NamesTheGraverOfTwoAndStandsAtTheEdge) {
    Survey survey = MadeSurvey({"", 60, 1, 10, 160, 200, 1, true});
    for (SurveyRow& row : survey.rows)
        row.deviation = 26;
    survey.rows[40].deviation = 27;
    survey.rows[41].deviation = 900;
    survey.rows[42].deviation.reset();
    const auto picture = LayOutDeviations(survey, 160, 200, {}, {});
    ASSERT_EQ(picture.panels.size(), 1U);
    const auto& points = picture.panels[0].points;
    EXPECT_EQ(points.size(), 59U);
    EXPECT_EQ(points[0].row, 41U);
    EXPECT_EQ(points[1].label, "Creature_40");
    EXPECT_NEAR(points[0].y, picture.panels[0].place.top(), 10); // 900 % is far beyond the reach
    EXPECT_LE(picture.reach, 100);

    const auto some = LayOutDeviations(survey, 160, 200, std::vector<std::size_t>{3, 42, 1000}, 3);
    ASSERT_EQ(some.panels.size(), 1U);
    EXPECT_EQ(some.panels[0].points.size(), 1U);
    EXPECT_TRUE(some.panels[0].points[0].current);
    EXPECT_EQ(some.panels[0].count, 60U); // those behind the scale are still all
    EXPECT_TRUE(LayOutDeviations(survey, 160, 200, std::vector<std::size_t>{}, 3).panels.empty());
}

} // namespace

} // namespace Hesperin
