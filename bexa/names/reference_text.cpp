#include "bexa/names/reference_text.h"

namespace bexa::detail {

bool ReferenceWalk::next() {
    if (isMalformed_ || (!inBits_ && atEnd_)) return false;
    isMalformed_ = (!inBits_ && !takePiece()) || (inBits_ && !takeItem());
    if (isMalformed_) return false;
    count_ += numbers_.count();
    isMalformed_ = count_ > maxReferences;
    return !isMalformed_;
}

// Takes a piece with the `bitEnd` behind it.
bool ReferenceWalk::takePiece() {
    const auto isOrdinary = [this](char c) { return c != d_.busStart && c != d_.busEnd; };
    numbers_ = BitRange();
    root_ = text_.takeWhile([&](char c) { return isOrdinary(c) && c != d_.bitEnd; });
    inBits_ = text_.take(d_.busStart);
    if (inBits_) {
        bits_ = TextCursor(text_.takeWhile(isOrdinary));
        // Where both brackets are one and the same, the second is an opening one.
        if (d_.busEnd == d_.busStart || !text_.take(d_.busEnd)) return false;
    }
    atEnd_ = text_.atEnd();
    return atEnd_ || text_.take(d_.bitEnd);
}

bool ReferenceWalk::takeItem() {
    TextCursor item(bits_.takeUntil(d_.bitEnd));
    inBits_ = bits_.take(d_.bitEnd);
    if (!takeNumber(item, numbers_.first)) return false;
    numbers_.last = numbers_.first;
    numbers_.step = 1;
    if (!item.take(d_.rangeEnd)) return item.atEnd();
    if (!takeNumber(item, numbers_.last)) return false;
    if (!item.take(d_.rangeEnd)) return item.atEnd();
    return takeNumber(item, numbers_.step) && item.atEnd() && numbers_.step > 0;
}

bool ReferenceWalk::takeNumber(TextCursor& item, int& number) const {
    constexpr std::size_t mostDigits = 30;
    // The delimiter may be a digit, so it is looked for first.
    TextCursor digits(item.takeUntil(d_.rangeEnd));
    const std::size_t count = digits.rest().size();
    const auto value = digits.takeNumber();
    if (!value || !digits.atEnd() || count > mostDigits) return false;
    number = *value;
    return true;
}

} // namespace bexa::detail
