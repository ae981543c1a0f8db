#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeometry/yangle.h"
#include "bexa/foundation/ygeometry/yint_point.h"

// A figure that can be moved about.
class BEXA_API YgeoFigure {
public:
    virtual ~YgeoFigure();

    // Turns the figure about a point. True on success; false, with the figure unchanged, for an angle that is
    // not a finite number.
    virtual unsigned long rotate(Yangle angle, const YintPoint& centre) = 0;

protected:
    YgeoFigure() = default;
    YgeoFigure(const YgeoFigure&) = default;
    YgeoFigure& operator=(const YgeoFigure&) = default;
};
