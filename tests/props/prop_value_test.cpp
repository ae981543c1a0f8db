#include "bexa/props/prop_value.h"

#include "tests/support/fresh_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

std::vector<std::string> listOf(const YString_Array& texts) {
    std::vector<std::string> list;
    for (int i = 0; i < texts.size(); ++i) list.emplace_back(texts.at(i).view());
    return list;
}

std::vector<std::string> namesOf(const BexPropValue& value) {
    YString_Array names;
    value.getValue(names);
    return listOf(names);
}

// "key=value" for each item of a group, in order.
std::vector<std::string> itemsOf(const BexPropValue& value, const char* group) {
    YString_Array keys;
    YString_Array values;
    if (!value.getValue(group, keys, values)) return {"unknown group"};
    EXPECT_EQ(keys.size(), values.size());
    std::vector<std::string> items;
    for (int i = 0; i < keys.size(); ++i) {
        items.push_back(std::string(keys.at(i).view()) + '=' + std::string(values.at(i).view()));
    }
    std::ranges::sort(items);
    return items;
}

// All groups as one sorted line: "name" for a word, "name{key=value ...}" for a group with items.
std::string contentsOf(const BexPropValue& value) {
    std::vector<std::string> groups;
    for (const std::string& name : namesOf(value)) {
        std::string items;
        for (const std::string& item : itemsOf(value, name.c_str())) {
            items += items.empty() ? item : ' ' + item;
        }
        groups.push_back(items.empty() ? name : name + '{' + items + '}');
    }
    std::ranges::sort(groups);
    std::string line;
    for (const std::string& group : groups) line += line.empty() ? group : ' ' + group;
    return line;
}

std::string dumpOf(const BexPropValue& value, unsigned escapes = 0, unsigned long newlines = 0) {
    YString out;
    value.dump(out, escapes, newlines);
    return std::string(out.view());
}

std::string plainText(const BexPropValue& value) {
    YString text("before");
    value.getValue(text);
    return std::string(text.view());
}

BexPropValue expanded(std::string_view text) {
    BexPropValue value;
    EXPECT_EQ(value.expand(YString(text)), 1U) << text;
    return value;
}

TEST(PropValue, ANewOneHoldsNothing) {
    const BexPropValue value;
    EXPECT_EQ(value.isGroup(), 1U);
    EXPECT_THAT(namesOf(value), IsEmpty());
    EXPECT_EQ(plainText(value), "");
    EXPECT_EQ(dumpOf(value, 1, 1), "");
}

TEST(PropValue, ReadsWordsAndGroups) {
    const struct {
        std::string_view text;
        std::string contents;
    } rows[] = {
        {"", ""},
        {" \t\n", ""},
        {"word ", "word"},
        {"word\n", "word"},
        {"word\t", "word"},
        {"a b ", "a b"},
        {"a(P (A 1))", "P{A=1} a"}, // a parenthesis ends a word and stays
        {"(P (A 1) (B 2)) ", "P{A=1 B=2}"},
        {"(P (A 1) (B 2))", "P{A=1 B=2}"},
        {"(P(A 1)(B 2))(Q(C 3))", "P{A=1 B=2} Q{C=3}"},
        {"\n( P\n\t( A\t1 )\n)\n", "P{A=1}"},
        {"((A 1))", "{A=1}"},
        {"(P (A))", "P{A=}"},
        {"(P (A \"\"))", "P{A=}"},
        {"(\"\" (A 1))", "{A=1}"},
        {"(PART (LENGTH 10) (WIDTH 5)) (PACKAGE (TYPE \"SOP 8\"))",
         "PACKAGE{TYPE=SOP 8} PART{LENGTH=10 WIDTH=5}"},
        {"(P (A 1)) a (Q (B 2)) b ", "P{A=1} Q{B=2} a b"},
    };
    for (const auto& row : rows) {
        BexPropValue value;
        EXPECT_EQ(value.expand(YString(row.text)), 1U) << row.text;
        EXPECT_EQ(contentsOf(value), row.contents) << row.text;
    }
}

TEST(PropValue, QuotesAndBackslashesKeepCharactersInAWord) {
    const struct {
        std::string_view text; // of the value
        std::string value;
    } rows[] = {
        {"\"x y\"", "x y"},     {"ab\"c d\"e", "abc de"},
        {"\"a(b)c\"", "a(b)c"}, {"\"a\tb\nc\"", "a b\nc"}, // only the tab turns into a blank
        {"x\\)y", "x)y"},       {"x\\ y", "x y"},
        {"\\(", "("},           {"\\\\", "\\"},
        {"\\\"", "\""},         {"\"a\\\"b\"", "a\"b"},
        {"\"a\\\tb\"", "a\tb"}, // behind a backslash it stays
        {"a\\b", "ab"},         {"\"\"", ""},
        {"\"a\"\"b\"", "ab"},   {"\xA4\xA2", "\xA4\xA2"},
        {"a\rb", "a\rb"}, // a carriage return is no blank
    };
    for (const auto& row : rows) {
        const BexPropValue value = expanded("(P (A " + std::string(row.text) + "))");
        EXPECT_THAT(itemsOf(value, "P"), ElementsAre("A=" + row.value)) << row.text;
    }
}

TEST(PropValue, ASecondByteThatLooksLikeABackslashIsOne) {
    EXPECT_THAT(itemsOf(expanded("(P (A \x83\x5C) ))"), "P"), ElementsAre("A=\x83)"));
}

TEST(PropValue, RefusesATokenWithoutAPlace) {
    for (const char* text : {"()", "(P)", "(P Q)", "(P (A 1) Q)", "((A 1 2))", "(())", "(P ((A 1)))", ")",
                             "a )", "(P (A 1)))", "((A (B", "(P ()", "(P (A 1) (", "(P (A 1) ()"}) {
        BexPropValue value;
        const bool endsHalfway = std::string_view(text) == "(P (A 1) (";
        EXPECT_EQ(value.expand(text), endsHalfway ? 1U : 0U) << text;
    }
}

TEST(PropValue, AFailureKeepsWhatWasFinished) {
    BexPropValue value;
    EXPECT_EQ(value.expand("a (P (A 1)) ) b "), 0U);
    EXPECT_EQ(contentsOf(value), "P{A=1} a");
    EXPECT_EQ(plainText(value), "a (P (A 1)) ) b ");
}

TEST(PropValue, ATextThatEndsHalfwayIsASuccess) {
    for (const char* text : {"(", "(P", "(P ", "(P (", "(P (A", "(P (A ", "(P (A 1", "(P (A 1 ", "(P (A 1)",
                             "(a (b c", "(P (A \"1)", "(P (A \\"}) {
        const BexPropValue value = expanded(text);
        EXPECT_EQ(contentsOf(value), "") << text;
        EXPECT_THAT(itemsOf(value, "P"), ElementsAre("unknown group")) << text;
    }
}

TEST(PropValue, AWordAtTheVeryEndIsLost) {
    EXPECT_EQ(contentsOf(expanded("abc")), "");
    EXPECT_EQ(contentsOf(expanded("abc ")), "abc");
    EXPECT_EQ(contentsOf(expanded("a b")), "a");
    EXPECT_EQ(contentsOf(expanded("\"abc\"")), "");
    EXPECT_EQ(contentsOf(expanded("abc\\ ")), "") << "the blank is part of the word";
}

TEST(PropValue, APlainWordIsNoGroup) {
    const struct {
        const char* text;
        unsigned long isGroup;
        const char* plain;
    } rows[] = {
        {"word ", 0, "word"}, {"word", 1, "word"},           {"a b", 0, "a"},  {"a b ", 1, "a b "},
        {"\"\" ", 0, ""},     {"(P (A 1))", 1, "(P (A 1))"}, {"a a ", 0, "a"}, {"", 1, ""},
        {"x(", 0, "x"},       {"\"a b\" ", 0, "a b"},
    };
    for (const auto& row : rows) {
        const BexPropValue value = expanded(row.text);
        EXPECT_EQ(value.isGroup(), row.isGroup) << row.text;
        EXPECT_EQ(plainText(value), row.plain) << row.text;
    }
}

TEST(PropValue, OfEqualNamesTheFirstStays) {
    EXPECT_EQ(contentsOf(expanded("(P (A 1) (A 2) (B 3))")), "P{A=1 B=3}");
    EXPECT_EQ(contentsOf(expanded("(P (A 1)) (P (B 2))")), "P{A=1}");
    EXPECT_EQ(contentsOf(expanded("P (P (A 1))")), "P");
    EXPECT_EQ(contentsOf(expanded("((A 1)) ((B 2))")), "{A=1}");
}

TEST(PropValue, ASecondExpandAddsToTheFirst) {
    BexPropValue value = expanded("(P (A 1)) ");
    EXPECT_EQ(value.expand("(Q (B 2)) "), 1U);
    EXPECT_EQ(contentsOf(value), "P{A=1} Q{B=2}");
    EXPECT_EQ(plainText(value), "(Q (B 2)) ");
}

TEST(PropValue, ASecondExpandGoesOnWhereTheFirstStopped) {
    BexPropValue value = expanded("(P (A 1) (B ");
    EXPECT_EQ(value.expand("2))"), 1U);
    EXPECT_EQ(contentsOf(value), "P{A=1 B=2}");

    BexPropValue failed;
    EXPECT_EQ(failed.expand("(P (A 1) Q)"), 0U);
    EXPECT_EQ(failed.expand("(B 2))"), 1U) << "the state is that in front of the word";
    EXPECT_EQ(contentsOf(failed), "P{A=1 B=2}");
}

TEST(PropValue, AWordForgetsTheItemsOfAGroupLeftOpen) {
    // No word can stand there before the group is closed, so the items of one group never reach another.
    BexPropValue value = expanded("(P (A 1)");
    EXPECT_EQ(value.expand(") a (Q (B 2)) "), 1U);
    EXPECT_EQ(contentsOf(value), "P{A=1} Q{B=2} a");
}

TEST(PropValue, LooksUpOneValue) {
    const BexPropValue value = expanded("(P (A 1) (B)) word ");
    YString found("before");
    EXPECT_EQ(value.getValue("P", "C", found), 0U);
    EXPECT_EQ(value.getValue("Q", "A", found), 0U);
    EXPECT_EQ(value.getValue("p", "A", found), 0U) << "the case of letters counts";
    EXPECT_EQ(value.getValue("word", "A", found), 0U);
    EXPECT_EQ(found, "before");
    EXPECT_EQ(value.getValue("P", "A", found), 1U);
    EXPECT_EQ(found, "1");
    EXPECT_EQ(value.getValue("P", "B", found), 1U);
    EXPECT_EQ(found, "");
}

TEST(PropValue, LookUpsAppendToTheirArrays) {
    const BexPropValue value = expanded("(P (A 1)) ");
    YString_Array names;
    names.append("before");
    value.getValue(names);
    EXPECT_THAT(listOf(names), ElementsAre("before", "P"));

    YString_Array keys;
    YString_Array values;
    keys.append("key");
    EXPECT_EQ(value.getValue("Q", keys, values), 0U);
    EXPECT_THAT(listOf(keys), ElementsAre("key")) << "an unknown group leaves them as they were";
    EXPECT_THAT(listOf(values), IsEmpty());
    EXPECT_EQ(value.getValue("P", keys, values), 1U);
    EXPECT_THAT(listOf(keys), ElementsAre("key", "A"));
    EXPECT_THAT(listOf(values), ElementsAre("1"));
}

TEST(PropValue, SetsAValue) {
    BexPropValue value = expanded("(P (A 1) (B 2)) word ");
    value.setValue("P", "A", "7");
    value.setValue("P", "C", "8");
    value.setValue("Q", "D", "9");
    value.setValue("word", "E", "10");
    EXPECT_EQ(contentsOf(value), "P{A=7 B=2 C=8} Q{D=9} word{E=10}");
}

TEST(PropValue, SetTakesQuotesOff) {
    const struct {
        const char* text;
        const char* value;
    } rows[] = {
        {"\"7\"", "7"}, {"7", "7"},       {"\"7", "\"7"},    {"7\"", "7\""},     {"\"\"", ""},
        {"\"", ""},     {"a\"b", "a\"b"}, {"\"a\"b\"", "a"}, {"\"a b\"", "a b"}, {"", ""},
    };
    for (const auto& row : rows) {
        BexPropValue value;
        value.setValue("P", "A", row.text);
        YString found("before");
        EXPECT_EQ(value.getValue("P", "A", found), 1U);
        EXPECT_EQ(found, row.value) << row.text;
    }
}

TEST(PropValue, TheWholeTextStaysTheOldOneAfterASet) {
    BexPropValue value = expanded("(P (A 1))");
    value.setValue("P", "A", "2");
    EXPECT_EQ(plainText(value), "(P (A 1))");
    EXPECT_EQ(dumpOf(value), "( P ( A 2 ))");
}

TEST(PropValue, DumpsTheExpression) {
    const struct {
        std::string_view text;
        unsigned escapes;
        unsigned long newlines;
        std::string dump;
    } rows[] = {
        {"((A 1))", 0, 0, "(( A 1 ))"},
        {"((A 1))", 0, 1, "(\n( A 1 )\n)\n"},
        {"(P (A 1))", 0, 0, "( P ( A 1 ))"},
        {"(P (A 1))", 0, 1, "( P\n( A 1 )\n)\n"},
        {"(P (A))", 0, 0, "( P ( A  ))"},
        {"(P (A \"x y\"))", 0, 0, "( P ( A x y ))"},
        {"(P (A \"x y\"))", 1, 0, "( P ( A x\\ y ))"},
        {"(P (A \"x y\"))", 2, 0, "( P ( A x\\\\ y ))"},
        {"(P (A \\\"\\(\\)\\\\\\ ))", 1, 0, "( P ( A \\\"\\(\\)\\\\\\  ))"},
        {"(P (A \"a\nb\"))", 1, 0, "( P ( A a\nb ))"},       // a line feed gets none
        {"(\"x y\" (\"a b\" 1))", 1, 0, "( x y ( a b 1 ))"}, // nor do names and keys
        {"word ", 1, 0, "word"},
        {"word ", 1, 1, "word\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(dumpOf(expanded(row.text), row.escapes, row.newlines), row.dump) << row.text;
    }
}

TEST(PropValue, DumpAppends) {
    YString out("before ");
    expanded("word ").dump(out, 0, 0);
    EXPECT_EQ(out, "before word");
}

TEST(PropValue, PlainWordsRunTogetherInADumpWithoutNewlines) {
    EXPECT_THAT(dumpOf(expanded("a b ")), testing::AnyOf("ab", "ba"));
}

TEST(PropValue, ADumpWithOneEscapeReadsBack) {
    for (const char* text : {"(P (A \"x y\") (B \\() (C \\\\\\\")) (Q (D)) word ", "((A 1) (B 2)) a b c "}) {
        const BexPropValue value = expanded(text);
        EXPECT_EQ(contentsOf(expanded(dumpOf(value, 1, 1))), contentsOf(value));
    }
}

TEST(PropValue, DumpLeavesDoubleByteCharactersAsTheyAre) {
    if (!bexa::test::startedInLocale("ja_JP.SJIS")) return;
    BexPropValue value;
    value.setValue("P", "A", "\x83\x5C \x95\x5C\\");
    EXPECT_EQ(dumpOf(value, 1), "( P ( A \x83\x5C\\ \x95\x5C\\\\ ))");
}

TEST(PropValue, ALeadByteTakesTheByteBehindItAlong) {
    if (!bexa::test::startedInLocale("ja_JP.SJIS")) return;
    BexPropValue value;
    value.setValue("P", "A", "\x83 x");
    EXPECT_EQ(dumpOf(value, 1), "( P ( A \x83 x ))") << "even a blank, without an escape";
}

TEST(PropValue, DumpDropsALeadByteAtTheEnd) {
    if (!bexa::test::startedInLocale("ja_JP.SJIS")) return;
    BexPropValue value;
    value.setValue("P", "A", "x\x83");
    EXPECT_EQ(dumpOf(value, 1), "( P ( A x ))");
}

TEST(PropValue, DumpEscapesEveryByteOfATextWithoutLeadBytes) {
    if (!bexa::test::startedInLocale("C")) return;
    BexPropValue value;
    value.setValue("P", "A", "\x83\x5C");
    EXPECT_EQ(dumpOf(value, 1), "( P ( A \x83\\\x5C ))");
}

TEST(PropValue, CopiesAreDeep) {
    BexPropValue value = expanded("(P (A 1)) (Q (B ");
    BexPropValue copy(value);
    BexPropValue assigned = expanded("(X (Y 1)) ");
    assigned = value;
    value.setValue("P", "A", "2");
    EXPECT_EQ(value.expand("3))"), 1U);
    EXPECT_EQ(contentsOf(copy), "P{A=1}");
    EXPECT_EQ(contentsOf(assigned), "P{A=1}");
    EXPECT_EQ(copy.expand("4))"), 1U) << "the stacks were copied too";
    EXPECT_EQ(contentsOf(copy), "P{A=1} Q{B=4}");
    EXPECT_EQ(contentsOf(value), "P{A=2} Q{B=3}");
}

TEST(PropValue, AssignmentToItselfChangesNothing) {
    BexPropValue value = expanded("(P (A 1)) ");
    const BexPropValue& same = value;
    value = same;
    EXPECT_EQ(contentsOf(value), "P{A=1}");
}

TEST(PropValue, CopiesAreWalkedInTheSameOrder) {
    std::string text;
    for (int i = 0; i < 100; ++i) text += "(G" + std::to_string(i) + " (A 1) (B 2) (C 3)) ";
    const BexPropValue value = expanded(text);
    const BexPropValue copy(value);
    EXPECT_EQ(namesOf(copy), namesOf(value));
    EXPECT_EQ(dumpOf(copy, 1, 1), dumpOf(value, 1, 1));
}

TEST(PropValueSets, OwnAndCopyTheirRecords) {
    BexPropValue::ItemSet items;
    items.add(std::make_unique<BexPropValue::Item>(BexPropValue::Item{"A", "1"}));
    items.add(std::make_unique<BexPropValue::Item>(BexPropValue::Item{"A", "2"}));
    BexPropValue::GroupSet groups;
    auto group = std::make_unique<BexPropValue::Group>();
    group->name = "P";
    group->items.copyFrom(items);
    groups.add(std::move(group));
    const BexPropValue::GroupSet copy(groups);
    groups.find("P")->items.deleteAll();
    EXPECT_EQ(items.find("A")->value, "1");
    ASSERT_NE(copy.find("P"), nullptr);
    EXPECT_EQ(copy.find("P")->items.find("A")->value, "1");
    EXPECT_EQ(copy.find("Q"), nullptr);
    EXPECT_EQ(groups.find("P")->items.count(), 0);
}

TEST(PropValue, TokensHaveATypeAndAText) {
    EXPECT_EQ(BexPropValueToken().type, 0);
    EXPECT_EQ(BexPropValueToken().text, "");
    const BexPropValueToken token(BexPropValueToken::TokenString, "word");
    EXPECT_EQ(token.type, 2);
    EXPECT_EQ(token.text, "word");
    BexPropValueToken_Stack stack;
    stack.push(token);
    EXPECT_EQ(stack.top().text, "word");
}

// ---- Hostile texts

TEST(PropValue, TakesWordsOfAnyLength) {
    const std::string word(1000000, 'x');
    EXPECT_EQ(contentsOf(expanded("(" + word + " (" + word + " \"" + word + " \"))")),
              word + '{' + word + '=' + word + " }");
}

TEST(PropValue, ReadsManyGroupsAndItems) {
    std::string text;
    for (int i = 0; i < 10000; ++i) text += "(G" + std::to_string(i) + " (A 1))";
    const BexPropValue groups = expanded(text);
    EXPECT_EQ(namesOf(groups).size(), 10000U);
    EXPECT_THAT(itemsOf(groups, "G9999"), ElementsAre("A=1"));

    text = "(G";
    for (int i = 0; i < 10000; ++i) text += " (K" + std::to_string(i) + " v)";
    EXPECT_EQ(itemsOf(expanded(text + ")"), "G").size(), 10000U);
}

TEST(PropValue, TakesBinaryBytes) {
    std::string text;
    for (int i = 0; i < 20000; ++i) text += static_cast<char>(i * 7919 >> 3);
    BexPropValue value;
    value.expand(YString(text));
    EXPECT_EQ(contentsOf(BexPropValue(value)), contentsOf(value));
    std::string("\0( \0", 4).swap(text);
    EXPECT_THAT(namesOf(expanded(text)), ElementsAre(std::string("\0", 1))) << "NUL is an ordinary byte";
}

} // namespace
