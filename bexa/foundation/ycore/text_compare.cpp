#include "bexa/foundation/ycore/text_compare.h"

#include <cstddef>
#include <limits>

namespace {

constexpr int lowerCase(char c) {
    const int value = static_cast<unsigned char>(c);
    return value >= 'A' && value <= 'Z' ? value - 'A' + 'a' : value;
}

int compare(const char* a, const char* b, std::size_t size) {
    if (!a) a = "";
    if (!b) b = "";
    for (std::size_t i = 0; i < size; ++i) {
        const int difference = lowerCase(a[i]) - lowerCase(b[i]);
        if (difference != 0 || a[i] == '\0') return difference;
    }
    return 0;
}

} // namespace

int Ystricmp(const char* a, const char* b) {
    return compare(a, b, std::numeric_limits<std::size_t>::max());
}

int Ystrnicmp(const char* a, const char* b, unsigned size) {
    return compare(a, b, size);
}
