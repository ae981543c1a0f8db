// The reference designators of a multi-bit symbol, one for each bit.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/names/multi_property.h"

#include <string_view>

class BexDatarc;

namespace bexa::detail {
struct BitRange;
struct Delimiters;
} // namespace bexa::detail

// As BexMultiProperty, and a packed text may have array notation: `U[1-3],R5` stands for `U1`, `U2`, `U3` and
// `R5`. The numbers stand in the references without brackets.
//
//     list   = piece, then any number of: bitEnd piece
//     piece  = plain | [ root ] busStart bits busEnd
//     bits   = item, then any number of: bitEnd item
//     item   = number | number rangeEnd number | number rangeEnd number rangeEnd step
//     number, step = 1 to 30 decimal digits; one too large is the largest int
//     plain, root  = any characters, or none, but bitEnd, busStart and busEnd
//
// An item counts from its first number to its last, downward if the first is larger; the last is reached only
// if the step hits it. Unlike in array names, `U[2-2]` is one reference, the root may be empty, and the step
// has `rangeEnd` in front of it. A step of 0 or without digits breaks the grammar, as does a text that stands
// for more than `maxReferences`.
class BEXA_API BexMultiReference : public BexMultiProperty {
public:
    static constexpr int maxReferences = 16777216;

    // No bits; the delimiters are "[", "]", "-" and ",". The error flag is set until a text was read.
    BexMultiReference() noexcept = default;
    // Empty values.
    BexMultiReference(int bits, const BexDatarc& rc);

    // Reads a packed text. One reference alone goes to all bits; otherwise the bits left over become empty,
    // and references left over extend the array. Null empties all values and sets the error flag. A text that
    // breaks the grammar sets the error flag and leaves the elements as far as they were read.
    BexMultiReference& operator=(const char* text);
    unsigned long isError() const noexcept { return isError_; }
    unsigned long notError() const noexcept { return !isError_; }

    // 1 if the text keeps the grammar and gives exactly these values, whatever the error flag. Null equals
    // values that are all empty. Kept on purpose: unlike in BexMultiProperty, one reference alone doesn't
    // match several equal ones.
    unsigned long operator==(const char* text) const;
    unsigned long operator!=(const char* text) const { return !(*this == text); }
    // 1 if the values and all delimiters are equal and the left object has no error.
    unsigned long operator==(const BexMultiReference& other) const;
    unsigned long operator!=(const BexMultiReference& other) const { return !(*this == other); }

    // Takes the delimiters and the number of bits, and sets the error flag. The array grows where needed;
    // values stay.
    void reset(int bits, const BexDatarc& rc);

    // The reference that a packed text gives to one bit; empty for null, for a bit that the text doesn't
    // reach, and for a breach of the grammar up to the item of the bit. Kept on purpose: a text of one
    // reference gives every other bit the whole text as it stands, so of `U[1]` bit 0 is `U1` and bit 1 is
    // `U[1]`.
    static YString getOne(const char* text, int bit, const BexDatarc& rc);
    static void getOne(const char* text, int bit, const BexDatarc& rc, YString& out);

private:
    bexa::detail::Delimiters delimiters() const;
    bool readReferences(std::string_view text, int& count);
    void store(int index, std::string_view root, const bexa::detail::BitRange& numbers);

    char busStart_ = '[';
    char busEnd_ = ']';
    char rangeEnd_ = '-';
    unsigned long isError_ = 1;
};
