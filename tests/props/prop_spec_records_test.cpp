#include "bexa/props/prop_spec_records.h"
#include "tests/props/spec_fixture.h"
#include "tests/support/fresh_process.h"

#include <iterator>

using namespace bexa::test;

namespace {

// "name type display flag edit place colour [values]", "-" for a null text.
std::string fieldsOf(const BexPropSpecRec& row) {
    const auto text = [](const char* field) { return std::string(field ? field : "-"); };
    return text(row.propertyName()) + " " + std::to_string(row.valueType()) + " " +
           text(row.displayString()) + " " + std::to_string(row.displayFlag()) + " " +
           std::to_string(row.editFlag()) + " " + std::to_string(row.propPlace()) + " " +
           std::to_string(row.viewerColor()) + " [" + joined(*row.valueSelection(), "|") + "]";
}

class PropSpecRecord : public SpecTest {};

TEST_F(PropSpecRecord, HasDefaults) {
    EXPECT_EQ(fieldsOf(BexPropSpecRec()), "- 6 - 0 1 0 -1 []");
    EXPECT_EQ(BexPropSpecRec().isValid(), 0UL);
}

TEST_F(PropSpecRecord, RowsAreReadByPosition) {
    const struct {
        const char* row;
        const char* fields;
    } rows[] = {
        {"( VALUE text \"Value\" ON CIRC 3 \"1k\" \"2k\" )", "VALUE 2 Value 1 1 0 3 [1k|2k]"},
        {"( VALUE text \"Value\" ON 3 1k )", "VALUE 2 Value 1 1 0 3 [1k]"},
        {"( VALUE text \"Value\" ON LCDB )", "VALUE 2 Value 1 0 1 -1 []"},
        {"( X int \"x\" on circunedit 0 )", "X 0 x 1 0 0 -1 []"},
        {"( X int \"x\" On lcdb 7 )", "X 0 x 1 0 1 7 []"},
        {"( X Int )", "X 0 - 0 1 0 -1 []"},
        {"( X )", "X 6 - 0 1 0 -1 []"},
        {"( X double \"x\" )", "X 6 x 0 1 0 -1 []"},
        {"( X float \"x\" OFF )", "X 1 x 0 1 0 -1 []"},
        {"( X float \"x\" YES CIRC )", "X 1 x 0 1 0 -1 []"},
        {"( X hide \"x\" ON \"\" a )", "X 3 x 1 1 0 -1 [a]"},            // an empty colour
        {"( X REFTABLE \"\" ON red 3 )", "X 4  1 1 0 -1 [3]"},           // a colour that is no number
        {"( X refFile \"x\" ON CIRC LCDB a )", "X 5 x 1 1 0 -1 [a]"},    // one place only
        {"( X text x ON -4x a a \"\" b )", "X 2 x 1 1 0 -4 [a|a||b]"},   // values as they stand
        {"( X text x ON 99999999999999 )", "X 2 x 1 1 0 2147483647 []"}, // saturated
    };
    for (const auto& row : rows) EXPECT_EQ(fieldsOf(rowOf(row.row)), row.fields) << row.row;
}

TEST_F(PropSpecRecord, ARowOfTwoFieldsCounts) {
    EXPECT_EQ(rowOf("( X int )").isValid(), 1UL);
}

TEST_F(PropSpecRecord, AnUnknownTypeMakesItInvalid) {
    EXPECT_EQ(rowOf("( X double )").isValid(), 0UL);
}

TEST_F(PropSpecRecord, NeitherNullNorAnEmptyListIsRead) {
    BexPropSpecRec row = rowOf("( X int \"x\" )");
    const YioRscList empty = listOf("( )");
    EXPECT_EQ(row.readFrom(nullptr), 0UL);
    EXPECT_EQ(row.readFrom(&empty), 0UL);
    EXPECT_EQ(fieldsOf(row), "X 0 x 0 1 0 -1 []");
}

TEST_F(PropSpecRecord, IsWrittenWithAndWithoutPlace) {
    const struct {
        const char* row;
        const char* withPlace;
        const char* without;
    } rows[] = {
        {"( V text \"Value\" ON CIRC 3 1k 2k )", "( V\ttext\t\"Value\"\tON\tCIRC\t3\t1k 2k )",
         "( V\ttext\t\"Value\"\tON\t3\t1k 2k )"},
        {"( V int \"v\" OFF CIRCUNEDIT 0 )", "( V\tint\t\"v\"\tOFF\tCIRCUNEDIT\t-1 )",
         "( V\tint\t\"v\"\tOFF\t-1 )"},
        {"( V float \"v\" ON LCDB 12 )", "( V\tfloat\t\"v\"\tON\tLCDB\t12 )", "( V\tfloat\t\"v\"\tON\t12 )"},
        {"( V )", "( V\t\t\"\"\tOFF\tCIRC\t-1 )", "( V\t\t\"\"\tOFF\t-1 )"},
    };
    for (const auto& row : rows) {
        EXPECT_STREQ(rowOf(row.row).makeString(1), row.withPlace);
        EXPECT_STREQ(rowOf(row.row).makeString(0), row.without);
    }
    EXPECT_STREQ(BexPropSpecRec().makeString(0), "( \t\t\"\"\tOFF\t-1 )");
}

TEST_F(PropSpecRecord, ValuesAreQuotedByNeed) {
    const char* const quoted[] = {"a b", "#1", "(a", "a)", "a:b", "{a", "a}"};
    for (const char* value : quoted) {
        BexPropSpecRec row;
        row.appendValueSelection(value);
        EXPECT_EQ(std::string(row.makeString(0)), "( \t\t\"\"\tOFF\t-1\t\"" + std::string(value) + "\" )");
    }
    BexPropSpecRec row;
    row.appendValueSelection("1k-2[3]$");
    EXPECT_STREQ(row.makeString(0), "( \t\t\"\"\tOFF\t-1\t1k-2[3]$ )");
}

TEST_F(PropSpecRecord, DoubleByteValuesAreQuoted) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    BexPropSpecRec row;
    row.appendValueSelection("\x95\x5C"); // a second byte that looks like a backslash
    EXPECT_STREQ(row.makeString(0), "( \t\t\"\"\tOFF\t-1\t\"\x95\x5C\" )");
}

TEST_F(PropSpecRecord, AnEmptyValueIsLostInWriting) {
    const BexPropSpecRec before = rowOf("( X text \"x\" ON 1 a \"\" b )");
    EXPECT_EQ(before.valueSelection()->size(), 3);
    EXPECT_STREQ(before.makeString(0), "( X\ttext\t\"x\"\tON\t1\ta  b )");
    EXPECT_EQ(fieldsOf(rowOf(std::string(before.makeString(0)))), "X 2 x 1 1 0 1 [a|b]");
}

TEST_F(PropSpecRecord, AnUnknownTypeShiftsTheFieldsInWriting) {
    const BexPropSpecRec before = rowOf("( X double \"int\" ON )");
    EXPECT_EQ(fieldsOf(rowOf(std::string(before.makeString(0)))), "X 0 ON 0 1 0 -1 []");
}

TEST_F(PropSpecRecord, ANegativeColourReadsBack) {
    const BexPropSpecRec row = rowOf("( X int \"x\" ON CIRC 0 )");
    EXPECT_STREQ(row.makeString(1), "( X\tint\t\"x\"\tON\tCIRC\t-1 )");
    EXPECT_EQ(rowOf(std::string(row.makeString(1))).viewerColor(), -1);
}

TEST_F(PropSpecRecord, SettersSet) {
    BexPropSpecRec row = rowOf("( X int \"x\" )");
    row.valueType(BexPropTypeText);
    row.displayString("shown");
    row.displayFlag(1UL);
    row.viewerColor(5);
    row.propPlace("LCDB");
    EXPECT_EQ(fieldsOf(row), "X 2 shown 1 0 1 5 []");
    row.displayString(static_cast<const char*>(nullptr));
    EXPECT_EQ(fieldsOf(row), "X 2 - 1 0 1 5 []");
}

TEST_F(PropSpecRecord, OneWordSetsPlaceAndEditing) {
    BexPropSpecRec row = rowOf("( X int \"x\" ON LCDB )");
    row.propPlace("CircUnedit");
    EXPECT_EQ(fieldsOf(row), "X 0 x 1 0 0 -1 []");
    row.propPlace("elsewhere");
    EXPECT_EQ(fieldsOf(row), "X 0 x 1 1 0 -1 []");
    row.propPlace("LCDB");
    row.propPlace(nullptr);
    EXPECT_EQ(fieldsOf(row), "X 0 x 1 1 0 -1 []");
}

TEST_F(PropSpecRecord, AppendingAValueRefusesNothingTwice) {
    BexPropSpecRec row;
    EXPECT_EQ(row.appendValueSelection("a"), 1UL);
    EXPECT_EQ(row.appendValueSelection("A"), 1UL);
    EXPECT_EQ(row.appendValueSelection("a"), 0UL);
    EXPECT_EQ(row.appendValueSelection(""), 0UL);
    EXPECT_EQ(row.appendValueSelection(nullptr), 0UL);
    EXPECT_EQ(joined(*row.valueSelection()), "a A");
}

TEST_F(PropSpecRecord, ValuesAreReplacedByACopy) {
    YString_Array values;
    values.append("x");
    values.append("x");
    BexPropSpecRec row;
    row.appendValueSelection("a");
    row.valueSelection(values);
    values.removeAll();
    EXPECT_EQ(joined(*row.valueSelection()), "x x");
}

TEST_F(PropSpecRecord, CopiesStandAlone) {
    BexPropSpecRec row = rowOf("( X int \"x\" ON LCDB 3 a )");
    BexPropSpecRec copy(row);
    row.displayString("changed");
    row.appendValueSelection("b");
    EXPECT_EQ(fieldsOf(copy), "X 0 x 1 0 1 3 [a]");
    copy = row;
    EXPECT_EQ(fieldsOf(copy), "X 0 changed 1 0 1 3 [a|b]");
}

TEST(PropSpecWords, Types) {
    const char* const words[] = {"int", "float", "text", "hide", "refTable", "refFile"};
    for (int i = 0; i < static_cast<int>(std::size(words)); ++i) {
        EXPECT_EQ(BexPropSpecRec::string2valueType(words[i]), i);
        EXPECT_STREQ(BexPropSpecRec::valueType2string(BexPropValueType(i)), words[i]);
    }
    EXPECT_EQ(BexPropSpecRec::string2valueType("REFtable"), BexPropTypeRefTable);
    EXPECT_EQ(BexPropSpecRec::string2valueType("integer"), BexPropTypeUnknown);
    EXPECT_EQ(BexPropSpecRec::string2valueType(""), BexPropTypeUnknown);
    EXPECT_EQ(BexPropSpecRec::string2valueType(nullptr), BexPropTypeUnknown);
    EXPECT_STREQ(BexPropSpecRec::valueType2string(BexPropTypeUnknown), "");
    EXPECT_STREQ(BexPropSpecRec::valueType2string(BexPropValueType(-1)), "");
}

TEST(PropSpecWords, PlacesAndFlags) {
    const struct {
        const char* word;
        unsigned long flag;
        BexPropPlace place;
        unsigned long edit;
    } rows[] = {
        {"ON", 1, BexPlaceCirc, 1},         {"on", 1, BexPlaceCirc, 1},   {"OFF", 0, BexPlaceCirc, 1},
        {"CIRC", 0, BexPlaceCirc, 1},       {"LCDB", 0, BexPlaceLcdb, 0}, {"lcdb", 0, BexPlaceLcdb, 0},
        {"CIRCUNEDIT", 0, BexPlaceCirc, 0}, {"", 0, BexPlaceCirc, 1},     {nullptr, 0, BexPlaceCirc, 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(BexPropSpecRec::string2flag(row.word), row.flag);
        EXPECT_EQ(BexPropSpecRec::string2place(row.word), row.place);
        EXPECT_EQ(BexPropSpecRec::string2editF(row.word), row.edit);
    }
    EXPECT_STREQ(BexPropSpecRec::place2string(BexPlaceCirc), "CIRC");
    EXPECT_STREQ(BexPropSpecRec::place2string(BexPlaceLcdb), "LCDB");
    EXPECT_STREQ(BexPropSpecRec::place2string(BexPropPlace(2)), "");
}

TEST(PropSpecWords, ColourZeroIsNoColour) {
    const struct {
        const char* text;
        int color;
    } rows[] = {{"3", 3},   {"0", -1},   {"", -1},      {nullptr, -1}, {"red", -1},
                {"-7", -7}, {" 12", 12}, {"12red", 12}, {"-0", -1}};
    for (const auto& row : rows) EXPECT_EQ(BexPropSpecRec::string2col(row.text), row.color);
}

} // namespace
