// The characters that give a name its structure, and where its brackets stand.
#pragma once

#include <cstddef>
#include <string_view>

class BexDatarc;

namespace bexa::detail {

// In the order in which they travel through all argument lists.
struct Delimiters {
    static Delimiters of(const BexDatarc& rc);

    // The first four are required. Without `rangeStep` no item can have a step.
    bool complete() const { return busStart && busEnd && rangeEnd && bitEnd; }

    char busStart = '\0';
    char busEnd = '\0';
    char rangeEnd = '\0';
    char bitEnd = '\0';
    char rangeStep = '\0';
};

// What one pass over a name tells about its brackets. A name is lost if one is repeated, whichever its
// place.
struct Brackets {
    static constexpr std::size_t none = std::string_view::npos;

    bool opened() const { return start != none; }
    bool closed() const { return end != none; }

    std::size_t start = none;
    std::size_t end = none;
    bool repeated = false;  // one of them occurs more than once
    bool separated = false; // a `bitEnd` occurs somewhere
};

Brackets bracketsOf(std::string_view name, const Delimiters& delimiters);

} // namespace bexa::detail
