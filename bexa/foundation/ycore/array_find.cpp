#include "bexa/foundation/ycore/array_find.h"

#include <cstddef>

int YArrayBinFind(const void* key, const void* base, unsigned count, unsigned size,
                  int (*compare)(const void*, const void*), unsigned long mode) {
    if (!base) return 0;
    unsigned low = 0;
    unsigned high = count;
    while (low < high) {
        const unsigned middle = low + (high - low) / 2;
        const void* element = static_cast<const char*>(base) + std::size_t{middle} * size;
        const int order = compare(key, element);
        if (order == 0 && mode != YArrayFindAny) return -1;
        if (order < 0) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return static_cast<int>(low);
}
