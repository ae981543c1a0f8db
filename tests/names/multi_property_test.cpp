#include "bexa/names/multi_property.h"
#include "tests/names/resource_with_marks.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace naming;

class MultiProperty : public testing::Test {
protected:
    BexMultiProperty make(int bits, const char* text) const {
        BexMultiProperty property(bits, rc_);
        property = text;
        return property;
    }
    Texts valuesOf(const BexMultiProperty& property) const {
        Texts values;
        for (int bit = 0; bit < property.bitCount(); ++bit) values.emplace_back(property.value(bit));
        return values;
    }
    Texts valuesOf(int bits, const char* text) const { return valuesOf(make(bits, text)); }

    ResourceWithMarks rc_;
};

TEST_F(MultiProperty, GoesToTheBitsInOrder) {
    EXPECT_EQ(valuesOf(4, "1,2,3,4"), (Texts{"1", "2", "3", "4"}));
    EXPECT_EQ(valuesOf(4, "1,2"), (Texts{"1", "2", "", ""}));
    EXPECT_EQ(valuesOf(4, "1,2,3,4,5"), (Texts{"1", "2", "3", "4"})); // the last one is dropped
    EXPECT_EQ(valuesOf(3, ",,x"), (Texts{"", "", "x"}));
    EXPECT_EQ(valuesOf(3, "x,"), (Texts{"x", "", ""}));
    EXPECT_EQ(valuesOf(2, "a b, c"), (Texts{"a b", " c"}));
    EXPECT_EQ(valuesOf(2, "U[1,2]"), (Texts{"U[1", "2]"})); // brackets mean nothing
}

TEST_F(MultiProperty, OfOneValueStandsForAllBits) {
    EXPECT_EQ(valuesOf(4, "5"), (Texts{"5", "5", "5", "5"}));
    EXPECT_EQ(valuesOf(2, ""), (Texts{"", ""}));
}

TEST_F(MultiProperty, OfASingleBitIsTheWholeText) {
    EXPECT_EQ(valuesOf(1, "1,2"), (Texts{"1,2"}));
    EXPECT_EQ(valuesOf(1, ","), (Texts{","}));
    EXPECT_STREQ(make(1, "1,2").pack(), "1,2");
    EXPECT_TRUE(make(1, "1,2") == "1,2");
    EXPECT_FALSE(make(1, "1,2") == "1");
}

TEST_F(MultiProperty, OfNullIsEmpty) {
    BexMultiProperty property = make(3, "1,2,3");
    property = static_cast<const char*>(nullptr);
    EXPECT_EQ(valuesOf(property), (Texts{"", "", ""}));
    property = make(1, "1");
    property = static_cast<const char*>(nullptr);
    EXPECT_EQ(valuesOf(property), (Texts{""}));
}

TEST_F(MultiProperty, WithoutBitsIsNeverRead) {
    BexMultiProperty property;
    property = "1,2";
    EXPECT_EQ(property.size(), 0);
    EXPECT_EQ(property.bitCount(), 0);
    EXPECT_STREQ(property.pack(), "");
    EXPECT_STREQ(property.expand(), "");
    EXPECT_EQ(BexMultiProperty(-3, rc_).size(), 0);
    EXPECT_EQ(valuesOf(-3, "1"), Texts());
}

TEST_F(MultiProperty, ForgetsWhatItWas) {
    BexMultiProperty property = make(3, "1,2,3");
    property = "x,";
    EXPECT_EQ(valuesOf(property), (Texts{"x", "", ""}));
}

TEST_F(MultiProperty, MayBeReadFromItsOwnValue) {
    BexMultiProperty property = make(3, "1,2,3");
    property.value(1, "a,b");
    property = property.value(1);
    EXPECT_EQ(valuesOf(property), (Texts{"a", "b", ""}));
    property = property.value(1);
    EXPECT_EQ(valuesOf(property), (Texts{"b", "b", "b"}));
}

TEST_F(MultiProperty, PacksEqualValuesIntoOne) {
    EXPECT_STREQ(make(4, "5").pack(), "5");
    EXPECT_STREQ(make(4, "5,5,5,5").pack(), "5");
    EXPECT_STREQ(make(4, "1,2").pack(), "1,2,,");
    EXPECT_STREQ(make(3, ",,").pack(), "");
    EXPECT_STREQ(make(4, "5").expand(), "5,5,5,5");
    EXPECT_STREQ(make(4, "1,2").expand(), "1,2,,");
    EXPECT_STREQ(make(1, "1,2").expand(), "1,2");
}

TEST_F(MultiProperty, PacksIntoATextOfTheCaller) {
    BexMultiProperty property = make(2, "1,2");
    YString out = "before";
    property.pack(out);
    EXPECT_STREQ(out, "1,2");
    make(2, "7").expand(out);
    EXPECT_STREQ(out, "7,7");
    property.pack(property[0]);
    EXPECT_STREQ(property.value(0), "1,2");
    property.expand(property[1]);
    EXPECT_STREQ(property.value(1), "1,2,2");
}

TEST_F(MultiProperty, PacksOnlyTheBits) {
    BexMultiProperty property = make(2, "5");
    property.append("other");
    EXPECT_STREQ(property.pack(), "5");
    EXPECT_STREQ(property.expand(), "5,5");
}

TEST_F(MultiProperty, EqualsItsText) {
    struct Row {
        int bits;
        const char* values;
        const char* text;
        bool equal;
    };
    const Row rows[] = {
        {2, "1,2", "1,2", true},    {2, "1,2", "1,3", false},
        {2, "1,2", "1,2,", false}, // as many pieces as bits
        {2, "1,2", "1,2,3", false}, {3, "1,2,", "1,2", false},
        {3, "1,2,", "1,2,", true},  {4, "5", "5", true}, // one value matches all bits
        {4, "5,5,5,6", "5", false}, {2, "", nullptr, true},
        {2, "", "", true},          {2, "1", nullptr, false},
        {1, "1,2", "1,2", true},    {1, "1", "1,2", false},
        {1, "", nullptr, true},     {0, "", "", false}, // without bits nothing is equal
        {0, "", nullptr, false},
    };
    for (const Row& row : rows) {
        const BexMultiProperty property = make(row.bits, row.values);
        SCOPED_TRACE(std::string(row.values) + " and " + (row.text ? row.text : "(null)"));
        EXPECT_EQ(property == row.text, row.equal);
        EXPECT_EQ(property != row.text, !row.equal);
    }
}

TEST_F(MultiProperty, EqualsATextWhosePiecesItsValuesBeginWith) {
    const BexMultiProperty property = make(3, "abc,def,ghi");
    EXPECT_TRUE(property == "abc,def,ghi");
    EXPECT_TRUE(property == "a,de,ghi");
    EXPECT_TRUE(property == ",,ghi");
    EXPECT_FALSE(property == "abc,def,gh"); // but not the last one
    EXPECT_FALSE(property == "abcd,def,ghi");
    EXPECT_FALSE(property == "b,def,ghi");
}

TEST_F(MultiProperty, EqualsAnotherObject) {
    const BexMultiProperty property = make(2, "1,2");
    EXPECT_TRUE(property == make(2, "1,2"));
    EXPECT_FALSE(property != make(2, "1,2"));
    EXPECT_FALSE(property == make(2, "1,3"));
    EXPECT_FALSE(property == make(2, "1"));
    EXPECT_FALSE(property == make(3, "1,2"));
    BexMultiProperty other(2, ResourceWithMarks({'[', ']', '-', ';', '-'}));
    other = "1;2";
    EXPECT_FALSE(property == other); // by the separator
    EXPECT_TRUE(BexMultiProperty() == BexMultiProperty());
    BexMultiProperty longer = make(2, "1,2");
    longer.append("x");
    EXPECT_TRUE(property == longer); // elements that are no bits don't count
}

TEST_F(MultiProperty, HasAValueForEachBit) {
    BexMultiProperty property = make(2, "1,2");
    property.append("no bit");
    EXPECT_STREQ(property.value(1), "2");
    EXPECT_EQ(property.value(2), nullptr);
    EXPECT_EQ(property.value(-1), nullptr);
    property.value(1, "x");
    property.value(2, "y");
    property.value(-1, "y");
    property.value(0, nullptr);
    EXPECT_EQ(valuesOf(property), (Texts{"", "x"}));
    EXPECT_STREQ(property[2], "no bit");
    property.value(0, property.value(1));
    EXPECT_EQ(valuesOf(property), (Texts{"x", "x"}));
}

TEST_F(MultiProperty, TakesElementsThatWentForEmptyOnes) {
    BexMultiProperty property = make(3, "1,2,3");
    property.removeAll();
    EXPECT_STREQ(property.pack(), "");
    EXPECT_STREQ(property.expand(), ",,");
    EXPECT_EQ(valuesOf(property), (Texts{"", "", ""}));
    EXPECT_TRUE(property == "");
    property.value(2, "x");
    EXPECT_STREQ(property.pack(), ",,x");
    property.resize(1);
    property = "1,2,3";
    EXPECT_EQ(valuesOf(property), (Texts{"1", "2", "3"}));
}

TEST_F(MultiProperty, GrowsByItsBitCountButNeverShrinks) {
    BexMultiProperty property = make(2, "1,2");
    property.bitCount(4);
    EXPECT_EQ(valuesOf(property), (Texts{"1", "2", "", ""}));
    property.bitCount(1);
    EXPECT_EQ(property.bitCount(), 1);
    EXPECT_EQ(property.size(), 4);
    for (int bits : {0, -1}) {
        property.bitCount(bits);
        EXPECT_EQ(property.bitCount(), 1);
    }
    property.bitCount(2);
    EXPECT_EQ(valuesOf(property), (Texts{"1", "2"}));
}

TEST_F(MultiProperty, TakesSeparatorAndBitsByReset) {
    BexMultiProperty property = make(2, "1,2");
    property.reset(3, ResourceWithMarks({'[', ']', '-', ';', '-'}));
    EXPECT_EQ(property.bitCount(), 3);
    EXPECT_STREQ(property.expand(), "1;2;");
    property.reset(0, rc_);
    EXPECT_EQ(property.bitCount(), 0);
    EXPECT_STREQ(property.expand(), "");
}

TEST_F(MultiProperty, WithoutASeparatorInTheResourceIsOneValue) {
    BexMultiProperty property(2, ResourceWithMarks({'[', ']', '-', '\0', '-'}));
    property = "1,2";
    EXPECT_EQ(valuesOf(property), (Texts{"1,2", "1,2"}));
    EXPECT_TRUE(property == "1,2");
}

TEST_F(MultiProperty, GivesOnePieceOfAText) {
    struct Row {
        const char* text;
        int bit;
        const char* value;
    };
    const Row rows[] = {
        {"1,2", 0, "1"}, {"1,2", 1, "2"}, {"1,2", 2, ""},   {"1,2", 5, ""},          {"7", 0, "7"},
        {"7", 5, "7"},   {"7", -1, "7"},  {"1,2", -1, ""},  {",x", 0, ""},           {",x", 1, "x"},
        {"x,", 1, ""},   {"", 0, ""},     {nullptr, 0, ""}, {"1,2", 2147483647, ""}, {"U[1,2]", 1, "2]"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.text ? row.text : "(null)") + " " + std::to_string(row.bit));
        EXPECT_STREQ(BexMultiProperty::getOne(row.text, row.bit, rc_), row.value);
        YString out = "before";
        BexMultiProperty::getOne(row.text, row.bit, rc_, out);
        EXPECT_STREQ(out, row.value);
    }
}

TEST_F(MultiProperty, GivesOnePieceInThePlaceOfTheText) {
    YString text = "1,2,3";
    BexMultiProperty::getOne(text, 1, rc_, text);
    EXPECT_STREQ(text, "2");
    EXPECT_STREQ(BexMultiProperty::getOne("1,2;3", 1, ResourceWithMarks({'[', ']', '-', ';', '-'})), "3");
}

TEST_F(MultiProperty, IsCopiedWhole) {
    BexMultiProperty property = make(2, "1,2");
    const BexMultiProperty copy(property);
    BexMultiProperty assigned;
    assigned = property;
    property = "x";
    EXPECT_EQ(valuesOf(copy), (Texts{"1", "2"}));
    EXPECT_EQ(valuesOf(assigned), (Texts{"1", "2"}));
    EXPECT_TRUE(copy == assigned);
}

} // namespace
