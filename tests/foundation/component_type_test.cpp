#include "bexa/foundation/component_type.h"

#include <gtest/gtest.h>

namespace {

using OfBits = unsigned long (*)(unsigned);
using OfWords = unsigned long (*)(const char*);

#define FORMS(name) static_cast<OfBits>(BexCompType::name), static_cast<OfWords>(BexCompType::name)

const struct {
    unsigned bit;
    const char* word;
    OfBits ofBits;
    OfWords ofWords;
} tests[] = {
    {1, "net", FORMS(isNet)},
    {2, "frame", FORMS(isFrame)},
    {4, "parts", FORMS(isParts)},
    {8, "gate", FORMS(isGate)},
    {16, "block", FORMS(isBlock)},
    {32, "vcc", FORMS(isVcc)},
    {64, "gnd", FORMS(isGnd)},
    {128, "shortComponent", FORMS(isShort)},
    {256, "hieConnector", FORMS(isHieConn)},
    {512, "shtConnector", FORMS(isShtConn)},
    {1024, "powerBox", FORMS(isPowerBox)},
};

TEST(ComponentType, EachTestSeesItsBitOnly) {
    for (const auto& test : tests) {
        for (const auto& other : tests) {
            EXPECT_EQ(test.ofBits(other.bit), test.bit == other.bit) << test.word << ' ' << other.word;
            EXPECT_EQ(test.ofWords(other.word), test.bit == other.bit) << test.word << ' ' << other.word;
        }
        EXPECT_EQ(test.ofBits(~0U), 1UL);
        EXPECT_EQ(test.ofBits(0), 0UL);
        EXPECT_EQ(test.ofWords("nosuch"), 0UL);
        EXPECT_EQ(test.ofWords(nullptr), 0UL);
    }
    EXPECT_EQ(BexCompType::isGate("net|GATE"), 1UL);
}

TEST(ComponentType, FigureIsZeroAndEveryUnknownWord) {
    EXPECT_EQ(BexCompType::isFig(0), 1UL);
    EXPECT_EQ(BexCompType::isFig(1), 0UL);
    EXPECT_EQ(BexCompType::isFig("fig"), 1UL);
    EXPECT_EQ(BexCompType::isFig("nosuch"), 1UL);
    EXPECT_EQ(BexCompType::isFig("net"), 0UL);
}

TEST(ComponentType, IsValidWithOneKnownBit) {
    EXPECT_EQ(BexCompType::isValid(0), 1UL);
    EXPECT_EQ(BexCompType::isValid(2048u), 0UL);
    EXPECT_EQ(BexCompType::isValid(2049u), 1UL);
    EXPECT_EQ(BexCompType::isValid(~0u), 1UL);
}

TEST(ComponentType, IsValidWithOneKnownWord) {
    EXPECT_EQ(BexCompType::isValid("FIG"), 1UL);
    EXPECT_EQ(BexCompType::isValid("nosuch|net"), 1UL);
    for (const char* words : {"nosuch", "", "fig|fig", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(BexCompType::isValid(words), 0UL);
    }
}

} // namespace
