#include "bexa/design/canvas.h"

BexCanvas::~BexCanvas() = default;
BexCdb::~BexCdb() = default;
