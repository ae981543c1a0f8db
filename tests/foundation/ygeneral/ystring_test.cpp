#include "bexa/foundation/ygeneral/ystring.h"

#include <gtest/gtest.h>

#include <climits>
#include <sstream>
#include <string>

namespace {

// One text that lies inside the object and one that doesn't.
const std::string sizes[] = {"short", "a text that is too long to lie inside the object itself"};

TEST(YString, StartsEmptyAndNeverNull) {
    const YString text;
    EXPECT_STREQ(text, "");
    EXPECT_EQ(text.length(), 0);
    EXPECT_STREQ(YString(static_cast<const char*>(nullptr)), "");
    EXPECT_STREQ(YString(100), "");
    EXPECT_STREQ(YString(-1), "");
}

TEST(YString, ConstructorsTakeTextsAndCopies) {
    for (const std::string& size : sizes) {
        const YString text(size.c_str());
        EXPECT_STREQ(text, size.c_str());
        EXPECT_EQ(text.length(), static_cast<int>(size.size()));
        YString copy(text);
        copy << "!";
        EXPECT_STREQ(text, size.c_str());
        const YString moved(std::move(copy));
        EXPECT_EQ(moved.view(), size + "!");
    }
    EXPECT_STREQ(YString('x', 3), "xxx");
    EXPECT_EQ(YString('x', 100).view(), std::string(100, 'x'));
    EXPECT_STREQ(YString('x', 0), "");
    EXPECT_STREQ(YString('x', -5), "");
}

TEST(YString, IndexOutsideTheTextReadsNulThroughTheRescueByte) {
    YString empty;
    YString text("ab");
    EXPECT_EQ(empty[0], '\0');
    EXPECT_EQ(empty[1], '\0');
    EXPECT_EQ(text[1], 'b');
    EXPECT_EQ(text[2], '\0');
    EXPECT_EQ(text[-1], '\0');
    EXPECT_EQ(text[INT_MAX], '\0');
    EXPECT_EQ(text[ULONG_MAX], '\0');
    // One shared byte, in no text's buffer.
    EXPECT_EQ(&empty[0], &text[2]);
    EXPECT_EQ(&text[-1], &text[2U]);
}

// An enumerator or a character must not fall back to the plain pointer, which knows no end.
TEST(YString, AnyKindOfIntegerIsAnIndex) {
    enum Place { Second = 1, Behind = 2 };
    YString text("ab");
    const YString& constant = text;
    EXPECT_EQ(text[Second], 'b');
    EXPECT_EQ(text[Behind], '\0');
    EXPECT_EQ(&text[Behind], &text[-1]);
    EXPECT_EQ(constant[Behind], '\0');
    EXPECT_EQ(text['a'], '\0');
    EXPECT_EQ(constant['\1'], 'b');
    EXPECT_EQ(text[true], 'b');
    EXPECT_EQ(text[static_cast<signed char>(-1)], '\0');
    EXPECT_EQ(text[static_cast<unsigned char>(255)], '\0');
}

TEST(YString, ReadingAConstTextOutsideGivesNul) {
    const YString text("ab");
    EXPECT_EQ(text[0], 'a');
    EXPECT_EQ(text[2], '\0');
    EXPECT_EQ(text[-1L], '\0');
}

TEST(YString, AnIndexInsideCanBeWritten) {
    YString text("abc");
    text[1] = 'X';
    EXPECT_STREQ(text, "aXc");
}

TEST(YString, AssignReplacesAndNullEmpties) {
    for (const std::string& size : sizes) {
        YString text("before");
        EXPECT_EQ(text.assign(size.c_str()), 1U);
        EXPECT_EQ(text.view(), size);
        EXPECT_EQ(text.assign(size.c_str(), 3), 1U);
        EXPECT_EQ(text.view(), size.substr(0, 3));
        EXPECT_EQ(text.assign(static_cast<const char*>(nullptr)), 1U);
        EXPECT_EQ(text.length(), 0);
        EXPECT_EQ(text.assign(nullptr, 7), 1U);
        EXPECT_EQ(text.length(), 0);
    }
}

TEST(YString, ConcatAppendsAndNullAppendsNothing) {
    YString text;
    EXPECT_EQ(text.concat("ab"), 1U);
    EXPECT_EQ(text.concat("cdef", 2), 1U);
    EXPECT_EQ(text.concat(static_cast<const char*>(nullptr)), 1U);
    EXPECT_EQ(text.concat(nullptr, 4), 1U);
    EXPECT_STREQ(text, "abcd");
}

TEST(YString, TheSourceMayBePartOfTheText) {
    for (const std::string& size : sizes) {
        YString text(size.c_str());
        text.concat(text);
        EXPECT_EQ(text.view(), size + size);
        text.assign(static_cast<const char*>(text) + 2, 4);
        EXPECT_EQ(text.view(), (size + size).substr(2, 4));
        for (int i = 0; i < 10; ++i) {
            text << static_cast<const char*>(text);
        }
        EXPECT_EQ(text.length(), 4096);
        text = static_cast<const char*>(text) + 4092;
        EXPECT_EQ(text.view(), (size + size).substr(2, 4));
    }
}

TEST(YString, AppendsNumbersInDecimal) {
    YString text;
    text << 'c' << ' ' << 0 << ' ' << -7 << ' ' << INT_MIN << ' ' << LONG_MAX << ' ' << LONG_MIN;
    EXPECT_EQ(text.view(), "c 0 -7 " + std::to_string(INT_MIN) + ' ' + std::to_string(LONG_MAX) + ' ' +
                               std::to_string(LONG_MIN));
    YString number("A");
    (number += 12) += -3;
    EXPECT_STREQ(number, "A12-3");
    (number += short{4}) += true;
    EXPECT_STREQ(number, "A12-341");
}

template <class Added>
concept CanBeAdded = requires(YString text, Added added) {
    text += added;
};

TEST(YString, EveryNumberButACharacterCanBeAdded) {
    EXPECT_TRUE(CanBeAdded<int>);
    EXPECT_TRUE(CanBeAdded<unsigned>);
    EXPECT_TRUE(CanBeAdded<long>);
    EXPECT_TRUE(CanBeAdded<std::size_t>);
    EXPECT_FALSE(CanBeAdded<char>);
}

TEST(YString, PlusGivesANewText) {
    const YString a("ab");
    const YString b("a longer text that lies on the heap");
    EXPECT_STREQ(a + b, "aba longer text that lies on the heap");
    EXPECT_STREQ(a + "c" + "d", "abcd");
    EXPECT_STREQ(a, "ab");
}

TEST(YString, IsCountedSoANulStaysInIt) {
    YString text("a");
    text << '\0' << 'b';
    EXPECT_EQ(text.length(), 3);
    EXPECT_EQ(text.view(), std::string_view("a\0b", 3));
    EXPECT_STREQ(text, "a");
    EXPECT_EQ(text[2], 'b');
}

TEST(YString, FindsCharactersFromBothEnds) {
    const YString text("abcabc");
    EXPECT_EQ(text.index('b'), 1);
    EXPECT_EQ(text.index('b', 2), 4);
    EXPECT_EQ(text.index('b', 5), -1);
    EXPECT_EQ(text.index('b', 99), -1);
    EXPECT_EQ(text.index('b', -9), 1);
    EXPECT_EQ(text.index('x'), -1);
    EXPECT_EQ(text.rindex('b'), 4);
    EXPECT_EQ(text.rindex('b', 4), 4);
    EXPECT_EQ(text.rindex('b', 5), -1);
    EXPECT_EQ(text.rindex('b', -9), 4);
    EXPECT_EQ(text.rindex('x'), -1);
    EXPECT_EQ(YString().index('a'), -1);
    EXPECT_EQ(YString().rindex('a'), -1);
}

TEST(YString, RemovesAllWhiteSpace) {
    YString text(" a\tb\n\v c\f\r ");
    EXPECT_EQ(text.removeSpace(), 1U);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(text.length(), 3);
    YString blank(" \t ");
    blank.removeSpace();
    EXPECT_EQ(blank.length(), 0);
}

TEST(YString, ComparesExactlyOnEitherSide) {
    const YString text("abc");
    EXPECT_TRUE(text == YString("abc"));
    EXPECT_TRUE(text == "abc");
    EXPECT_TRUE("abc" == text);
    EXPECT_TRUE(text != YString("abC"));
    EXPECT_TRUE(text != "ab");
    EXPECT_TRUE("abcd" != text);
    const char* null = nullptr;
    EXPECT_TRUE(text != null);
    EXPECT_TRUE(YString() == null);
}

TEST(YString, SortsByUnsignedBytes) {
    EXPECT_TRUE(YString("abc") < "abd");
    EXPECT_TRUE(YString("ab") < "abc");
    EXPECT_FALSE(YString("abc") < "abc");
    EXPECT_TRUE(YString("a") < "\x81");
    EXPECT_FALSE(YString("a") < static_cast<const char*>(nullptr));
    EXPECT_TRUE(YString("a") < YString("b"));
}

TEST(YString, EqualTextsHaveEqualHashes) {
    YString grown("ab");
    grown << "cd";
    EXPECT_EQ(grown.hash(), YString("abcd").hash());
    EXPECT_NE(YString("abcd").hash(), YString("abce").hash());
}

TEST(YString, GoesToAStream) {
    std::ostringstream out;
    YString text("a");
    text << '\0' << 'b';
    out << text << YString() << '.';
    EXPECT_EQ(out.str(), std::string("a\0b.", 4));
}

TEST(YString, AssignmentCopiesAndSurvivesItself) {
    for (const std::string& size : sizes) {
        YString text(size.c_str());
        text = *&text;
        EXPECT_EQ(text.view(), size);
        YString other("something else");
        other = text;
        EXPECT_EQ(other.view(), size);
        other = std::move(text);
        EXPECT_EQ(other.view(), size);
        other = static_cast<const char*>(nullptr);
        EXPECT_EQ(other.length(), 0);
    }
}

} // namespace
