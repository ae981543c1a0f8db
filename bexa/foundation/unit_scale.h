// Lengths and angles of resource files as the units that programs compute with. Internal.
#pragma once

#include <limits>

namespace bexa::detail {

inline constexpr double radiansPerDegree = 0.017453292519943295;

// Cuts the fraction off. What no long holds becomes the nearest one, NaN becomes 0.
inline long wholeOf(double value) {
    constexpr double end = -static_cast<double>(std::numeric_limits<long>::min());
    if (value >= end) return std::numeric_limits<long>::max();
    if (value < -end) return std::numeric_limits<long>::min();
    return value == value ? static_cast<long>(value) : 0;
}

// A length in whole units, of which `factor` make 1.0. Rounds half away from zero.
inline long wholeUnits(double length, double factor) {
    const double scaled = length * factor;
    return wholeOf(length >= 0.0 ? scaled + 0.5 : scaled - 0.5);
}

// 0.0 when the factor is 0.
inline double lengthOf(long units, double factor) {
    return factor != 0.0 ? static_cast<double>(units) / factor : 0.0;
}

} // namespace bexa::detail
