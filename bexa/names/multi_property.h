// The property text of a multi-bit symbol, one value for each bit.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

#include <string_view>

class BexDatarc;

// The values as elements of an array, and the packed text that holds them all: values with the `bitEnd` of
// the circuit resource between them, where one value alone stands for all bits.
//
// The array may have more elements than there are bits; the operations of this class look at the bits alone.
// An element that was taken away counts as empty.
class BEXA_API BexMultiProperty : public YString_Array {
public:
    // No bits, and "," as the separator.
    BexMultiProperty() noexcept = default;
    // Empty values.
    BexMultiProperty(int bits, const BexDatarc& rc);

    // Reads a packed text; without bits nothing happens:
    // - a single bit takes the whole text, separators included;
    // - null empties all values;
    // - a text without a separator is the value of every bit;
    // - otherwise the pieces go to the bits in order: those left over are ignored, missing ones empty.
    BexMultiProperty& operator=(const char* text);

    // 1 if the text, read in this way, gives these values, and if it has as many pieces as there are bits,
    // unless it is without a separator. Kept on purpose: a value that begins with its piece matches it,
    // except for the last one. 0 without bits.
    unsigned long operator==(const char* text) const;
    unsigned long operator!=(const char* text) const { return !(*this == text); }
    // 1 if separators, numbers of bits and values are equal.
    unsigned long operator==(const BexMultiProperty& other) const;
    unsigned long operator!=(const BexMultiProperty& other) const { return !(*this == other); }

    // The value of a bit, null if there is no such bit. Valid until the array changes.
    const char* value(int bit) const noexcept;
    // Replaces the value of a bit, null by an empty one. Ignored if there is no such bit.
    void value(int bit, const char* text);

    // The values joined by the separator; pack() gives the first one alone if all are equal, and an empty
    // text for an array without elements. The output may be an element.
    YString pack() const;
    void pack(YString& out) const { out = pack(); }
    YString expand() const;
    void expand(YString& out) const { out = expand(); }

    // Takes the separator and the number of bits. The array grows where needed; values stay.
    void reset(int bits, const BexDatarc& rc);
    int bitCount() const noexcept { return bitCount_; }
    // Ignored unless above 0. The array grows where needed and never shrinks.
    void bitCount(int bits);

    // The value that a packed text gives to one bit; empty for null and for a bit beyond its pieces. A text
    // without a separator is the value of every bit, whatever its number.
    static YString getOne(const char* text, int bit, const BexDatarc& rc);
    static void getOne(const char* text, int bit, const BexDatarc& rc, YString& out);

protected:
    char separator() const noexcept { return separator_; }
    // The value of an element, empty where there is none.
    std::string_view element(int index) const noexcept;
    bool isEveryValue(std::string_view text) const noexcept;
    void setValues(int begin, std::string_view text);

private:
    bool equalsPieces(std::string_view text) const;

    char separator_ = ',';
    int bitCount_ = 0;
};
