#include "bexa/foundation/str_set.h"

#include "bexa/foundation/text_cursor.h"

#include <cstdint>
#include <cstdlib>

using bexa::detail::viewOf;

BexStrSet* BexStrSet::copy() const {
    return new BexStrSet(*this);
}

unsigned long BexStrSet::compare(const void* key, const void* held) const {
    return viewOf(static_cast<const char*>(key)) == viewOf(static_cast<const char*>(held));
}

unsigned long BexStrSet::hashValue(const void* key) const {
    constexpr std::uint32_t topBits = 0xF0000000;
    std::uint32_t hash = 0;
    for (const char c : viewOf(static_cast<const char*>(key))) {
        hash = (hash << 4) + static_cast<std::uint32_t>(static_cast<signed char>(c));
        const std::uint32_t top = hash & topBits;
        hash = (hash ^ top >> 24) & ~topBits;
    }
    return hash;
}

void BexStrSet::deleteIt(void* element) {
    std::free(element);
}
