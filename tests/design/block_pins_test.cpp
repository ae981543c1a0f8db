#include "bexa/design/block_pins.h"

#include "tests/support/datarc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using bexa::test::newDatarc;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string shown(const char* text) {
    return text ? text : "(null)";
}

// Rows as "10 D[0-3]".
std::vector<std::string> rowsOf(const BexBlockPinAssignTable& table) {
    std::vector<std::string> rows;
    for (int i = 0; i < table.size(); ++i) {
        rows.push_back(std::to_string(table.at(i).figId()) + ' ' + shown(table.at(i).sigN()));
    }
    return rows;
}

struct Row {
    unsigned figId;
    const char* sigN;
};

BexBlockPinAssignTable tableOf(const std::vector<Row>& rows) {
    BexBlockPinAssignTable table;
    for (const Row& row : rows) table.append(BexBlockPinAssign(row.figId, row.sigN));
    return table;
}

std::vector<std::string> pressed(const std::vector<Row>& rows) {
    const auto rc = newDatarc();
    return rowsOf(tableOf(rows).press(*rc));
}

void expectFields(const BexBlockPinAssign& row, unsigned figId, const char* sigN, unsigned bits,
                  const char* io) {
    EXPECT_EQ(row.figId(), figId);
    EXPECT_EQ(shown(row.sigN()), shown(sigN));
    EXPECT_EQ(row.bits(), bits);
    EXPECT_EQ(shown(row.io()), shown(io));
}

} // namespace

TEST(BlockPin, ConstructorsSetTheFieldsTheyAreGiven) {
    expectFields(BexBlockPinAssign(), 0, nullptr, 0, nullptr);
    expectFields(BexBlockPinAssign(7, "CLK"), 7, "CLK", 1, nullptr);
    expectFields(BexBlockPinAssign(7, "D[0-3]", 4), 7, "D[0-3]", 4, nullptr);
    expectFields(BexBlockPinAssign(7, "CLK", 1, "IN"), 7, "CLK", 1, "IN");
}

TEST(BlockPin, WithoutANameStandsForNoSignal) {
    expectFields(BexBlockPinAssign(7, nullptr), 7, nullptr, 0, nullptr);
}

TEST(BlockPin, AnEmptyNameIsNotAMissingOne) {
    expectFields(BexBlockPinAssign(7, "", 1, ""), 7, "", 1, "");
}

TEST(BlockPin, SettersReplaceAndNullRemoves) {
    BexBlockPinAssign row(7, "CLK", 1, "IN");
    EXPECT_TRUE(row.figId(4294967295u) && row.sigN("RESET") && row.bits(3) && row.io(nullptr));
    expectFields(row, 4294967295u, "RESET", 3, nullptr);
    row.sigN(nullptr);
    row.io("OUT");
    expectFields(row, 4294967295u, nullptr, 3, "OUT");
}

TEST(BlockPin, TakesAPartOfItsOwnName) {
    BexBlockPinAssign row(1, "a name of more than twenty-three bytes, so that it lies elsewhere");
    row.sigN(row.sigN() + 2);
    EXPECT_STREQ(row.sigN(), "name of more than twenty-three bytes, so that it lies elsewhere");
}

TEST(BlockPin, FreeReleasesTextsAndZeroesNumbers) {
    BexBlockPinAssign row(7, "CLK", 1, "IN");
    row.free();
    expectFields(row, 0, nullptr, 0, nullptr);
    row.free();
    expectFields(row, 0, nullptr, 0, nullptr);
}

TEST(BlockPin, CopiesAreDeep) {
    BexBlockPinAssign row(7, "CLK", 1, "IN");
    const BexBlockPinAssign copy(row);
    BexBlockPinAssign assigned(8, "OLD", 2, "OUT");
    assigned = row;
    row.sigN("X");
    row.free();
    expectFields(copy, 7, "CLK", 1, "IN");
    expectFields(assigned, 7, "CLK", 1, "IN");
}

TEST(BlockPin, AssignmentTakesOverMissingTexts) {
    BexBlockPinAssign row(8, "OLD", 2, "OUT");
    row = BexBlockPinAssign(7, nullptr);
    expectFields(row, 7, nullptr, 0, nullptr);
}

TEST(BlockPin, SurvivesAssignmentToItself) {
    BexBlockPinAssign row(7, "CLK", 1, "IN");
    const BexBlockPinAssign& same = row;
    row = same;
    expectFields(row, 7, "CLK", 1, "IN");
}

TEST(BlockPinTable, KeepsItsTextsWhenItGrows) {
    BexBlockPinAssignTable table;
    for (unsigned i = 0; i < 1000; ++i)
        table.append(BexBlockPinAssign(i, std::to_string(i).c_str(), 1, "IO"));
    for (unsigned i = 0; i < 1000; ++i) {
        ASSERT_STREQ(table.at(static_cast<int>(i)).sigN(), std::to_string(i).c_str());
        ASSERT_STREQ(table.at(static_cast<int>(i)).io(), "IO");
    }
}

TEST(BlockPinTable, SortsByIdThenByNameWithTheMissingNameFirst) {
    BexBlockPinAssignTable table =
        tableOf({{9, "A"}, {2, "D[10]"}, {2, "D[2]"}, {2, ""}, {2, nullptr}, {10, "B"}});
    table.sortById();
    EXPECT_THAT(rowsOf(table), ElementsAre("2 (null)", "2 ", "2 D[2]", "2 D[10]", "9 A", "10 B"));
}

TEST(BlockPinTable, SortsByNameThenByIdWithTheMissingNameFirst) {
    BexBlockPinAssignTable table =
        tableOf({{9, "D[10]"}, {5, "D[2]"}, {4, nullptr}, {3, "D[2]"}, {1, nullptr}, {7, ""}});
    table.sortBySigName();
    EXPECT_THAT(rowsOf(table), ElementsAre("1 (null)", "4 (null)", "7 ", "3 D[2]", "5 D[2]", "9 D[10]"));
}

TEST(BlockPinTable, SortsNumbersAsUnsigned) {
    BexBlockPinAssignTable table = tableOf({{4294967295u, "A"}, {0, "B"}, {2147483648u, "C"}});
    table.sortById();
    EXPECT_THAT(rowsOf(table), ElementsAre("0 B", "2147483648 C", "4294967295 A"));
}

TEST(BlockPinPress, JoinsRunsOfOneRoot) {
    struct {
        std::vector<Row> rows;
        std::vector<std::string> result;
        const char* meaning;
    } const cases[] = {
        {{{10, "D[0]"}, {11, "D[1]"}, {12, "D[2]"}}, {"10 D[0-2]"}, "a run becomes a range"},
        {{{12, "D[2]"}, {10, "D[0]"}, {11, "D[1]"}}, {"10 D[0-2]"}, "rows are sorted first"},
        {{{10, "D[3]"}, {11, "D[1]"}}, {"10 D[3-1-2]"}, "downward, with a step"},
        {{{10, "D[0]"}, {12, "D[1]"}}, {"10 D[0]", "12 D[1]"}, "a gap in the numbers"},
        {{{10, "D[0]"}, {10, "D[1]"}}, {"10 D[0]", "10 D[1]"}, "the same number is not the next one"},
        {{{10, "D[0]"}, {11, "E[1]"}}, {"10 D[0]", "11 E[1]"}, "another root"},
        {{{10, "D[0]"}, {11, "E[0]"}, {12, "E[1]"}, {13, "D[1]"}},
         {"10 D[0]", "11 E[0-1]", "13 D[1]"},
         "a root that comes back starts afresh"},
        {{{10, "D"}, {11, "D[1]"}}, {"10 D,D[1]"}, "a plain name has itself as its root"},
        {{{10, "CLK"}, {11, "CLK"}}, {"10 CLK,CLK"}, "equal plain names join and have no range"},
        {{{5, "D[0]"}, {5, "D[1]"}, {6, "D[2]"}},
         {"5 D[0]", "5 D[1-2]"},
         "the predecessor counts, not the run"},
        {{{10, "D[0-1]"}, {11, "D[2-3]"}}, {"10 D[0-3]"}, "rows may be arrays already"},
        {{{7, "D[007]"}}, {"7 D[007]"}, "a single signal stays as it is"},
        {{{4294967295u, "D[1]"}, {0, "D[2]"}},
         {"0 D[2]", "4294967295 D[1]"},
         "nothing follows the largest number"},
    };
    for (const auto& c : cases) EXPECT_EQ(pressed(c.rows), c.result) << c.meaning;
}

TEST(BlockPinPress, KeptOnPurposeNamesThatAreNoArraysJoin) {
    EXPECT_THAT(pressed({{1, "A]"}, {2, "[B"}}), ElementsAre("1 A],[B"));
    EXPECT_THAT(pressed({{1, ""}, {2, nullptr}}), ElementsAre("1 ,"));
}

TEST(BlockPinPress, OfAnEmptyTableIsEmpty) {
    EXPECT_THAT(pressed({}), IsEmpty());
}

TEST(BlockPinPress, LeavesTheTableSortedById) {
    const auto rc = newDatarc();
    BexBlockPinAssignTable table = tableOf({{2, "D[1]"}, {1, "D[0]"}});
    table.press(*rc);
    EXPECT_THAT(rowsOf(table), ElementsAre("1 D[0]", "2 D[1]"));
}

TEST(BlockPinPress, RowsStandForTheSumOfTheirSignals) {
    const auto rc = newDatarc();
    BexBlockPinAssignTable table;
    table.append(BexBlockPinAssign(1, "D[0-3]", 4, "IN"));
    table.append(BexBlockPinAssign(2, "D[4]", 1, "OUT"));
    table.append(BexBlockPinAssign(9, "CLK", 1, "OUT"));
    const BexBlockPinAssignTable result = table.press(*rc);
    ASSERT_EQ(result.size(), 2);
    expectFields(result.at(0), 1, "D[0-4]", 5, "IN");
    expectFields(result.at(1), 9, "CLK", 1, "OUT");
}

TEST(BlockPinPress, WritesWithTheDelimitersOfTheResource) {
    const auto rc = newDatarc();
    rc->set("busStartChar", '<', 0, 0);
    rc->set("busEndChar", '>', 0, 0);
    rc->set("bitEndChar", ';', 0, 0);
    rc->set("rangeEndChar", ':', 0, 0);
    rc->set("rangeStepChar", '/', 0, 0);
    BexBlockPinAssignTable table = tableOf({{1, "D<0>"}, {2, "D<2>"}, {3, "D<4>"}, {4, "D<9>"}});
    EXPECT_THAT(rowsOf(table.press(*rc)), ElementsAre("1 D<0:4/2;9>"));
}

TEST(BlockPinPress, JoinsNothingWithoutASeparator) {
    const auto rc = newDatarc();
    rc->set("bitEndChar", '\0', 0, 0);
    BexBlockPinAssignTable table = tableOf({{1, "D[0]"}, {2, "D[1]"}});
    EXPECT_THAT(rowsOf(table.press(*rc)), ElementsAre("1 D[0]", "2 D[1]"));
}

TEST(BlockPinPress, CompressesAWideBus) {
    const auto rc = newDatarc();
    BexBlockPinAssignTable table;
    for (unsigned i = 0; i < 100000; ++i) {
        table.append(BexBlockPinAssign(i, ("D[" + std::to_string(i) + ']').c_str()));
    }
    EXPECT_THAT(rowsOf(table.press(*rc)), ElementsAre("0 D[0-99999]"));
}
