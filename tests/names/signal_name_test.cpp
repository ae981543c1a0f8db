#include "bexa/names/signal_name.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>

namespace {

BexChkSigName checked(const char* name) {
    return BexChkSigName(name, '[', ']', '-', ',');
}

struct Row {
    const char* name;
    BexNetNameErrType errType;
    const char* root;
    int bit;
};

TEST(SignalName, IsTakenApart) {
    const Row rows[] = {
        {nullptr, BexNetNameUnchecked, "", -1},
        {"", BexNetNameUnchecked, "", -1},
        {"CLK", BexNetNameOk, "CLK", -1},
        {"D[7]", BexNetNameOk, "D", 7},
        {"D[0]", BexNetNameOk, "D", 0},
        {"D[007]", BexNetNameOk, "D", 7}, // leading zeros count for nothing
        {"[3]", BexNetNameOk, "", 3},     // an empty root is a signal, though never an array
        {"A-B", BexNetNameOk, "A-B", -1},
        {"-", BexNetNameOk, "-", -1},
        {"(RESET)", BexNetNameOk, "(RESET)", -1},
        {" ", BexNetNameOk, " ", -1},
        {"D[2147483647]", BexNetNameOk, "D", INT_MAX},
        {"D[2147483648]", BexNetNameOk, "D", INT_MAX}, // a number that doesn't fit is the largest one
        {"D[99999999999999999999]", BexNetNameOk, "D", INT_MAX},
    };
    for (const Row& row : rows) {
        const BexChkSigName signal = checked(row.name);
        SCOPED_TRACE(row.name ? row.name : "(null)");
        EXPECT_EQ(signal.errType(), row.errType);
        EXPECT_EQ(signal.isValid(), row.errType == BexNetNameOk ? 1u : 0u);
        EXPECT_STREQ(signal.name(), row.name ? row.name : "");
        EXPECT_STREQ(signal.sigName(), row.root);
        EXPECT_EQ(signal.bitNumber(), row.bit);
    }
}

TEST(NameResult, HasNoNumberThree) {
    EXPECT_EQ(BexNetNameUnchecked, 0);
    EXPECT_EQ(BexNetNameOk, 1);
    EXPECT_EQ(BexNetNameSyntax, 2);
    EXPECT_EQ(BexNetNameNoDelimiter, 4);
}

TEST(SignalName, HoldsNothingAfterASyntaxFailure) {
    const char* const names[] = {
        "D[]",    "D[7",    "D7]",   "D]7[",  "D[7]X", "D[1][2]", "A,B",   ",",
        "D[1,2]", "D[1-2]", "D[-1]", "D[+1]", "D[ 1]", "D[1 ]",   "D[x]",  "D[1x]",
        "[",      "]",      "[]",    "][",    "D[[1]", "D[1]]",   "D[1],", "D,[1]",
    };
    for (const char* name : names) {
        const BexChkSigName signal = checked(name);
        SCOPED_TRACE(name);
        EXPECT_EQ(signal.errType(), BexNetNameSyntax);
        EXPECT_EQ(signal.isValid(), 0u);
        EXPECT_STREQ(signal.name(), "");
        EXPECT_STREQ(signal.sigName(), "");
        EXPECT_EQ(signal.bitNumber(), -1);
    }
}

TEST(SignalName, IsUncheckedByDefault) {
    const BexChkSigName signal;
    EXPECT_EQ(signal.errType(), BexNetNameUnchecked);
    EXPECT_EQ(signal.isValid(), 0u);
    EXPECT_STREQ(signal.name(), "");
    EXPECT_STREQ(signal.sigName(), "");
    EXPECT_EQ(signal.bitNumber(), -1);
}

TEST(SignalName, NeedsAllFourDelimiters) {
    for (int missing = 0; missing < 4; ++missing) {
        char d[] = {'[', ']', '-', ','};
        d[missing] = '\0';
        SCOPED_TRACE(missing);
        const BexChkSigName signal("D[", d[0], d[1], d[2], d[3]);
        EXPECT_EQ(signal.errType(), BexNetNameNoDelimiter);
        EXPECT_STREQ(signal.name(), "");
        EXPECT_STREQ(signal.sigName(), "");
        EXPECT_EQ(BexChkSigName("", d[0], d[1], d[2], d[3]).errType(), BexNetNameUnchecked);
        EXPECT_EQ(BexChkSigName(nullptr, d[0], d[1], d[2], d[3]).errType(), BexNetNameUnchecked);
    }
}

TEST(SignalName, OneCharacterThatOpensAndClosesEndsAPlainName) {
    const Row rows[] = {
        {"A|", BexNetNameOk, "A|", -1},    {"|", BexNetNameOk, "|", -1}, {"A|3|", BexNetNameSyntax, "", -1},
        {"A|3", BexNetNameSyntax, "", -1}, {"A", BexNetNameOk, "A", -1},
    };
    for (const Row& row : rows) {
        const BexChkSigName signal(row.name, '|', '|', '-', ',');
        SCOPED_TRACE(row.name);
        EXPECT_EQ(signal.errType(), row.errType);
        EXPECT_STREQ(signal.sigName(), row.root);
        EXPECT_EQ(signal.bitNumber(), row.bit);
    }
}

TEST(SignalName, TakesAnyDelimiters) {
    EXPECT_EQ(BexChkSigName("D<3>", '<', '>', ':', ';').bitNumber(), 3);
    EXPECT_STREQ(BexChkSigName("D[3]", '<', '>', ':', ';').sigName(), "D[3]");
    EXPECT_EQ(BexChkSigName("D[3]", '[', ']', '-', '[').errType(), BexNetNameSyntax); // the separator opens
    EXPECT_EQ(BexChkSigName("A132", '1', '2', '-', ',').bitNumber(), 3);              // digits as brackets
    EXPECT_EQ(BexChkSigName("A112", '1', '2', '-', ',').errType(), BexNetNameSyntax);
}

TEST(SignalName, WalksBytesNotCharacters) {
    // The second byte of this pair is the closing bracket.
    EXPECT_EQ(checked("\x83]").errType(), BexNetNameSyntax);
    EXPECT_STREQ(checked("\x83\x5C[4]").sigName(), "\x83\x5C");
}

TEST(SignalName, CopiesAllFields) {
    const BexChkSigName signal = checked("A_NAME_THAT_IS_LONGER_THAN_A_SHORT_TEXT[12]");
    BexChkSigName copy = signal;
    BexChkSigName assigned = checked("X");
    assigned = copy;
    for (const BexChkSigName* other : {&copy, &assigned}) {
        EXPECT_STREQ(other->name(), signal.name());
        EXPECT_STREQ(other->sigName(), "A_NAME_THAT_IS_LONGER_THAN_A_SHORT_TEXT");
        EXPECT_EQ(other->bitNumber(), 12);
        EXPECT_EQ(other->errType(), BexNetNameOk);
    }
}

TEST(SignalName, EqualityLooksAtTextAndResult) {
    EXPECT_TRUE(checked("D[7]") == checked("D[7]"));
    EXPECT_FALSE(checked("D[7]") == checked("D[07]"));
    EXPECT_TRUE(checked("D[7]") != checked("D[8]"));
    EXPECT_FALSE(checked("") == checked("A,B")); // both texts are empty
    EXPECT_TRUE(checked("A,B") == checked("C["));
    // The same text taken apart in two ways.
    EXPECT_TRUE(checked("D[7]") == BexChkSigName("D[7]", '<', '>', '-', ','));
}

TEST(SignalName, SurvivesAHugeText) {
    const std::string huge(10'000'000, '7');
    EXPECT_EQ(checked(("D[" + huge + "]").c_str()).bitNumber(), INT_MAX);
    EXPECT_EQ(checked(huge.c_str()).errType(), BexNetNameOk);
    EXPECT_EQ(checked((huge + "[").c_str()).errType(), BexNetNameSyntax);
}

} // namespace
