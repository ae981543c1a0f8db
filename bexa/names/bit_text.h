// A text with one value for each bit of a bus.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

#include <string_view>

// A list of items with a separator between them, "," unless another is given. One item alone stands for all
// bits.
//
// Between quotes the separator is an ordinary character; the quotes stay in the item. Kept on purpose:
// blanks and tabs count for nothing, inside quotes either. A backslash makes the byte behind it an
// ordinary one and goes. A byte above 127 stays together with the byte behind it, whatever that is.
class BEXA_API BexBitStr {
public:
    // Empty items, one for each bit. A negative number of bits counts as 0.
    explicit BexBitStr(int bits);
    BexBitStr(int bits, char separator);
    // As strSet().
    BexBitStr(int bits, const char* text);
    BexBitStr(int bits, char separator, const char* text);
    // As many bits as the text has items.
    BexBitStr(const char* text, char separator);

    // Reads the items; those beyond the number of bits are ignored. If there are fewer, one item alone is
    // repeated for all bits, and of several the missing ones are empty. Of 0 bits all items are kept. Kept on
    // purpose: a null or empty text leaves no items at all, and the number of bits as it is.
    void strSet(const char* text);
    // Replaces one item, null by an empty one. Ignored for a bit that there isn't.
    void set(int bit, const char* text);

    // All items joined by the separator, without quoting; one that there isn't counts as empty.
    YString string() const;
    // The item of a bit, without any check: there must be such an item. Valid until strSet() or set().
    YString& operator[](int bit) const noexcept { return items_.at(bit); }
    unsigned int bitCount() const noexcept { return static_cast<unsigned int>(bitCount_); }

private:
    void readItems(std::string_view text);
    void fillUp();

    char separator_ = ',';
    YString_Array items_;
    int bitCount_ = 0;
};
