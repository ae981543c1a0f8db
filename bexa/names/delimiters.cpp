#include "bexa/names/delimiters.h"

#include "bexa/circuitrc/datarc.h"

namespace bexa::detail {

Delimiters Delimiters::of(const BexDatarc& rc) {
    return {rc.busStartChar(), rc.busEndChar(), rc.rangeEndChar(), rc.bitEndChar(), rc.rangeStepChar()};
}

Brackets bracketsOf(std::string_view name, const Delimiters& delimiters) {
    const Delimiters d = delimiters;
    Brackets found;
    std::size_t starts = 0;
    std::size_t ends = 0;
    for (std::size_t place = 0; place < name.size(); ++place) {
        // Delimiters may be equal, so each is looked for.
        const char c = name[place];
        if (c == d.busStart) {
            found.start = place;
            ++starts;
        }
        if (c == d.busEnd) {
            found.end = place;
            ++ends;
        }
        if (c == d.bitEnd) found.separated = true;
    }
    found.repeated = starts > 1 || ends > 1;
    return found;
}

} // namespace bexa::detail
