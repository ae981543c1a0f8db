#include "bexa/envrc/option_values.h"

#include <gtest/gtest.h>
#include <string>

namespace {

// The option, two values that differ from each other and from the value at the start.
template <class Option, class Value>
void expectDefaultsGiveWay(Value start, Value first, Value second) {
    Option option;
    EXPECT_TRUE(option.value() == start);
    option.defaultValue(first);
    EXPECT_TRUE(option.value() == first);
    option.defaultValue(second); // a default doesn't mark the option as set
    EXPECT_TRUE(option.value() == second);

    option.value(first);
    option.defaultValue(second);
    EXPECT_TRUE(option.value() == first);
    option.value(second);
    EXPECT_TRUE(option.value() == second);

    Option copy(option);
    copy.defaultValue(first); // the copy is set too
    EXPECT_TRUE(copy.value() == second);
    Option assigned;
    assigned = option;
    assigned.defaultValue(first);
    EXPECT_TRUE(assigned.value() == second);

    option.clear();
    EXPECT_TRUE(option.value() == start);
    option.defaultValue(first);
    EXPECT_TRUE(option.value() == first);
}

TEST(OptionValues, OfTheUserAreNotReplacedByDefaults) {
    expectDefaultsGiveWay<BexOptInt>(0, 5, 7);
    expectDefaultsGiveWay<BexOptBool>(0UL, 1UL, 2UL);
    expectDefaultsGiveWay<BexOptFlag>(0UL, 1UL, 2UL);
    expectDefaultsGiveWay<BexOptFloat>(0.0, 0.5, -7.25);
    expectDefaultsGiveWay<BexOptPoint>(YintPoint(0, 0), YintPoint(1, 2), YintPoint(-3, 4));
}

TEST(OptionValues, OfAnglesAreNotReplacedByDefaults) {
    BexOptAngle angle;
    EXPECT_EQ(angle.value().radian(), 0.0);
    angle.defaultValue(Yangle(0.5));
    EXPECT_EQ(angle.value().radian(), 0.5);
    angle.value(Yangle(1.5));
    angle.defaultValue(Yangle(2.5));
    EXPECT_EQ(angle.value().radian(), 1.5);
    angle.clear();
    EXPECT_EQ(angle.value().radian(), 0.0);
}

TEST(OptionValues, ValueOfTheStartMaySetAnOption) {
    BexOptInt option;
    option.value(0);
    option.defaultValue(7);
    EXPECT_EQ(option.value(), 0);
}

TEST(OptionFlag, KnowsItsWordsInAnyCaseOfLetters) {
    struct Row {
        const char* word;
        BexOptFlagType type;
    };
    const Row rows[] = {
        {"On", BexOptFlagOn},         {"ON", BexOptFlagOn},         {"off", BexOptFlagOff},
        {"toggle", BexOptFlagToggle}, {"Toggle", BexOptFlagToggle}, {"", BexOptFlagNone},
        {"yes", BexOptFlagNone},      {"On ", BexOptFlagNone},      {nullptr, BexOptFlagNone},
    };
    for (const Row& row : rows) EXPECT_EQ(BexOptFlag::type(row.word), row.type) << (row.word ? row.word : "");
    EXPECT_EQ(BexOptFlagOn, 1);
    EXPECT_EQ(BexOptFlagOff, 2);
    EXPECT_EQ(BexOptFlagToggle, 3);
}

TEST(OptionFlag, TakesTheMeaningOfAWord) {
    BexOptFlag flag;
    EXPECT_EQ(flag.value(BexOptFlagOn), 1u);
    EXPECT_EQ(flag.value(), 1u);
    EXPECT_EQ(flag.value(BexOptFlagOff), 1u);
    EXPECT_EQ(flag.value(), 0u);
    flag.defaultValue(1);
    EXPECT_EQ(flag.value(), 0u); // it is set
}

TEST(OptionFlag, IsToggled) {
    BexOptFlag flag;
    EXPECT_EQ(flag.value(BexOptFlag::type("TOGGLE")), 1u);
    EXPECT_EQ(flag.value(), 1u);
    flag.value(BexOptFlagToggle);
    EXPECT_EQ(flag.value(), 0u);
    flag.value(7);
    flag.value(BexOptFlagToggle); // only 1 is on
    EXPECT_EQ(flag.value(), 1u);
    flag.defaultValue(0);
    EXPECT_EQ(flag.value(), 1u);
}

TEST(OptionFlag, IsNotChangedByAnUnknownWord) {
    BexOptFlag flag;
    flag.defaultValue(7);
    EXPECT_EQ(flag.value(BexOptFlag::type("perhaps")), 0u);
    EXPECT_EQ(flag.value(BexOptFlagType(9)), 0u);
    EXPECT_EQ(flag.value(), 7u);
    flag.defaultValue(8); // nor marked as set
    EXPECT_EQ(flag.value(), 8u);
    flag.value(1);
    EXPECT_EQ(flag.value(BexOptFlagNone), 0u);
    flag.defaultValue(0);
    EXPECT_EQ(flag.value(), 1u); // and stays set
}

TEST(OptionString, IsNotMarkedAsSetByItsValue) {
    BexOptString option;
    EXPECT_EQ(option.value(), nullptr);
    option.value("a");
    EXPECT_STREQ(option.value(), "a");
    option.defaultValue("b"); // unlike every other option
    EXPECT_STREQ(option.value(), "b");
}

TEST(OptionString, IgnoresNullAndEmptyTexts) {
    BexOptString option;
    option.value("a");
    option.value("");
    option.value(nullptr);
    option.defaultValue("");
    option.defaultValue(nullptr);
    EXPECT_STREQ(option.value(), "a");
    BexOptString empty;
    empty.value("");
    EXPECT_EQ(empty.value(), nullptr);
}

TEST(OptionString, CopiesTheTextGiven) {
    std::string text = "a text longer than any that stands inside an object";
    BexOptString option;
    option.value(text.c_str());
    text[0] = 'X';
    EXPECT_STREQ(option.value(), "a text longer than any that stands inside an object");
    option.value(option.value() + 2);
    EXPECT_STREQ(option.value(), "text longer than any that stands inside an object");
}

TEST(OptionString, IsCleared) {
    BexOptString option;
    option.clear();
    option.value("a");
    option.clear();
    EXPECT_EQ(option.value(), nullptr);
    option.defaultValue("b");
    EXPECT_STREQ(option.value(), "b");
}

TEST(OptionString, IsCopiedWithATextOfItsOwn) {
    BexOptString option;
    EXPECT_EQ(BexOptString(option).value(), nullptr);
    option.value("a");
    const BexOptString copy(option);
    EXPECT_NE(copy.value(), option.value());
    EXPECT_STREQ(copy.value(), "a");
    option.value("b");
    EXPECT_STREQ(copy.value(), "a");
}

TEST(OptionString, SharesItsTextAfterAnAssignment) {
    BexOptString target;
    target.value("old");
    {
        BexOptString source;
        source.value("new");
        target = source;
        EXPECT_EQ(target.value(), source.value()); // the very same
    }
    EXPECT_STREQ(target.value(), "new"); // and lives on
    BexOptString other;
    other = target;
    other.value("later");
    EXPECT_STREQ(target.value(), "new");
    const BexOptString& itself = target;
    target = itself;
    EXPECT_STREQ(target.value(), "new");
    target = BexOptString();
    EXPECT_EQ(target.value(), nullptr);
}

} // namespace
