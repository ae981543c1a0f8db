#pragma once

#include "bexa/foundation/ygeometry/yangle.h"

#include <cmath>

namespace tool {

// An angle in degrees. What a sum in radians has lost in its last digits is not shown.
inline double degreesOf(const Yangle& angle) {
    return std::round(angle.degree() * 1e6) / 1e6;
}

} // namespace tool
