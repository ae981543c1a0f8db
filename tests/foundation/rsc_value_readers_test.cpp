#include "bexa/foundation/rsc_value_readers.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

using namespace bexa::detail;

namespace {

YioRscLoad readerOf(const std::string& text) {
    YioRscLoad reader = YioRscLoad::ofBytes("key" + text, YioRscSjis, YioRscSjis);
    reader.next(keySize);
    return reader;
}

TEST(NumberOf, ReadsAsTheCLibraryDoes) {
    const struct {
        const char* text;
        int number;
    } rows[] = {
        {"12", 12},
        {"-12", -12},
        {"+12", 12},
        {" \t\n\v\f\r7", 7},
        {"7x", 7},
        {"x7", 0},
        {"", 0},
        {"-", 0},
        {"--1", 0},
        {"+-1", 0},
        {"- 1", 0},
        {"007", 7},
        {"0x10", 0},
        {"1.9", 1},
        {"2147483647", INT_MAX},
        {"-2147483648", INT_MIN},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(numberOf(row.text), row.number) << row.text;
        EXPECT_EQ(numberOf(row.text), std::atoi(row.text)) << row.text;
    }
}

TEST(NumberOf, Saturates) {
    EXPECT_EQ(numberOf("2147483648"), INT_MAX);
    EXPECT_EQ(numberOf("-2147483649"), INT_MIN);
    EXPECT_EQ(numberOf(std::string(1000, '9')), INT_MAX);
    EXPECT_EQ(numberOf("-" + std::string(1000, '9')), INT_MIN);
    EXPECT_EQ(numberOf(std::string(1000, '0') + "5"), 5);
}

TEST(RealOf, ReadsAsTheCLibraryDoes) {
    for (const char* text : {"0.5",
                             "-0.5",
                             "+.5",
                             "5.",
                             " 1e3",
                             "1e-3",
                             "1E+3",
                             "1e",
                             "1e+",
                             ".",
                             "",
                             "x",
                             "-",
                             "--1",
                             "-+1",
                             "+-1",
                             "0x10",
                             "0x1p4",
                             "-0x.8",
                             "0xg",
                             "0x",
                             "1.5.5",
                             "1,5",
                             "12abc",
                             "inf",
                             "-Infinity",
                             "infx",
                             "1e308",
                             "1e309",
                             "-1e309",
                             "1e-400",
                             "-1e-400",
                             "5e-324",
                             "0e999999",
                             "0.0001e312",
                             "100000e304",
                             "1000000e-400",
                             "0x1p99999",
                             "0x1p-99999",
                             "1e99999999999",
                             "1e-99999999999",
                             "0.00000000000000000001e320",
                             "0x-1",
                             "-0x-e",
                             "0x+1",
                             "0xinf",
                             "0xnan",
                             "0x.p1",
                             "0X.F",
                             "0x1p",
                             "0x1p-1074",
                             "0x1p99999 -",
                             "-0x1P99999-1",
                             "0xfp+-1",
                             "0x1e5"}) {
        const double expected = std::atof(text);
        EXPECT_EQ(realOf(text), expected) << text;
        EXPECT_EQ(std::signbit(realOf(text)), std::signbit(expected)) << text;
    }
    EXPECT_TRUE(std::isnan(realOf("nan")));
}

TEST(RealOf, TellsWhatIsTooLargeFromWhatIsTooSmall) {
    const std::string zeros(2000, '0');
    const std::string texts[] = {
        "1" + zeros,
        "0." + zeros + "1",
        "1" + zeros + "e-1",
        "0." + zeros + "1e1",
        "1" + zeros + "e -9999", // the exponent has no blank, so there is none
        "0x1" + zeros,
        "0x." + zeros + "1",
        "0x1" + zeros + "p-1",
        "0x." + zeros + "1p1",
        "0x." + zeros + "1p8004",
        "-0x1" + zeros + "p-8000",
    };
    for (const std::string& text : texts) {
        const double expected = std::atof(text.c_str());
        EXPECT_EQ(realOf(text), expected) << text.substr(0, 4) << "..." << text.substr(text.size() - 6);
        EXPECT_EQ(std::signbit(realOf(text)), std::signbit(expected)) << text;
    }
}

TEST(RealOf, DoesNotHeedTheLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "fr_FR.UTF-8"}) std::setlocale(LC_NUMERIC, locale);
    EXPECT_EQ(realOf("1.5"), 1.5);
    EXPECT_EQ(realOf("1,5"), 1.0);
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(ValueReaders, ReadTheValueBehindAColon) {
    int number = 7;
    YioRscLoad reader = readerOf(" : -12\n");
    EXPECT_TRUE(loadInt(reader, number));
    EXPECT_EQ(number, -12);

    unsigned count = 7;
    reader = readerOf(" : 12\n");
    EXPECT_TRUE(loadUint(reader, count));
    EXPECT_EQ(count, 12u);

    char character = '7';
    reader = readerOf(" : \"[x\"\n");
    EXPECT_TRUE(loadChar(reader, character));
    EXPECT_EQ(character, '[');
    reader = readerOf(" : \"\"\n");
    EXPECT_TRUE(loadChar(reader, character));
    EXPECT_EQ(character, '\0') << "an empty value";

    double real = 7;
    reader = readerOf(" : 0.25\n");
    EXPECT_TRUE(loadFloat(reader, real));
    EXPECT_EQ(real, 0.25);

    char text[8];
    reader = readerOf(" : \"a b\"\n");
    EXPECT_TRUE(loadString(reader, text, sizeof text));
    EXPECT_STREQ(text, "a b");
}

TEST(ValueReaders, GiveUpAtTheFirstWrongToken) {
    for (const char* text : {"", " 1", " 1 {", " { 1 }", " other : 1", " \"1\"", " :", " : \"open\n"}) {
        int number = 7;
        unsigned count = 7;
        char character = '7';
        double real = 7;
        char string[8] = "7";
        std::string_view view = "7";
        EXPECT_FALSE(loadInt(*std::make_unique<YioRscLoad>(readerOf(text)), number)) << text;
        EXPECT_FALSE(loadUint(*std::make_unique<YioRscLoad>(readerOf(text)), count)) << text;
        EXPECT_FALSE(loadChar(*std::make_unique<YioRscLoad>(readerOf(text)), character)) << text;
        EXPECT_FALSE(loadFloat(*std::make_unique<YioRscLoad>(readerOf(text)), real)) << text;
        EXPECT_FALSE(loadString(*std::make_unique<YioRscLoad>(readerOf(text)), string, sizeof string))
            << text;
        EXPECT_FALSE(loadText(*std::make_unique<YioRscLoad>(readerOf(text)), view)) << text;
        EXPECT_EQ(number, 7);
        EXPECT_EQ(count, 7u);
        EXPECT_EQ(character, '7');
        EXPECT_EQ(real, 7.0);
        EXPECT_STREQ(string, "7");
        EXPECT_EQ(view, "7");
    }
}

TEST(ValueReaders, AskForTheValueOnlyBehindAColon) {
    YioRscLoad reader = readerOf(" other : 1\n");
    int number = 0;
    EXPECT_FALSE(loadInt(reader, number));
    EXPECT_TRUE(loadInt(reader, number)) << "only the wrong token is gone";
    EXPECT_EQ(number, 1);
}

TEST(ValueReaders, TakeAnyTextForANumber) {
    int number = 7;
    double real = 7;
    YioRscLoad reader = readerOf(" : word\n");
    EXPECT_TRUE(loadInt(reader, number));
    EXPECT_EQ(number, 0);
    reader = readerOf(" : word\n");
    EXPECT_TRUE(loadFloat(reader, real));
    EXPECT_EQ(real, 0.0);
}

TEST(ValueReaders, CutANumberTo35Bytes) {
    int number = 0;
    YioRscLoad reader = readerOf(" : " + std::string(34, '0') + "56\n");
    EXPECT_TRUE(loadInt(reader, number));
    EXPECT_EQ(number, 5);
}

TEST(LoadUint, RefusesANegativeNumber) {
    unsigned count = 7;
    YioRscLoad reader = readerOf(" : -1\n");
    EXPECT_FALSE(loadUint(reader, count));
    EXPECT_EQ(count, 7u);
    reader = readerOf(" : -0\n");
    EXPECT_TRUE(loadUint(reader, count));
    EXPECT_EQ(count, 0u);
}

TEST(LoadString, RefusesWhatTheBufferDoesNotHold) {
    char text[4] = "###";
    YioRscLoad reader = readerOf(" : abcd\n");
    EXPECT_FALSE(loadString(reader, text, 4));
    EXPECT_STREQ(text, "###");
    reader = readerOf(" : abc\n");
    EXPECT_TRUE(loadString(reader, text, 4));
    EXPECT_STREQ(text, "abc");
    reader = readerOf(" : \"\"\n");
    EXPECT_FALSE(loadString(reader, text, 0)) << "not even the terminator fits";
    EXPECT_STREQ(text, "abc");
}

TEST(LoadString, CutsAValueTo1023Bytes) {
    char text[2000];
    YioRscLoad reader = readerOf(" : " + std::string(1500, 'x') + "\n");
    EXPECT_TRUE(loadString(reader, text, sizeof text));
    EXPECT_EQ(std::string(text), std::string(1023, 'x'));
}

TEST(LoadTableHead, WantsExactlyItsColumns) {
    const struct {
        const char* text;
        bool good;
    } rows[] = {
        {" 3 {", true},  {" 003 {", true}, {" 2 {", false},  {" 3", false},   {" {", false},
        {" 3 }", false}, {" : 3", false},  {" 30 {", false}, {" x {", false}, {" \"3\" {", false},
    };
    for (const auto& row : rows) {
        YioRscLoad reader = readerOf(row.text);
        EXPECT_EQ(loadTableHead(reader, 3, 10), row.good) << row.text;
    }
}

TEST(LoadCell, TakesOneCell) {
    YioRscLoad reader = readerOf(" { 12 0.5 \"abc\" x }");
    reader.next(10);
    int number = 0;
    double real = 0;
    std::string_view text;
    EXPECT_TRUE(loadCell(reader, number, 36));
    EXPECT_TRUE(loadCell(reader, real, 36));
    EXPECT_TRUE(loadCell(reader, text, 3));
    EXPECT_EQ(number, 12);
    EXPECT_EQ(real, 0.5);
    EXPECT_EQ(text, "ab") << "cut to its room";
    EXPECT_TRUE(loadCell(reader, number, 36));
    EXPECT_FALSE(loadCell(reader, number, 36)) << "the table is at its end";
}

} // namespace
