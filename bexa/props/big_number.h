// Whole numbers of any length.
#pragma once

#include "bexa/foundation/ycore/integer_arrays.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <cstdint>
#include <string_view>

namespace bexa::detail {

// A signed whole number, exact at any length; every operation takes time in proportion to the length. A number
// made from a text that is none is not valid, and counts as 0 where it is used.
class BexBigNumber {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): numbers mix with whole numbers of the language
    BexBigNumber(long long number = 0);
    // text = [ "+" | "-" ] digit { digit }; any other text gives a number that is not valid.
    explicit BexBigNumber(std::string_view text);

    bool isValid() const { return limbs_.size() != 0; }

    // The same digits with the other sign, also those of 0: a negative zero is written "-0" and equals 0.
    BexBigNumber operator-() const;
    BexBigNumber& operator+=(const BexBigNumber& other);
    BexBigNumber& operator-=(const BexBigNumber& other);
    // `factor` lies between 0 and 2000000000.
    BexBigNumber& operator*=(std::int32_t factor);
    BexBigNumber& operator++() { return *this += 1; }
    BexBigNumber& operator--() { return *this -= 1; }

    friend BexBigNumber operator+(BexBigNumber a, const BexBigNumber& b) { return a += b; }
    friend BexBigNumber operator-(BexBigNumber a, const BexBigNumber& b) { return a -= b; }

    friend bool operator==(const BexBigNumber& a, const BexBigNumber& b) { return a.compare(b) == 0; }
    friend bool operator<(const BexBigNumber& a, const BexBigNumber& b) { return a.compare(b) < 0; }
    friend bool operator<=(const BexBigNumber& a, const BexBigNumber& b) { return a.compare(b) <= 0; }
    friend bool operator>(const BexBigNumber& a, const BexBigNumber& b) { return a.compare(b) > 0; }

    // The decimal digits, behind a "-" if negative; empty for a number that is not valid. Stays until the next
    // call.
    const YString& text();

private:
    bool isZero() const;
    int compare(const BexBigNumber& other) const;
    int compareDigits(const BexBigNumber& other) const;
    void addDigits(const BexBigNumber& other);
    void subtractDigits(const BexBigNumber& smaller);
    void dropLeadingZeros();

    Ylong_Array
        limbs_; // groups of nine digits, the lowest first; the highest is 0 only where it is the only one
    YString text_;
    bool positive_ = true;
};

} // namespace bexa::detail
