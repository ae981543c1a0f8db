#include "bexa/design/angle_snap.h"

#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <ostream>

namespace {

struct Row {
    double step;
    YintPoint from;
    YintPoint to;
    YintPoint result;
};

void expectSnap(const Row& row) {
    const YintPoint result = BexAdjustAngle(row.from, row.to, row.step);
    SCOPED_TRACE(testing::Message() << row.step << " degrees, to " << row.to.x() << "," << row.to.y()
                                    << " gives " << result.x() << "," << result.y());
    EXPECT_TRUE(YgeoEq(result, row.result));
}

TEST(AngleSnap, GoesToTheNearestDirection) {
    const Row rows[] = {
        {90, {0, 0}, {100, 30}, {100, 0}},
        {90, {0, 0}, {30, 100}, {0, 100}},
        {90, {0, 0}, {-100, 30}, {-100, 0}},
        {90, {0, 0}, {30, -100}, {0, -100}},
        {90, {0, 0}, {-100, -30}, {-100, 0}},
        {90, {0, 0}, {100, -30}, {100, 0}},
        {90, {10, 20}, {110, 50}, {110, 20}}, // through the point it starts from
        {90, {0, 0}, {0, 70}, {0, 70}},
        {90, {0, 0}, {0, -70}, {0, -70}},
        {90, {0, 0}, {-70, 0}, {-70, 0}},
        {45, {0, 0}, {100, 100}, {100, 100}},
        {45, {0, 0}, {100, 95}, {98, 98}}, // the foot on the diagonal, rounded
        {45, {0, 0}, {-100, 96}, {-98, 98}},
        {45, {0, 0}, {-100, -100}, {-100, -100}},
        {45, {0, 0}, {100, -96}, {98, -98}},
        {45, {0, 0}, {100, 10}, {100, 0}},
        {45, {0, 0}, {100, -10}, {100, 0}},
        {30, {0, 0}, {1000, 577}, {1000, 577}},
        {360, {0, 0}, {50, 100}, {50, 0}},
        {360, {0, 0}, {-50, 1}, {-50, 0}}, // the line has both directions
    };
    for (const Row& row : rows) expectSnap(row);
}

TEST(AngleSnap, RoundsHalfAStepUp) {
    expectSnap({90, {0, 0}, {100, 100}, {0, 100}});    // 45 to 90
    expectSnap({90, {0, 0}, {100, -100}, {100, 0}});   // -45 to 0
    expectSnap({90, {0, 0}, {-100, 100}, {-100, 0}});  // 135 to 180
    expectSnap({90, {0, 0}, {-100, -100}, {0, -100}}); // -135 to -90
}

TEST(AngleSnap, WithoutAStepChangesNothing) {
    const YintPoint to(100, 37);
    for (double step : {0.0, 0.0009, -45.0, std::numeric_limits<double>::quiet_NaN(),
                        -std::numeric_limits<double>::infinity()}) {
        expectSnap({step, {0, 0}, to, to});
    }
}

TEST(AngleSnap, OfPointsThatCoincideChangesNothing) {
    expectSnap({45, {7, 9}, {7, 9}, {7, 9}});
}

TEST(AngleSnap, OfTheSmallestStepStaysClose) {
    const YintPoint to(1000, 377);
    const YintPoint result = BexAdjustAngle(YintPoint(0, 0), to, 0.001);
    EXPECT_LE(std::abs(result.x() - to.x()), 1);
    EXPECT_LE(std::abs(result.y() - to.y()), 1);
}

TEST(AngleSnap, OfAnEndlessStepIsHorizontal) {
    const double endless = std::numeric_limits<double>::infinity();
    expectSnap({endless, {0, 0}, {30, 100}, {30, 0}});
    expectSnap({endless, {0, 0}, {30, -100}, {30, 0}});
}

TEST(AngleSnap, TakesRadiansToo) {
    const Yangle right(std::numbers::pi / 2);
    EXPECT_TRUE(YgeoEq(BexAdjustAngle(YintPoint(0, 0), YintPoint(100, 30), right), YintPoint(100, 0)));
    EXPECT_TRUE(YgeoEq(BexAdjustAngle(YintPoint(0, 0), YintPoint(100, 37), Yangle()), YintPoint(100, 37)));
    const Yangle half(std::numbers::pi / 4);
    EXPECT_TRUE(YgeoEq(BexAdjustAngle(YintPoint(0, 0), YintPoint(100, 95), half), YintPoint(98, 98)));
}

TEST(AngleSnap, WorksAtTheEndsOfTheCoordinates) {
    expectSnap({90, {INT_MAX, INT_MAX}, {INT_MIN, INT_MAX - 5}, {INT_MIN, INT_MAX}});
    expectSnap({90, {INT_MIN, INT_MIN}, {INT_MAX, INT_MIN + 5}, {INT_MAX, INT_MIN}});
    expectSnap({90, {INT_MAX, 0}, {INT_MAX, 100}, {INT_MAX, 100}});
}

} // namespace
