#pragma once

#include "bexa/export.h"

// A point with whole-number coordinates.
class BEXA_API YintPoint {
public:
    YintPoint() noexcept = default;
    YintPoint(int x, int y) noexcept : x_(x), y_(y) {}

    int x() const noexcept { return x_; }
    int y() const noexcept { return y_; }

    friend bool operator==(const YintPoint&, const YintPoint&) noexcept = default;

private:
    int x_ = 0;
    int y_ = 0;
};

// True if the points coincide.
BEXA_API unsigned long YgeoEq(const YintPoint& a, const YintPoint& b);
