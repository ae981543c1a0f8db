#include "bexa/names/zone_string.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <string_view>

using bexa::detail::viewOf;

namespace {

constexpr int letters = 26;
// A label of either style fits, whatever the size of a long.
constexpr std::size_t labelSize = 40;

bool isLetter(char c) {
    const char lower = bexa::detail::lowerCase(c);
    return lower >= 'a' && lower <= 'z';
}

long sumOf(long value, long long steps) {
    if (steps > 0 && value > LONG_MAX - steps) return LONG_MAX;
    if (steps < 0 && value < LONG_MIN - steps) return LONG_MIN;
    return static_cast<long>(value + steps);
}

long timesLetters(long value) {
    if (value > LONG_MAX / letters) return LONG_MAX;
    return value < LONG_MIN / letters ? LONG_MIN : value * letters;
}

// Writes the terminated label to the end of the buffer and returns its begin.
const char* writeAlpha(char (&buffer)[labelSize], long number) {
    char* begin = buffer + labelSize - 1;
    *begin = '\0';
    for (; number >= 0; number = number / letters - 1) *--begin = static_cast<char>('A' + number % letters);
    return begin;
}

const char* writeDigits(char (&buffer)[labelSize], long number) {
    char* const end = number < 1 ? buffer : std::to_chars(buffer, buffer + labelSize - 1, number).ptr;
    *end = '\0';
    return buffer;
}

} // namespace

BexZoneString::BexZoneString(const char* text) : style_(style(text)) {
    if (style_ == NoStyle) return;
    value_ = style_ == Letters ? alpha2num(text) : digit2num(text);
    text_ = text;
}

BexZoneString& BexZoneString::operator=(int value) {
    return change(value);
}

BexZoneString& BexZoneString::operator+=(int steps) {
    return change(sumOf(value_, steps));
}

BexZoneString& BexZoneString::operator-=(int steps) {
    return change(sumOf(value_, -static_cast<long long>(steps)));
}

// Leaves the buffers of num2alpha() and num2digit() alone.
BexZoneString& BexZoneString::change(long value) {
    value_ = value;
    char label[labelSize];
    if (style_ == Letters) text_ = writeAlpha(label, value);
    if (style_ == Digits) text_ = writeDigits(label, value);
    return *this;
}

BexZoneString::Style BexZoneString::style(const char* text) noexcept {
    const std::string_view label = viewOf(text);
    if (label.empty()) return NoStyle;
    if (std::all_of(label.begin(), label.end(), bexa::detail::isDigit)) return Digits;
    return std::all_of(label.begin(), label.end(), isLetter) ? Letters : NoStyle;
}

// The letters are the digits 1 to 26 of a base of 26, and the value is one less than theirs.
long BexZoneString::alpha2num(const char* text) noexcept {
    long value = -1;
    // With v one below the number so far: (v + 1) * 26 + digit - 1.
    for (const char c : viewOf(text)) value = sumOf(timesLetters(value), letters + (c - 'A'));
    return value;
}

const char* BexZoneString::num2alpha(long number) {
    thread_local char label[labelSize];
    return writeAlpha(label, number);
}

long BexZoneString::digit2num(const char* text) noexcept {
    return text ? std::strtol(text, nullptr, 10) : 0;
}

const char* BexZoneString::num2digit(long number) {
    thread_local char label[labelSize];
    return writeDigits(label, number);
}
