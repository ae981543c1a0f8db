#include "bexa/foundation/text_cursor.h"

#include <gtest/gtest.h>

#include <climits>

using namespace bexa::detail;

namespace {

static_assert(viewOf(nullptr).empty());
static_assert(equalIgnoringCase("sHt-9", "ShT-9"));
static_assert(!equalIgnoringCase("a", "ab"));
static_assert(!equalIgnoringCase("[", "{"), "only letters have a case");

constexpr std::optional<int> numberIn(std::string_view text) {
    return TextCursor(text).takeNumber();
}

static_assert(numberIn("007x") == 7);
static_assert(numberIn("0") == 0);
static_assert(!numberIn("-1"));
static_assert(!numberIn(""));
static_assert(numberIn("2147483647") == INT_MAX);
static_assert(numberIn("2147483648") == INT_MAX, "saturates");
static_assert(numberIn("99999999999999999999999999999999") == INT_MAX, "saturates");

TEST(TextCursor, ReadsNulPastTheEnd) {
    TextCursor cursor("ab");
    EXPECT_EQ(cursor.peek(1), 'b');
    EXPECT_EQ(cursor.peek(2), '\0');
    EXPECT_EQ(cursor.peek(static_cast<std::size_t>(-1)), '\0');
    cursor.skip(9);
    EXPECT_TRUE(cursor.atEnd());
    EXPECT_EQ(cursor.take(), '\0');
    EXPECT_FALSE(cursor.take('\0')) << "the end is no byte";
    EXPECT_EQ(cursor.position(), 2u);
}

TEST(TextCursor, TakesWhatIsExpectedOrNothing) {
    TextCursor cursor("key:value");
    EXPECT_FALSE(cursor.take("keys"));
    EXPECT_EQ(cursor.position(), 0u);
    EXPECT_TRUE(cursor.take("key"));
    EXPECT_FALSE(cursor.take('='));
    EXPECT_TRUE(cursor.take(':'));
    EXPECT_EQ(cursor.takeRest(), "value");
    EXPECT_TRUE(cursor.atEnd());
}

TEST(TextCursor, TakesRuns) {
    TextCursor cursor(" \t\v\f\r\n12ab,c");
    cursor.skipWhite();
    const std::size_t begin = cursor.position();
    EXPECT_EQ(cursor.takeWhile(isDigit), "12");
    EXPECT_EQ(cursor.takeUntil(','), "ab");
    EXPECT_EQ(cursor.since(begin), "12ab");
    cursor.moveTo(begin);
    EXPECT_EQ(cursor.takeNumber(10), 10) << "a number above the most";
    EXPECT_EQ(cursor.takeUntil('!'), "ab,c") << "all, where the stop is missing";
    EXPECT_EQ(cursor.takeUntil('!'), "");
}

} // namespace
