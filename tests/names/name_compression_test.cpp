#include "bexa/names/name_compression.h"
#include "tests/names/naming.h"

#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace {

using namespace naming;

std::string compressed(const std::string& text, const Marks& m = {}) {
    return BexChkPressName(text.c_str(), m.busStart, m.busEnd, m.rangeEnd, m.bitEnd, m.rangeStep).newName();
}

struct Row {
    const char* text;
    const char* result;
};

TEST(NameCompression, WritesRuns) {
    const Row rows[] = {
        {"D[0],D[1],D[2],D[5]", "D[0-2,5]"},
        {"D[0],D[2],D[4]", "D[0-4-2]"},
        {"D[3],D[2],D[1]", "D[3-1]"},
        {"D[5],D[3],D[1]", "D[5-1-2]"},
        {"D[0],D[1]", "D[0-1]"},
        {"D[0],D[7]", "D[0-7-7]"},
        {"D[7],D[0]", "D[7-0-7]"},
        {"D[0],D[1],D[3],D[5]", "D[0-1,3-5-2]"}, // greedy: the first two set the step
        {"D[1],D[1]", "D[1,1]"},
        {"D[1],D[1],D[1]", "D[1,1,1]"},
        {"D[1],D[1],D[5]", "D[1,1-5-4]"},
        {"D[1],D[2],D[2],D[3]", "D[1-2,2-3]"},
        {"D[0-3],A", "D[0-3],A"},
        {"D[0-3],D[4-7]", "D[0-7]"},
        {"A,B[1],B[2]", "A,B[1-2]"},
        {"A[0],B[0]", "A[0],B[0]"},
        {"A,B", "A,B"},
        {"A,A", "A,A"},
        {"A,A[1]", "A,A[1]"},
        {"A[1],A", "A[1],A"},
        {"D[0],E[1],D[1]", "D[0],E[1],D[1]"}, // runs are not merged across another root
        {"D[007],D[008]", "D[7-8]"},
        {"D[1,,2]", "D[1],,D[2]"}, // an empty signal ends the array
        {",A", ",A"},
        {"A,", "A,"},
        {"A,,B", "A,,B"},
        {"D[,1]", ",D[1]"},
        {"D[0-9,9-0]", "D[0-9,9-0]"},
        {"D[2147483646],D[2147483647]", "D[2147483646-2147483647]"},
        {"D[0],D[2147483647]", "D[0-2147483647-2147483647]"},
    };
    for (const Row& row : rows) EXPECT_EQ(compressed(row.text), row.result) << row.text;
}

TEST(NameCompression, LeavesOneSignalAndWhatIsNotValid) {
    const char* const texts[] = {"D[7]",   "D[007]",         "CLK", "D[1", "A,[1]", "D[,]", ",",
                                 "D[2-2]", "D[0-2000000000]"};
    for (const char* text : texts) {
        BexChkPressName name(text, '[', ']', '-', ',', '-');
        EXPECT_EQ(name.newName(), name.name()) << text; // the very same text
        EXPECT_STREQ(name.name(), text);
    }
}

TEST(NameCompression, HasTheLimitOfABundle) {
    const auto isTaken = [](const char* text) {
        BexChkPressName name(text, '[', ']', '-', ',', '-');
        return name.newName() != name.name();
    };
    EXPECT_TRUE(isTaken("A[0-7999999],B[0-7999999]"));
    EXPECT_FALSE(isTaken("A[0-8999999],B[0-8999999]"));
}

TEST(NameCompression, WritesTheDelimitersGiven) {
    EXPECT_EQ(compressed("D[0],D[2],D[4]", {'[', ']', ':', ',', '/'}), "D[0:4/2]");
    EXPECT_EQ(compressed("D<0>;D<1>;E", {'<', '>', ':', ';', '/'}), "D<0:1>;E");
    // Digits as brackets: the names of some numbers are no signals.
    EXPECT_EQ(compressed("A0-3A,B", {'0', 'A', '-', ',', '-'}), "A0-3A,B");
    EXPECT_EQ(compressed("X18-122,B", {'1', '2', '-', ',', '-'}), "X18-122,B"); // not valid
    EXPECT_EQ(compressed("X(4-6),X(8)", {'(', ')', '-', ',', '5'}), "X(4-6,8)");
}

TEST(NameCompression, RangeDelimiterStandsInForAMissingStep) {
    EXPECT_EQ(compressed("D[0:2],D[4],D[6]", {'[', ']', ':', ',', '\0'}), "D[0:2,4:6:2]");
    EXPECT_EQ(compressed("D[0:4:2],D[6]", {'[', ']', ':', ',', '\0'}), "D[0:6:2]"); // in reading too
}

TEST(NameCompression, NeedsFourDelimitersAndAName) {
    EXPECT_EQ(BexChkPressName("A", '[', ']', '-', ',', '\0').isValid(), 1u);
    EXPECT_EQ(BexChkPressName("A[", '[', ']', '-', ',', '-').isValid(), 1u); // says nothing about the grammar
    EXPECT_EQ(BexChkPressName("", '[', ']', '-', ',', '-').isValid(), 0u);
    for (int missing = 0; missing < 4; ++missing) {
        char d[] = {'[', ']', '-', ','};
        d[missing] = '\0';
        BexChkPressName name("D[0],D[1]", d[0], d[1], d[2], d[3], '-');
        EXPECT_EQ(name.isValid(), 0u);
        EXPECT_STREQ(name.newName(), "D[0],D[1]");
    }
}

TEST(NameCompression, EmptyNameTakesNoDelimitersEither) {
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        BexChkPressName name(text, '[', ']', '-', ',', '-');
        EXPECT_STREQ(name.newName(), "");
        name.name("D[0],D[1]");
        EXPECT_EQ(name.isValid(), 0u);
        EXPECT_STREQ(name.newName(), "D[0],D[1]");
    }
    BexChkPressName none;
    EXPECT_EQ(none.isValid(), 0u);
    EXPECT_STREQ(none.name(), "");
    EXPECT_STREQ(none.newName(), "");
}

TEST(NameCompression, NameCanBeReplaced) {
    BexChkPressName name("D[0],D[1]", '[', ']', '-', ',', '-');
    EXPECT_STREQ(name.newName(), "D[0-1]");
    name.name("E[5],E[4],E[3]");
    EXPECT_STREQ(name.name(), "E[5],E[4],E[3]");
    EXPECT_STREQ(name.newName(), "E[5-3]");
    const BexChkPressName copy = name;
    BexChkPressName assigned;
    assigned = copy;
    EXPECT_STREQ(assigned.newName(), "E[5-3]");
    name.name(nullptr);
    EXPECT_EQ(name.isValid(), 0u);
}

TEST(NameCompression, ReadsBackIntoTheSameSignals) {
    std::mt19937 random(11);
    const Marks sets[] = {
        {}, {'<', '>', ':', ';', '/'}, {'[', ']', ':', ',', '\0'}, {'(', ')', '-', ',', '#'}};
    for (int round = 0; round < 8'000; ++round) {
        const Marks& marks = sets[random() % std::size(sets)];
        std::string text;
        for (std::size_t members = 1 + random() % 12; members > 0; --members) {
            text += std::string(1 + random() % 2, "AB"[random() % 2]);
            if (random() % 5) text += marks.busStart + std::to_string(random() % 6) + marks.busEnd;
            if (random() % 9 == 0) text += marks.bitEnd;
            if (members > 1) text += marks.bitEnd;
        }
        const BexChkBundleName before = bundle(text, marks);
        ASSERT_TRUE(before.isValid()) << text;
        const std::string shorter = compressed(text, marks);
        Marks reading = marks;
        if (!reading.rangeStep) reading.rangeStep = reading.rangeEnd;
        const BexChkBundleName after = bundle(shorter, reading);
        ASSERT_TRUE(after.isValid()) << text << " gave " << shorter;
        ASSERT_EQ(signalsOf(after), signalsOf(before)) << text << " gave " << shorter;
        ASSERT_LE(shorter.size(), text.size());
        ASSERT_EQ(compressed(shorter, marks), shorter);
    }
}

// A list is compressed without the bundle; both must agree on what is valid, whatever the delimiters.
TEST(NameCompression, AgreesWithBundlesOnRandomTexts) {
    std::mt19937 random(12);
    const std::string characters = "[]-,/:12D|0";
    for (int round = 0; round < 40'000; ++round) {
        Marks marks;
        for (char* mark :
             {&marks.busStart, &marks.busEnd, &marks.rangeEnd, &marks.bitEnd, &marks.rangeStep}) {
            if (random() % 6 == 0) *mark = characters[random() % characters.size()];
        }
        const std::string text = randomText(random, "D0123D" + characters.substr(0, 4), 12);
        const BexChkBundleName before = bundle(text, marks);
        BexChkPressName name(text.c_str(), marks.busStart, marks.busEnd, marks.rangeEnd, marks.bitEnd,
                             marks.rangeStep);
        const bool unchanged = name.newName() == name.name();
        ASSERT_EQ(unchanged, !before.isValid() || before.sigCount() < 2) << text;
    }
}

TEST(NameCompression, CompressesManyNames) {
    std::string text = "D[0]";
    for (int i = 1; i < 300'000; ++i) text += ",D[" + std::to_string(i) + "]";
    EXPECT_EQ(compressed(text), "D[0-299999]");
}

} // namespace
