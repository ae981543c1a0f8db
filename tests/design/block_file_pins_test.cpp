#include "tests/design/block_file_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace bexa::test {
namespace {

class BlockFilePins : public BlockFile {};

// What `pinAssignTable` finds for a number.
std::string signalAt(const BexBlockFile& file, unsigned figId) {
    YString name("untouched");
    const bool found = file.pinAssignTable(figId, &name);
    return (found ? "" : "none: ") + std::string(name);
}

TEST_F(BlockFilePins, AreFoundByNumberAndByName) {
    const BlockPtr file = loadPins("5 \"DATA[0-3]\"\n20 CLK\n7 SECOND\n0 ZERO");
    ASSERT_TRUE(file);
    EXPECT_EQ(signalAt(*file, 5), "DATA[0]");
    EXPECT_EQ(signalAt(*file, 7), "DATA[2]") << "the first row with this number";
    EXPECT_EQ(signalAt(*file, 9), "none: untouched");
    struct {
        const char* sigName;
        unsigned figId;
        const char* meaning;
    } const cases[] = {
        {"CLK", 20, "a plain name"},
        {"DATA[2]", 7, "a bit"},
        {"DATA[002]", 7, "a bit in another spelling"},
        {"DATA[3,1]", 8, "the first signal of an array"},
        {"CLK,DATA[0]", 20, "the first signal of a bundle"},
        {"ZERO", 0, "the number 0 is not told from nothing"},
        {"nosuch", 0, "no such name"},
        {"clk", 0, "case counts"},
        {"DATA", 0, "a root alone"},
        {"DATA[2", 0, "no name at all"},
        {"", 0, "an empty name"},
        {nullptr, 0, "no name given"},
    };
    for (const auto& c : cases) EXPECT_EQ(file->pinAssignTable(c.sigName), c.figId) << c.meaning;
}

TEST_F(BlockFilePins, AreCopiedIntoABuffer) {
    const BlockPtr file = loadPins("5 CLK");
    char buffer[8] = "-------";
    EXPECT_FALSE(file->pinAssignTable(6, buffer));
    EXPECT_STREQ(buffer, "-------");
    EXPECT_TRUE(file->pinAssignTable(5, buffer));
    EXPECT_EQ(std::memcmp(buffer, "CLK\0---", 8), 0);
}

TEST_F(BlockFilePins, WithoutANameGiveAnEmptyText) {
    const BlockPtr file = open("new.blk", BexOpenCreate);
    file->pinAssignTable().append(BexBlockPinAssign(5, nullptr));
    EXPECT_EQ(signalAt(*file, 5), "");
    EXPECT_EQ(file->pinAssignTable(",A"), 0u) << "and no name finds them";
}

// Above some size an index answers, so everything is asked of a small and of a large table.
class BlockFilePinTables : public BlockFile, public testing::WithParamInterface<int> {
protected:
    // Rows 0 to count - 1: their numbers go from 1000 up, with names N0 and so on.
    BlockPtr loadMany() const {
        std::string rows;
        for (int i = 0; i < GetParam(); ++i) {
            rows += std::to_string(1000 + i) + " N" + std::to_string(i) + '\n';
        }
        return loadPins(rows + "1000 SECOND 1 N0");
    }
};
INSTANTIATE_TEST_SUITE_P(Sizes, BlockFilePinTables, testing::Values(3, 63, 64, 1000));

TEST_P(BlockFilePinTables, FindTheFirstRow) {
    const BlockPtr file = loadMany();
    ASSERT_TRUE(file);
    for (int i = 0; i < GetParam(); ++i) {
        const std::string name = 'N' + std::to_string(i);
        ASSERT_EQ(signalAt(*file, static_cast<unsigned>(1000 + i)), name);
        ASSERT_EQ(file->pinAssignTable(name.c_str()), static_cast<unsigned>(1000 + i));
    }
    EXPECT_EQ(signalAt(*file, 999), "none: untouched");
    EXPECT_EQ(file->pinAssignTable("N"), 0u);
}

TEST_P(BlockFilePinTables, FollowEveryChange) {
    const BlockPtr file = loadMany();
    ASSERT_EQ(file->pinAssignTable("N1"), 1001u);
    ASSERT_EQ(signalAt(*file, 1001), "N1");
    BexBlockPinAssignTable& table = file->pinAssignTable();
    ASSERT_EQ(file->pinAssignTable("N1"), 1001u);

    table.at(0).figId(1001);
    EXPECT_EQ(signalAt(*file, 1001), "N0") << "an earlier row took the number";
    table.at(1).sigN("M1");
    EXPECT_EQ(file->pinAssignTable("N1"), 0u);
    EXPECT_EQ(file->pinAssignTable("M1"), 1001u);
    table.insertBefore(0, BexBlockPinAssign(7, "M1"));
    EXPECT_EQ(file->pinAssignTable("M1"), 7u);
    table.removeAll();
    EXPECT_EQ(file->pinAssignTable("M1"), 0u);
}

} // namespace
} // namespace bexa::test
