#include "bexa/foundation/ygeometry/ygeo_figure.h"

YgeoFigure::~YgeoFigure() = default;
