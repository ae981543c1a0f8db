#include "bexa/design/angle_snap.h"

#include "bexa/foundation/ygeometry/ygeo_line.h"

#include <climits>
#include <cmath>

namespace {

constexpr double degreesPerRadian = 57.29577951308232;
constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double leastStep = 0.001;

double directionInDegrees(const YintPoint& from, const YintPoint& to) {
    // The distance of two coordinates may be more than an int holds.
    const double dx = static_cast<double>(to.x()) - from.x();
    const double dy = static_cast<double>(to.y()) - from.y();
    return std::atan2(dy, dx) * degreesPerRadian;
}

double nearestMultiple(double degrees, double step) {
    double multiple = std::floor(degrees / step);
    if (degrees - multiple * step >= step / 2) ++multiple;
    return multiple * step;
}

YgeoLine horizontalLine(const YintPoint& from) {
    // The same line, whichever side its second point lies on.
    const int along = from.x() > INT_MAX - 1000 ? -1000 : 1000;
    return {from, YintPoint(from.x() + along, from.y())};
}

} // namespace

YintPoint BexAdjustAngle(const YintPoint& from, const YintPoint& to, double stepDegrees) {
    if (!(stepDegrees >= leastStep) || YgeoEq(from, to)) return to;
    const double degrees = nearestMultiple(directionInDegrees(from, to), stepDegrees);
    YgeoLine line = horizontalLine(from);
    line.rotate(Yangle(degrees * radiansPerDegree), from);
    return YgeoLineCoef(line).plumbPoint(to);
}

YintPoint BexAdjustAngle(const YintPoint& from, const YintPoint& to, Yangle step) {
    return BexAdjustAngle(from, to, step.radian() * degreesPerRadian);
}
