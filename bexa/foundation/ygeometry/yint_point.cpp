#include "bexa/foundation/ygeometry/yint_point.h"

unsigned long YgeoEq(const YintPoint& a, const YintPoint& b) {
    return a == b;
}
