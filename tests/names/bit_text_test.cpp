#include "bexa/names/bit_text.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Items = std::vector<std::string>;

Items itemsOf(const BexBitStr& text) {
    Items items;
    for (unsigned bit = 0; bit < text.bitCount(); ++bit) items.emplace_back(text[static_cast<int>(bit)]);
    return items;
}
// The items of a text that has as many bits as items.
Items itemsOf(const char* text, char separator = ',') {
    return itemsOf(BexBitStr(text, separator));
}

TEST(BitText, GoesToTheBitsInOrder) {
    EXPECT_EQ(itemsOf(BexBitStr(4, "1,2,3,4")), (Items{"1", "2", "3", "4"}));
    EXPECT_EQ(itemsOf(BexBitStr(4, "1,2")), (Items{"1", "2", "", ""}));
    EXPECT_STREQ(BexBitStr(4, "1,2").string(), "1,2,,");
    EXPECT_EQ(itemsOf(BexBitStr(4, ",")), (Items{"", "", "", ""}));
}

TEST(BitText, OfOneItemStandsForAllBits) {
    EXPECT_EQ(itemsOf(BexBitStr(4, "5")), (Items{"5", "5", "5", "5"}));
    EXPECT_STREQ(BexBitStr(4, "5").string(), "5,5,5,5");
    EXPECT_EQ(itemsOf(BexBitStr(3, " ")), (Items{"", "", ""})); // a blank is an empty item
    EXPECT_EQ(itemsOf(BexBitStr(1, "5")), (Items{"5"}));
}

TEST(BitText, IgnoresItemsBeyondTheBits) {
    EXPECT_EQ(itemsOf(BexBitStr(2, "1,2,3")), (Items{"1", "2"}));
    EXPECT_EQ(itemsOf(BexBitStr(1, "1,2")), (Items{"1"}));
}

TEST(BitText, TakesItsBitsFromTheText) {
    const BexBitStr text("1, 2,3", ',');
    EXPECT_EQ(text.bitCount(), 3u);
    EXPECT_EQ(itemsOf(text), (Items{"1", "2", "3"}));
    EXPECT_EQ(BexBitStr("", ',').bitCount(), 0u);
    EXPECT_EQ(BexBitStr(nullptr, ',').bitCount(), 0u);
    EXPECT_EQ(BexBitStr("a,", ',').bitCount(), 2u);
    EXPECT_EQ(BexBitStr(",", ',').bitCount(), 2u);
}

TEST(BitText, IsReadByteByByte) {
    struct Row {
        const char* text;
        Items items;
    };
    const Row rows[] = {
        {"\"a,b\",c", {"\"a,b\"", "c"}}, // the quotes stay
        {"\"a b\",c", {"\"ab\"", "c"}},  // blanks go inside quotes too
        {"\"a,b", {"\"a,b"}},            // a quote that is never closed
        {"a\"b,c\"d,e", {"a\"b,c\"d", "e"}},
        {"a\\,b,c", {"a,b", "c"}},
        {"a\\\\,b", {"a\\", "b"}},
        {"\\\"a,b", {"\"a", "b"}}, // opens nothing
        {"a\\ b", {"a b"}},
        {"a\\\t", {"a\t"}},
        {"\"a\\\"b,c\",d", {"\"a\"b,c\"", "d"}},
        {"a,b\\", {"a", "b"}}, // nothing behind the backslash
        {" a\t b , c ", {"ab", "c"}},
        {"a\nb,c", {"a\nb", "c"}},         // only blanks and tabs go
        {"\x83\x2c,b", {"\x83\x2c", "b"}}, // the byte behind one above 127 is not looked at
        {"\x83\x5c,b", {"\x83\x5c", "b"}},
        {"\x83\x22,b", {"\x83\x22", "b"}},
        {"\x83 ,b", {"\x83 ", "b"}},
        {"\xa4\xa2,\xa4", {"\xa4\xa2", "\xa4"}}, // nothing behind the last one
        {"\\\x83\x5c,b", {"\x83,b"}},            // escaped, it stands for itself
    };
    for (const Row& row : rows) EXPECT_EQ(itemsOf(row.text), row.items) << row.text;
}

TEST(BitText, LosesBlanksInsideQuotesToo) {
    EXPECT_EQ(itemsOf("\"a \tb\", c"), (Items{"\"ab\"", "c"}));
}

TEST(BitText, MayHaveAnySeparator) {
    EXPECT_EQ(itemsOf("1;2,3", ';'), (Items{"1", "2,3"}));
    EXPECT_STREQ(BexBitStr(3, ';', "1;2").string(), "1;2;");
    EXPECT_EQ(itemsOf("1 2", ' '), (Items{"1", "2"}));
    EXPECT_EQ(itemsOf("\"1 2\"", ' '), (Items{"\"1 2\""}));
    EXPECT_EQ(itemsOf("1\\2", '\\'), (Items{"12"}));
    EXPECT_EQ(itemsOf("1\"2\"3", '"'), (Items{"1\"2\"3"}));
    EXPECT_EQ(itemsOf("1,2", '\0'), (Items{"1,2"}));
    EXPECT_EQ(itemsOf("1\x83\x84", '\x83'), (Items{"1", "\x84"}));
}

TEST(BitText, OfBitsAloneIsEmpty) {
    const BexBitStr text(3);
    EXPECT_EQ(itemsOf(text), (Items{"", "", ""}));
    EXPECT_STREQ(text.string(), ",,");
    EXPECT_STREQ(BexBitStr(3, ';').string(), ";;");
    EXPECT_STREQ(BexBitStr(0).string(), "");
    EXPECT_EQ(BexBitStr(-5).bitCount(), 0u);
    EXPECT_STREQ(BexBitStr(-5).string(), "");
}

TEST(BitText, WithoutBitsHasNoText) {
    const BexBitStr text(0, "1,2");
    EXPECT_EQ(text.bitCount(), 0u);
    EXPECT_STREQ(text.string(), "");
    EXPECT_STREQ(text[1], "2"); // though the items are kept
    EXPECT_EQ(BexBitStr(-1, "1,2").bitCount(), 0u);
}

TEST(BitText, OfAnEmptyTextKeepsItsBitsButNoItems) {
    for (const char* empty : {static_cast<const char*>(nullptr), ""}) {
        BexBitStr text(2, "1,2");
        text.strSet(empty);
        EXPECT_EQ(text.bitCount(), 2u);
        EXPECT_STREQ(text.string(), ","); // as if they were empty
        text.set(1, "b");
        EXPECT_STREQ(text.string(), ",b");
    }
}

TEST(BitText, IsReadAnew) {
    BexBitStr text(3, ';', "1;2;3");
    text.strSet("a;b");
    EXPECT_EQ(itemsOf(text), (Items{"a", "b", ""}));
    text.strSet(text[0]);
    EXPECT_EQ(itemsOf(text), (Items{"a", "a", "a"}));
}

TEST(BitText, TakesOneItem) {
    BexBitStr text(2, "1,2");
    text.set(1, "a,b");
    EXPECT_STREQ(text[1], "a,b");
    EXPECT_STREQ(text.string(), "1,a,b"); // without quoting
    text.set(0, nullptr);
    EXPECT_STREQ(text.string(), ",a,b");
    text.set(0, text[1]);
    EXPECT_STREQ(text[0], "a,b");
}

TEST(BitText, IgnoresBitsThatThereAreNot) {
    BexBitStr text(2, "1,2");
    text.set(2, "x");
    text.set(-1, "x");
    text.set(2147483647, "x");
    EXPECT_STREQ(text.string(), "1,2");
    EXPECT_EQ(text.bitCount(), 2u);
}

TEST(BitText, LendsItsItems) {
    const BexBitStr text(2, "1,2");
    text[1] = "x";
    EXPECT_STREQ(text.string(), "1,x");
}

TEST(BitText, IsCopiedWhole) {
    BexBitStr text(2, ';', "1;2");
    const BexBitStr copy = text;
    text.set(0, "x");
    EXPECT_STREQ(copy.string(), "1;2");
}

TEST(BitText, MayHaveItemsOfAnyLength) {
    const std::string longItem(100000, 'x');
    const BexBitStr text(2, (longItem + "," + longItem).c_str());
    EXPECT_EQ(text[1].length(), 100000);
}

} // namespace
