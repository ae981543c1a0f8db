#include "bexa/foundation/rsc_value_readers.h"

#include "bexa/foundation/text_cursor.h"

#include <charconv>
#include <climits>
#include <limits>
#include <optional>
#include <system_error>

namespace bexa::detail {

namespace {

// Takes a sign and tells whether it is a minus.
bool takeSign(TextCursor& text) {
    const bool negative = text.take('-');
    if (!negative) text.take('+');
    return negative;
}

constexpr bool isZero(char c) {
    return c == '0';
}
constexpr bool isHexDigit(char c) {
    return isDigit(c) || (lowerCase(c) >= 'a' && lowerCase(c) <= 'f');
}

// How a number is written, behind its sign and a "0x".
struct Notation {
    std::chars_format format;
    bool (*isDigit)(char);
    char exponentMark; // in lower case
    int digitWorth;    // one place in the units of the exponent
};
constexpr Notation decimal{std::chars_format::general, isDigit, 'e', 1};
constexpr Notation hexadecimal{std::chars_format::hex, isHexDigit, 'p', 4};

// The power that the digits of a number begin with, far enough from 0 where the number is out of range.
long long magnitude(TextCursor text, const Notation& notation) {
    text.takeWhile(isZero);
    const auto whole = static_cast<long long>(text.takeWhile(notation.isDigit).size());
    long long zeros = 0;
    if (text.take('.') && whole == 0) zeros = static_cast<long long>(text.takeWhile(isZero).size());
    text.takeWhile(notation.isDigit);
    const long long places = (whole - zeros) * notation.digitWorth;
    if (lowerCase(text.take()) != notation.exponentMark) return places;
    const bool negative = takeSign(text);
    const long long exponent = text.takeNumber().value_or(0);
    return places + (negative ? -exponent : exponent);
}

// A number without its sign; nothing when none stands here.
std::optional<double> unsignedReal(std::string_view text, const Notation& notation) {
    double value = 0;
    if (text.starts_with('-')) return std::nullopt; // a second sign
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, notation.format);
    if (error == std::errc()) return value;
    if (error != std::errc::result_out_of_range) return std::nullopt;
    return magnitude(TextCursor(text), notation) <= 0 ? 0.0 : std::numeric_limits<double>::infinity();
}

// Without a hexadecimal digit or point behind it, a "0x" is the number 0 in front of a letter.
std::optional<double> unsignedReal(TextCursor text) {
    if (!text.take("0x") && !text.take("0X")) return unsignedReal(text.rest(), decimal);
    if (!isHexDigit(text.peek()) && text.peek() != '.') return 0.0;
    // No number holds "+-", but std::from_chars of libstdc++ 12 takes it for the minus of an exponent.
    const std::string_view digits = text.rest().substr(0, text.rest().find("+-"));
    return unsignedReal(digits, hexadecimal).value_or(0.0);
}

} // namespace

int numberOf(std::string_view text) {
    TextCursor cursor(text);
    cursor.skipWhite();
    const bool negative = takeSign(cursor);
    long long number = 0;
    for (char digit : cursor.takeWhile(isDigit)) {
        number = number * 10 + (digit - '0');
        if (number > INT_MAX) return negative ? INT_MIN : INT_MAX;
    }
    return static_cast<int>(negative ? -number : number);
}

double realOf(std::string_view text) {
    TextCursor cursor(text);
    cursor.skipWhite();
    const bool negative = takeSign(cursor);
    const std::optional<double> value = unsignedReal(cursor);
    if (!value) return 0.0;
    return negative ? -*value : *value;
}

bool loadText(YioRscLoad& reader, std::string_view& out, unsigned size) {
    return reader.next(stringSize).type == YioRscLoad::TypeColon && loadCell(reader, out, size);
}

bool loadInt(YioRscLoad& reader, int& out) {
    std::string_view text;
    if (!loadText(reader, text, numberSize)) return false;
    out = numberOf(text);
    return true;
}

bool loadUint(YioRscLoad& reader, unsigned& out) {
    int number = 0;
    if (!loadInt(reader, number) || number < 0) return false;
    out = static_cast<unsigned>(number);
    return true;
}

bool loadChar(YioRscLoad& reader, char& out) {
    std::string_view text;
    if (!loadText(reader, text, numberSize)) return false;
    out = TextCursor(text).peek();
    return true;
}

bool loadFloat(YioRscLoad& reader, double& out) {
    std::string_view text;
    if (!loadText(reader, text, numberSize)) return false;
    out = realOf(text);
    return true;
}

bool loadString(YioRscLoad& reader, char* out, unsigned size) {
    std::string_view text;
    if (!loadText(reader, text, stringSize) || text.size() >= size) return false;
    text.copy(out, text.size());
    out[text.size()] = '\0';
    return true;
}

bool loadTableHead(YioRscLoad& reader, int columns, unsigned size) {
    const YioRscLoad::Token count = reader.next(size);
    return count.type == YioRscLoad::TypeCount && numberOf(count.text) == columns &&
           reader.next(size).type == YioRscLoad::TypeOpen;
}

bool loadCell(YioRscLoad& reader, std::string_view& out, unsigned size) {
    const YioRscLoad::Token cell = reader.next(size);
    if (cell.type != YioRscLoad::TypeValue) return false;
    out = cell.text;
    return true;
}

bool loadCell(YioRscLoad& reader, int& out, unsigned size) {
    std::string_view text;
    if (!loadCell(reader, text, size)) return false;
    out = numberOf(text);
    return true;
}

bool loadCell(YioRscLoad& reader, double& out, unsigned size) {
    std::string_view text;
    if (!loadCell(reader, text, size)) return false;
    out = realOf(text);
    return true;
}

} // namespace bexa::detail
