// The tables: what the setters take, how they grow, what the readers hand out.

#include "tests/envrc/envrc_fixture.h"

#include <climits>
#include <limits>
#include <string>

namespace bexa::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

class EnvrcRows : public EnvrcFixture {
protected:
    // The rows of a table as a save writes them.
    std::string rows(const BexEnvrc& envrc, const std::string& table) const {
        const std::string entry = entryOf(saved(envrc), table).value_or("");
        const std::size_t begin = entry.find("{\n") + 2;
        return entry.substr(begin, entry.find("}\n") - begin);
    }
};

TEST_F(EnvrcRows, BeginWithOneOfEachTable) {
    const Resource envrc = fresh();
    EXPECT_EQ(envrc->gridTableCount(), 1);
    EXPECT_EQ(envrc->symSheetSizeTableCount(), 1);
    EXPECT_EQ(envrc->schSheetSizeTableCount(), 1);
    EXPECT_EQ(envrc->schSheetAttrTableCount(), 0);

    char name[8];
    long n[4];
    EXPECT_TRUE(envrc->symSheetSize(0, name, n[0], n[1], n[2], n[3]));
    EXPECT_STREQ(name, "sym");
    EXPECT_EQ(n[0], 0);
    EXPECT_EQ(n[1], 0);
    EXPECT_EQ(n[2], 10000);
    EXPECT_EQ(n[3], 10000);
}

TEST_F(EnvrcRows, OutsideTheTableAreRefusedAndLeaveTheOutputsAlone) {
    const Resource envrc = fresh();
    char text[] = "old";
    long n[4] = {7, 7, 7, 7};
    int count[2] = {7, 7};
    for (const int index : {1, SHRT_MAX, -1, SHRT_MIN}) {
        const auto row = static_cast<short>(index);
        EXPECT_FALSE(envrc->gridTable(row, count[0], count[1], n[0], n[1]));
        EXPECT_FALSE(envrc->symSheetSize(row, text, n[0], n[1], n[2], n[3]));
        EXPECT_FALSE(envrc->schSheetSize(row, text, n[0], n[1], n[2], n[3], count[0], text));
        EXPECT_FALSE(envrc->schSheetAttr(row, text, text));
    }
    EXPECT_FALSE(envrc->schSheetAttr(0, text, text));
    EXPECT_STREQ(text, "old");
    EXPECT_EQ(n[0] + n[1] + n[2] + n[3] + count[0] + count[1], 42);
}

TEST_F(EnvrcRows, AreReadWithoutTheTextsThatTheCallerLeavesOut) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->setSchSheetAttr(0, "name", "value"));
    char text[16];
    long n[4];
    int number = 7;
    EXPECT_TRUE(envrc->symSheetSize(0, nullptr, n[0], n[1], n[2], n[3]));
    EXPECT_TRUE(envrc->schSheetSize(0, nullptr, n[0], n[1], n[2], n[3], number, text));
    EXPECT_STREQ(text, "waku");
    EXPECT_EQ(number, 0);
    EXPECT_TRUE(envrc->schSheetSize(0, text, n[0], n[1], n[2], n[3], number, nullptr));
    EXPECT_STREQ(text, "sch");
    EXPECT_TRUE(envrc->schSheetAttr(0, text, nullptr));
    EXPECT_STREQ(text, "name");
    EXPECT_TRUE(envrc->schSheetAttr(0, nullptr, text));
    EXPECT_STREQ(text, "value");
}

// ---- Grids

struct GridRow {
    int counts[2];
    double lengths[2];
    bool taken;
};

const GridRow grids[] = {
    {{0, 0}, {0.0, 0.0}, true},       {{100000, 100000}, {100000.0, 100000.0}, true},
    {{-1, 0}, {0.0, 0.0}, false},     {{0, -1}, {0.0, 0.0}, false},
    {{100001, 0}, {0.0, 0.0}, false}, {{0, INT_MAX}, {0.0, 0.0}, false},
    {{0, 0}, {-0.001, 0.0}, false},   {{0, 0}, {0.0, 100000.1}, false},
    {{0, 0}, {nan, 0.0}, false},      {{0, 0}, {0.0, inf}, false},
};

TEST_F(EnvrcRows, OfGridsTakeCountsAndLengthsWithinTheirLimits) {
    for (const GridRow& row : grids) {
        const Resource envrc = fresh();
        for (const short index : {short{0}, short{3}}) {
            EXPECT_EQ(
                envrc->setGridTable(index, row.counts[0], row.counts[1], row.lengths[0], row.lengths[1]),
                row.taken ? 1u : 0u);
        }
        EXPECT_EQ(envrc->gridTableCount(), row.taken ? 4 : 1); // a refused row doesn't grow the table
    }
}

TEST_F(EnvrcRows, OfGridsFillAGapFromRow0) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->setGridTable(3, 2, 3, 1.5, 2.5));
    EXPECT_EQ(rows(*envrc, "gridTable"),
              "\t0\t1\t4\t10\t10\n\t1\t1\t4\t10\t10\n\t2\t1\t4\t10\t10\n\t3\t2\t3\t1.5\t2.5\n");
}

TEST_F(EnvrcRows, OfAGapAreRoundedToAThousandth) {
    const Resource envrc = loaded("gridTable 5 { 0 1 1 0.12345 0.0006 }\n"
                                  "symSheetSizeTable 6 { 0 s -0.12345 0 1.0004 1.0006 }\n"
                                  "schSheetSizeTable 8 { 0 t 0 0.0005 2.0004 2.0006 5 f }\n");
    EXPECT_TRUE(envrc->checkGridTable(1));
    EXPECT_TRUE(envrc->checkSymSSTable(1));
    EXPECT_TRUE(envrc->checkSchSSTable(1));
    EXPECT_EQ(rows(*envrc, "gridTable"), "\t0\t1\t1\t0.12345\t0.0006\n\t1\t1\t1\t0.123\t0.001\n");
    EXPECT_EQ(rows(*envrc, "symSheetSizeTable"),
              "\t0\t\"s\"\t-0.12345\t0\t1.0004\t1.0006\n\t1\t\"s\"\t-0.123\t0\t1\t1.001\n");
    EXPECT_EQ(rows(*envrc, "schSheetSizeTable"), "\t0\t\"t\"\t0\t0.0005\t2.0004\t2.0006\t5\t\"f\"\n"
                                                 "\t1\t\"t\"\t0\t0.001\t2\t2.001\t5\t\"f\"\n");
}

using Check = unsigned long (BexEnvrc::*)(short);
using Count = int (BexEnvrc::*)() const;

struct LimitRow {
    const char* table;
    Check check;
    Count count;
    int limit;
};

const LimitRow limits[] = {
    {"gridTable", &BexEnvrc::checkGridTable, &BexEnvrc::gridTableCount, 16},
    {"symSheetSizeTable", &BexEnvrc::checkSymSSTable, &BexEnvrc::symSheetSizeTableCount, 32},
    {"schSheetSizeTable", &BexEnvrc::checkSchSSTable, &BexEnvrc::schSheetSizeTableCount, 32},
};

TEST_F(EnvrcRows, AreProvidedUpToTheLimitOfTheirTable) {
    for (const LimitRow& row : limits) {
        SCOPED_TRACE(row.table);
        const Resource envrc = fresh();
        const auto check = [&](int index) { return (*envrc.*row.check)(static_cast<short>(index)); };
        const auto count = [&] { return (*envrc.*row.count)(); };
        for (const int index : {-1, SHRT_MIN, row.limit, SHRT_MAX}) EXPECT_FALSE(check(index)) << index;
        EXPECT_TRUE(check(0));
        EXPECT_EQ(count(), 1);
        EXPECT_TRUE(check(2));
        EXPECT_EQ(count(), 3);
        EXPECT_TRUE(check(1));
        EXPECT_EQ(count(), 3);
        EXPECT_TRUE(check(row.limit - 1));
        EXPECT_EQ(count(), row.limit);
    }
}

TEST_F(EnvrcRows, AreNotStoredBeyondTheLimitOfTheirTable) {
    const Resource envrc = fresh();
    for (const short index : {short{-1}, short{16}}) EXPECT_FALSE(envrc->setGridTable(index, 1, 1, 1.0, 1.0));
    for (const short index : {short{-1}, short{32}}) {
        EXPECT_FALSE(envrc->setSymSheetSize(index, "n", 0.0, 0.0, 1.0, 1.0));
        EXPECT_FALSE(envrc->setSchSheetSize(index, "n", 0.0, 0.0, 1.0, 1.0, 1, "f"));
    }
    EXPECT_EQ(saved(*envrc), golden());
    EXPECT_TRUE(envrc->setGridTable(15, 1, 1, 1.0, 1.0));
    EXPECT_EQ(envrc->gridTableCount(), 16);
    EXPECT_TRUE(envrc->setSymSheetSize(31, "n", 0.0, 0.0, 1.0, 1.0));
    EXPECT_EQ(envrc->symSheetSizeTableCount(), 32);
    EXPECT_TRUE(envrc->setSchSheetSize(31, "n", 0.0, 0.0, 1.0, 1.0, 1, "f"));
    EXPECT_EQ(envrc->schSheetSizeTableCount(), 32);
}

// ---- Sheet sizes

struct SizeRow {
    double origin[2];
    double size[2];
    bool taken;
};

const SizeRow sizes[] = {
    {{0.0, 0.0}, {0.0, 0.0}, true},       {{100000.0, 100000.0}, {100000.0, 100000.0}, true},
    {{-1e9, -inf}, {1.0, 1.0}, true}, // no lower limit
    {{100000.1, 0.0}, {1.0, 1.0}, false}, {{0.0, 100000.1}, {1.0, 1.0}, false},
    {{nan, 0.0}, {1.0, 1.0}, false},      {{0.0, 0.0}, {-0.001, 1.0}, false},
    {{0.0, 0.0}, {1.0, -0.001}, false},   {{0.0, 0.0}, {100000.1, 1.0}, false},
    {{0.0, 0.0}, {1.0, nan}, false},
};

TEST_F(EnvrcRows, OfSheetsTakeLengthsWithinTheirLimits) {
    for (const SizeRow& row : sizes) {
        const Resource envrc = fresh();
        const unsigned long taken = row.taken ? 1 : 0;
        EXPECT_EQ(envrc->setSymSheetSize(2, "n", row.origin[0], row.origin[1], row.size[0], row.size[1]),
                  taken);
        EXPECT_EQ(
            envrc->setSchSheetSize(2, "n", row.origin[0], row.origin[1], row.size[0], row.size[1], 0, "f"),
            taken);
        EXPECT_EQ(envrc->symSheetSizeTableCount(), row.taken ? 3 : 1);
        EXPECT_EQ(envrc->schSheetSizeTableCount(), row.taken ? 3 : 1);
    }
}

TEST_F(EnvrcRows, OfSheetsNeedTheirNames) {
    const Resource envrc = fresh();
    EXPECT_FALSE(envrc->setSymSheetSize(1, nullptr, 0.0, 0.0, 1.0, 1.0));
    EXPECT_FALSE(envrc->setSchSheetSize(1, nullptr, 0.0, 0.0, 1.0, 1.0, 1, "f"));
    EXPECT_FALSE(envrc->setSchSheetSize(1, "n", 0.0, 0.0, 1.0, 1.0, 1, nullptr));
    EXPECT_EQ(saved(*envrc), golden());
    EXPECT_TRUE(envrc->setSymSheetSize(0, "", 0.0, 0.0, 1.0, 1.0));
    EXPECT_TRUE(envrc->setSchSheetSize(0, "", 0.0, 0.0, 1.0, 1.0, 1, ""));
    EXPECT_EQ(rows(*envrc, "schSheetSizeTable"), "\t0\t\"\"\t0\t0\t1\t1\t1\t\"\"\n");
}

TEST_F(EnvrcRows, OfSchematicSheetsKeep16BitsOfTheFrameNumber) {
    const Resource envrc = fresh();
    const auto stored = [&](int given) {
        EXPECT_TRUE(envrc->setSchSheetSize(0, "n", 0.0, 0.0, 1.0, 1.0, given, "f"));
        long n[4];
        int number = -1;
        EXPECT_TRUE(envrc->schSheetSize(0, nullptr, n[0], n[1], n[2], n[3], number, nullptr));
        return number;
    };
    EXPECT_EQ(stored(7), 7);
    EXPECT_EQ(stored(65535), 65535);
    EXPECT_EQ(stored(65537), 1);
    EXPECT_EQ(stored(-1), 65535);
}

// ---- Attributes of schematic sheets

struct AttributeRow {
    const char* name;
    const char* value;
    const char* rows;
};

// One after the other on the same table.
const AttributeRow attributes[] = {
    {"none", "", ""},
    {"none", nullptr, ""},
    {"a", "1", "\t0\t\"a\"\t\"1\"\n"},
    {"b", "2", "\t0\t\"a\"\t\"1\"\n\t1\t\"b\"\t\"2\"\n"},
    {"A", "3", "\t0\t\"a\"\t\"1\"\n\t1\t\"b\"\t\"2\"\n\t2\t\"A\"\t\"3\"\n"}, // compared exactly
    {"a", "4", "\t0\t\"a\"\t\"4\"\n\t1\t\"b\"\t\"2\"\n\t2\t\"A\"\t\"3\"\n"}, // in its place
    {"none", "", "\t0\t\"a\"\t\"4\"\n\t1\t\"b\"\t\"2\"\n\t2\t\"A\"\t\"3\"\n"},
    {"b", "", "\t0\t\"a\"\t\"4\"\n\t1\t\"A\"\t\"3\"\n"},
    {"", "5", "\t0\t\"a\"\t\"4\"\n\t1\t\"A\"\t\"3\"\n\t2\t\"\"\t\"5\"\n"},
    {nullptr, "6", "\t0\t\"a\"\t\"4\"\n\t1\t\"A\"\t\"3\"\n\t2\t\"\"\t\"6\"\n"},
    {"a", nullptr, "\t0\t\"A\"\t\"3\"\n\t1\t\"\"\t\"6\"\n"},
};

TEST_F(EnvrcRows, OfAttributesAreFoundByNameWhateverTheIndex) {
    const Resource envrc = fresh();
    short index = -3;
    for (const AttributeRow& row : attributes) {
        SCOPED_TRACE(row.rows);
        EXPECT_TRUE(envrc->setSchSheetAttr(index, row.name, row.value));
        EXPECT_EQ(rows(*envrc, "schSheetAttrTable"), row.rows);
        index = static_cast<short>(index + 5);
    }
    EXPECT_EQ(envrc->schSheetAttrTableCount(), 2);
}

TEST_F(EnvrcRows, OfAttributesAreReplacedAndDroppedAllTogether) {
    const char* const twice = "schSheetAttrTable 3 { 0 n 1 1 m 2 2 n 3 }\n";
    const Resource replaced = loaded(twice);
    EXPECT_TRUE(replaced->setSchSheetAttr(0, "n", "9"));
    EXPECT_EQ(rows(*replaced, "schSheetAttrTable"),
              "\t0\t\"n\"\t\"9\"\n\t1\t\"m\"\t\"2\"\n\t2\t\"n\"\t\"9\"\n");
    const Resource dropped = loaded(twice);
    EXPECT_TRUE(dropped->setSchSheetAttr(0, "n", ""));
    EXPECT_EQ(rows(*dropped, "schSheetAttrTable"), "\t0\t\"m\"\t\"2\"\n");
}

} // namespace
} // namespace bexa::test
