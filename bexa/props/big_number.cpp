#include "bexa/props/big_number.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace bexa::detail {

namespace {

constexpr long long limbBase = 1000000000;
constexpr std::size_t limbDigits = 9;

long limbOf(std::string_view digits) {
    long limb = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), limb);
    return limb;
}

// The limb at `index`, 0 beyond the highest.
long long limbAt(const Ylong_Array& limbs, int index) {
    return index < limbs.size() ? limbs.at(index) : 0;
}

void appendLimb(YString& text, long limb, std::size_t width) {
    char digits[limbDigits + 1];
    const char* end = std::to_chars(digits, digits + sizeof digits, limb).ptr;
    const auto length = static_cast<std::size_t>(end - digits);
    constexpr std::string_view zeros = "000000000";
    if (length < width) text.concat(zeros.substr(0, width - length));
    text.concat(std::string_view(digits, length));
}

} // namespace

BexBigNumber::BexBigNumber(long long number) : positive_(number >= 0) {
    do {
        const long long limb = number % limbBase;
        limbs_.append(static_cast<long>(limb < 0 ? -limb : limb));
        number /= limbBase;
    } while (number != 0);
}

BexBigNumber::BexBigNumber(std::string_view text) {
    TextCursor cursor(text);
    positive_ = !cursor.take('-');
    if (positive_) cursor.take('+');
    std::string_view digits = cursor.rest();
    if (digits.empty() || !std::ranges::all_of(digits, isDigit)) return;
    limbs_.resize(static_cast<int>((digits.size() + limbDigits - 1) / limbDigits));
    for (int limb = 0; limb < limbs_.size(); ++limb) {
        const std::size_t length = std::min(digits.size(), limbDigits);
        limbs_.at(limb) = limbOf(digits.substr(digits.size() - length));
        digits.remove_suffix(length);
    }
    dropLeadingZeros();
}

BexBigNumber BexBigNumber::operator-() const {
    BexBigNumber negated(*this);
    negated.positive_ = !positive_;
    return negated;
}

BexBigNumber& BexBigNumber::operator+=(const BexBigNumber& other) {
    if (positive_ == other.positive_) {
        addDigits(other);
    } else if (compareDigits(other) >= 0) {
        subtractDigits(other);
    } else {
        BexBigNumber larger(other);
        larger.subtractDigits(*this);
        *this = larger;
    }
    if (isZero()) positive_ = true;
    return *this;
}

BexBigNumber& BexBigNumber::operator-=(const BexBigNumber& other) {
    return *this += -other;
}

BexBigNumber& BexBigNumber::operator*=(std::int32_t factor) {
    long long carry = 0;
    for (int i = 0; i < limbs_.size(); ++i) {
        const long long product = static_cast<long long>(limbs_.at(i)) * factor + carry;
        limbs_.at(i) = static_cast<long>(product % limbBase);
        carry = product / limbBase;
    }
    if (carry != 0) limbs_.append(static_cast<long>(carry));
    dropLeadingZeros();
    if (isZero()) positive_ = true;
    return *this;
}

const YString& BexBigNumber::text() {
    text_ = YString(limbs_.size() * static_cast<int>(limbDigits) + 1);
    if (!isValid()) return text_;
    if (!positive_) text_ << '-';
    const int top = limbs_.size() - 1;
    for (int i = top; i >= 0; --i) {
        appendLimb(text_, limbs_.at(i), i == top ? 0 : limbDigits);
    }
    return text_;
}

bool BexBigNumber::isZero() const {
    return limbs_.size() <= 1 && limbAt(limbs_, 0) == 0;
}

int BexBigNumber::compare(const BexBigNumber& other) const {
    if (isZero() && other.isZero()) return 0;
    if (positive_ != other.positive_) return positive_ ? 1 : -1;
    return positive_ ? compareDigits(other) : -compareDigits(other);
}

int BexBigNumber::compareDigits(const BexBigNumber& other) const {
    for (int i = std::max(limbs_.size(), other.limbs_.size()) - 1; i >= 0; --i) {
        const long long difference = limbAt(limbs_, i) - limbAt(other.limbs_, i);
        if (difference != 0) return difference < 0 ? -1 : 1;
    }
    return 0;
}

void BexBigNumber::addDigits(const BexBigNumber& other) {
    const int ownSize = limbs_.size();
    const int otherSize = other.limbs_.size();
    const int longer = std::max({ownSize, otherSize, 1});
    limbs_.resize(longer + 1); // one more takes the last carry
    long long carry = 0;
    for (int i = 0; i <= longer; ++i) {
        // What the array grew by may hold anything.
        const long long own = i < ownSize ? limbs_.at(i) : 0;
        const long long sum = own + (i < otherSize ? other.limbs_.at(i) : 0) + carry;
        limbs_.at(i) = static_cast<long>(sum % limbBase);
        carry = sum / limbBase;
    }
    dropLeadingZeros();
}

// The digits of `smaller` must not be worth more than these.
void BexBigNumber::subtractDigits(const BexBigNumber& smaller) {
    long long borrow = 0;
    for (int i = 0; i < limbs_.size(); ++i) {
        const long long difference = limbs_.at(i) - limbAt(smaller.limbs_, i) - borrow;
        borrow = difference < 0 ? 1 : 0;
        limbs_.at(i) = static_cast<long>(difference + borrow * limbBase);
    }
    dropLeadingZeros();
}

void BexBigNumber::dropLeadingZeros() {
    int size = limbs_.size();
    while (size > 1 && limbs_.at(size - 1) == 0) --size;
    limbs_.resize(size);
}

} // namespace bexa::detail
