#include "bexa/names/counting_name.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/ystring_compare.h"
#include "bexa/names/array_text.h"
#include "bexa/names/bundle_parts.h"
#include "bexa/names/delimiters.h"

#include <algorithm>
#include <charconv>
#include <climits>

using bexa::detail::ArrayText;
using bexa::detail::BundleParts;
using bexa::detail::Delimiters;
using bexa::detail::isDigit;
using bexa::detail::TextCursor;
using bexa::detail::viewOf;

namespace {

// Without an object for any signal, since a text of a few characters can have millions.
bool isOneSignal(std::string_view text, const Delimiters& delimiters) {
    if (text.empty() || !delimiters.complete()) return false;
    BundleParts parts(text, delimiters);
    const ArrayText array(parts.next(), delimiters);
    // A second member would have a signal too, be it an empty one.
    if (!parts.atEnd() || !parts.isBalanced() || array.knownCount() > 1) return false;
    int count = 0;
    const auto result = array.forEachSignal([&count](std::string_view, int) { ++count; });
    return result == BexNetNameOk && count < 2;
}

// Never an array, which needs a root.
bool isBareBitPart(std::string_view text, const Delimiters& delimiters) {
    TextCursor rest(text);
    if (!rest.take(delimiters.busStart)) return false;
    const std::string_view behind = rest.rest();
    return !behind.empty() && behind.back() == delimiters.busEnd &&
           std::all_of(behind.begin(), behind.end() - 1, isDigit);
}

int sumOf(long long number, long long step) {
    return static_cast<int>(std::clamp<long long>(number + step, INT_MIN, INT_MAX));
}

} // namespace

unsigned long BexStep::init(const char* text, const BexDatarc& rc, int step) {
    return init(viewOf(text), Delimiters::of(rc), step);
}

unsigned long BexStep::init(const char* text, char busStart, char busEnd, char rangeEnd, char bitEnd,
                            char rangeStep, int step) {
    return init(viewOf(text), {busStart, busEnd, rangeEnd, bitEnd, rangeStep}, step);
}

unsigned long BexStep::init(std::string_view text, const Delimiters& delimiters, int step) {
    if (!isOneSignal(text, delimiters) && !isBareBitPart(text, delimiters)) return 0;
    step_ = step;
    orgStr_.assign(text);
    isValid_ = divide(delimiters.busStart, delimiters.busEnd);
    return isValid_;
}

bool BexStep::divide(char start, char end) {
    number_ = width_ = 0;
    start_ = end_ = '\0';
    YString tail;
    if (start && end && orgStr_.rindex(start) >= 0) {
        start_ = start;
        end_ = end;
        tail.assign(divideByBrackets(start, end));
    } else {
        YStringCmp::ArithDivide(orgStr_, headerPart_, tail);
    }
    if (tail.length() == 0) return false;
    // Kept on purpose: the width counts all characters, though the number ends at the first that is no digit.
    width_ = tail.length();
    number_ = TextCursor(tail.view()).takeNumber().value_or(0);
    return true;
}

std::string_view BexStep::divideByBrackets(char start, char end) {
    const std::string_view text = orgStr_.view();
    const std::size_t opening = text.rfind(start);
    const std::size_t closing = text.rfind(end);
    headerPart_.assign(text.substr(0, opening));
    // Both brackets may be one and the same.
    return closing > opening ? text.substr(opening + 1, closing - opening - 1) : std::string_view();
}

BexStep& BexStep::operator++() noexcept {
    if (isValid_) number_ = sumOf(number_, step_);
    return *this;
}

BexStep& BexStep::operator--() noexcept {
    const int less = sumOf(number_, -static_cast<long long>(step_));
    if (isValid_ && less >= 0) number_ = less;
    return *this;
}

unsigned long BexStep::now(YString& out) const {
    YString numericPart;
    const unsigned long result = nowNumericPart(numericPart);
    out.assign(result ? headerPart_.view() : std::string_view());
    out.concat(numericPart.view());
    return result;
}

unsigned long BexStep::nowNumericPart(YString& out) const {
    out.assign(std::string_view());
    if (!isValid_ || number_ < 0) return 0;
    appendNumericPart(out);
    return 1;
}

void BexStep::appendNumericPart(YString& out) const {
    char digits[16];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number_).ptr;
    const int count = static_cast<int>(end - digits);
    if (start_) out << start_;
    out.concat(YString('0', width_ - count).view());
    out.concat(std::string_view(digits, static_cast<std::size_t>(count)));
    if (end_) out << end_;
}
