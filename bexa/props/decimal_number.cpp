#include "bexa/props/decimal_number.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/props/big_number.h"
#include "bexa/props/numeric_factors.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <utility>

namespace bexa::detail {

namespace {

constexpr auto none = std::string_view::npos;

constexpr bool isZeroOrPoint(char c) {
    return c == '0' || c == '.';
}

// Kept on purpose: what is no whole number, such as `1.5`, gives `0`.
YString milsInMetres(std::string_view number) {
    BexBigNumber value(number);
    if (!value.isValid()) return "0";
    YString result = (value *= 254).text();
    result.concat(mil.asExponent);
    return result;
}

// Gathers a text piece by piece, so that a short one is made in one step.
class Pieces {
public:
    void add(std::string_view piece) {
        if (piece.size() > sizeof buffer_ - used_) flush();
        if (piece.size() > sizeof buffer_) {
            text_.concat(piece);
        } else {
            used_ += piece.copy(buffer_ + used_, piece.size());
        }
    }
    void add(char c) {
        if (used_ == sizeof buffer_) flush();
        buffer_[used_++] = c;
    }
    void add(long long number) {
        char digits[24];
        const char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        add(std::string_view(digits, static_cast<std::size_t>(end - digits)));
    }
    // The digits among other characters.
    void addDigits(std::string_view text) {
        for (TextCursor cursor(text); !cursor.atEnd(); cursor.skip(1)) {
            add(cursor.takeWhile(isDigit));
        }
    }

    YString text() {
        flush();
        return std::move(text_);
    }

private:
    void flush() {
        const std::string_view gathered(buffer_, used_);
        if (text_.length() == 0) {
            text_.assign(gathered);
        } else {
            text_.concat(gathered);
        }
        used_ = 0;
    }

    char buffer_[64];
    std::size_t used_ = 0;
    YString text_;
};

// number = mantissa [ mark exponent ]    mark = "e" | "E"
// Both parts are digits with points and signs anywhere between them; further marks stand in the exponent.
class NumberReader {
public:
    explicit NumberReader(std::string_view text) : text_(text) {}

    std::optional<DecimalNumber> read() {
        at_ = 0;
        while (at_ < text_.size() && takeMantissa(text_[at_])) ++at_;
        exponentBegin_ = at_;
        if (at_ < text_.size() && !isMark(text_[at_])) return std::nullopt;
        while (at_ < text_.size() && takeExponent(text_[at_])) ++at_;
        if (at_ < text_.size()) return std::nullopt;
        return number();
    }

private:
    static constexpr int mostShortDigits = 17;
    static constexpr long long farAway = 1000000000000000000;

    static constexpr bool isMark(char c) { return c == 'e' || c == 'E'; }

    bool takeMantissa(char c) {
        if (c == '0') {
            // Zeros wait for a digit behind them; leading ones count for nothing.
            if (kept_ != 0 || pointSeen_) ++held_;
            return true;
        }
        if (isDigit(c)) {
            takeDigit();
            return true;
        }
        negative_ = negative_ || c == '-';
        return takePoint(c) || c == '-' || c == '+';
    }

    void takeDigit() {
        if (kept_ == 0) first_ = at_;
        if (kept_ == 0 && pointSeen_) {
            shift_ -= held_;
            held_ = 0;
        }
        kept_ += held_ + 1;
        if (pointSeen_) fraction_ += held_ + 1;
        held_ = 0;
        last_ = at_;
    }

    bool takePoint(char c) {
        if (c != '.') return false;
        pointSeen_ = true;
        shift_ = held_;
        return true;
    }

    bool takeExponent(char c) {
        if (isDigit(c)) {
            if (c != '0' || exponentDigits_ != 0) ++exponentDigits_;
            if (exponentDigits_ <= mostShortDigits) exponent_ = exponent_ * 10 + (c - '0');
            return true;
        }
        negativeExponent_ = negativeExponent_ || c == '-';
        return takePoint(c) || c == '-' || c == '+' || isMark(c);
    }

    DecimalNumber number() const {
        DecimalNumber result;
        if (kept_ == 0) return result;
        result.negative = negative_;
        Pieces digits;
        digits.addDigits(text_.substr(first_, last_ - first_ + 1));
        result.digits = digits.text();
        const long long shift = (pointSeen_ ? shift_ : held_) - fraction_;
        if (exponentDigits_ <= mostShortDigits) {
            result.exponent = (negativeExponent_ ? -exponent_ : exponent_) + shift;
        } else {
            result.exponent = negativeExponent_ ? -farAway : farAway;
            result.longExponent = longExponent(shift);
        }
        return result;
    }

    YString longExponent(long long shift) const {
        Pieces digits;
        if (negativeExponent_) digits.add('-');
        digits.addDigits(text_.substr(exponentBegin_));
        return (BexBigNumber(digits.text().view()) + shift).text();
    }

    std::string_view text_;
    std::size_t at_ = 0;
    bool negative_ = false;
    bool pointSeen_ = false;
    std::size_t first_ = 0; // the places of the first and the last digit that isn't 0
    std::size_t last_ = 0;
    long long kept_ = 0;     // the digits from the one to the other
    long long fraction_ = 0; // those of them behind the point
    long long held_ = 0;     // the zeros behind the last
    long long shift_ = 0;
    std::size_t exponentBegin_ = 0;
    bool negativeExponent_ = false;
    long long exponentDigits_ = 0;
    long long exponent_ = 0;
};

} // namespace

YString ScaledNumber::text() const {
    if (factor == &mil) return milsInMetres(number);
    YString result(number);
    if (factor) result.concat(factor->asExponent);
    return result;
}

std::optional<ScaledNumber> cutAtFactor(std::string_view text) {
    const auto letter = std::ranges::find_if(text, isLetter);
    const auto length = static_cast<std::size_t>(letter - text.begin());
    const std::string_view number = text.substr(0, length);
    const std::string_view rest = text.substr(length);
    // The `e` of "meg" is told by its `g`.
    const bool hasMark = rest.find('e') != none && rest.find('g') == none;
    if (rest.empty() || hasMark || rest.find('E') != none) return ScaledNumber{text, nullptr};
    if (std::ranges::all_of(number, isZeroOrPoint)) return ScaledNumber{"0", nullptr};
    const NumericFactor* factor = factorAt(rest);
    if (!factor) return std::nullopt;
    return ScaledNumber{number, factor};
}

std::optional<DecimalNumber> DecimalNumber::of(std::string_view text) {
    if (text.empty() || !isLetter(text.back())) return NumberReader(text).read();
    const auto scaled = cutAtFactor(text);
    if (!scaled || isLetter(scaled->number.back())) return std::nullopt;
    if (scaled->factor == &mil) return NumberReader(milsInMetres(scaled->number).view()).read();
    auto number = NumberReader(scaled->number).read();
    if (number && !number->isZero() && scaled->factor) number->exponent += scaled->factor->exponent;
    return number;
}

YString DecimalNumber::text() const {
    if (isZero()) return "0";
    Pieces pieces;
    if (negative) pieces.add('-');
    pieces.add(digits.view());
    if (exponent != 0) pieces.add('e');
    if (longExponent.length() != 0) {
        pieces.add(longExponent.view());
    } else if (exponent != 0) {
        pieces.add(exponent);
    }
    return pieces.text();
}

} // namespace bexa::detail
