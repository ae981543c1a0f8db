// Environment variables.
#pragma once

#include "bexa/export.h"

// The value of a variable, null if it isn't set or `name` is null or empty. The storage is the system's:
// never freed here, valid until the variable changes. Every value of `flag` means the same.
BEXA_API const char* ygetenv(const char* name, unsigned long flag);
