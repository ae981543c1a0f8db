#include "bexa/props/big_number.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using bexa::detail::BexBigNumber;

namespace {

std::string textOf(BexBigNumber number) {
    return std::string(number.text().view());
}

BexBigNumber numberOf(std::string_view text) {
    return BexBigNumber(text);
}

TEST(BigNumber, ReadsAndWritesDecimalText) {
    const struct {
        std::string_view text;
        std::string written;
    } rows[] = {
        {"0", "0"},
        {"7", "7"},
        {"+7", "7"},
        {"-7", "-7"},
        {"999999999", "999999999"},
        {"1000000000", "1000000000"},       // the lower group is padded with zeros
        {"-1000000001", "-1000000001"},     //
        {"123000000456", "123000000456"},   //
        {"000000000000000000000012", "12"}, // groups of zeros in front count for nothing
        {"10000000000000000000000000000", "10000000000000000000000000000"},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(numberOf(row.text).isValid()) << row.text;
        EXPECT_EQ(textOf(numberOf(row.text)), row.written);
    }
}

TEST(BigNumber, IsNotValidForATextThatIsNoWholeNumber) {
    for (const char* text : {"", "+", "-", "--1", "+-1", "1-", "1.5", " 1", "1 ", "1e3", "a", "\x83\x41"}) {
        EXPECT_FALSE(numberOf(text).isValid()) << text;
        EXPECT_EQ(textOf(numberOf(text)), "") << text;
    }
}

TEST(BigNumber, IsMadeFromWholeNumbersOfTheLanguage) {
    EXPECT_EQ(textOf(0), "0");
    EXPECT_EQ(textOf(-12), "-12");
    EXPECT_EQ(textOf(9223372036854775807), "9223372036854775807");
    EXPECT_EQ(textOf(-9223372036854775807 - 1), "-9223372036854775808");
    BexBigNumber number("123456789012345678901234567890");
    number = 5;
    EXPECT_EQ(textOf(number), "5");
    EXPECT_EQ(textOf(number + 999999999), "1000000004") << "nothing of the older number comes back";
}

TEST(BigNumber, CarriesAndBorrowsThroughGroups) {
    const struct {
        std::string_view a;
        std::string_view b;
        std::string sum;
        std::string difference;
    } rows[] = {
        {"999999999999999999", "1", "1000000000000000000", "999999999999999998"},
        {"1000000000000000000", "1", "1000000000000000001", "999999999999999999"},
        {"1", "1000000000000000000", "1000000000000000001", "-999999999999999999"},
        {"-5", "5", "0", "-10"},
        {"5", "5", "10", "0"},
        {"-5", "-7", "-12", "2"},
        {"0", "-7", "-7", "7"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(textOf(numberOf(row.a) + numberOf(row.b)), row.sum);
        EXPECT_EQ(textOf(numberOf(row.a) - numberOf(row.b)), row.difference);
    }
}

TEST(BigNumber, CountsUpAndDownThroughZero) {
    BexBigNumber number(-1);
    EXPECT_EQ(textOf(++number), "0");
    EXPECT_EQ(textOf(++number), "1");
    EXPECT_EQ(textOf(--number), "0");
    EXPECT_EQ(textOf(--number), "-1");
}

TEST(BigNumber, AddsToItself) {
    BexBigNumber number("999999999999999999");
    const BexBigNumber& same = number;
    number += same;
    EXPECT_EQ(textOf(number), "1999999999999999998");
    number -= same;
    EXPECT_EQ(textOf(number), "0");
}

TEST(BigNumber, AgreesWithWholeNumbersOfTheLanguage) {
    std::mt19937_64 random(1); // the same numbers in every run
    for (int i = 0; i < 2000; ++i) {
        const long long a = static_cast<long long>(random()) >> (2 + random() % 60);
        const long long b = static_cast<long long>(random()) >> (2 + random() % 60);
        EXPECT_EQ(textOf(BexBigNumber(a) + b), std::to_string(a + b));
        EXPECT_EQ(textOf(BexBigNumber(a) - b), std::to_string(a - b));
        EXPECT_EQ(BexBigNumber(a) < b, a < b);
        EXPECT_EQ(BexBigNumber(a) <= b, a <= b);
        EXPECT_EQ(BexBigNumber(a) > b, a > b);
        EXPECT_EQ(BexBigNumber(a) == b, a == b);
        EXPECT_EQ(BexBigNumber(a) != b, a != b);
        EXPECT_EQ(textOf(BexBigNumber(a % 1000000000000) *= 254), std::to_string(a % 1000000000000 * 254));
    }
}

TEST(BigNumber, MultipliesInOnePass) {
    BexBigNumber number("999999999999999999999999999");
    EXPECT_EQ(textOf(number *= 254), "253999999999999999999999999746");
    EXPECT_EQ(textOf(number *= 0), "0");
    EXPECT_EQ(textOf(BexBigNumber(std::string_view("-0")) *= 254), "0");
}

TEST(BigNumber, NegationFlipsTheSignAlone) {
    EXPECT_EQ(textOf(-numberOf("12")), "-12");
    EXPECT_EQ(textOf(-numberOf("-12")), "12");
    EXPECT_EQ(textOf(-numberOf("0")), "-0");
}

TEST(BigNumber, ZeroEqualsZeroWhateverItsSign) {
    EXPECT_TRUE(-numberOf("0") == 0);
    EXPECT_FALSE(-numberOf("0") < 0);
    EXPECT_EQ(textOf(-numberOf("0") + 0), "0") << "a sum of zero has no sign";
}

TEST(BigNumber, HoldsAMillionDigits) {
    const std::string nines(1000000, '9');
    EXPECT_EQ(textOf(numberOf(nines) + 1), '1' + std::string(1000000, '0'));
    EXPECT_EQ(textOf(numberOf(nines)), nines);
}

} // namespace
