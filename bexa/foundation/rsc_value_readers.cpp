#include "bexa/foundation/rsc_value_readers.h"

#include "bexa/foundation/text_cursor.h"

#include <charconv>
#include <climits>
#include <limits>
#include <optional>
#include <system_error>

namespace bexa::detail {

namespace {

// number = { white } [ "+" | "-" ] ...; takes it up to the sign and tells whether that is a minus.
bool takeSign(TextCursor& text) {
    text.skipWhite();
    const bool negative = text.take('-');
    if (!negative) text.take('+');
    return negative;
}

// The power of ten that the digits of a decimal number begin with, far enough from 0 where the number is out of range.
long long magnitude(TextCursor text) {
    text.takeWhile([](char c) { return c == '0'; });
    const auto whole = static_cast<long long>(text.takeWhile(isDigit).size());
    long long zeros = 0;
    if (text.take('.') && whole == 0) {
        zeros = static_cast<long long>(text.takeWhile([](char c) { return c == '0'; }).size());
    }
    text.takeWhile(isDigit);
    if (!text.take('e') && !text.take('E')) return whole - zeros;
    const bool negative = takeSign(text);
    const long long exponent = text.takeNumber().value_or(0);
    return whole - zeros + (negative ? -exponent : exponent);
}

// A number without its sign; nothing when none stands here.
std::optional<double> unsignedReal(TextCursor text) {
    const bool hex = (text.nextIs("0x") || text.nextIs("0X")) && text.rest().size() > 2;
    const std::string_view digits = hex ? text.rest().substr(2) : text.rest();
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                              hex ? std::chars_format::hex : std::chars_format::general);
    if (error == std::errc()) return value;
    if (error != std::errc::result_out_of_range) return hex ? std::optional(0.0) : std::nullopt;
    const bool tiny = hex ? digits.find('-') != digits.npos : magnitude(text) <= 0;
    return tiny ? 0.0 : std::numeric_limits<double>::infinity();
}

} // namespace

int numberOf(std::string_view text) {
    TextCursor cursor(text);
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
    const bool negative = takeSign(cursor);
    const std::optional<double> value = cursor.peek() == '-' ? std::nullopt : unsignedReal(cursor);
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
