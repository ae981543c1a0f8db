// The engineering factors of numeric texts.
#pragma once

#include <iterator>
#include <string_view>

namespace bexa::detail {

struct NumericFactor {
    std::string_view word;
    int exponent; // of ten
    std::string_view asExponent;
};

// To add a factor: a row here, and if it is to be written a place in `writtenFactors`.
inline constexpr NumericFactor numericFactors[] = {
    {"f", -15, "e-15"}, {"p", -12, "e-12"}, {"n", -9, "e-9"}, {"u", -6, "e-6"},
    {"m", -3, "e-3"},   {"k", 3, "e3"},     {"K", 3, "e3"},   {"M", 6, "e6"},
    {"x", 6, "e6"},     {"meg", 6, "e6"},   {"G", 9, "e9"},   {"T", 12, "e12"},
};

// A thousandth of an inch: read as 254 times ten to the -7 metres, written from micrometres.
inline constexpr NumericFactor mil = {"mil", -6, "e-7"};

// What is written for the exponents -15, -12 ... 12.
inline constexpr std::string_view writtenFactors[] = {"f", "p", "n", "u", "m", "", "k", "M", "G", "T"};
inline constexpr int lowestWrittenExponent = -15;
inline constexpr int highestWrittenExponent = 12;
static_assert(std::size(writtenFactors) == (highestWrittenExponent - lowestWrittenExponent) / 3 + 1);

// The factor that a text begins with, null if there is none. Only `m` looks further than its letter: with anything
// behind it, the longer word must stand there.
constexpr const NumericFactor* factorAt(std::string_view text) {
    if (text.empty()) return nullptr;
    const char letter = text.front();
    const std::string_view word = text.substr(0, letter == 'm' && text.size() > 1 ? 3 : 1);
    for (const NumericFactor& factor : numericFactors) {
        if (factor.word.front() == letter && factor.word == word) return &factor;
    }
    return word == mil.word ? &mil : nullptr;
}

} // namespace bexa::detail
