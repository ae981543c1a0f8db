#pragma once

#include "bexa/export.h"

// The version of the library that is linked, "major.minor.patch". The text lives as long as the program.
BEXA_API const char* BexVersion();
