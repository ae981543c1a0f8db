#include "bexa/foundation/ycore/text_compare.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

int sign(int value) {
    return value < 0 ? -1 : value > 0;
}

TEST(TextCompare, LettersCompareWithoutTheirCase) {
    struct Row {
        const char* a;
        const char* b;
        int order;
    };
    const Row rows[] =
        {
            {"abc", "ABC", 0},   {"abc", "abd", -1}, {"B", "a", 1},
            {"abc", "ab", 1},    {"", "", 0},        {"", "a", -1},
            {"Z[", "z[", 0},     {"a_", "aB", -1},   // letters count as small ones, behind the underscore
            {"\xE0", "\xC0", 1}, {"a\x81", "a~", 1}, // bytes beyond ASCII have no case and sort behind it
            {nullptr, "", 0},    {"", nullptr, 0},   {nullptr, nullptr, 0},
            {nullptr, "a", -1},  {"a", nullptr, 1},  {"@", "`", -1},
        };
    for (const Row& row : rows) {
        EXPECT_EQ(sign(Ystricmp(row.a, row.b)), row.order)
            << (row.a ? row.a : "null") << ' ' << (row.b ? row.b : "null");
        EXPECT_EQ(sign(Ystrnicmp(row.a, row.b, 100)), row.order);
    }
}

TEST(TextCompare, OnlySoManyBytesCount) {
    EXPECT_EQ(Ystrnicmp("abcX", "ABCy", 3), 0);
    EXPECT_LT(Ystrnicmp("abcX", "ABCy", 4), 0);
    EXPECT_EQ(Ystrnicmp("a", "b", 0), 0);
    EXPECT_EQ(Ystrnicmp(nullptr, "b", 0), 0);
    EXPECT_LT(Ystrnicmp(nullptr, "b", 1), 0);
}

TEST(TextCompare, NothingIsReadBehindTheTerminatorOrTheSize) {
    const auto bare = std::make_unique<char[]>(2); // no terminator
    std::memcpy(bare.get(), "ab", 2);
    EXPECT_EQ(Ystrnicmp(bare.get(), "ABC", 2), 0);
    const auto ended = std::make_unique<char[]>(2);
    std::memcpy(ended.get(), "a", 2);
    EXPECT_EQ(Ystrnicmp(ended.get(), "A", 4000000000U), 0);
}

} // namespace
