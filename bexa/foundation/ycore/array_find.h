// The search for a place in a sorted array.
#pragma once

#include "bexa/export.h"

// What a sorted insertion does with a key that is there already.
enum YArrayFindMode : unsigned long {
    YArrayFindAny = 0,    // its place is behind the elements equal to it
    YArrayFindUnique = 1, // it has no place: -1. Every nonzero mode means this
};

// The index at which `key` is to be inserted into the `count` sorted elements of `size` bytes at `base`, or
// -1 when it has no place there. `compare` gets the key first and an element second. A null base counts as no
// elements.
BEXA_API int YArrayBinFind(const void* key, const void* base, unsigned count, unsigned size,
                           int (*compare)(const void*, const void*), unsigned long mode);
