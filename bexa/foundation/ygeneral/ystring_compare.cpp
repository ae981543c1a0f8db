#include "bexa/foundation/ygeneral/ystring_compare.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <algorithm>
#include <optional>
#include <string_view>

using bexa::detail::isDigit;
using bexa::detail::viewOf;

namespace {

// Takes the digits off the front of a text.
std::string_view takeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

std::string_view withoutLeadingZeros(std::string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

std::string_view withoutTrailingZeros(std::string_view digits) {
    return digits.substr(0, digits.find_last_not_of('0') + 1);
}

int sign(long long value) {
    return value < 0 ? -1 : value > 0;
}

int compareSizes(std::size_t a, std::size_t b) {
    return a < b ? -1 : a > b;
}

// Two whole numbers without leading zeros.
int compareWholes(std::string_view a, std::string_view b) {
    return a.size() != b.size() ? compareSizes(a.size(), b.size()) : sign(a.compare(b));
}

// number = [ "+" | "-" ] digits [ "." digits ]
struct Decimal {
    bool negative;
    std::string_view whole;    // without leading zeros
    std::string_view fraction; // without trailing zeros

    bool isZero() const { return whole.empty() && fraction.empty(); }
};

std::optional<Decimal> decimalOf(std::string_view text) {
    const bool hasSign = text.starts_with('+') || text.starts_with('-');
    const bool negative = text.starts_with('-');
    if (hasSign) text.remove_prefix(1);
    const std::string_view whole = takeDigits(text);
    if (whole.empty()) return std::nullopt;
    std::string_view fraction;
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        fraction = takeDigits(text);
        if (fraction.empty()) return std::nullopt;
    }
    if (!text.empty()) return std::nullopt;
    return Decimal{negative, withoutLeadingZeros(whole), withoutTrailingZeros(fraction)};
}

int compareDecimals(const Decimal& a, const Decimal& b) {
    // A zero has no sign.
    const bool aBelowZero = a.negative && !a.isZero();
    const bool bBelowZero = b.negative && !b.isZero();
    if (aBelowZero != bBelowZero) return aBelowZero ? -1 : 1;
    int order = compareWholes(a.whole, b.whole);
    if (order == 0) order = sign(a.fraction.compare(b.fraction));
    return aBelowZero ? -order : order;
}

int compareNames(std::string_view a, std::string_view b) {
    int zeros = 0; // the order by leading zeros, where they differ first
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const std::string_view aDigits = takeDigits(a);
            const std::string_view bDigits = takeDigits(b);
            const int order = compareWholes(withoutLeadingZeros(aDigits), withoutLeadingZeros(bDigits));
            if (order != 0) return order;
            // The values are equal, so the longer run has more zeros.
            if (zeros == 0) zeros = compareSizes(aDigits.size(), bDigits.size());
            continue;
        }
        const int order = static_cast<unsigned char>(a.front()) - static_cast<unsigned char>(b.front());
        if (order != 0) return sign(order);
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    if (a.empty() != b.empty()) return a.empty() ? -1 : 1;
    return zeros;
}

} // namespace

int YStringCmp::NameCmp(const char* a, const char* b) {
    return compareNames(viewOf(a), viewOf(b));
}

int YStringCmp::ArithCmp(const char* a, const char* b) {
    const auto aNumber = decimalOf(viewOf(a));
    const auto bNumber = decimalOf(viewOf(b));
    if (aNumber && bNumber) return compareDecimals(*aNumber, *bNumber);
    return NameCmp(a, b);
}

unsigned long YStringCmp::ArithDivide(const char* text, YString& head, YString& tail) {
    const std::string_view whole = viewOf(text);
    const auto digits = std::find_if_not(whole.rbegin(), whole.rend(), isDigit) - whole.rbegin();
    const std::size_t split = whole.size() - static_cast<std::size_t>(digits);
    // `text` may lie in either result, so both are taken before one changes.
    YString newHead(whole.substr(0, split));
    YString newTail(whole.substr(split));
    head = std::move(newHead);
    tail = std::move(newTail);
    return digits > 0;
}
