#include "tools/bexa/value_fault.h"

#include "bexa/props/numeric_text.h"

#include <algorithm>

namespace tool {
namespace {

using Fault = BexCheckValue::Fault;

constexpr std::string_view marks = "eE";
constexpr std::string_view numberCharacters = "0123456789+-.eE";

// Where a text has the fault that it is known to have.
using Find = std::size_t (*)(std::string_view text);

std::size_t atStart(std::string_view) {
    return 0;
}

std::size_t atForeignCharacter(std::string_view text) {
    return text.find_first_not_of(numberCharacters);
}

// A sign may stand first, and behind an exponent mark.
std::size_t atLaterSign(std::string_view text) {
    std::size_t at = text.find_first_of("+-", 1);
    while (marks.find(text[at - 1]) != marks.npos) at = text.find_first_of("+-", at + 1);
    return at;
}

std::size_t atPoint(std::string_view text) {
    return text.find('.');
}

std::size_t atSecondPoint(std::string_view text) {
    return text.find('.', text.find('.') + 1);
}

std::size_t atPointInExponent(std::string_view text) {
    return text.find('.', text.find_first_of(marks));
}

std::size_t atSecondMark(std::string_view text) {
    return text.find_first_of(marks, text.find_first_of(marks) + 1);
}

// The mark, if nothing good stands behind it, else the letter behind the exponent.
std::size_t atBadExponent(std::string_view text) {
    const std::size_t mark = text.find_first_of(marks);
    const bool hasExponent = text.find_first_of("0123456789+-", mark) == mark + 1;
    return hasExponent ? atForeignCharacter(text) : mark;
}

std::size_t behindFactor(std::string_view text) {
    const std::size_t factor = atForeignCharacter(text);
    const std::string_view word = text.substr(factor, 3);
    return factor + (word == "meg" || word == "mil" ? word.size() : 1);
}

struct Entry {
    Fault fault;
    const char* words;
    Find find;
};

// clang-format off
constexpr Entry entries[] = {
    {Fault::BadCharacter,      "has a character that cannot stand there",       atForeignCharacter},
    {Fault::SignNotFirst,      "has a sign that is not first",                  atLaterSign},
    {Fault::SignWithoutDigit,  "has a sign without a digit behind it",          atStart},
    {Fault::SignAlone,         "is a sign alone",                               atStart},
    {Fault::SecondSign,        "has a second sign",                             atLaterSign},
    {Fault::PointInExponent,   "has a point in the exponent",                   atPointInExponent},
    {Fault::PointWithoutDigit, "has a point without a digit behind it",         atPoint},
    {Fault::PointAlone,        "is a point alone",                              atStart},
    {Fault::SecondPoint,       "has a second point",                            atSecondPoint},
    {Fault::ExponentFirst,     "begins with an exponent",                       atStart},
    {Fault::BadExponent,       "has an exponent that is no whole number",       atBadExponent},
    {Fault::SecondExponent,    "has a second exponent",                         atSecondMark},
    {Fault::FactorFirst,       "begins with a factor",                          atStart},
    {Fault::TextAfterFactor,   "has something behind the factor",               behindFactor},
};
// clang-format on

} // namespace

std::optional<ValueFault> faultOf(const std::string& value) {
    const int fault = BexCheckValue::isFloat(value.c_str());
    const auto* entry = std::find_if(std::begin(entries), std::end(entries),
                                     [fault](const Entry& row) { return row.fault == fault; });
    if (entry == std::end(entries)) return std::nullopt;
    return ValueFault{entry->words, entry->find(value) + 1};
}

} // namespace tool
