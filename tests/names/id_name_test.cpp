#include "bexa/names/id_name.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

constexpr BexObjectType onSheet = BexSheetObject;
constexpr BexObjectType onSymbol = BexSymbolObject;

struct ReadRow {
    const char* text;
    BexObjectType context;
    unsigned long result;
    int type;
    int id;
};

void expectRead(const ReadRow& row) {
    SCOPED_TRACE(std::string(row.text) + " in " + std::to_string(row.context));
    BexIdName name;
    EXPECT_EQ(name.idName(row.text, row.context), row.result);
    EXPECT_EQ(name.isValid(), row.result);
    EXPECT_STREQ(name.name(), row.text);
    EXPECT_EQ(name.objType(), row.type);
    EXPECT_EQ(name.id(), row.id);
}

TEST(IdName, IsReadOnASheet) {
    const ReadRow rows[] = {
        {"cmp12", onSheet, 1, 7, 12}, {"snt7", onSheet, 1, 8, 7},    {"bnt7", onSheet, 1, 11, 7},
        {"ssg1", onSheet, 1, 10, 1},  {"bsg7", onSheet, 1, 13, 7},   {"pvw3", onSheet, 1, 14, 3},
        {"cpn2", onSheet, 1, 15, 2},  {"nnd40", onSheet, 1, 17, 40}, {"sht1", onSheet, 1, 18, 1},
        {"cmp0", onSheet, 1, 7, 0},   {"cmp012", onSheet, 1, 7, 12},
    };
    for (const ReadRow& row : rows) expectRead(row);
}

TEST(IdName, IsReadOnASymbol) {
    const ReadRow rows[] = {
        {"cpn2", onSymbol, 1, 16, 2},
        {"sht1", onSymbol, 1, 19, 1},
        {"pvw3", onSymbol, 1, 14, 3},
    };
    for (const ReadRow& row : rows) expectRead(row);
    for (const char* text : {"cmp12", "ssg12", "bsg12", "snt12", "bnt12", "nnd12"}) {
        expectRead({text, onSymbol, 0, 21, 12}); // no kind, but the id is read
    }
}

TEST(IdName, HasNoPrefixInAnyOtherContext) {
    for (int context : {0, 7, 16, 17, 20, 21, -1, 1000}) {
        expectRead({"cmp12", BexObjectType(context), 0, 21, 12});
        expectRead({"cpn12", BexObjectType(context), 0, 21, 12});
        expectRead({"sht12", BexObjectType(context), 0, 21, 12});
    }
}

TEST(IdName, IsReadInAnyCaseOfLettersAndKeepsIt) {
    expectRead({"CMP12", onSheet, 1, 7, 12});
    expectRead({"Cpn2", onSymbol, 1, 16, 2});
}

TEST(IdName, FailsWithoutAnIdButKeepsTheTextAndTheKind) {
    const ReadRow rows[] = {
        {"", onSheet, 0, 21, -1},          {"cm", onSheet, 0, 21, -1},     {"cmp", onSheet, 0, 21, -1},
        {"cmp_x", onSheet, 0, 7, -1},      {"cmp1x", onSheet, 0, 7, -1},   {"cmp-5", onSheet, 0, 7, -1},
        {"cmp+5", onSheet, 0, 7, -1},      {"cmp 5", onSheet, 0, 7, -1},   {"cmp5 ", onSheet, 0, 7, -1},
        {"pvw1x", onSheet, 0, 14, -1},     {"pvwx_", onSheet, 0, 14, -1},  {"xyz5", onSheet, 0, 21, 5},
        {"xyz_5", onSheet, 0, 21, -1},     {" cmp5", onSheet, 0, 21, -1},  {"1234", onSheet, 0, 21, 4},
        {"\x8e\xb6p5", onSheet, 0, 21, 5}, {"cmp\xff", onSheet, 0, 7, -1},
    };
    for (const ReadRow& row : rows) expectRead(row);
}

TEST(IdName, OfAViewerMayHaveATextForAnId) {
    for (BexObjectType context : {onSheet, onSymbol}) {
        expectRead({"pvw_x", context, 1, 14, -100});
        expectRead({"pvw_", context, 1, 14, -100});
        expectRead({"PVW_12", context, 1, 14, -100});
    }
}

TEST(IdName, OfANumberTooLargeIsTheLargestInt) {
    expectRead({"cmp2147483647", onSheet, 1, 7, INT_MAX});
    expectRead({"cmp2147483648", onSheet, 1, 7, INT_MAX});
    const std::string digits = "cmp" + std::string(100000, '9');
    expectRead({digits.c_str(), onSheet, 1, 7, INT_MAX});
}

TEST(IdName, OfNullIsEmpty) {
    BexIdName name("cmp12", onSheet);
    EXPECT_EQ(name.idName(nullptr, onSheet), 0u);
    EXPECT_STREQ(name.name(), "");
    EXPECT_EQ(name.id(), -1);
    EXPECT_EQ(name.objType(), BexNoObject);
}

TEST(IdName, ForgetsWhatItWas) {
    BexIdName name("cmp12", onSheet);
    EXPECT_EQ(name.idName("cm", onSheet), 0u);
    EXPECT_EQ(name.id(), -1);
    EXPECT_EQ(name.objType(), BexNoObject);
}

TEST(IdName, MayBeReadFromItsOwnText) {
    BexIdName name("cpn12", onSheet);
    EXPECT_EQ(name.idName(name.name(), onSymbol), 1u);
    EXPECT_STREQ(name.name(), "cpn12");
    EXPECT_EQ(name.objType(), BexSymbolPinObject);
}

TEST(IdName, IsBuiltForEachType) {
    const std::pair<int, const char*> rows[] = {
        {7, "cmp5"},  {8, "snt5"},  {11, "bnt5"}, {10, "ssg5"}, {13, "bsg5"}, {14, "pvw5"},
        {15, "cpn5"}, {16, "cpn5"}, {17, "nnd5"}, {19, "sht5"}, {18, "sht5"},
    };
    for (const auto& [type, text] : rows) {
        SCOPED_TRACE(text);
        BexIdName name;
        EXPECT_EQ(name.idName(5, BexObjectType(type)), 1u);
        EXPECT_STREQ(name.name(), text);
        EXPECT_EQ(name.id(), 5);
        EXPECT_EQ(name.objType(), type);
        EXPECT_EQ(name.isValid(), 1u);
    }
}

TEST(IdName, IsNotBuiltForATypeWithoutAPrefix) {
    for (int type : {0, 1, 2, 6, 9, 12, 20, 21, -7, 99}) {
        SCOPED_TRACE(type);
        BexIdName name("cmp12", onSheet);
        EXPECT_EQ(name.idName(5, BexObjectType(type)), 0u);
        EXPECT_STREQ(name.name(), "");
        EXPECT_EQ(name.id(), -1);
        EXPECT_EQ(name.objType(), BexNoObject);
    }
}

TEST(IdName, OfANegativeIdIsWrittenButCannotBeRead) {
    BexIdName name(-5, BexComponentObject);
    EXPECT_STREQ(name.name(), "cmp-5");
    EXPECT_EQ(name.isValid(), 1u);
    EXPECT_EQ(BexIdName("cmp-5", onSheet).isValid(), 0u);

    BexIdName smallest(INT_MIN, BexComponentObject);
    EXPECT_STREQ(smallest.name(), "cmp-2147483648");
}

TEST(IdName, OfTheIdMinusOneIsWrittenButNotValid) {
    BexIdName name;
    EXPECT_EQ(name.idName(-1, BexComponentObject), 0u);
    EXPECT_STREQ(name.name(), "cmp-1");
    EXPECT_EQ(name.objType(), BexComponentObject);
    EXPECT_EQ(name.isValid(), 0u);
}

TEST(IdName, KnowsBuses) {
    const std::pair<const char*, unsigned long> rows[] = {
        {"bnt7", 1}, {"bsg7", 1}, {"snt7", 0}, {"ssg7", 0}, {"cmp12", 0}, {"xyz7", 0}, {"bntx", 1},
    };
    for (const auto& [text, isBus] : rows) EXPECT_EQ(BexIdName(text, onSheet).isBus(), isBus) << text;
}

TEST(IdName, IsEmptyByDefault) {
    const BexIdName name;
    EXPECT_STREQ(name.name(), "");
    EXPECT_EQ(name.id(), -1);
    EXPECT_EQ(name.objType(), BexNoObject);
    EXPECT_EQ(name.isBus(), 0u);
    EXPECT_EQ(name.isValid(), 0u);
}

TEST(IdName, IsCopiedWhole) {
    const BexIdName name("bsg3", onSheet);
    BexIdName copy(name);
    BexIdName assigned;
    assigned = name;
    for (const BexIdName& other : {copy, assigned}) {
        EXPECT_STREQ(other.name(), "bsg3");
        EXPECT_EQ(other.id(), 3);
        EXPECT_EQ(other.objType(), BexBusSegmentObject);
    }
}

TEST(IdName, LendsItsStepsToDerivedClasses) {
    struct Steps : BexIdName {
        using BexIdName::divideName;
        using BexIdName::id;
        using BexIdName::setName;
        using BexIdName::type;
    } steps;
    YString prefix = "before";
    YString idText = "before";
    EXPECT_EQ(steps.divideName(prefix, idText), 0u);
    EXPECT_STREQ(prefix, "before");

    steps.setName("pvw", 12);
    EXPECT_STREQ(steps.name(), "pvw12");
    EXPECT_EQ(steps.divideName(prefix, idText), 1u);
    EXPECT_STREQ(prefix, "pvw");
    EXPECT_STREQ(idText, "12");
    EXPECT_EQ(steps.type(prefix, BexSymbolObject), 1u);
    EXPECT_EQ(steps.id("_12"), 1u);
    EXPECT_EQ(steps.id(), -100);
    EXPECT_EQ(steps.id("12x"), 0u);
    EXPECT_EQ(steps.id(), -1);
}

} // namespace
