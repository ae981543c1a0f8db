#include "bexa/names/bit_list.h"

#include "bexa/names/delimiters.h"

#include <cstdlib>

namespace bexa::detail {

namespace {

// No text holds a NUL, so a number with this delimiter reaches to the end of its item.
constexpr char noDelimiter = '\0';

// Takes the item up to `delimiter` or its end, and the delimiter. -1 if there is no number in front of it;
// the item must not be at its end.
int takeNumber(TextCursor& item, char delimiter, const Delimiters& delimiters) {
    if (item.peek() == delimiters.rangeEnd || item.peek() == delimiters.rangeStep) return -1;
    // The delimiter may be a digit, so it is looked for first.
    TextCursor digits(item.takeUntil(delimiter));
    const auto number = digits.takeNumber();
    if (!number || !digits.atEnd()) return -1;
    item.take(delimiter);
    return *number;
}

bool readItem(std::string_view item, const Delimiters& delimiters, BitRange& range) {
    if (!item.empty()) return bitStrToBitNo(item, delimiters, range);
    range = BitRange();
    return true;
}

} // namespace

// Neither number is negative, so their distance is an int.
long long BitRange::count() const {
    return first == last ? 1 : std::abs(last - first) / step + 1LL;
}

// Kept on purpose: a number with a delimiter and nothing behind it reads as if the delimiter were absent,
// `3-` as the bit 3 and `1-3-` as the range 1 to 3.
bool bitStrToBitNo(std::string_view text, const Delimiters& delimiters, BitRange& range) {
    TextCursor item(text);
    range.first = range.last = takeNumber(item, delimiters.rangeEnd, delimiters);
    range.step = 1;
    if (range.first < 0 || item.atEnd()) return range.first >= 0;
    range.last = takeNumber(item, delimiters.rangeStep, delimiters);
    if (range.last < 0 || range.last == range.first) return false;
    if (item.atEnd()) return true;
    range.step = takeNumber(item, noDelimiter, delimiters);
    return range.step > 0;
}

void BitList::read(std::string_view text, const Delimiters& delimiters) {
    delimiters_ = &delimiters;
    behindFirst_ = TextCursor(text);
    firstIsGood_ = readItem(behindFirst_.takeUntil(delimiters.bitEnd), delimiters, first_);
}

bool BitList::takeItem(TextCursor& rest, BitRange& range) const {
    rest.take(delimiters_->bitEnd);
    return readItem(rest.takeUntil(delimiters_->bitEnd), *delimiters_, range);
}

int BitList::countSignals(int limit) const {
    if (!firstIsGood_) return -1;
    long long count = first_.count();
    BitRange range;
    for (TextCursor rest = behindFirst_; !rest.atEnd() && count <= limit; count += range.count()) {
        if (!takeItem(rest, range)) return -1;
    }
    return count <= limit ? static_cast<int>(count) : -1;
}

} // namespace bexa::detail
