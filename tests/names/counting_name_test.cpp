#include "bexa/names/counting_name.h"
#include "tests/names/resource_with_marks.h"

#include <climits>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

using namespace naming;

unsigned long init(BexStep& step, const char* text, int by = 1, const Marks& m = {}) {
    return step.init(text, m.busStart, m.busEnd, m.rangeEnd, m.bitEnd, m.rangeStep, by);
}
BexStep stepOf(const char* text, int by = 1, const Marks& m = {}) {
    BexStep step;
    EXPECT_EQ(init(step, text, by, m), 1u) << text;
    return step;
}
std::string now(const BexStep& step) {
    YString text = "before";
    return step.now(text) ? std::string(text) : "failed:" + std::string(text);
}
std::string numericPart(const BexStep& step) {
    YString text = "before";
    return step.nowNumericPart(text) ? std::string(text) : "failed:" + std::string(text);
}

struct CountRow {
    const char* text;
    int step;
    const char* after;
    const char* header;
    const char* numericPart;
};

TEST(CountingName, CountsUp) {
    const CountRow rows[] = {
        {"R001", 1, "R002", "R", "001"},       {"R999", 1, "R1000", "R", "999"}, // the width grows
        {"R1", 99, "R100", "R", "1"},          {"D[7]", 1, "D[8]", "D", "[7]"},
        {"D[07]", 3, "D[10]", "D", "[07]"},    {"D[99]", 1, "D[100]", "D", "[99]"},
        {"[07]", 2, "[09]", "", "[07]"}, // a bare bit part
        {"[0]", 1, "[1]", "", "[0]"},          {"007", 1, "008", "", "007"},
        {"A1B2", 1, "A1B3", "A1B", "2"},       {"A-5", 1, "A-6", "A-", "5"}, // no sign
        {"U1(2)3", 1, "U1(2)4", "U1(2)", "3"}, {"R001", 0, "R001", "R", "001"},
    };
    for (const CountRow& row : rows) {
        SCOPED_TRACE(row.text);
        BexStep step = stepOf(row.text, row.step);
        EXPECT_EQ(now(step), row.text);
        EXPECT_EQ(numericPart(step), row.numericPart);
        EXPECT_STREQ(step.orgStr(), row.text);
        EXPECT_STREQ(step.headerPart(), row.header);
        EXPECT_EQ(step.step(), row.step);
        EXPECT_EQ(now(++step), row.after);
        EXPECT_STREQ(step.orgStr(), row.text);
    }
}

TEST(CountingName, StopsAtTheLastNumberThatIsNotNegative) {
    BexStep step = stepOf("R001", 2);
    EXPECT_EQ(now(--step), "R001"); // -1 would be negative
    EXPECT_EQ(now(++step), "R003");
    EXPECT_EQ(now(--step), "R001");

    BexStep toZero = stepOf("D[4]", 2);
    EXPECT_EQ(now(--toZero), "D[2]");
    EXPECT_EQ(now(--toZero), "D[0]");
    EXPECT_EQ(now(--toZero), "D[0]");
}

TEST(CountingName, WithoutANumberHoldsTheNameButIsNotValid) {
    for (const char* text : {"ABC", "[]", "R1X", "-"}) {
        SCOPED_TRACE(text);
        BexStep step;
        EXPECT_EQ(init(step, text, 5), 0u);
        EXPECT_EQ(step.isValid(), 0u);
        EXPECT_STREQ(step.orgStr(), text);
        EXPECT_EQ(step.step(), 5);
        EXPECT_EQ(now(step), "failed:");
        EXPECT_EQ(numericPart(step), "failed:");
        EXPECT_EQ(now(++step), "failed:");
        EXPECT_EQ(now(--step), "failed:");
    }
    BexStep step;
    init(step, "ABC");
    EXPECT_STREQ(step.headerPart(), "ABC");
    init(step, "[]");
    EXPECT_STREQ(step.headerPart(), "");
}

TEST(CountingName, RefusesARangeAListAndABadNameAndStaysAsItWas) {
    const char* const texts[] = {
        nullptr, "",       "D[0-3]", "D[0,1]", "A,B",   "A1,",   ",",     ",A1",
        "D[1,]", "D[,]",   "D[1",    "D1]",    "D[1]X", "D[a]",  "[1",    "1]",
        "[1-2]", "[1,2]",  "[a]",    "[-1]",   "[ 1]",  "[[1]]", "[1]]",  "[",
        "]",     "D[2-2]", "A[1]B",  "D[0-0]", "[1]2",  "D,[1]", "D[3-]", "D[3-,4]",
    };
    for (const char* text : texts) {
        SCOPED_TRACE(text ? text : "(null)");
        BexStep step = stepOf("R001", 3);
        ++step;
        EXPECT_EQ(init(step, text, 7), 0u);
        EXPECT_EQ(step.isValid(), 1u);
        EXPECT_STREQ(step.orgStr(), "R001");
        EXPECT_EQ(step.step(), 3);
        EXPECT_EQ(now(step), "R004");
    }
}

TEST(CountingName, TakesARangeOfOneSignalAndItsWholeWidth) {
    BexStep step = stepOf("D[0-5-9]");
    EXPECT_EQ(now(step), "D[00000]"); // the number ends at the first "-", the width doesn't
    EXPECT_EQ(now(++step), "D[00001]");
    EXPECT_EQ(now(stepOf("D[12-3-10]")), "D[0000012]");
}

TEST(CountingName, RefusesAWideRangeAtOnce) {
    BexStep step;
    EXPECT_EQ(init(step, "D[0-16777215]"), 0u);
    EXPECT_EQ(init(step, "D[0-2147483647]"), 0u);
    EXPECT_EQ(init(step, "D[0-99999999999999999999-2147483647]"), 0u); // two signals
    EXPECT_STREQ(step.orgStr(), "");
}

TEST(CountingName, AgreesWithTheCheckOfBundles) {
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        const std::string text = randomText(random, "R[]-,019", 9);
        const BexChkBundleName asBundle = bundle(text);
        BexStep step;
        init(step, text.c_str());
        const bool isTaken = *step.orgStr() != '\0';
        const bool isBare = text.starts_with('[') && text.ends_with(']') &&
                            text.find_first_not_of("0123456789", 1) == text.size() - 1;
        EXPECT_EQ(isTaken, isBare || (asBundle.isValid() && asBundle.sigCount() < 2)) << text;
    }
}

TEST(CountingName, SaturatesInsteadOfOverflowing) {
    BexStep step = stepOf("R99999999999");
    EXPECT_EQ(now(step), "R02147483647"); // padded to the width given
    EXPECT_EQ(now(++step), "R02147483647");

    BexStep wide = stepOf("R1", INT_MAX);
    ++wide;
    EXPECT_EQ(now(++wide), "R2147483647");

    BexStep back = stepOf("R1", INT_MIN);
    EXPECT_EQ(now(--back), "R2147483647");
}

TEST(CountingName, GoesBelowZeroOnlyByANegativeStep) {
    BexStep step = stepOf("R1", -3);
    ++step;
    EXPECT_EQ(step.isValid(), 1u);
    EXPECT_EQ(now(step), "failed:");
    EXPECT_EQ(numericPart(step), "failed:");
    EXPECT_EQ(now(--step), "R1");
    EXPECT_EQ(now(--step), "R4");
}

TEST(CountingName, MayBeOfAnyLength) {
    const std::string text = "R" + std::string(100000, '0') + "9";
    BexStep step = stepOf(text.c_str());
    EXPECT_EQ(now(step), text);
    EXPECT_EQ(now(++step), "R" + std::string(99999, '0') + "10");
}

TEST(CountingName, TakesItsDelimitersFromTheArguments) {
    const Marks marks{'<', '>', ':', ';', '/'};
    EXPECT_EQ(now(++stepOf("D<7>", 1, marks)), "D<8>");
    EXPECT_EQ(now(++stepOf("<07>", 1, marks)), "<08>");
    EXPECT_EQ(now(++stepOf("A,B-5", 1, marks)), "A,B-6");
    BexStep step;
    EXPECT_EQ(init(step, "D<0:3>", 1, marks), 0u);
    EXPECT_EQ(init(step, "A;B", 1, marks), 0u);
}

TEST(CountingName, WithoutADelimiterHasOnlyTheBareBitPart) {
    BexStep step;
    EXPECT_EQ(init(step, "R001", 1, {'[', ']', '\0', ',', '-'}), 0u);
    EXPECT_EQ(init(step, "[7]", 1, {'[', ']', '\0', ',', '-'}), 1u);
    EXPECT_EQ(now(step), "[7]");
    EXPECT_EQ(init(step, "[7]", 1, {'\0', '\0', '-', ',', '-'}), 0u);
    EXPECT_EQ(init(step, "", 1, {'\0', '\0', '-', ',', '-'}), 0u);
    EXPECT_EQ(init(step, "R001", 1, {'[', ']', '-', ',', '\0'}), 1u); // the step is not required
}

TEST(CountingName, HasNoNumberBetweenEqualBrackets) {
    BexStep step;
    EXPECT_EQ(init(step, "|3|", 1, {'|', '|', '-', ',', '-'}), 0u);
    EXPECT_EQ(step.isValid(), 0u);
    EXPECT_EQ(init(step, "|", 1, {'|', '|', '-', ',', '-'}), 0u);
}

TEST(CountingName, TakesItsDelimitersFromAResource) {
    BexStep step;
    EXPECT_EQ(step.init("D[7]", ResourceWithMarks(), 2), 1u);
    EXPECT_EQ(now(++step), "D[9]");
    EXPECT_EQ(step.init("D<7>", ResourceWithMarks({'<', '>', ':', ';', '/'}), 2), 1u);
    EXPECT_EQ(numericPart(++step), "<9>");
    EXPECT_EQ(step.init("D<0:3>", ResourceWithMarks({'<', '>', ':', ';', '/'}), 2), 0u);
}

TEST(CountingName, IsReadAnewFromItsOwnText) {
    BexStep step = stepOf("D[7]", 2);
    ++step;
    EXPECT_EQ(init(step, step.orgStr()), 1u);
    EXPECT_EQ(now(step), "D[7]");
    EXPECT_EQ(init(step, step.headerPart()), 0u);
    EXPECT_STREQ(step.orgStr(), "D");
}

TEST(CountingName, IsCopiedWithItsNumber) {
    BexStep step = stepOf("D[07]", 3);
    ++step;
    BexStep copy(step);
    BexStep assigned = stepOf("R1");
    assigned = step;
    ++step;
    for (BexStep* other : {&copy, &assigned}) {
        EXPECT_EQ(now(*other), "D[10]");
        EXPECT_EQ(numericPart(*other), "[10]");
        EXPECT_STREQ(other->headerPart(), "D");
        EXPECT_STREQ(other->orgStr(), "D[07]");
        EXPECT_EQ(other->isValid(), 1u);
        EXPECT_EQ(now(++*other), "D[13]");
    }
    EXPECT_EQ(now(step), "D[13]");
}

TEST(CountingName, HasNothingToCountByDefault) {
    BexStep step;
    EXPECT_EQ(step.isValid(), 0u);
    EXPECT_EQ(step.step(), 1);
    EXPECT_STREQ(step.orgStr(), "");
    EXPECT_STREQ(step.headerPart(), "");
    EXPECT_EQ(now(step), "failed:");
    EXPECT_EQ(now(++step), "failed:");
    EXPECT_EQ(BexStep(step).isValid(), 0u);
}

TEST(CountingName, StandsInArrays) {
    BexStep_Array steps;
    for (int i = 0; i < 300; ++i) steps.append(stepOf("R001", i));
    EXPECT_EQ(now(++steps[299]), "R300");
    EXPECT_EQ(now(++steps[7]), "R008");
}

} // namespace
