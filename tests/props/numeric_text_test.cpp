#include "bexa/props/numeric_text.h"

#include "bexa/foundation/ygeneral/ystring.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <iterator>
#include <random>
#include <string>

namespace {

// What an operation answers and what it leaves, as "text" or "text, refused".
template <class Operation>
std::string after(Operation operation, std::string_view text) {
    YString value(text);
    const unsigned long done = operation(value);
    std::string result(value.view());
    return done ? result : result + ", refused";
}

std::string transExp(std::string_view text) {
    return after([](YString& value) { return BexCheckValue::transExp(value); }, text);
}
std::string optimizeExp(std::string_view text) {
    return after([](YString& value) { return BexCheckValue::optimizeExp(value); }, text);
}
std::string changeNum(std::string_view text) {
    return after([](YString& value) { return BexCheckValue::changeNum(value); }, text);
}
std::string changeFactor(std::string_view text) {
    return after([](YString& value) { return BexCheckValue::changeFactor(value); }, text);
}
std::string changeFactor(std::string_view text, const char* factor) {
    return after([factor](YString& value) { return BexCheckValue::changeFactor(value, factor); }, text);
}
double toDouble(std::string_view text) {
    return BexCheckValue::toDouble(YString(text), nullptr);
}

// ---- Faults

TEST(NumericText, FloatsAndTheirFirstFault) {
    const struct {
        const char* text;
        int fault;
    } rows[] = {
        {nullptr, 0},   {"", 0},       {"0", 0},      {"1", 0},        {"-1", 0},    {"+1", 0},
        {".5", 0},      {"1.5", 0},    {"1.5k", 0},   {"1e-3", 0},     {"1E5", 0},   {"10meg", 0},
        {"5mil", 0},    {"1f", 0},     {"1p", 0},     {"1n", 0},       {"1u", 0},    {"1m", 0},
        {"1K", 0},      {"1M", 0},     {"1x", 0},     {"1G", 0},       {"1T", 0},    {"1.5e3", 0},
        {"1_2", 1},     {" 1", 1},     {"1 ", 1},     {"1mx", 1},      {"1me", 1},   {"1mega", 14},
        {"1Q", 1},      {"Q", 1},      {"1\x83", 1},  {"\x83\x41", 1}, {"1,5", 1},   {"1MEG", 14},
        {"1-2", 2},     {"1e5-3", 2},  {"1.5-", 2},   {"-.5", 3},      {"--5", 3},   {"-k", 3},
        {"-", 4},       {"+", 4},      {"-1-2", 5},   {"-1e+-5", 5},   {"1e5.2", 6}, {"1e+.5", 6},
        {"5.", 7},      {"..", 7},     {"1.k", 7},    {".", 8},        {"1.2.3", 9}, {".5.", 9},
        {"e5", 10},     {"E", 10},     {"1e", 11},    {"1ek", 11},     {"1e.", 11},  {"1e5k", 11},
        {"1e5meg", 11}, {"1e5e5", 12}, {"1e+e", 12},  {"k", 13},       {"mx", 13},   {"meg", 13},
        {"1kk", 14},    {"1k5", 14},   {"1milx", 14}, {"1T ", 14},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(BexCheckValue::isFloat(row.text), row.fault) << (row.text ? row.text : "null");
    }
}

TEST(NumericText, ASignOfTheExponentHidesWhatFollowsIt) {
    EXPECT_EQ(BexCheckValue::isFloat("1e+"), BexCheckValue::NoFault);
    EXPECT_EQ(BexCheckValue::isFloat("1e-"), BexCheckValue::NoFault);
}

TEST(NumericText, IntegersAndTheirFirstFault) {
    const struct {
        const char* text;
        int fault;
    } rows[] = {
        {nullptr, 0}, {"", 0},     {"15", 0},   {"-15", 0},    {"+15", 0}, {"5k", 0},  {"5meg", 0},
        {"5mil", 0},  {"1.5", 1},  {".", 1},    {"5e3", 1},    {"e5", 1},  {"5E3", 1}, {"1_2", 1},
        {"5mx", 1},   {"\xC5", 1}, {"1-2", 2},  {"-k", 3},     {"-.5", 3}, {"-", 4},   {"-1-2", 5},
        {"k", 13},    {"5kk", 14}, {"5k.", 14}, {"5meg1", 14},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(BexCheckValue::isInteger(row.text), row.fault) << (row.text ? row.text : "null");
    }
}

TEST(NumericText, EveryTextIsAString) {
    EXPECT_EQ(BexCheckValue::isString(nullptr), 0);
    EXPECT_EQ(BexCheckValue::isString("anything"), 0);
}

TEST(NumericText, NullAndEmptyTextsAreNull) {
    EXPECT_EQ(BexCheckValue::isNull(nullptr), 1U);
    EXPECT_EQ(BexCheckValue::isNull(""), 1U);
    EXPECT_EQ(BexCheckValue::isNull("0"), 0U);
}

// ---- Factor to exponent

TEST(NumericText, TransExpReplacesAFactor) {
    const struct {
        const char* text;
        const char* result;
    } rows[] = {
        {"", ""},
        {"1500", "1500"},
        {"1f", "1e-15"},
        {"1p", "1e-12"},
        {"1n", "1e-9"},
        {"1u", "1e-6"},
        {"1m", "1e-3"},
        {"1.5k", "1.5e3"},
        {"1.5K", "1.5e3"},
        {"1M", "1e6"},
        {"1x", "1e6"},
        {"1meg", "1e6"},
        {"1G", "1e9"},
        {"-1T", "-1e12"},
        {"5mil", "1270e-7"},
        {"-5mil", "-1270e-7"},
        {"+5mil", "1270e-7"},
        {"000000000000000000000005mil", "1270e-7"},
        {"1e5", "1e5"},                // has an exponent
        {"1E5k", "1E5k"},              //
        {"1e5k", "1e5k"},              //
        {"12e", "12e"},                //
        {"1e5meg", "1e5meg, refused"}, // its `g` hides the mark, and `e` is no factor
        {"0k", "0"},                   // zero needs no factor, not even a known one
        {"0.00Q", "0"},                //
        {"k", "0"},                    //
        {"1kxyz", "1e3"},              // what follows is dropped
        {"1megxyz", "1e6"},            //
        {"1mx", "1mx, refused"},
        {"1Q", "1Q, refused"},
        {"1mi", "1mi, refused"},
        {"-k", "-e3"}, // the sign alone is not zero
    };
    for (const auto& row : rows) {
        EXPECT_EQ(transExp(row.text), row.result) << row.text;
    }
}

TEST(NumericText, AFractionOfAMilIsZero) {
    EXPECT_EQ(transExp("1.5mil"), "0");
    EXPECT_EQ(transExp("5.mil"), "0");
    EXPECT_EQ(optimizeExp("1.5mil"), "0");
}

TEST(NumericText, LettersWithoutADigitInFrontAreZero) {
    for (const char* text : {"k", "Q", "abc", "mx", ".k", "meg"}) {
        EXPECT_EQ(transExp(text), "0") << text;
        EXPECT_EQ(optimizeExp(text), "0") << text;
    }
}

// ---- The forms of a number

TEST(NumericText, NormalPlainAndFactorForm) {
    const struct {
        const char* text;
        const char* normal;
        const char* plain;
        const char* factor;
    } rows[] = {
        {"", "", "", ""},
        {"1500", "15e2", "1500", "1500"},
        {"1.500", "15e-1", "1.5", "1500m"},
        {"0.0015", "15e-4", "0.0015", "1500u"},
        {"1200.5", "12005e-1", "1200.5", "1200500m"},
        {"1200.", "12e2", "1200", "1200"},
        {"33000", "33e3", "33000", "33k"},
        {"1k", "1e3", "1000", "1k"},
        {"1.5k", "15e2", "1500", "1500"},
        {"10meg", "1e7", "10000000", "10M"},
        {"2x", "2e6", "2000000", "2M"},
        {"4.7n", "47e-10", "0.0000000047", "4700p"},
        {"100p", "1e-10", "0.0000000001", "100p"},
        {"5mil", "127e-6", "0.000127", "127u"},
        {"1mil", "254e-7", "0.0000254", "25400n"},
        {"1.5mil", "0", "0", "0"},
        {"-2.5e-3", "-25e-4", "-0.0025", "-2500u"},
        {"+7", "7", "7", "7"},
        {"007", "7", "7", "7"},
        {"1000e-3", "1", "1", "1"},
        {"0", "0", "0", "0"},
        {"-0", "0", "0", "0"},
        {"0.000", "0", "0", "0"},
        {"0k", "0", "0", "0"},
        {"-0mil", "0", "0", "0"},
        {"0e99999999999999999999", "0", "0", "0"},
        {"1e13", "1e13", "10000000000000", "10T"},
        {"1e21", "1e21", "1e21, refused", "1000000000T"},
        {"1e-21", "1e-21", "0.000000000000000000001", "1e-21, refused"},
        {"1e-22", "1e-22", "1e-22, refused", "1e-22, refused"},
        {"12e-15", "12e-15", "0.000000000000012", "12f"},
        {"12e-16", "12e-16", "0.0000000000000012", "12e-16, refused"},
        {"1e32", "1e32", "1e32, refused", "100000000000000000000T"},
        {"1e33", "1e33", "1e33, refused", "1e33, refused"},
        {"1e20", "1e20", "100000000000000000000", "100000000T"},
        {"123e-21", "123e-21", "0.000000000000000000123", "123e-21, refused"},
        {"1E+5", "1e5", "100000", "100k"},
        {"1e-14", "1e-14", "0.00000000000001", "10f"},
        {"1e-13", "1e-13", "0.0000000000001", "100f"},
        {"-1.e", "-1.e, refused", "-1.e, refused", "-1.e, refused"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(optimizeExp(row.text), row.normal) << row.text;
        EXPECT_EQ(changeNum(row.text), row.plain) << row.text;
        EXPECT_EQ(changeFactor(row.text), row.factor) << row.text;
    }
}

TEST(NumericText, WhatIsNoNumberStaysAsItIs) {
    for (const char* text : {"1_2", " 1", "1 ", "1k5", "1Q", "1mx", "12e", "12E", "1e5k", "1E5M", "1e5meg",
                             "\x83\x41", "1,5", "1_2k", "e", "E", "x1", "-Q"}) {
        const std::string refused = std::string(text) + ", refused";
        EXPECT_EQ(optimizeExp(text), refused);
        EXPECT_EQ(changeNum(text), refused);
        EXPECT_EQ(changeFactor(text), refused);
        EXPECT_EQ(changeFactor(text, "k"), refused);
        EXPECT_EQ(changeFactor(text, "mil"), refused);
    }
    EXPECT_EQ(optimizeExp(std::string_view("1\0", 2)), std::string("1\0, refused", 11));
}

TEST(NumericText, SignsAndPointsInOddPlacesGoUnnoticed) {
    const struct {
        const char* text;
        const char* normal;
    } rows[] =
        {
            {"1-2", "-12"},     // a sign ahead of the mark is the number's
            {"1e2-3", "1e-23"}, // behind it, the exponent's
            {"--1", "-1"},
            {"1+2+3", "123"},
            {"1.2.3", "123e-2"},
            {"1.200.3", "12003e-2"}, // the second point counts the zeros in front of it anew
            {"0.00.5", "5e-1"},
            {"1e2e3", "1e23"},
            {"100e.5", "1e7"},
            {"1e0.5", "1e5"},
            {"1e00", "1"},
            {"-", "0"},
            {".", "0"},
            {"+.-", "0"},
            {"1e", "1e, refused"},
            {"1e+", "1"},
            {"-k", "0"},
            {"1kQ", "1e3"},
        };
    for (const auto& row : rows) {
        EXPECT_EQ(optimizeExp(row.text), row.normal) << row.text;
    }
}

TEST(NumericText, ChangesToAChosenFactor) {
    const struct {
        const char* text;
        const char* factor;
        const char* result;
    } rows[] = {
        {"15000", "k", "15k"},
        {"150", "k", "0.15k"},
        {"1.5", "k", "0.0015k"},
        {"1.5", "m", "1500m"},
        {"0.0015", "k", "0.0000015k"},
        {"4.7n", "k", "0.0000000000047k"},
        {"1e21", "k", "1000000000000000000k"},
        {"1500", "meg", "0.0015meg"},
        {"1", "u", "1000000u"},
        {"0", "k", "0"},
        {"0", "mil", "0"},
        {"", "k", ""},
        {"1500", "", "1500"},
        {"1500", nullptr, "1500"},
        {"1e30", nullptr, "1e30, refused"},
        {"15000", "K", "15K"}, // the factor is written as given
        {"15000", "kxy", "15kxy"},
        {"1e7", "x", "10x"},
        {"-1500", "m", "-1500000m"},
        {"-150", "k", "-0.15k"},
        {"1e15", "f", "1e15, refused"},
        {"1e5", "f", "100000000000000000000f"},
        {"1e6", "f", "1e6, refused"},
        {"1e32", "T", "100000000000000000000T"},
        {"1e33", "T", "1e33, refused"},
        {"1e-17", "k", "0.00000000000000000001k"},
        {"1e-18", "k", "1e-18, refused"},
        {"1e30", "p", "1e30, refused"},
        {"1e-30", "k", "1e-30, refused"},
        {"1500", "kk", "1500, refused"}, // refused before anything else
        {"1500", "Q", "1500, refused"},
        {"1500", "mxx", "1500, refused"},
        {"1500", "meG", "1500, refused"},
        {"1500", "mega", "1500, refused"},
        {"1500", "e", "1500, refused"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(changeFactor(row.text, row.factor), row.result) << row.text << " in " << row.factor;
    }
}

TEST(NumericText, ThePointAmongDigitsOftenStandsWrong) {
    EXPECT_EQ(changeFactor("1250", "k"), "1.25k");
    EXPECT_EQ(changeFactor("1500", "k"), ".15k");
    EXPECT_EQ(changeFactor("1234", "k"), "12.34k");
    EXPECT_EQ(changeFactor("-1500", "k"), "-.15k");
}

TEST(NumericText, MetresChangeToMils) {
    EXPECT_EQ(changeFactor("254", "mil"), "10000000mil");
    EXPECT_EQ(changeFactor("-254", "mil"), "-10000000mil");
    EXPECT_EQ(changeFactor("0", "mil"), "0");
    EXPECT_EQ(changeFactor("1e40", "mil"), "1e40, refused");
    EXPECT_EQ(changeFactor("10e400", "mil"), "1e401, refused") << "no double holds it";
    EXPECT_EQ(changeFactor("1e-400", "mil"), "0") << "as a double it is zero";
}

TEST(NumericText, MilsHaveTheSeventeenDigitsOfADouble) {
    EXPECT_EQ(changeFactor("25.4u", "mil"), "0.99999999999999995mil");
    EXPECT_EQ(changeFactor("127u", "mil"), "499999999999999.96mil") << "with the point where it often stands";
    std::mt19937 random(3); // the same values in every run
    for (int i = 0; i < 500; ++i) {
        const std::string metres = std::to_string(random()) + "e-" + std::to_string(random() % 16);
        char text[40];
        std::snprintf(text, sizeof text, "%.16e", toDouble(metres) * 0.03937007874015748);
        std::string expected = changeFactor(text, "u"); // a mil is written as a millionth
        EXPECT_EQ(changeFactor(metres, "mil"), expected.replace(expected.find('u'), 1, "mil")) << metres;
    }
}

TEST(NumericText, TheFactorMayStandInTheTextItself) {
    YString value("15000");
    EXPECT_EQ(BexCheckValue::changeFactor(value, YString("k")), 1U);
    ASSERT_EQ(value, "15k");
    EXPECT_EQ(BexCheckValue::changeFactor(value, static_cast<const char*>(value) + 2), 1U);
    EXPECT_EQ(value, "15k");
}

// ---- To a double

TEST(NumericText, ReadsTheNearestDouble) {
    const struct {
        const char* text;
        double value;
    } rows[] = {
        {"", 0.0},        {"0", 0.0},       {"7", 7.0},          {"-7", -7.0},          {"1.5k", 1500.0},
        {"4.7n", 4.7e-9}, {"5mil", 127e-6}, {"1e400", HUGE_VAL}, {"-1e400", -HUGE_VAL}, {"1e-400", 0.0},
        {"0.1", 0.1},     {"1e23", 1e23},   {"1_2", 1.0},        {"1e5k", 1e5},         {"12e", 12.0},
        {"abc", 0.0},     {"1k5", 1.0},     {" 3", 3.0},         {"3Q", 3.0},           {"0x10", 16.0},
        {"0x-1", 0.0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(toDouble(row.text), row.value) << row.text;
    }
    EXPECT_FALSE(std::signbit(toDouble("-0"))) << "zero has no sign";
}

TEST(NumericText, ToDoubleLeavesItsSecondParameterAlone) {
    char end = 'x';
    EXPECT_EQ(BexCheckValue::toDouble("1.5k", &end), 1500.0);
    EXPECT_EQ(end, 'x');
}

TEST(NumericText, ToDoubleKeepsTheValue) {
    const YString value("1.5k");
    EXPECT_EQ(BexCheckValue::toDouble(value, nullptr), 1500.0);
    EXPECT_EQ(value, "1.5k");
}

// ---- Any length

TEST(NumericText, TakesAMillionDigits) {
    const std::string digits(1000000, '7');
    EXPECT_EQ(optimizeExp("00" + digits + "00.000"), digits + "e2");
    EXPECT_EQ(optimizeExp("0.000" + digits + "k"), digits + "e-1000000");
    EXPECT_EQ(changeNum(digits + "e-1"), digits.substr(1) + ".7");
    EXPECT_EQ(changeFactor(digits), digits);
    EXPECT_EQ(changeFactor(digits, "k"), "77." + digits.substr(2) + "k");
    EXPECT_EQ(optimizeExp('1' + std::string(1000000, '0')), "1e1000000");
    EXPECT_EQ(optimizeExp("0." + std::string(1000000, '0') + "1"), "1e-1000001");
    EXPECT_EQ(transExp(std::string(1000000, '9') + "mil"), "253" + std::string(999997, '9') + "746e-7");
}

TEST(NumericText, TakesExponentsOfAnyLength) {
    const std::string nines(1000, '9');
    EXPECT_EQ(optimizeExp("1e" + nines), "1e" + nines);
    EXPECT_EQ(optimizeExp("10e" + nines), "1e1" + std::string(1000, '0'));
    EXPECT_EQ(optimizeExp("0.1e-" + nines), "1e-1" + std::string(1000, '0'));
    EXPECT_EQ(optimizeExp("0.1e1" + std::string(1000, '0')), "1e" + nines);
    EXPECT_EQ(optimizeExp("1e000" + nines), "1e" + nines);
    // As long as fits, and one digit more.
    EXPECT_EQ(optimizeExp("1.5e-99999999999999999"), "15e-100000000000000000");
    EXPECT_EQ(optimizeExp("1.5e-999999999999999999"), "15e-1000000000000000000");
}

TEST(NumericText, TheLimitsHoldForExponentsOfAnyLength) {
    for (const std::string exponent :
         {"e33", "e4294967296", "e-4294967296", "e18446744073709551616", "e-18446744073709551616",
          "e340282366920938463463374607431768211456"}) {
        const std::string refused = '1' + exponent + ", refused";
        EXPECT_EQ(changeNum('1' + exponent), refused);
        EXPECT_EQ(changeFactor('1' + exponent), refused);
        EXPECT_EQ(changeFactor('1' + exponent, "k"), refused);
    }
}

// ---- Against a slow model

// A number as its digits with the place of the point, found by moving texts around.
struct Model {
    std::string digits;
    int exponent = 0;

    Model(std::string whole, const std::string& fraction, int power)
        : digits(whole + fraction),
          exponent(power - static_cast<int>(fraction.size())) {
        while (digits.ends_with('0')) {
            digits.pop_back();
            ++exponent;
        }
        digits.erase(0, digits.find_first_not_of('0'));
        if (digits.empty()) exponent = 0;
    }

    std::string normal() const {
        if (digits.empty()) return "0";
        return exponent == 0 ? digits : digits + 'e' + std::to_string(exponent);
    }

    // Nothing is put in where twenty zeros are not enough.
    std::string plain() const {
        if (digits.empty()) return "0";
        if (exponent > 20 || exponent + static_cast<int>(digits.size()) < -20) return normal() + ", refused";
        if (exponent >= 0) return digits + std::string(static_cast<std::size_t>(exponent), '0');
        std::string text = digits;
        while (static_cast<int>(text.size()) <= -exponent) text.insert(0, 1, '0');
        return text.insert(text.size() - static_cast<std::size_t>(-exponent), 1, '.');
    }

    std::string withFactor() const {
        if (digits.empty()) return "0";
        if (exponent < -15 || exponent > 32) return normal() + ", refused";
        std::string text = digits;
        int left = exponent;
        for (; left > 12 || left % 3 != 0; --left) text += '0';
        const std::string factors = "fpnum kMGT";
        const char factor = factors[static_cast<std::size_t>(left / 3 + 5)];
        return factor == ' ' ? text : text + factor;
    }
};

TEST(NumericText, AgreesWithASlowModel) {
    const struct {
        const char* text;
        int power;
    } powers[] = {{"f", -15},   {"p", -12},    {"n", -9},  {"u", -6},     {"m", -3},
                  {"k", 3},     {"meg", 6},    {"M", 6},   {"x", 6},      {"G", 9},
                  {"T", 12},    {"", 0},       {"e0", 0},  {"e-7", -7},   {"E21", 21},
                  {"e+19", 19}, {"e-20", -20}, {"e08", 8}, {"e-31", -31}, {"E-15", -15}};
    std::mt19937 random(7); // the same values in every run
    const auto digits = [&random](unsigned most) {
        std::string text;
        for (unsigned left = static_cast<unsigned>(random() % (most + 1)); left != 0; --left) {
            text += random() % 2 ? '0' : static_cast<char>('0' + random() % 10);
        }
        return text;
    };
    for (int i = 0; i < 4000; ++i) {
        const std::string whole = digits(12);
        const std::string fraction = digits(12);
        const auto& power = powers[random() % std::size(powers)];
        const std::string text = whole + (fraction.empty() ? "" : '.' + fraction) + power.text;
        const Model model(whole, fraction, power.power);
        EXPECT_EQ(optimizeExp(text), text.empty() ? "" : model.normal()) << text;
        EXPECT_EQ(changeNum(text), text.empty() ? "" : model.plain()) << text;
        EXPECT_EQ(changeFactor(text), text.empty() ? "" : model.withFactor()) << text;
        if (model.normal() != "0") {
            EXPECT_EQ(optimizeExp('-' + text), '-' + model.normal()) << text;
        }
    }
}

TEST(NumericText, TheNormalFormIsItsOwnNormalForm) {
    for (const char* text : {"0", "7", "-7", "15e2", "-15e-400", "127e-6"}) {
        EXPECT_EQ(optimizeExp(text), text);
    }
}

} // namespace
