// The properties that the suite itself defines, and what their values may hold.
#pragma once

#include "bexa/foundation/vocabulary.h"

#include <span>
#include <string_view>

namespace bexa::detail {

// Decides how blanks are taken out of a value: everywhere, or at its end.
enum class PropertyOrigin { BaseSystem, Other };

struct PropertyCode {
    std::string_view name;
    BexObjectType type;
    PropertyOrigin origin;
    bool refusesDoubleByte;
    bool refusesDelimiter; // not the whole rule, see delimiterIsChecked in property_codes.cpp
    std::string_view refused;
};

// In the order in which they are searched.
std::span<const PropertyCode> propertyCodes();

} // namespace bexa::detail
