#include "tools/bexa/text_coding.h"

#include "tests/support/env_guard.h"

#include <gtest/gtest.h>

#include <string>

namespace tool {
namespace {

using bexa::test::EnvGuard;

struct Row {
    std::string bytes;
    Coding coding;
    std::string utf8;
};

TEST(TextCoding, EveryTextBecomesWellFormedUtf8) {
    const std::string bad = "\xEF\xBF\xBD";
    const Row rows[] = {
        {"", Coding::ShiftJis, ""},
        {"plain \\ ~", Coding::ShiftJis, "plain \\ ~"},
        {"\x92\xEF\x8D\x52", Coding::ShiftJis, "抵抗"},
        {"\x95\x5C|", Coding::ShiftJis, "表|"}, // a second byte that looks like a backslash
        {"\xBD\xB2\xAF\xC1", Coding::ShiftJis, "ｽｲｯﾁ"},
        {"\xC4\xF1\xB9\xB3", Coding::Euc, "抵抗"},
        {"\x8E\xBD\x8E\xB2", Coding::Euc, "ｽｲ"},
        {"A\x95", Coding::ShiftJis, "A" + bad}, // half a character at the end
        {"\x81\x20Z", Coding::ShiftJis, bad + " Z"},
        {"\xFF\xFD", Coding::ShiftJis, bad + bad},
        {"\xC3\xA9", Coding::Utf8, "é"},
        {"\xC0\x80", Coding::Utf8, bad + bad},           // a longer form than needed
        {"\xED\xA0\x80", Coding::Utf8, bad + bad + bad}, // half of a pair of another coding
        {"\xF4\x90\x80\x80", Coding::Utf8, bad + bad + bad + bad},
        {"\xE8\xA1", Coding::Utf8, bad + bad},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(toUtf8(row.bytes, row.coding), row.utf8);
        EXPECT_TRUE(isUtf8(toUtf8(row.bytes, row.coding)));
    }
}

TEST(TextCoding, WhatComesBackAsItWasGoesIntoAnotherCoding) {
    EXPECT_EQ(fromUtf8("", Coding::ShiftJis), "");
    EXPECT_EQ(fromUtf8("表 A ｽ", Coding::ShiftJis), "\x95\x5C A \xBD");
    EXPECT_EQ(fromUtf8("抵抗ｽ", Coding::Euc), "\xC4\xF1\xB9\xB3\x8E\xBD");
    EXPECT_EQ(fromUtf8("é", Coding::ShiftJis), std::nullopt);
    EXPECT_EQ(fromUtf8("丂", Coding::Euc), std::nullopt) << "three bytes there";
    EXPECT_EQ(fromUtf8("A\xE8\xA1", Coding::ShiftJis), std::nullopt) << "half a character";
    EXPECT_EQ(fromUtf8("\xF0\x9F\x98\x80", Coding::Euc), std::nullopt);
}

TEST(TextCoding, WidthIsThatOfATerminal) {
    EXPECT_EQ(displayWidth("", Coding::Utf8), 0U);
    EXPECT_EQ(displayWidth("abc", Coding::Utf8), 3U);
    EXPECT_EQ(displayWidth("抵抗R", Coding::Utf8), 5U);
    EXPECT_EQ(displayWidth("ｽｲｯﾁ", Coding::Utf8), 4U);
    EXPECT_EQ(displayWidth("e\xCC\x81", Coding::Utf8), 1U);
    EXPECT_EQ(displayWidth("\x92\xEF\xB1", Coding::ShiftJis), 3U);
    EXPECT_EQ(displayWidth("\xC4\xF1\x8E\xB1", Coding::Euc), 3U);
}

TEST(TextCoding, ControlCharactersAreShownAsCodes) {
    EXPECT_EQ(printable("a\x1B[2J\n\x7F", Coding::Utf8), "a\\x1b[2J\\x0a\\x7f");
    EXPECT_EQ(printable("\xC2\x9B", Coding::Utf8), "\\x9b");
    EXPECT_EQ(printable("\xFF", Coding::Utf8), "\\xff");
    EXPECT_EQ(printable("\x92\xEF\t", Coding::ShiftJis), "\x92\xEF\\x09");
}

TEST(TextCoding, TheFirstLocaleVariableThatIsSetCounts) {
    const EnvGuard all("LC_ALL", std::nullopt);
    const EnvGuard ctype("LC_CTYPE", "");
    const EnvGuard lang("LANG", "de_DE.UTF-8");
    EXPECT_EQ(terminalCoding(), Coding::Utf8);
    lang.set("C.utf8");
    EXPECT_EQ(terminalCoding(), Coding::Utf8);
    ctype.set("ja_JP.eucJP");
    EXPECT_EQ(terminalCoding(), Coding::Euc);
    all.set("C");
    EXPECT_EQ(terminalCoding(), Coding::ShiftJis);
    all.set("ja_JP.UTF-8@x");
    EXPECT_EQ(terminalCoding(), Coding::Utf8);
}

TEST(TextCoding, NoLocaleKeepsTheBytes) {
    const EnvGuard all("LC_ALL", std::nullopt);
    const EnvGuard ctype("LC_CTYPE", std::nullopt);
    const EnvGuard lang("LANG", std::nullopt);
    EXPECT_EQ(terminalCoding(), Coding::ShiftJis);
}

} // namespace
} // namespace tool
