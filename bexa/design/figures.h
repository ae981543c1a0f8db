// Arrays and stacks of figures.
#pragma once

#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeometry/ygeo_figure.h"

// Pointers; the figures belong to somebody else.
class BexFigureArray : public bexa::ArrayOf<YgeoFigure*, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexFigureStack : public bexa::StackOf<BexFigureArray> {
public:
    using StackOf::StackOf;
};
