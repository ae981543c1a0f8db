#include "bexa/foundation/ygeometry/ygeo_line.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int toCoordinate(double value) {
    // A point that lies on a half but for the error of the arithmetic must not be rounded to either side by
    // it.
    constexpr double tolerance = 1e-6;
    const double rounded = std::trunc(value + std::copysign(0.5 + tolerance, value));
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(rounded, least, most));
}

YintPoint toPoint(const YgeoElmVector& end) {
    return {toCoordinate(end.x()), toCoordinate(end.y())};
}

YgeoElmVector between(const YgeoElmVector& from, const YgeoElmVector& to) {
    return {to.x() - from.x(), to.y() - from.y()};
}

YgeoElmVector ofLengthOne(const YgeoElmVector& vector) {
    const double length = vector.length();
    return length == 0 ? vector : YgeoElmVector(vector.x() / length, vector.y() / length);
}

YgeoElmVector turned(const YgeoElmVector& end, double cosine, double sine, const YgeoElmVector& centre) {
    const YgeoElmVector arm = between(centre, end);
    return {centre.x() + arm.x() * cosine - arm.y() * sine, centre.y() + arm.x() * sine + arm.y() * cosine};
}

} // namespace

double YgeoElmVector::length() const noexcept {
    return std::hypot(x_, y_);
}

YgeoLine::YgeoLine(const YintPoint& from, const YintPoint& to) noexcept : from_(from), to_(to) {}

YgeoLine::~YgeoLine() = default;

unsigned long YgeoLine::rotate(Yangle angle, const YintPoint& centre) {
    if (!std::isfinite(angle.radian())) return 0;
    const double cosine = std::cos(angle.radian());
    const double sine = std::sin(angle.radian());
    from_ = turned(from_, cosine, sine, YgeoElmVector(centre));
    to_ = turned(to_, cosine, sine, YgeoElmVector(centre));
    return 1;
}

YintPoint YgeoLine::from() const noexcept {
    return toPoint(from_);
}

YintPoint YgeoLine::to() const noexcept {
    return toPoint(to_);
}

YgeoLineCoef::YgeoLineCoef(const YgeoLine& line) noexcept
    : origin_(line.from_),
      direction_(ofLengthOne(between(line.from_, line.to_))) {}

YintPoint YgeoLineCoef::plumbPoint(const YintPoint& point) const noexcept {
    const YgeoElmVector arm = between(origin_, YgeoElmVector(point));
    const double along = arm.x() * direction_.x() + arm.y() * direction_.y();
    return toPoint({origin_.x() + along * direction_.x(), origin_.y() + along * direction_.y()});
}
