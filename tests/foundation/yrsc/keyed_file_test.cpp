#include "bexa/foundation/yrsc/keyed_file.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace bexa::test;

namespace {

using Value = std::unique_ptr<YioRscValue>;

// A value in one line: a text as it is, a list in parentheses, a table in braces with its rows apart by ";".
std::string shown(YioRscValue* value) {
    if (!value) return "null";
    if (const YioRscList* list = value->list()) {
        std::string text = "(";
        for (unsigned i = 0; i < list->count(); ++i) text += " " + shown(list->value(i));
        return text + " )";
    }
    YioRscTable* table = value->table();
    if (!table) return value->string();
    std::string text = "{";
    for (unsigned row = 0; row < table->rowCount(); ++row) {
        for (unsigned column = 0; table->value(row, column); ++column)
            text += " " + shown(table->value(row, column));
        text += ";";
    }
    return text + " }";
}

class KeyedFile : public testing::Test {
protected:
    // The value of `key` in a file with this content.
    std::string valueIn(const std::string& content, const char* key) const {
        writeFile(dir_.file("a.rsc"), content);
        return shown(Value(YioRscFile(dir_.file("a.rsc").c_str()).value(key)).get());
    }

    TempDir dir_;
    EnvGuard locale_{"LC_ALL", "C"};
};

TEST_F(KeyedFile, ReadsValues) {
    const struct {
        const char* content;
        const char* value;
        const char* meaning;
    } rows[] = {
        {"k: NO\n", "NO", "a single value"},
        {"k:NO", "NO", "without a blank"},
        {"k : \"a (b) {c}: #d\"\n", "a (b) {c}: #d", "a quoted value"},
        {"k: a:b{c}#\n", "a:b{c}#", "a bare value runs to white space"},
        {"k: a(b)\n", "a", "or to a parenthesis"},
        {"k:\nx: 1\n", "", "no value on the line of the colon"},
        {"k: # none\n", "", "a comment instead of the value"},
        {"k: ( a b )\n", "( a b )", "a list"},
        {"k: ( \na\t\"b c\" )\n", "( a b c )", "a list over several lines"},
        {"k: (a)\n", "( a )", "parentheses end words"},
        {"k: ()\n", "( )", "an empty list"},
        {"k {\n\ta\n\tb\n}\n", "{ a; b; }", "a table of words"},
        {"k\n{\n\ta # c\n}\n", "{ a; }", "its brace on the next line"},
        {"k{a}", "{ a; }", "braces end words"},
        {"k { ( switch ON ) ( color\t\"2\" ) }", "{ ( switch ON ); ( color 2 ); }", "a table of lists"},
        {"k { }", "{ }", "an empty table"},
        {"k 2 { 1 \"a\" 2 b }", "{ 1 a; 2 b; }", "a table with a column count"},
        {"k 2 { 1 \"a\" 2 }", "{ 1 a; 2; }", "whose last row is short"},
        {"k 0 { a }", "{ a; }", "a count of 0 counts as 1"},
        {"k: 1\nk: 2\n", "1", "of two entries the first counts"},
        {"# k: 1\nk: 2\n", "2", "comments"},
        {"k: 1", "1", "the last line without its end"},
        {"k: 1\r\n", "1", "CR LF"},
    };
    for (const auto& row : rows) EXPECT_EQ(valueIn(row.content, "k"), row.value) << row.meaning;
}

TEST_F(KeyedFile, ComparesKeysExactly) {
    EXPECT_EQ(valueIn("Key: 1\n", "key"), "null");
    EXPECT_EQ(valueIn("Key: 1\n", ""), "null");
    EXPECT_EQ(valueIn("Key: 1\n", nullptr), "null");
    EXPECT_EQ(valueIn("$sNet { a }", "$sNet"), "{ a; }");
    EXPECT_EQ(valueIn("12 : a\n", "12"), "a") << "a number may be a key";
}

TEST_F(KeyedFile, PassesOverWhatDoesNotFit) {
    for (const char* stray :
         {"x", "x y 1", ": 1", "{ k: 0 }", "( k )", "\"k\"", "}", ")", "x 1 2", "x: 1 2", "x { ) { }"}) {
        EXPECT_EQ(valueIn(stray + std::string("\nk: 1\n"), "k"), "1") << stray;
    }
    EXPECT_EQ(valueIn("k: ( a ( { b )", "k"), "( a b )") << "marks that have no business in a list";
    EXPECT_EQ(valueIn("k { ( a b }\nx: 1\n", "k"), "{ ( a b ); }") << "a list left open ends with its table";
}

TEST_F(KeyedFile, LosesTheEntryThatTheFileBreaksOffIn) {
    for (const char* broken : {"k:", "k", "k {", "k { a", "k: ( a", "k: \"a", "k { ( a ", "k: \"a\nx: 2\n"}) {
        EXPECT_EQ(valueIn(std::string("x: 1\n") + broken, "x"), "1") << broken;
        EXPECT_EQ(valueIn(std::string("x: 1\n") + broken, "k"), "null") << broken;
    }
    EXPECT_EQ(valueIn(std::string("x: 1\nk: a\0b\n", 12), "x"), "1");
    EXPECT_EQ(valueIn(std::string("x: 1\nk: a\0b\n", 12), "k"), "null");
    EXPECT_EQ(valueIn(std::string("\0", 1), "k"), "null");
}

TEST_F(KeyedFile, WalksTheCodingThatTheHeaderNames) {
    EXPECT_EQ(valueIn("k { \x83\x7B (\x83\x7D) }", "k"), "{ \x83\x7B; ( \x83\x7D ); }");
    EXPECT_EQ(valueIn("# japanese_coding:euc\nk: \xB0\xA1\n", "k"), "\x88\x9F");
    EXPECT_EQ(valueIn("# japanese_coding:euc\n\xB0\xA1: 1\n", "\x88\x9F"), "1") << "keys too";
}

TEST_F(KeyedFile, HasNoEntriesWhenItCannotBeRead) {
    const std::string missing = dir_.file("missing");
    for (const char* path : {missing.c_str(), dir_.path().c_str(), "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(YioRscFile(path).value("k"), nullptr);
    }
}

TEST_F(KeyedFile, TellsTheKindsApart) {
    writeFile(dir_.file("a"), "text: a\ntable { a b }\nlist: ( a b c )\n");
    const YioRscFile file(dir_.file("a").c_str());
    const Value text(file.value("text"));
    EXPECT_NE(text->kind(), 4);
    EXPECT_NE(text->kind(), 5);
    EXPECT_EQ(text->table(), nullptr);
    EXPECT_EQ(text->list(), nullptr);
    EXPECT_STREQ(text->string(), "a");
    const Value table(file.value("table"));
    EXPECT_EQ(table->kind(), 4);
    EXPECT_EQ(table->count(), 2u);
    EXPECT_EQ(table->list(), nullptr);
    EXPECT_EQ(table->string(), nullptr);
    const Value list(file.value("list"));
    EXPECT_EQ(list->kind(), 5);
    EXPECT_EQ(list->count(), 3u);
    EXPECT_EQ(list->table(), nullptr);
}

TEST_F(KeyedFile, GivesNullPastTheEnd) {
    writeFile(dir_.file("a"), "table { a }\nlist: ( a )\n");
    const YioRscFile file(dir_.file("a").c_str());
    const Value table(file.value("table"));
    EXPECT_EQ(table->table()->value(1, 0), nullptr);
    EXPECT_EQ(table->table()->value(0, 1), nullptr);
    EXPECT_EQ(table->table()->value(~0U, ~0U), nullptr);
    const Value list(file.value("list"));
    EXPECT_EQ(list->list()->value(1), nullptr);
}

TEST_F(KeyedFile, LeavesItsValuesToTheCaller) {
    writeFile(dir_.file("a"), "k { ( a b ) }\n");
    Value value;
    {
        const YioRscFile file(dir_.file("a").c_str());
        value.reset(file.value("k"));
        const Value other(file.value("k"));
        EXPECT_NE(value.get(), other.get());
    }
    EXPECT_EQ(shown(value.get()), "{ ( a b ); }") << "stays when the file is gone";
    const YioRscTable table(*value->table());
    value.reset();
    EXPECT_EQ(shown(table.value(0, 0)), "( a b )") << "a copied table keeps its rows";
}

TEST_F(KeyedFile, FindsAKeyAmongMany) {
    std::string content;
    for (int i = 0; i < 20'000; ++i) content += "key" + std::to_string(i) + ": " + std::to_string(i) + "\n";
    writeFile(dir_.file("a"), content);
    const YioRscFile file(dir_.file("a").c_str());
    EXPECT_EQ(shown(Value(file.value("key19999")).get()), "19999");
}

TEST_F(KeyedFile, SurvivesHostileText) {
    EXPECT_EQ(valueIn("k: " + std::string(1'000'000, '('), "k"), "null");
    EXPECT_EQ(valueIn(std::string(1'000'000, '{') + "} k: 1", "k"), "1");
    EXPECT_EQ(valueIn("k 99999999999999999999 { a b }", "k"), "{ a b; }")
        << "more columns than a number holds";
    EXPECT_EQ(valueIn("k: " + std::string(10'000'000, 'x') + "\nl: 1\n", "l"), "1");
}

} // namespace
