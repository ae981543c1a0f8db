#include "bexa/foundation/ymessage/message_format.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

std::string formatted(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::string text = bexa::detail::formatMessage(format, arguments);
    va_end(arguments);
    return text;
}

TEST(MessageFormat, FillsInArguments) {
    EXPECT_EQ(formatted("no argument"), "no argument");
    EXPECT_EQ(formatted(""), "");
    EXPECT_EQ(formatted("%s of %d", "one", 2), "one of 2");
    EXPECT_EQ(formatted("%u %x %c %f %%", 4000000000U, 255U, 'c', 1.5), "4000000000 ff c 1.500000 %");
    EXPECT_EQ(formatted("%ld %lu %lx %lf", LONG_MIN, ULONG_MAX, 255UL, 0.25),
              std::to_string(LONG_MIN) + ' ' + std::to_string(ULONG_MAX) + " ff 0.250000");
    EXPECT_EQ(formatted("%lc%ls", static_cast<wint_t>(L'a'), L"bc"), "abc");
}

TEST(MessageFormat, KnowsFlagsWidthAndPrecision) {
    EXPECT_EQ(formatted("[%5d|%-5d|%05d|%+d|% d]", 42, 42, 42, 42, 42), "[   42|42   |00042|+42| 42]");
    EXPECT_EQ(formatted("[%5s|%-5s|%.2s]", "abc", "abc", "abc"), "[  abc|abc  |ab]");
    EXPECT_EQ(formatted("[%8.3f|%.0f|%.f|%#x|%.3d]", 3.14159, 2.5, 3.5, 16U, 7), "[   3.142|2|4|0x10|007]");
    EXPECT_EQ(formatted("[%3c|%-3c]", 'a', 'b'), "[  a|b  ]");
}

TEST(MessageFormat, PassesOverWhatAConversionHasNoUseFor) {
    EXPECT_EQ(formatted("[%#d|%.3c|%05s|%+u]", 1, 'c', "s", 2U), "[1|c|    s|2]");
}

TEST(MessageFormat, PrintsAnyOtherConversionAsItStands) {
    const char* const others[] = {"%n",   "%p",  "%i",  "%o",   "%X",   "%e",    "%g",    "%*d",
                                  "%lld", "%hd", "%zu", "%1$s", "%-5q", "%",     "100 %", "%5",
                                  "%.",   "%l",  "%L",  "% ",   "%-",   "%.5.5d"};
    for (const char* other : others) {
        EXPECT_EQ(formatted(other), other);
    }
    // It takes no argument either.
    EXPECT_EQ(formatted("%n %q %d", 5), "%n %q 5");
    EXPECT_EQ(formatted("%%d"), "%d");
    EXPECT_EQ(formatted("%-%d %d", 5), "%-%d 5");
}

TEST(MessageFormat, ANullTextPrintsNothing) {
    EXPECT_EQ(formatted("[%s|%3s|%ls]", static_cast<const char*>(nullptr), static_cast<const char*>(nullptr),
                        static_cast<const wchar_t*>(nullptr)),
              "[|   |]");
}

TEST(MessageFormat, HugeWidthsAreCut) {
    EXPECT_EQ(formatted("%999999999999d", 1), std::string(1022, ' ') + "1");
    EXPECT_EQ(formatted("%.999999999999d", 1), std::string(1022, '0') + "1");
    EXPECT_EQ(formatted("%s", std::string(100000, 'x').c_str()), std::string(100000, 'x'));
}

} // namespace
