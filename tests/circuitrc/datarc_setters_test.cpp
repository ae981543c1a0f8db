#include "tests/circuitrc/datarc_fixture.h"

#include <climits>
#include <limits>
#include <string>

namespace bexa::test {
namespace {

class Setters : public DatarcFixture {
protected:
    Resource rc = fresh();
};

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

struct LongRow {
    const char* key;
    long value;
    bool taken;
};

const LongRow longRows[] = {
    {"precisionTblNo", 0, true},            // a new resource has one unit
    {"precisionTblNo", 1, false},           //
    {"precisionTblNo", -1, false},          //
    {"defaultCompColor", -1, true},         // no colour of its own
    {"defaultCompColor", -2, false},        //
    {"defaultCompColor", 14, true},         //
    {"defaultCompColor", 15, false},        //
    {"defaultFrameColor", 14, true},        //
    {"defaultFrameColor", 15, false},       // the reader would clamp
    {"defaultFrameColor", -1, false},       //
    {"defaultFrameColor", LONG_MIN, false}, //
    {"defaultFrameColor", LONG_MAX, false}, //
    {"defaultSymbFrameColor", 15, false},   //
    {"defaultLineWidth", 0, true},          // one row
    {"defaultLineWidth", 1, false},         //
    {"defaultCircleLineStyle", 3, true},    // four rows
    {"defaultCircleLineStyle", 4, false},   //
    {"defaultFillStyle", 1, true},          // two rows
    {"defaultFillStyle", 2, false},         //
    {"defaultTextFont", 0, true},           // one row
    {"defaultTextFont", 1, false},          //
    {"propDispNum", -1, true},              //
    {"propDispNum", -2, false},             //
    {"contentsViewer", 99, true},           //
    {"contentsFrameIsVisible", -2, false},  //
    {"noMountDispStyle", 3, true},          //
    {"noMountDispStyle", 4, false},         //
    {"noMountDispStyle", -1, false},        //
    {"nplNoMountCompDispStyle", 1, false},  // has no key here
    {"nodeSize", 1, false},                 // a key of another overload
    {"lineWidth", 1, false},                // a table
    {"nosuch", 1, false},                   //
    {"", 1, false},                         //
    {nullptr, 1, false},                    //
};

TEST_F(Setters, TakeWholeNumbersWithinTheirTable) {
    for (const LongRow& row : longRows) {
        SCOPED_TRACE((row.key ? row.key : "(null)") + std::string(" ") + std::to_string(row.value));
        EXPECT_EQ(fresh()->set(row.key, row.value, 0, 0), row.taken ? 1u : 0u);
    }
}

TEST_F(Setters, ChangeNothingWhenTheyRefuse) {
    const std::string before = saved(*rc);
    for (const LongRow& row : longRows) {
        if (!row.taken) rc->set(row.key, row.value, 0, 0);
    }
    rc->set("nodeSize", -1.0, 0, 0);
    rc->set("dataTrap", 0.0, 0, 0);
    EXPECT_EQ(saved(*rc), before);
}

TEST_F(Setters, KeepANumberThatNoIntHoldsAsTheLargest) {
    EXPECT_TRUE(rc->set("propDispNum", LONG_MAX, 0, 0));
    EXPECT_EQ(rc->propDispNum(), INT_MAX);
}

TEST_F(Setters, TakeNoColourAndColourZeroWithAnEmptyPalette) {
    EXPECT_TRUE(rc->set("defaultCompColor", 0L, 0, 0));
    EXPECT_EQ(rc->defaultCompColor(), 0);
    EXPECT_TRUE(rc->set("defaultCompColor", -1L, 0, 0));
    EXPECT_EQ(rc->defaultCompColor(), -1);
}

TEST_F(Setters, ScaleWithTheUnitThatWasChosen) {
    ASSERT_TRUE(rc->precision(1, "mil", 40, 1.0));
    ASSERT_TRUE(rc->set("precisiontblno", 1L, 0, 0));
    EXPECT_EQ(rc->precisionNumber(), 1u);
    EXPECT_EQ(rc->encode(1.5), 60);
    EXPECT_EQ(rc->decode(60), 1.5);
}

struct RealRow {
    const char* key;
    double value;
    bool taken;
};

const RealRow realRows[] = {
    {"NODESIZE", 3.0, true},             //
    {"nodeSize", 0.0, true},             // the one length that may be 0
    {"nodeSize", -0.1, false},           //
    {"nodeSize", 99999.9, true},         //
    {"nodeSize", 100000.0, false},       //
    {"nodeSize", notANumber, false},     //
    {"nodeSize", infinite, false},       //
    {"cornerRadius", 0.0, false},        //
    {"cornerRadius", 0.001, true},       //
    {"cornerRadius", 100000.0, false},   //
    {"cornerRadius", notANumber, false}, //
    {"dataTrap", 0.0, false},            //
    {"dataTrap", 0.001, true},           //
    {"dataTrap", 100000.0, false},       //
    {"dataTrap", -infinite, false},      //
    {"propDispNum", 1.0, false},         // a key of another overload
    {"nosuch", 1.0, false},              //
    {nullptr, 1.0, false},               //
};

TEST_F(Setters, TakeLengthsWithinTheirRange) {
    for (const RealRow& row : realRows) {
        SCOPED_TRACE((row.key ? row.key : "(null)") + std::string(" ") + std::to_string(row.value));
        EXPECT_EQ(fresh()->set(row.key, row.value, 0, 0), row.taken ? 1u : 0u);
    }
}

TEST_F(Setters, ReportSuccessForATextUnderAnUnknownKey) {
    const std::string before = saved(*rc);
    for (const char* key :
         {"nosuch", "vmarkStr", "nplNoMountCompAliasName", "dateFormat", "propDispNum", ""}) {
        EXPECT_TRUE(rc->set(key, "x", 0, 0)) << key;
    }
    EXPECT_TRUE(rc->set(nullptr, "x", 0, 0));
    EXPECT_EQ(saved(*rc), before);
    EXPECT_FALSE(rc->set("nosuch", 1L, 0, 0));
}

TEST_F(Setters, StoreANullTextAsAnEmptyOne) {
    EXPECT_TRUE(rc->set("noMountAliasName", static_cast<const char*>(nullptr), 0, 0));
    EXPECT_EQ(rc->noMountAliasName(), "");
}

TEST_F(Setters, StoreAnyCharacter) {
    EXPECT_TRUE(rc->set("busStartChar", '\0', 0, 0));
    EXPECT_EQ(rc->busStartChar(), '\0');
    EXPECT_FALSE(rc->set("busNSimpleDispSepChar", '+', 0, 0));
    EXPECT_FALSE(rc->set(nullptr, '+', 0, 0));
}

// ---- Modes

TEST_F(Setters, OfTheVariationMarkStoreFlagAndTexts) {
    EXPECT_TRUE(rc->variationMark(7, "@", "part"));
    unsigned long flag = 0;
    YString mark;
    YString name;
    ASSERT_TRUE(rc->variationMark(flag, &mark, &name));
    EXPECT_EQ(flag, 1u);
    EXPECT_STREQ(mark, "@");
    EXPECT_STREQ(name, "part");
    EXPECT_TRUE(rc->variationMark(0, nullptr, nullptr));
    ASSERT_TRUE(rc->variationMark(flag, &mark, &name));
    EXPECT_EQ(flag, 0u);
    EXPECT_STREQ(mark, "");
}

TEST_F(Setters, OfTheVariationMarkAreNotTakenForItsReader) {
    rc->variationMark(1, "@", "part");
    unsigned long flag = 5;
    char mark[8] = "m";
    char name[8] = "n";
    EXPECT_TRUE(rc->variationMark(flag, mark, name)); // variables: the reader
    EXPECT_EQ(flag, 1u);
    EXPECT_STREQ(mark, "@");
    EXPECT_STREQ(name, "part");
    const char* text = "$";
    EXPECT_TRUE(rc->variationMark(flag, text, text)); // constant texts: the setter
    EXPECT_TRUE(rc->variationMark(flag, mark, name));
    EXPECT_STREQ(name, "$");
}

TEST_F(Setters, OfTheSimpleDisplayAreNotTakenForItsReader) {
    EXPECT_TRUE(rc->busNSimpleDispMode(2, '+', '^'));
    int flag = 5;
    char separator = 'a';
    char crown = 'b';
    EXPECT_TRUE(rc->busNSimpleDispMode(flag, separator, crown)); // variables: the reader
    EXPECT_EQ(flag, 2);
    EXPECT_EQ(separator, '+');
    EXPECT_EQ(crown, '^');
    flag = 3;
    EXPECT_TRUE(rc->busNSimpleDispMode(flag, '-', '!')); // values: the setter
    const int fixed = 1;
    EXPECT_TRUE(rc->busNSimpleDispMode(flag, separator, crown));
    EXPECT_EQ(flag, 3);
    EXPECT_EQ(crown, '!');
    EXPECT_TRUE(rc->busNSimpleDispMode(fixed, separator, crown)); // a constant: the setter
    EXPECT_TRUE(rc->busNSimpleDispMode(flag, separator, crown));
    EXPECT_EQ(flag, 1);
}

TEST_F(Setters, OfModesMakeThemWritten) {
    const std::string before = saved(*rc);
    rc->busNSimpleDispMode(-1, '+', '^');
    rc->useBusAlias(1);
    rc->createInstNetLabelMode(5);
    rc->sheetNetErrorLevel(2);
    rc->overwritePortMode(0);
    rc->simpleArrayMode(1);
    rc->dateFormat("D");
    rc->timeFormat("T");
    const std::string modes = "busNSimpleDispFlag : -1\t\t\t# (0:NONE 1:BOTH 2:BUS 3:NET)\n"
                              "busNSimpleDispSepChar : \"+\"\n"
                              "busNSimpleDispCrownChar : \"^\"\n"
                              "useBusAliasFlag : On\n"
                              "createNetLabelFromDefRef : On\n"
                              "sheetNetErrorLevel : Normal\n"
                              "overwritePortMode : none\n"
                              "simpleArray : YES\n"
                              "dateFormat : \"D\"\n"
                              "timeFormat : \"T\"\n";
    std::string expected = before;
    expected.insert(before.find("nplNoMountCompAliasName"), modes);
    EXPECT_EQ(saved(*rc), expected);
    EXPECT_EQ(rc->createInstNetLabelMode(), 5u);
    EXPECT_EQ(rc->sheetNetErrorLevel(), 2u);
}

TEST_F(Setters, OfTheBusAliasTakeAValueThatHasNoWord) {
    EXPECT_TRUE(rc->useBusAlias(2));
    EXPECT_EQ(rc->useBusAlias(), 2u);
    EXPECT_NE(saved(*rc).find("\nuseBusAliasFlag : \n"), std::string::npos);
}

TEST_F(Setters, OfTheOverwriteModeRefuseAnUnknownMode) {
    EXPECT_TRUE(rc->overwritePortMode(3));
    EXPECT_FALSE(rc->overwritePortMode(4));
    EXPECT_EQ(rc->overwritePortMode(), 3u);
}

TEST_F(Setters, OfTheSimpleArrayCanOnlySwitchItOn) {
    EXPECT_TRUE(rc->simpleArrayMode(2));
    EXPECT_EQ(rc->simpleArrayMode(), 0u);
    EXPECT_TRUE(rc->simpleArrayMode(1));
    EXPECT_TRUE(rc->simpleArrayMode(0));
    EXPECT_EQ(rc->simpleArrayMode(), 1u);
}

TEST_F(Setters, OfFormatsIgnoreAnEmptyText) {
    const std::string before = saved(*rc);
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        EXPECT_TRUE(rc->dateFormat(text));
        EXPECT_TRUE(rc->timeFormat(text));
    }
    EXPECT_EQ(rc->dateFormat(), "YY/MM/DD");
    EXPECT_EQ(rc->timeFormat(), "HH:MM:SS");
    EXPECT_EQ(saved(*rc), before);
}

} // namespace
} // namespace bexa::test
