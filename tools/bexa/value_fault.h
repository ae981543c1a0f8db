#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

// The first fault of a text as a value: words that follow "the value", and the character that it is at, from 1.
struct ValueFault {
    const char* words;
    std::size_t character;
};

// Nothing for a good value. Whatever stands in front of a fault is ASCII, so bytes are characters.
std::optional<ValueFault> faultOf(const std::string& value);

} // namespace tool
