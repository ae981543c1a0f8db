#include "bexa/foundation/ygeneral/yglob.h"

#include "tests/support/fresh_process.h"

#include <gtest/gtest.h>

#include <string>

using bexa::test::startedInLocale;

namespace {

struct Row {
    const char* pattern;
    const char* text;
    bool matches;
};

TEST(YGlob, MatchesWholeTexts) {
    const Row rows[] = {
        {"abc", "abc", true}, {"abc", "abcd", false},   {"abc", "ab", false},      {"", "", true},
        {"", "a", false},     {"abc", "ABC", false},    {nullptr, "", true},       {nullptr, "a", false},
        {"*", "", true},      {"*", nullptr, true},     {"?", nullptr, false},     {"*", "anything", true},
        {"R*", "R12", true},  {"R*", "R", true},        {"R*", "AR", false},       {"*R*", "xRy", true},
        {"*R*", "xy", false}, {"a*b*c", "a1b2c", true}, {"a*b*c", "a1c2b", false}, {"**", "x", true},
        {"*ab", "aab", true}, {"*aab", "aaaab", true},  {"a*a", "a", false},       {"a*a", "aa", true},
        {"?", "x", true},     {"?", "", false},         {"?", "xy", false},        {"a?c", "abc", true},
        {"?*", "", false},    {"*?", "xy", true},       {"*.[ch]", "a.c", true},   {"*.[ch]", "a.o", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(YGlob(row.pattern) == row.text, row.matches)
            << (row.pattern ? row.pattern : "null") << " on " << (row.text ? row.text : "null");
    }
}

TEST(YGlob, BracketsTakeOneOfACharacterSet) {
    const Row rows[] = {
        {"[abc]", "b", true},  {"[abc]", "d", false}, {"[abc]", "", false},    {"[a-c]", "b", true},
        {"[a-c]", "-", false}, {"[a-]", "-", true},   {"[-a]", "-", true},     {"[c-a]", "b", false},
        {"[!a]", "b", true},   {"[!a]", "a", false},  {"[!a]", "", false},     {"[!a-c]", "b", false},
        {"[a!]", "!", true},   {"[]a]", "]", true},   {"[!]a]", "]", false},   {"[!]a]", "b", true},
        {"[*]", "*", true},    {"[*]", "x", false},   {"[a-cx-z]", "y", true}, {"[a-cx-z]", "m", false},
        {"[\\]]", "]", true},  {"[\\!a]", "!", true}, {"x[1]y", "x1y", true},  {"[a-z]*[0-9]", "ab7", true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(YGlob(row.pattern) == row.text, row.matches) << row.pattern << " on " << row.text;
    }
}

TEST(YGlob, BracketsThatNothingClosesAreOrdinaryCharacters) {
    const Row rows[] = {
        {"[abc", "[abc", true}, {"[abc", "a", false}, {"[", "[", true},     {"[]", "[]", true},
        {"[!]", "[!]", true},   {"a]", "a]", true},   {"[a-", "[a-", true}, {"[*", "[xyz", true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(YGlob(row.pattern) == row.text, row.matches) << row.pattern << " on " << row.text;
    }
}

TEST(YGlob, ABackslashTakesTheMeaningAway) {
    const Row rows[] = {
        {"\\*", "*", true},     {"\\*", "x", false},  {"a\\?", "a?", true}, {"a\\?", "ab", false},
        {"\\[a]", "[a]", true}, {"\\\\", "\\", true}, {"a\\", "a\\", true}, {"\\a", "a", true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(YGlob(row.pattern) == row.text, row.matches) << row.pattern << " on " << row.text;
    }
}

TEST(YGlob, ManyStarsCostNoMoreThanTheLengthsMultiplied) {
    std::string pattern;
    for (int i = 0; i < 100; ++i) {
        pattern += "*a";
    }
    pattern += "*b";
    EXPECT_FALSE(YGlob(pattern.c_str()) == std::string(20000, 'a').c_str());
}

TEST(YGlob, ADoubleByteCharacterIsOneCharacter) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    const Row rows[] = {
        {"?", "\x83\x5C", true}, // one character, its second byte that of a backslash
        {"??", "\x83\x5C", false},
        {"\x83\x5C*",
         "\x83\x5C"
         "a",
         true}, // no escape of the star
        {"\x83\x5B"
         "a]",
         "\x83\x5B"
         "a]",
         true}, // no bracket
        {"[\x83\x5C]", "\x83\x5C", true},
        {"[\x83\x5C]", "\\", false},
        {"[\x82\xA0-\x82\xF1]", "\x82\xB1", true}, // a range of kana
        {"[\x82\xA0-\x82\xF1]", "\x83\x41", false},
        {"[!a]", "\x82\xA0", true},
        {"*\x41", "\x83\x41", false}, // the letter A is no second byte
    };
    for (const Row& row : rows) {
        EXPECT_EQ(YGlob(row.pattern) == row.text, row.matches) << row.pattern << " on " << row.text;
    }
}

} // namespace
