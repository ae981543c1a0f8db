// Straight lines and vectors.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeometry/ygeo_figure.h"

// A vector from the origin to a point.
class BEXA_API YgeoElmVector {
public:
    explicit YgeoElmVector(const YintPoint& end) noexcept : x_(end.x()), y_(end.y()) {}
    YgeoElmVector(double x, double y) noexcept : x_(x), y_(y) {}

    double x() const noexcept { return x_; }
    double y() const noexcept { return y_; }
    double length() const noexcept;

private:
    double x_;
    double y_;
};

// A line between two points. The ends keep their fractions inside, so a turned line loses nothing of its
// direction.
class BEXA_API YgeoLine : public YgeoFigure {
public:
    YgeoLine(const YintPoint& from, const YintPoint& to) noexcept;
    ~YgeoLine() override;

    unsigned long rotate(Yangle angle, const YintPoint& centre) override;

    // The ends, rounded as YgeoLineCoef::plumbPoint rounds.
    YintPoint from() const noexcept;
    YintPoint to() const noexcept;

private:
    friend class YgeoLineCoef;
    YgeoElmVector from_;
    YgeoElmVector to_;
};

// The endless line through a YgeoLine.
class BEXA_API YgeoLineCoef {
public:
    explicit YgeoLineCoef(const YgeoLine& line) noexcept;

    // The foot of the perpendicular from `point` on the line; for a line without length its only point.
    // Coordinates are rounded to the nearest whole number, a half away from zero. A fraction within a
    // millionth of a half counts as a half, so that the foot on a diagonal lies on the diagonal. What is too
    // large for an `int` is cut to the largest.
    YintPoint plumbPoint(const YintPoint& point) const noexcept;

private:
    YgeoElmVector origin_;
    YgeoElmVector direction_; // of length 1, or 0 for a line without length
};
