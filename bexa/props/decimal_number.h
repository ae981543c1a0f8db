// A numeric text taken apart into digits and an exponent of ten.
#pragma once

#include "bexa/foundation/ygeneral/ystring.h"

#include <optional>
#include <string_view>

namespace bexa::detail {

struct NumericFactor;

// A text cut at its factor.
struct ScaledNumber {
    std::string_view number;
    const NumericFactor* factor; // null for a text that has none, or has an exponent already

    // The number with an exponent in place of the factor.
    YString text() const;
};

// Nothing for a letter that begins no factor. What stands behind the factor is dropped; nothing but zeros and points
// in front of a letter is `0`, whatever the letter.
std::optional<ScaledNumber> cutAtFactor(std::string_view text);

// The number `digits` times ten to the exponent, exact at any length.
struct DecimalNumber {
    bool negative = false;
    YString digits; // neither begins nor ends with `0`; empty for zero
    // Where the exponent has too many digits for `exponent`, that is a number far outside every limit, with the right
    // sign, and the digits stand in `longExponent`.
    long long exponent = 0;
    YString longExponent;

    // Reads a number with or without a factor. Nothing for a character that no number has, and for a letter at the
    // end that no factor takes away. Signs and points in odd places are taken as they come: a `-` anywhere ahead of
    // the exponent makes the number negative, one behind its mark the exponent.
    static std::optional<DecimalNumber> of(std::string_view text);

    bool isZero() const { return digits.length() == 0; }
    // The normal form.
    YString text() const;
};

} // namespace bexa::detail
