// Restricts a rubber-band line to a fixed set of directions.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeometry/yangle.h"
#include "bexa/foundation/ygeometry/yint_point.h"

// The point closest to `to` on the line through `from` in the direction nearest to that of `to`, of the
// directions that are multiples of the step. Half a step rounds up, counter-clockwise where y points up. A
// step below 0.001 degrees, or not a number, and points that coincide give `to`.
BEXA_API YintPoint BexAdjustAngle(const YintPoint& from, const YintPoint& to, double stepDegrees);
BEXA_API YintPoint BexAdjustAngle(const YintPoint& from, const YintPoint& to, Yangle step);
