#include "bexa/foundation/yrsc/token_reader.h"
#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace bexa::test;

namespace {

constexpr unsigned roomy = 1024;

// One sign for each type: k)eyword, c)ount, v)alue, ":", "{", "}", "." for the end, "!" for an invalid token.
char signOf(YioRscLoad::Type type) {
    constexpr std::string_view signs = "!.kc{}  :v";
    return signs[static_cast<std::size_t>(type)];
}

// All tokens of a text, with their texts where those say something: "k<key> : v<value> ."
std::string tokensOf(YioRscLoad reader) {
    std::string tokens;
    for (;;) {
        const auto [type, text] = reader.next(roomy);
        tokens += signOf(type);
        if (type == YioRscLoad::TypeEnd || type == YioRscLoad::TypeInvalid) return tokens;
        const bool says = signOf(type) >= 'a' && signOf(type) <= 'z';
        if (says) tokens += "<" + std::string(text) + ">";
        tokens += ' ';
    }
}

std::string tokensOf(std::string_view text, YioRscJCoding file = YioRscSjis,
                     YioRscJCoding local = YioRscSjis) {
    return tokensOf(YioRscLoad::ofBytes(std::string(text), file, local));
}

struct Row {
    const char* text;
    const char* tokens;
    const char* meaning;
};

void check(std::initializer_list<Row> rows) {
    for (const Row& row : rows) EXPECT_EQ(tokensOf(row.text), row.tokens) << row.meaning << ": " << row.text;
}

TEST(TokenReader, ReadsEntries) {
    check({
        {"", ".", "an empty file"},
        {" \t\r\n\v\f\n", ".", "white space only"},
        {"key : value\n", "k<key> : v<value> .", "an entry"},
        {"key:value", "k<key> : v<value> .", "a colon ends a key"},
        {"key : a:b{c}\n", "k<key> : v<a:b{c}> .", "a bare value runs to white space"},
        {"key : \"a b: {c} # d\"\n", "k<key> : v<a b: {c} # d> .", "a quoted value"},
        {"key : \"\"\n", "k<key> : v<> .", "an empty quoted value"},
        {"key : \"a\\\" \n", "k<key> : v<a\\> .", "a backslash is an ordinary byte"},
        {"key : -1 \r\nkey : 2\r\n", "k<key> : v<-1> k<key> : v<2> .", "CR LF"},
        {"a : 1\nb : 2", "k<a> : v<1> k<b> : v<2> .", "the last line without its end"},
        {"a : 1 b\n", "k<a> : v<1> k<b> .", "one value to a colon"},
        {"a : 1 : 2\n", "k<a> : v<1> : v<2> .", "a colon is always followed by a value"},
        {"\"a\" b\n", "v<a> k<b> .", "a quoted text at entry level is no key"},
        {"a\"b c#d\n", "k<a\"b> k<c#d> .", "quotes and comments begin a token or are none"},
        {"a : b\"c d\"\n", "k<a> : v<b\"c> k<d\"> .", "also in a value"},
    });
}

TEST(TokenReader, ReadsAValueFromTheLineOfItsColonOnly) {
    check({
        {"a :\nb : 1\n", "k<a> : v<> k<b> : v<1> .", "an empty value doesn't swallow the next key"},
        {"a : \t\r\nb", "k<a> : v<> k<b> .", "the same with CR LF"},
        {"a : # none\nb", "k<a> : v<> k<b> .", "a comment instead of the value"},
        {"a :", "k<a> : .", "a file that breaks off behind a colon"},
        {"a\n: 1\n", "k<a> : v<1> .", "a colon may stand on the next line"},
    });
}

TEST(TokenReader, ReadsTables) {
    check({
        {"t 2 {\n\t0\t\"a b\"\n}\n", "k<t> c<2> { v<0> v<a b> } .", "a table"},
        {"t 2{0 a}u 1{}", "k<t> c<2> { v<0> v<a> } k<u> c<1> { } .", "braces end bare words"},
        {"t { a : b}", "k<t> { v<a> v<:> v<b> } .", "in a table a colon ends nothing"},
        {"t {a:b 3}", "k<t> { v<a:b> v<3> } .", "nor inside a word"},
        {"t\n12\n{\n}", "k<t> c<12> { } .", "line ends carry no meaning"},
        {"t 1 2 {", "k<t> c<1> k<2> { .", "only the number directly behind a key is a count"},
        {"12 3 {", "k<12> c<3> { .", "a number may be a key"},
        {"t -1 {", "k<t> k<-1> { .", "a sign makes no count"},
        {"t 1x {", "k<t> k<1x> { .", "nor do letters"},
        {"t 1 : a", "k<t> c<1> : v<a> .", "a colon behind a count"},
        {"t { { a }", "k<t> { { v<a> } .", "a brace too many is a token like any other"},
        {"} a", "} k<a> .", "the same outside a table"},
        {"t { a", "k<t> { v<a> .", "a file that breaks off in a table"},
    });
}

TEST(TokenReader, SkipsCommentsEverywhere) {
    check({
        {"# one\n  # two\na : 1 # three\n#", "k<a> : v<1> .", "before, behind and at the end"},
        {"t # x\n 2 # y\n { # z {\n 0 # } \n}", "k<t> c<2> { v<0> } .", "in a table"},
        {"a : \"#\"\n", "k<a> : v<#> .", "not in quotes"},
        {"a : x#y\n", "k<a> : v<x#y> .", "not inside a word"},
        {"# \"\na", "k<a> .", "a quote in a comment opens nothing"},
    });
}

TEST(TokenReader, GivesNothingBehindAnInvalidToken) {
    check({
        {"a : \"open\nb : 1\n", "k<a> : !", "a quote left open at the line end"},
        {"a : \"open", "k<a> : !", "and at the end of the file"},
        {"t { \"a\" \"b }\n", "k<t> { v<a> !", "and in a table"},
        {"\"a", "!", "and at entry level"},
    });
    YioRscLoad reader = YioRscLoad::ofBytes("\"a\nb : 1\n", YioRscSjis, YioRscSjis);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(reader.next(roomy).type, YioRscLoad::TypeInvalid);
}

TEST(TokenReader, TakesANulByteForABinaryFile) {
    using namespace std::string_view_literals;
    EXPECT_EQ(tokensOf("\0"sv), "!");
    EXPECT_EQ(tokensOf("a\0b"sv), "!");
    EXPECT_EQ(tokensOf("a : b\0"sv), "k<a> : !");
    EXPECT_EQ(tokensOf("a : \0"sv), "k<a> : !");
    EXPECT_EQ(tokensOf("a : \"b\0c\""sv), "k<a> : !");
    EXPECT_EQ(tokensOf("t { a\0 }"sv), "k<t> { !");
    EXPECT_EQ(tokensOf("a # \0\n b"sv), "k<a> !");
}

TEST(TokenReader, SaysTheEndAgainAndAgain) {
    YioRscLoad reader = YioRscLoad::ofBytes("a", YioRscSjis, YioRscSjis);
    EXPECT_EQ(reader.next(roomy).type, YioRscLoad::TypeKeyword);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(reader.next(roomy).type, YioRscLoad::TypeEnd);
}

TEST(TokenReader, NeverTakesASecondByteForAMark) {
    check({
        {"k : \"\x83\x5C\"\n", "k<k> : v<\x83\x5C> .", "backslash"},
        {"t {\x83\x7B \x83\x7D}", "k<t> { v<\x83\x7B> v<\x83\x7D> } .", "braces"},
        {"\x83\x7B\x83\x7D : 1", "k<\x83\x7B\x83\x7D> : v<1> .", "braces in a key"},
        {"k : \xB1\xB2\xDE\n", "k<k> : v<\xB1\xB2\xDE> .", "half-width kana"},
        {"k : \"\x83\"\nb", "k<k> : v<\x83> k<b> .", "a lead byte without its second stands alone"},
        {"k : \x83\nb", "k<k> : v<\x83> k<b> .", "at a line end too"},
        {"k : \x83", "k<k> : v<\x83> .", "and at the end"},
    });
    EXPECT_EQ(tokensOf("t {\xB0\xA1}", YioRscEuc, YioRscEuc), "k<t> { v<\xB0\xA1> } .");
    EXPECT_EQ(tokensOf("t {\x83}", YioRscEuc, YioRscEuc), "k<t> { v<\x83> } .") << "no lead byte of EUC";
}

TEST(TokenReader, ConvertsToTheCodingOfTheProcess) {
    EXPECT_EQ(tokensOf("\x88\x9F : \"\x83\x5C\xB1\"", YioRscSjis, YioRscEuc),
              "k<\xB0\xA1> : v<\xA5\xBD\x8E\xB1> .");
    EXPECT_EQ(tokensOf("\xB0\xA1 : \"\xA5\xBD\x8E\xB1\"", YioRscEuc, YioRscSjis),
              "k<\x88\x9F> : v<\x83\x5C\xB1> .");
    EXPECT_EQ(tokensOf("k : a\xFC\x40z", YioRscSjis, YioRscEuc), "k<k> : v<a\xFC\x40z> .")
        << "no counterpart";
    EXPECT_EQ(tokensOf("k : a\xB0\x7Ez\x8E", YioRscEuc, YioRscSjis), "k<k> : v<a\xB0\x7Ez\x8E> .");
}

TEST(TokenReader, CutsATokenToTheBuffer) {
    const struct {
        const char* text;
        unsigned size;
        const char* token;
    } rows[] = {
        {"abcdef", 7, "abcdef"},
        {"abcdef", 6, "abcde"},
        {"abcdef", 2, "a"},
        {"abcdef", 1, ""},
        {"a\x83\x5C"
         "b",
         3, "a"},
        {"a\x83\x5C"
         "b",
         4, "a\x83\x5C"},
        {"\x83\x83\x83\x83", 4, "\x83\x83"},
    };
    for (const auto& row : rows) {
        char buffer[9] = "########";
        YioRscLoad reader = YioRscLoad::ofBytes(std::string(row.text) + " next", YioRscSjis, YioRscSjis);
        EXPECT_EQ(reader.get(buffer, row.size), YioRscLoad::TypeKeyword);
        EXPECT_STREQ(buffer, row.token) << row.text;
        EXPECT_EQ(buffer[row.size], row.size < 8 ? '#' : '\0') << "not a byte more";
        EXPECT_EQ(reader.next(roomy).text, "next") << "the rest is skipped";
    }
}

TEST(TokenReader, CutsBehindTheConversion) {
    YioRscLoad reader = YioRscLoad::ofBytes("\xB1\xB2\xB3", YioRscSjis, YioRscEuc);
    EXPECT_EQ(reader.next(6).text, "\x8E\xB1\x8E\xB2");
}

TEST(TokenReader, WritesNothingIntoABufferOfSizeZero) {
    char buffer[] = "#";
    YioRscLoad reader = YioRscLoad::ofBytes("abc", YioRscSjis, YioRscSjis);
    EXPECT_EQ(reader.get(buffer, 0), YioRscLoad::TypeKeyword);
    EXPECT_STREQ(buffer, "#");
}

TEST(TokenReader, EmptiesTheBufferWhereTheTokenHasNoText) {
    char buffer[] = "###";
    YioRscLoad reader = YioRscLoad::ofBytes("", YioRscSjis, YioRscSjis);
    EXPECT_EQ(reader.get(buffer, sizeof buffer), YioRscLoad::TypeEnd);
    EXPECT_STREQ(buffer, "");
}

TEST(TokenReader, ReadsFiles) {
    const TempDir dir;
    writeFile(dir.file("a.rsc"), "key : \"a b\"\n");
    YioRscLoad reader(dir.file("a.rsc").c_str(), YioRscSjis, YioRscSjis);
    EXPECT_EQ(reader.isValid(), 1UL);
    EXPECT_EQ(tokensOf(std::move(reader)), "k<key> : v<a b> .");
}

TEST(TokenReader, IsNotValidForWhatIsNoReadableFile) {
    const TempDir dir;
    const std::string missing = dir.file("missing");
    for (const char* path : {missing.c_str(), dir.path().c_str(), "", static_cast<const char*>(nullptr)}) {
        YioRscLoad reader(path, YioRscSjis, YioRscSjis);
        EXPECT_EQ(reader.isValid(), 0UL);
        EXPECT_EQ(tokensOf(std::move(reader)), "!");
        EXPECT_EQ(bexa::detail::openReader(path).isValid(), 0UL);
    }
    EXPECT_EQ(YioRscLoad().isValid(), 0UL);
}

TEST(TokenReader, IsNotValidForAFileThatMayNotBeRead) {
    const TempDir dir;
    dir.openToAll();
    const std::string path = dir.file("secret");
    writeFile(path, "a : 1\n");
    setMode(path, 0200);
    EXPECT_EQ(Child().asNobody().run(
                  [&] { return YioRscLoad(path.c_str(), YioRscSjis, YioRscSjis).isValid() ? 1 : 0; }),
              0);
}

TEST(TokenReader, SurvivesLongTokensAndLines) {
    const std::string longWord(10'000'000, 'x');
    EXPECT_EQ(YioRscLoad::ofBytes(longWord, YioRscSjis, YioRscSjis).next(roomy).text,
              longWord.substr(0, 1023));
    EXPECT_EQ(tokensOf("#" + longWord + "\na"), "k<a> .");
    EXPECT_EQ(tokensOf("\"" + longWord), "!");
    EXPECT_EQ(tokensOf(std::string(1'000'000, '\x83')), "k<" + std::string(1022, '\x83') + "> .")
        << "in whole pairs";
}

TEST(TokenReader, SurvivesEveryTextOfFourBytes) {
    constexpr std::string_view bytes("\0\n {}:\"#a1\x83\xB1", 12);
    for (std::size_t code = 0; code < 12 * 12 * 12 * 12; ++code) {
        std::string text;
        for (std::size_t rest = code, i = 0; i < 4; ++i, rest /= 12) text += bytes[rest % 12];
        const std::string tokens = tokensOf(text, YioRscSjis, YioRscEuc);
        EXPECT_EQ(tokens.back(), text.find('\0') == text.npos && tokens.back() != '!' ? '.' : '!') << tokens;
    }
}

TEST(OpenReader, FollowsTheHeader) {
    const TempDir dir;
    const EnvGuard guard("LC_ALL", "C");
    writeFile(dir.file("a"), "# japanese_coding:euc\nk : \xB0\xA1\n");
    EXPECT_EQ(tokensOf(bexa::detail::openReader(dir.file("a").c_str())), "k<k> : v<\x88\x9F> .");
}

TEST(OpenReader, ReadsAFileWithoutHeaderInTheCodingOfTheProcess) {
    const TempDir dir;
    writeFile(dir.file("a"), "t {\x83\x7B}\n");
    {
        const EnvGuard guard("LC_ALL", "C");
        EXPECT_EQ(tokensOf(bexa::detail::openReader(dir.file("a").c_str())), "k<t> { v<\x83\x7B> } .");
    }
    const EnvGuard guard("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(tokensOf(bexa::detail::openReader(dir.file("a").c_str())), "k<t> { v<\x83> { } .");
}

} // namespace
