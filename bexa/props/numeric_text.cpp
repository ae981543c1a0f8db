#include "bexa/props/numeric_text.h"

#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/props/decimal_number.h"
#include "bexa/props/numeric_factors.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

using namespace bexa::detail;

namespace {

constexpr int mostZeros = 20;
constexpr int highestExponent = 32;

YString signOf(const DecimalNumber& number) {
    return number.negative ? "-" : "";
}

void appendZeros(YString& out, long long count) {
    for (; count > 0; --count) out << '0';
}

// Plain decimal notation; nothing where that would take too many zeros.
std::optional<YString> plainText(const DecimalNumber& number) {
    const std::string_view digits = number.digits.view();
    const long long exponent = number.exponent;
    const auto pointAt = exponent + static_cast<long long>(digits.size());
    if (exponent > mostZeros || pointAt < -mostZeros) return std::nullopt;
    YString text = signOf(number);
    if (pointAt <= 0) {
        text.concat("0.");
        appendZeros(text, -pointAt);
        text.concat(digits);
    } else if (exponent < 0) {
        text.concat(digits.substr(0, static_cast<std::size_t>(pointAt)));
        text << '.';
        text.concat(digits.substr(static_cast<std::size_t>(pointAt)));
    } else {
        text.concat(digits);
        appendZeros(text, exponent);
    }
    return text;
}

// A number of metres in micrometres to the inch; nothing where no double holds it.
std::optional<DecimalNumber> inMils(const DecimalNumber& metres) {
    constexpr double milsPerMicrometre = 0.03937007874015748; // 1 / 25.4
    const double value = realOf(metres.text().view()) * milsPerMicrometre;
    if (!std::isfinite(value)) return std::nullopt;
    char text[32];
    const char* end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 16).ptr;
    return DecimalNumber::of({text, static_cast<std::size_t>(end - text)});
}

// The digits of a number in units of ten to `exponent`; nothing where that would take too many zeros.
std::optional<YString> digitsInUnits(const DecimalNumber& number, int exponent) {
    const std::string_view digits = number.digits.view();
    const auto length = static_cast<long long>(digits.size());
    const long long below = exponent - number.exponent;
    if (below < -mostZeros || (below >= length && below > mostZeros)) return std::nullopt;
    YString text = signOf(number);
    if (below <= 0) {
        text.concat(digits);
        appendZeros(text, -below);
    } else if (below >= length) {
        text.concat("0.");
        appendZeros(text, below - length);
        text.concat(digits);
    } else {
        // Kept on purpose: the point stands at below - 1, where the value has it at length - below, so 1500 in "k"
        // is `.15k` and 1234 is `12.34k`.
        const auto point = static_cast<std::size_t>(below - 1);
        text.concat(digits.substr(0, point));
        text << '.';
        text.concat(digits.substr(point));
    }
    return text;
}

// The factor that a caller names, null for none.
const NumericFactor* factorNamed(std::string_view word) {
    return word.size() == 1 || word.size() == 3 ? factorAt(word) : nullptr;
}

} // namespace

unsigned long BexCheckValue::transExp(YString& value) {
    if (value.length() == 0) return 1;
    const auto scaled = cutAtFactor(value.view());
    if (!scaled) return 0;
    value = scaled->text();
    return 1;
}

unsigned long BexCheckValue::optimizeExp(YString& value) {
    if (value.length() == 0) return 1;
    const auto number = DecimalNumber::of(value.view());
    if (!number) return 0;
    value = number->text();
    return 1;
}

unsigned long BexCheckValue::changeNum(YString& value) {
    if (value.length() == 0) return 1;
    const auto number = DecimalNumber::of(value.view());
    if (!number) return 0;
    std::optional<YString> plain = number->isZero() ? YString("0") : plainText(*number);
    value = plain ? std::move(*plain) : number->text();
    return plain.has_value();
}

unsigned long BexCheckValue::changeFactor(YString& value) {
    if (value.length() == 0) return 1;
    const auto number = DecimalNumber::of(value.view());
    if (!number) return 0;
    value = number->text();
    if (number->isZero()) return 1;
    if (number->exponent < lowestWrittenExponent || number->exponent > highestExponent) return 0;
    const auto exponent = static_cast<int>(number->exponent);
    const int place = std::min(exponent, highestWrittenExponent) - lowestWrittenExponent;
    YString text = signOf(*number);
    text.concat(number->digits.view());
    appendZeros(text, exponent - lowestWrittenExponent - place / 3 * 3);
    text.concat(writtenFactors[place / 3]);
    value = std::move(text);
    return 1;
}

unsigned long BexCheckValue::changeFactor(YString& value, const char* factor) {
    const std::string_view word = viewOf(factor);
    if (word.empty()) return changeNum(value);
    const NumericFactor* unit = factorNamed(word);
    if (!unit) return 0;
    if (value.length() == 0) return 1;
    auto number = DecimalNumber::of(value.view());
    if (!number) return 0;
    YString written(word); // the word may stand in the text that changes
    value = number->text();
    if (unit == &mil) number = inMils(*number);
    if (!number) return 0;
    std::optional<YString> text = number->isZero() ? YString("0") : digitsInUnits(*number, unit->exponent);
    if (!text) return 0;
    if (!number->isZero()) text->concat(written.view());
    value = std::move(*text);
    return 1;
}

double BexCheckValue::toDouble(const YString& value, char*) {
    const auto number = DecimalNumber::of(value.view());
    return realOf(number ? number->text().view() : value.view());
}
