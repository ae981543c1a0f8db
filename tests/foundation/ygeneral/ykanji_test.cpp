#include "bexa/foundation/ygeneral/ykanji.h"
#include "tests/support/env_guard.h"

#include <gtest/gtest.h>

#include <string>

using bexa::test::EnvGuard;

namespace {

// The classes of all bytes of a text, and of the terminator.
std::string classesOf(const std::string& text) {
    std::string classes;
    for (int i = 0; i <= static_cast<int>(text.size()); ++i) {
        classes += static_cast<char>('0' + YCheckKanji(text.c_str(), i));
    }
    std::string inOneWalk = bexa::detail::kanjiClasses(text);
    for (char& kanjiClass : inOneWalk) kanjiClass = static_cast<char>('0' + kanjiClass);
    EXPECT_EQ(inOneWalk + "0", classes);
    return classes;
}

TEST(YCheckKanji, FollowsShiftJisOutsideEuc) {
    for (const char* locale : {"C", "ja_JP.SJIS"}) {
        const EnvGuard guard("LC_ALL", locale);
        EXPECT_EQ(classesOf("ab"), "000");
        EXPECT_EQ(classesOf("a\x83\x5C"
                            "b"),
                  "01200")
            << "a second byte that looks like a backslash";
        EXPECT_EQ(classesOf("\x83\x83\x83\x83"), "12120") << "a second byte that looks like a first";
        EXPECT_EQ(classesOf("\xB1\xB2x"), "3300") << "half-width kana stands alone";
        EXPECT_EQ(classesOf("\x83"), "00") << "a first byte without a second";
    }
}

TEST(YCheckKanji, FollowsEucInAnEucProcess) {
    const EnvGuard guard("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(classesOf("a\xB0\xA1"
                        "b"),
              "01200");
    EXPECT_EQ(classesOf("\x8E\xB1x"), "3400") << "half-width kana";
    EXPECT_EQ(classesOf("\xFE\xFE\x8E\xDF"), "12340");
    EXPECT_EQ(classesOf("\x81\x40"), "000");
}

TEST(YCheckKanji, IsNothingOutsideTheText) {
    EXPECT_EQ(YCheckKanji(nullptr, 0), 0);
    EXPECT_EQ(YCheckKanji("a", -1), 0);
    EXPECT_EQ(YCheckKanji("\x83\x5C", 3), 0);
}

TEST(PairConversion, GivesTwoBytesAndNoTerminator) {
    char out[3] = {'x', 'x', 'x'};
    EXPECT_EQ(Ysjistoeuc("\x88\x9F", out), 2);
    EXPECT_EQ(std::string(out, 3), "\xB0\xA1x");
    EXPECT_EQ(Yeuctosjis("\xB0\xA1", out), 2);
    EXPECT_EQ(std::string(out, 3), "\x88\x9Fx");
}

TEST(PairConversion, RefusesWhatIsNoPair) {
    char out[2] = {'x', 'x'};
    for (const char* text :
         {"", "a", "ab", "\x81", "\x81\x3F", "\x81\x7F", "\x81\xFD", "\xA0\x40", "\xF0\x40"}) {
        EXPECT_EQ(Ysjistoeuc(text, out), -1) << text;
    }
    for (const char* text : {"", "a", "\xA1", "\xA1\xA0", "\xA1\xFF", "\xA0\xA1", "\x8E\xB1", "\xFF\xA1"}) {
        EXPECT_EQ(Yeuctosjis(text, out), -1) << text;
    }
    EXPECT_EQ(Yeuctosjis(nullptr, out), -1);
    EXPECT_EQ(Ysjistoeuc("\x88\x9F", nullptr), -1);
    EXPECT_EQ(std::string(out, 2), "xx") << "untouched";
}

TEST(YeuctosjisStr, ConvertsAWholeText) {
    char out[16];
    EXPECT_EQ(YeuctosjisStr("a\xB0\xA1\x8E\xB1z", out), 5);
    EXPECT_STREQ(out, "a\x88\x9F\xB1z");
    EXPECT_EQ(YeuctosjisStr("", out), 0);
    EXPECT_STREQ(out, "");
}

TEST(YeuctosjisStr, KeepsWhatHasNoCounterpart) {
    char out[16];
    EXPECT_EQ(YeuctosjisStr("a\xA1\x7Fz", out), -1);
    EXPECT_STREQ(out, "a\xA1\x7Fz");
    EXPECT_EQ(YeuctosjisStr("z\xB0", out), -1) << "half a pair";
    EXPECT_STREQ(out, "z\xB0");
    EXPECT_EQ(YeuctosjisStr(nullptr, out), -1);
}

} // namespace
