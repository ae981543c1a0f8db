// The text between the brackets of an array name, read item by item.
#pragma once

#include "bexa/foundation/text_cursor.h"

#include <string_view>

namespace bexa::detail {

struct Delimiters;

// The bits that one item stands for: `first`, then a `step` on towards `last`, as long as `last` isn't
// passed.
struct BitRange {
    // An item of no characters stands for one signal without a name.
    bool isEmpty() const { return first < 0; }
    long long count() const;
    // Calls `visit` with each number, downward if `last` is below `first`. The range must not be empty.
    template <class Visit>
    void forEach(Visit visit) const {
        const long long stride = first > last ? -static_cast<long long>(step) : step;
        long long number = first;
        for (long long left = count(); left > 0; --left, number += stride) visit(static_cast<int>(number));
    }

    int first = -1;
    int last = -1;
    int step = -1;
};

// item   = nothing | number | number rangeEnd | number rangeEnd number [ rangeStep ]
//        | number rangeEnd number rangeStep number
// number = one or more decimal digits
//
// False if the item, which must not be empty, is malformed. Neither a range from a number to itself nor a
// step of 0 is accepted. Delimiters may be equal to each other and even be digits.
bool bitStrToBitNo(std::string_view item, const Delimiters& delimiters, BitRange& range);

// bit-list = item, then any number of: bitEnd item
//
// The first item is kept, since most lists have no other; those behind it are read again for each purpose.
class BitList {
public:
    // A list of one empty item.
    BitList() = default;
    BitList(std::string_view text, const Delimiters& delimiters) { read(text, delimiters); }
    void read(std::string_view text, const Delimiters& delimiters);

    // How many signals the list stands for, exactly. -1 if an item is malformed, or if they are more than
    // `limit`.
    int countSignals(int limit) const;

    // Calls `visit` with the range of each item, in order. No item may be malformed.
    template <class Visit>
    void forEach(Visit visit) const {
        visit(first_);
        BitRange range;
        for (TextCursor rest = behindFirst_; !rest.atEnd();) {
            takeItem(rest, range);
            visit(range);
        }
    }

private:
    // Takes a `bitEnd` and the item behind it; false if the item is malformed.
    bool takeItem(TextCursor& rest, BitRange& range) const;

    const Delimiters* delimiters_ = nullptr;
    TextCursor behindFirst_{std::string_view()}; // at the end, or in front of a `bitEnd`
    BitRange first_;
    bool firstIsGood_ = true;
};

} // namespace bexa::detail
