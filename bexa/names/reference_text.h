// The packed text of the references of a multi-bit symbol, taken apart item by item.
#pragma once

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/bit_list.h"
#include "bexa/names/delimiters.h"

#include <string_view>

namespace bexa::detail {

// list   = piece, then any number of: bitEnd piece
// piece  = plain | [ root ] busStart bits busEnd
// bits   = item, then any number of: bitEnd item
// item   = number | number rangeEnd number | number rangeEnd number rangeEnd number
// number = 1 to 30 decimal digits; one too large is the largest int
// plain, root = any characters, or none, but bitEnd, busStart and busEnd
//
// The third number of an item is the step, which must not be 0. The first and the last may be equal. The text
// must outlive the walk.
//
//     ReferenceWalk walk(text, delimiters);
//     while (walk.next()) use(walk.root(), walk.numbers());
//     if (walk.isMalformed()) refuse();
class ReferenceWalk {
public:
    // The references that one text may stand for. A text of a few characters could ask for more than any
    // memory holds.
    static constexpr int maxReferences = 16777216;

    ReferenceWalk(std::string_view text, const Delimiters& delimiters) : d_(delimiters), text_(text) {}

    // Goes to the first or the next plain piece or item; false at the end of the list and at a breach of the
    // grammar. The brackets of a piece are looked at ahead of its items.
    bool next();

    // The whole of a plain piece, which has no numbers, or what stands in front of each number of an item.
    std::string_view root() const { return root_; }
    const BitRange& numbers() const { return numbers_; }
    // The number of references up to and with this item.
    long long count() const { return count_; }
    bool isMalformed() const { return isMalformed_; }

private:
    bool takePiece();
    bool takeItem();
    bool takeNumber(TextCursor& item, int& number) const;

    Delimiters d_;
    TextCursor text_;
    TextCursor bits_{std::string_view()};
    std::string_view root_;
    BitRange numbers_;
    long long count_ = 0;
    bool inBits_ = false; // items of the piece are left
    bool atEnd_ = false;  // no piece is left
    bool isMalformed_ = false;
};

} // namespace bexa::detail
