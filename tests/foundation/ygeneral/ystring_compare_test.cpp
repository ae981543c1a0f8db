#include "bexa/foundation/ygeneral/ystring_compare.h"

#include "bexa/foundation/ygeneral/ystring.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Order = int (*)(const char*, const char*);

struct Row {
    const char* a;
    const char* b;
    int order;
};

int sign(int value) {
    return value < 0 ? -1 : value > 0;
}

std::string shown(const char* text) {
    return text ? text : "null";
}

template <std::size_t size>
void expectOrders(Order order, const Row (&rows)[size]) {
    for (const Row& row : rows) {
        EXPECT_EQ(sign(order(row.a, row.b)), row.order) << shown(row.a) << " and " << shown(row.b);
        EXPECT_EQ(sign(order(row.b, row.a)), -row.order) << shown(row.b) << " and " << shown(row.a);
    }
}

TEST(NameCmp, NumbersInNamesCountByTheirValue) {
    expectOrders(YStringCmp::NameCmp, {
                                          {"A2", "A10", -1},
                                          {"A2", "A2", 0},
                                          {"a2b10", "a2b9", 1},
                                          {"A10B", "A10A", 1},
                                          {"2", "10", -1},
                                          {"A", "B", -1},
                                          {"A", "A1", -1},
                                          {"", "A", -1},
                                          {"", "", 0},
                                          {nullptr, "", 0},
                                          {nullptr, "a", -1},
                                          {"a", "B", 1},
                                          {"A1", "AB", -1},
                                          {"a-2", "a-10", -1},
                                          {"a\x81", "az", 1},
                                          {"A1.5", "A1.10", -1},
                                      });
}

TEST(NameCmp, FewerLeadingZerosSortFirstWhereNothingElseDiffers) {
    expectOrders(YStringCmp::NameCmp, {
                                          {"A1", "A01", -1},
                                          {"A01", "A001", -1},
                                          {"A01", "A2", -1},
                                          {"A0", "A00", -1},
                                          {"A01B2", "A1B3", -1},
                                          {"A01B2", "A1B2", 1},
                                          {"A1B01", "A01B1", -1},
                                          {"A", "A0", -1},
                                          {"A0B", "A00A", 1},
                                      });
}

TEST(NameCmp, NumbersMayHaveAnyLength) {
    const std::string large = "A" + std::string(5000, '9');
    const std::string larger = "A1" + std::string(5000, '0');
    const std::string padded = "A" + std::string(9000, '0') + std::string(5000, '9');
    EXPECT_LT(YStringCmp::NameCmp(large.c_str(), larger.c_str()), 0);
    EXPECT_LT(YStringCmp::NameCmp(padded.c_str(), larger.c_str()), 0);
    EXPECT_GT(YStringCmp::NameCmp(padded.c_str(), large.c_str()), 0);
}

TEST(ArithCmp, TwoNumbersCompareByValue) {
    expectOrders(YStringCmp::ArithCmp, {
                                           {"2", "10", -1},
                                           {"-2", "-10", 1},
                                           {"-1", "1", -1},
                                           {"1.5", "1.25", 1},
                                           {"1.5", "1.50", 0},
                                           {"1", "1.0", 0},
                                           {"01", "1", 0},
                                           {"+1", "1", 0},
                                           {"-0", "0", 0},
                                           {"-0.0", "+0", 0},
                                           {"-0.1", "0", -1},
                                           {"0.1", "0.09", 1},
                                           {"-1.5", "-1.25", -1},
                                           {"10.0", "9.99", 1},
                                           {"-0.5", "-0.25", -1},
                                       });
}

TEST(ArithCmp, NumbersCompareExactlyAtAnyLength) {
    const std::string a = "1" + std::string(3000, '0') + "." + std::string(3000, '0') + "1";
    const std::string b = "1" + std::string(3000, '0') + ".0";
    EXPECT_GT(YStringCmp::ArithCmp(a.c_str(), b.c_str()), 0);
    EXPECT_LT(YStringCmp::ArithCmp(("-" + a).c_str(), ("-" + b).c_str()), 0);
}

// What is no number: each of these compares as a name does.
TEST(ArithCmp, AnythingElseComparesAsNames) {
    for (const char* text : {"1.", ".5", "", "-", "+", "1e3", " 1", "1 ", "--1", "1.5.2", "abc", "0x10"}) {
        for (const char* other : {"-3", "1.50", "12", "abc"}) {
            EXPECT_EQ(YStringCmp::ArithCmp(text, other), YStringCmp::NameCmp(text, other))
                << text << ' ' << other;
            EXPECT_EQ(YStringCmp::ArithCmp(other, text), YStringCmp::NameCmp(other, text))
                << text << ' ' << other;
        }
    }
    EXPECT_LT(YStringCmp::ArithCmp(nullptr, "1"), 0);
    EXPECT_EQ(YStringCmp::ArithCmp(nullptr, ""), 0);
}

TEST(ArithDivide, TheTailIsTheDigitsAtTheEnd) {
    const struct {
        const char* text;
        const char* head;
        const char* tail;
        unsigned long result;
    } rows[] = {
        {"R001", "R", "001", 1}, {"A1B22", "A1B", "22", 1}, {"123", "", "123", 1}, {"ABC", "ABC", "", 0},
        {"R1A", "R1A", "", 0},   {"", "", "", 0},           {"R-5", "R-", "5", 1}, {nullptr, "", "", 0},
    };
    for (const auto& row : rows) {
        YString head("before");
        YString tail("before");
        EXPECT_EQ(YStringCmp::ArithDivide(row.text, head, tail), row.result) << shown(row.text);
        EXPECT_STREQ(head, row.head);
        EXPECT_STREQ(tail, row.tail);
    }
}

TEST(ArithDivide, TheTextMayLieInAResult) {
    YString head("R12");
    YString tail;
    EXPECT_EQ(YStringCmp::ArithDivide(head, head, tail), 1U);
    EXPECT_STREQ(head, "R");
    EXPECT_STREQ(tail, "12");
    tail = "R34";
    EXPECT_EQ(YStringCmp::ArithDivide(tail, head, tail), 1U);
    EXPECT_STREQ(head, "R");
    EXPECT_STREQ(tail, "34");
}

} // namespace
