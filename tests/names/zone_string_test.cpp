#include "bexa/names/zone_string.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

std::string textOf(const BexZoneString& zone) {
    const char* const text = zone;
    return text ? text : "(null)";
}

TEST(ZoneString, HasTheStyleOfItsText) {
    const std::pair<const char*, BexZoneString::Style> rows[] = {
        {nullptr, BexZoneString::NoStyle},    {"", BexZoneString::NoStyle},
        {"A", BexZoneString::Letters},        {"z", BexZoneString::Letters},
        {"aBc", BexZoneString::Letters},      {"0", BexZoneString::Digits},
        {"007", BexZoneString::Digits},       {"A1", BexZoneString::NoStyle},
        {"1A", BexZoneString::NoStyle},       {" A", BexZoneString::NoStyle},
        {"A ", BexZoneString::NoStyle},       {"-1", BexZoneString::NoStyle},
        {"@", BexZoneString::NoStyle},        {"[", BexZoneString::NoStyle},
        {"`", BexZoneString::NoStyle},        {"{", BexZoneString::NoStyle},
        {"\x82\x60", BexZoneString::NoStyle}, {"\xb1", BexZoneString::NoStyle},
    };
    for (const auto& [text, style] : rows) {
        SCOPED_TRACE(text ? text : "(null)");
        EXPECT_EQ(BexZoneString::style(text), style);
        const BexZoneString zone(text);
        EXPECT_EQ(zone.style(), style);
        EXPECT_EQ(zone.isValid(), style != BexZoneString::NoStyle);
        EXPECT_EQ(zone.isAlpha(), style == BexZoneString::Letters);
        EXPECT_EQ(zone.isDigit(), style == BexZoneString::Digits);
        EXPECT_EQ(textOf(zone), style == BexZoneString::NoStyle ? "(null)" : text);
    }
    static_assert(BexZoneString::Style(2) == BexZoneString::Digits);
}

TEST(ZoneString, CountsLettersLikeColumns) {
    const std::pair<const char*, long> rows[] = {
        {"A", 0},   {"B", 1},    {"Z", 25},    {"AA", 26},     {"AZ", 51},
        {"BA", 52}, {"ZZ", 701}, {"AAA", 702}, {"ZZZ", 18277}, {"AAAA", 18278},
    };
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(BexZoneString::alpha2num(text), number) << text;
        EXPECT_STREQ(BexZoneString::num2alpha(number), text);
    }
    EXPECT_EQ(BexZoneString::alpha2num(""), -1);
    EXPECT_EQ(BexZoneString::alpha2num(nullptr), -1);
    EXPECT_STREQ(BexZoneString::num2alpha(-1), "");
    EXPECT_STREQ(BexZoneString::num2alpha(LONG_MIN), "");
}

TEST(ZoneString, DoesNotFoldLowerCaseLetters) {
    EXPECT_EQ(BexZoneString::alpha2num("a"), 32);
    EXPECT_EQ(BexZoneString::alpha2num("z"), 57);
    BexZoneString zone("a");
    EXPECT_EQ(textOf(zone), "a");
    EXPECT_EQ(textOf(++zone), "AH");
}

TEST(ZoneString, ReadsAndWritesDigits) {
    EXPECT_EQ(BexZoneString::digit2num("12"), 12);
    EXPECT_EQ(BexZoneString::digit2num("007"), 7);
    EXPECT_EQ(BexZoneString::digit2num(" -3x"), -3);
    EXPECT_EQ(BexZoneString::digit2num("x"), 0);
    EXPECT_EQ(BexZoneString::digit2num(nullptr), 0);
    EXPECT_STREQ(BexZoneString::num2digit(1), "1");
    EXPECT_STREQ(BexZoneString::num2digit(120), "120");
    EXPECT_STREQ(BexZoneString::num2digit(0), ""); // digit labels start at 1
    EXPECT_STREQ(BexZoneString::num2digit(-1), "");
    EXPECT_EQ(BexZoneString::num2digit(LONG_MAX), std::to_string(LONG_MAX));
}

TEST(ZoneString, KeepsItsBuffersApart) {
    const char* const letters = BexZoneString::num2alpha(1);
    const char* const digits = BexZoneString::num2digit(5);
    BexZoneString zone("Y"); // changes no buffer
    ++zone;
    EXPECT_STREQ(letters, "B");
    EXPECT_STREQ(digits, "5");
    BexZoneString::num2digit(12);
    EXPECT_STREQ(letters, "B");
}

TEST(ZoneString, CountsInItsOwnStyle) {
    BexZoneString letters("Z");
    EXPECT_EQ(textOf(++letters), "AA");
    EXPECT_EQ(textOf(--letters), "Z");
    EXPECT_EQ(textOf(letters += 27), "BA");
    EXPECT_EQ(textOf(letters -= 52), "A");
    EXPECT_EQ(textOf(letters = 701), "ZZ");

    BexZoneString digits("9");
    EXPECT_EQ(textOf(++digits), "10");
    EXPECT_EQ(textOf(--digits), "9");
    EXPECT_EQ(textOf(digits += 91), "100");
    EXPECT_EQ(textOf(digits -= 99), "1");
    EXPECT_EQ(textOf(digits = 12), "12");
    EXPECT_EQ(digits.style(), BexZoneString::Digits);
}

TEST(ZoneString, BelowTheFirstLabelHasAnEmptyText) {
    BexZoneString letters("A");
    EXPECT_EQ(textOf(--letters), "");
    EXPECT_EQ(letters.style(), BexZoneString::Letters);
    EXPECT_EQ(textOf(letters -= 4), "");
    EXPECT_EQ(textOf(letters += 5), "A"); // the value went on

    BexZoneString digits("1");
    EXPECT_EQ(textOf(--digits), "");
    EXPECT_EQ(digits.isValid(), 1u);
    EXPECT_EQ(textOf(++digits), "1");
}

TEST(ZoneString, KeepsItsTextUntilTheValueChanges) {
    BexZoneString zone("007");
    EXPECT_EQ(textOf(zone), "007");
    EXPECT_EQ(textOf(zone += 0), "7");
    BexZoneString zero("0");
    EXPECT_EQ(textOf(zero), "0");
    EXPECT_EQ(textOf(zero += 0), "");
}

TEST(ZoneString, WithoutAStyleKeepsNoTextThoughItsValueChanges) {
    BexZoneString zone;
    EXPECT_EQ(zone.isValid(), 0u);
    EXPECT_EQ(textOf(zone = 5), "(null)");
    EXPECT_TRUE(zone > BexZoneString("C"));
    EXPECT_TRUE(zone < BexZoneString("6"));
    EXPECT_EQ(textOf(++zone), "(null)");
    EXPECT_TRUE(zone >= BexZoneString("6"));
    EXPECT_EQ(zone.style(), BexZoneString::NoStyle);
}

TEST(ZoneString, IsEqualByTextAndOrderedByValue) {
    const BexZoneString a("A");
    const BexZoneString one("1");
    EXPECT_TRUE(a < one); // 0 and 1
    EXPECT_TRUE(a <= one);
    EXPECT_FALSE(a > one);
    EXPECT_FALSE(a >= one);
    EXPECT_FALSE(a == one);
    EXPECT_TRUE(a != one);
    EXPECT_TRUE(BexZoneString("B") <= one);
    EXPECT_TRUE(BexZoneString("B") >= one);
    EXPECT_FALSE(BexZoneString("B") == one); // though the values are equal
    EXPECT_TRUE(BexZoneString("AA") > BexZoneString("Z"));
    EXPECT_TRUE(BexZoneString("10") > BexZoneString("9"));
}

TEST(ZoneString, WithLeadingZerosIsEqualByValueAlone) {
    BexZoneString zeros("01");
    const BexZoneString one("1");
    EXPECT_TRUE(zeros <= one);
    EXPECT_TRUE(zeros >= one);
    EXPECT_FALSE(zeros == one);
    zeros += 0; // builds the text anew
    EXPECT_TRUE(zeros == one);
}

TEST(ZoneString, OfNoTextEqualsAnEmptyOne) {
    BexZoneString empty("A");
    --empty;
    EXPECT_EQ(textOf(empty), "");
    EXPECT_TRUE(empty == BexZoneString());
    EXPECT_FALSE(empty != BexZoneString("A1"));
    EXPECT_FALSE(BexZoneString("A") == BexZoneString());
}

TEST(ZoneString, SaturatesInsteadOfOverflowing) {
    EXPECT_EQ(BexZoneString::alpha2num(std::string(100000, 'Z').c_str()), LONG_MAX);
    EXPECT_EQ(BexZoneString::digit2num("99999999999999999999999"), LONG_MAX);
    EXPECT_EQ(BexZoneString::digit2num("-99999999999999999999999"), LONG_MIN);
    EXPECT_EQ(BexZoneString::alpha2num(BexZoneString::num2alpha(LONG_MAX)), LONG_MAX);
    EXPECT_EQ(BexZoneString::alpha2num(BexZoneString::num2alpha(LONG_MAX - 1)), LONG_MAX - 1);
    EXPECT_LT(BexZoneString::alpha2num(std::string(100, '!').c_str()), 0);

    BexZoneString zone(std::string(100000, '9').c_str());
    EXPECT_EQ(textOf(zone).size(), 100000u); // as given
    EXPECT_EQ(textOf(++zone), std::to_string(LONG_MAX));
    EXPECT_EQ(textOf(zone -= INT_MIN), std::to_string(LONG_MAX));
    EXPECT_EQ(textOf(--zone), std::to_string(LONG_MAX - 1));
}

TEST(ZoneString, IsCopiedWhole) {
    BexZoneString zone("07");
    BexZoneString copy(zone);
    BexZoneString assigned("A");
    assigned = zone;
    ++zone;
    for (BexZoneString* other : {&copy, &assigned}) {
        EXPECT_EQ(textOf(*other), "07");
        EXPECT_EQ(other->style(), BexZoneString::Digits);
        EXPECT_EQ(textOf(++*other), "8");
    }
    assigned = "B";
    EXPECT_EQ(textOf(++assigned), "C");
}

} // namespace
