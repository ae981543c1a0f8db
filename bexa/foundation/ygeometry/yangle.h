#pragma once

#include "bexa/export.h"

#include <numbers>

// An angle, counter-clockwise where y points up. It is kept as given, not brought into one turn.
class BEXA_API Yangle {
public:
    Yangle() noexcept = default;
    explicit Yangle(double radians) noexcept : radians_(radians) {}

    double radian() const noexcept { return radians_; }
    double degree() const noexcept { return radians_ * (180.0 / std::numbers::pi); }

private:
    double radians_ = 0.0;
};
