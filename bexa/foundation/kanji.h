// Japanese text in the coding of the process.
#pragma once

#include "bexa/export.h"

// True when `c` is the first byte of a double-byte character, by the system language and the locale of the process.
// Both are asked once, when the library is loaded; later changes of the environment don't count.
BEXA_API unsigned long BexIsKanjiUpper(unsigned char c);
