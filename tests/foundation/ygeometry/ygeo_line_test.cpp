#include "bexa/foundation/ygeometry/ygeo_line.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <ostream>

// For the messages of the test framework.
static void PrintTo(const YintPoint& point, std::ostream* out) {
    *out << '(' << point.x() << ',' << point.y() << ')';
}

namespace {

constexpr double pi = std::numbers::pi;

YintPoint footOn(const YintPoint& from, const YintPoint& to, const YintPoint& point) {
    return YgeoLineCoef(YgeoLine(from, to)).plumbPoint(point);
}

TEST(Geometry, PointsCoincideOnlyInBothCoordinates) {
    EXPECT_EQ(YgeoEq({1, 2}, {1, 2}), 1U);
    EXPECT_EQ(YgeoEq({1, 2}, {1, 3}), 0U);
    EXPECT_EQ(YgeoEq({0, 2}, {1, 2}), 0U);
    EXPECT_EQ(YgeoEq(YintPoint(), {0, 0}), 1U);
}

TEST(Geometry, AnglesAreRadiansInsideAndDegreesOnDemand) {
    EXPECT_DOUBLE_EQ(Yangle(pi / 2).degree(), 90.0);
    EXPECT_DOUBLE_EQ(Yangle(-3 * pi).degree(), -540.0);
    EXPECT_EQ(Yangle().degree(), 0.0);
    Yangle copy(1.25);
    copy = Yangle(copy);
    EXPECT_EQ(copy.radian(), 1.25);
}

TEST(Geometry, AVectorHasALength) {
    EXPECT_DOUBLE_EQ(YgeoElmVector(YintPoint(3, -4)).length(), 5.0);
}

TEST(Geometry, TheFootOfThePerpendicularLiesOnTheLine) {
    EXPECT_EQ(footOn({0, 0}, {1000, 0}, {100, 30}), YintPoint(100, 0));
    EXPECT_EQ(footOn({0, 0}, {0, 5}, {7, -3}), YintPoint(0, -3));
    EXPECT_EQ(footOn({10, 10}, {20, 20}, {0, 0}), YintPoint(0, 0));
    EXPECT_EQ(footOn({0, 0}, {3, 4}, {5, 0}), YintPoint(2, 2)); // 1.8 and 2.4
    EXPECT_EQ(footOn({0, 0}, {1, 2}, {-1, 3}), YintPoint(1, 2));
}

TEST(Geometry, ALineWithoutLengthIsItsPoint) {
    EXPECT_EQ(footOn({7, 8}, {7, 8}, {100, 100}), YintPoint(7, 8));
}

TEST(Geometry, HalvesAreRoundedAwayFromZero) {
    EXPECT_EQ(footOn({0, 0}, {1, 1}, {1, 0}), YintPoint(1, 1));
    EXPECT_EQ(footOn({0, 0}, {1, 1}, {-1, 0}), YintPoint(-1, -1));
}

TEST(Geometry, ATurnedLineKeepsItsDirection) {
    for (int degrees = -720; degrees <= 720; degrees += 15) {
        YgeoLine line({10, 20}, {1010, 20});
        ASSERT_EQ(line.rotate(Yangle(degrees * pi / 180), {10, 20}), 1U);
        // The far point lies a million times further out than the line's own end.
        const double x = std::cos(degrees * pi / 180) * 1e9;
        const double y = std::sin(degrees * pi / 180) * 1e9;
        const YintPoint far(10 + static_cast<int>(std::lround(x)), 20 + static_cast<int>(std::lround(y)));
        const YintPoint foot = YgeoLineCoef(line).plumbPoint(far);
        EXPECT_NEAR(foot.x(), far.x(), 1) << degrees;
        EXPECT_NEAR(foot.y(), far.y(), 1) << degrees;
    }
}

TEST(Geometry, TheFootOnADiagonalLiesOnTheDiagonal) {
    for (const double quarter : {1.0, 3.0, 5.0, 7.0}) {
        YgeoLine line({0, 0}, {1000, 0});
        line.rotate(Yangle(quarter * pi / 4), {0, 0});
        for (int x = -50; x <= 50; ++x) {
            const YintPoint foot = YgeoLineCoef(line).plumbPoint({x, 95});
            EXPECT_EQ(std::abs(foot.x()), std::abs(foot.y())) << quarter << ' ' << x;
        }
    }
}

TEST(Geometry, RotationIsAboutAnyPoint) {
    YgeoLine line({10, 0}, {20, 0});
    EXPECT_EQ(line.rotate(Yangle(pi / 2), {10, 10}), 1U);
    EXPECT_EQ(line.from(), YintPoint(20, 10));
    EXPECT_EQ(line.to(), YintPoint(20, 20));
}

TEST(Geometry, AnAngleThatIsNoNumberTurnsNothing) {
    YgeoLine line({10, 0}, {20, 0});
    EXPECT_EQ(line.rotate(Yangle(std::numeric_limits<double>::quiet_NaN()), {0, 0}), 0U);
    EXPECT_EQ(line.rotate(Yangle(std::numeric_limits<double>::infinity()), {0, 0}), 0U);
    EXPECT_EQ(line.from(), YintPoint(10, 0));
    EXPECT_EQ(line.to(), YintPoint(20, 0));
}

TEST(Geometry, CoordinatesBeyondTheRangeAreCutToIt) {
    YgeoLine line({INT_MAX, INT_MAX}, {INT_MIN, INT_MIN});
    line.rotate(Yangle(pi / 4), {0, 0});
    EXPECT_EQ(line.from(), YintPoint(0, INT_MAX));
    EXPECT_EQ(line.to(), YintPoint(0, INT_MIN));
    EXPECT_EQ(footOn({INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}),
              YintPoint(INT_MAX, INT_MAX));
}

TEST(Geometry, AFigureIsTurnedAndEndedThroughItsBase) {
    const std::unique_ptr<YgeoFigure> figure = std::make_unique<YgeoLine>(YintPoint(0, 0), YintPoint(1, 0));
    EXPECT_EQ(figure->rotate(Yangle(pi), {0, 0}), 1U);
}

} // namespace
