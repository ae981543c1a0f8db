// Comparison of texts without regard to the case of the letters A to Z. Bytes beyond ASCII compare as they
// are.
#pragma once

#include "bexa/export.h"

// Below, equal to or above 0 as `a` sorts before, with or behind `b`. Null counts as an empty text.
BEXA_API int Ystricmp(const char* a, const char* b);
// The same over `size` bytes at most; nothing is read behind a terminator.
BEXA_API int Ystrnicmp(const char* a, const char* b, unsigned size);
