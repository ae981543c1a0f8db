#include "bexa/foundation/rsc_entry_writers.h"
#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

using namespace bexa::detail;
using namespace bexa::test;

namespace {

TEST(RscText, WritesEntries) {
    RscText file;
    file.word("word", "On")
        .word("empty", "")
        .quoted("quoted", "a \"b\"")
        .number("number", -12)
        .real("real", 0.5)
        .quotedCharacter("open", '[')
        .quotedCharacter("none", '\0')
        .character("start", 'A')
        .number("behind", 3, "\t# (3:ALL)");
    EXPECT_EQ(file.view(), "word : On\n"
                           "empty : \n"
                           "quoted : \"a \"b\"\"\n"
                           "number : -12\n"
                           "real : 0.5\n"
                           "open : \"[\"\n"
                           "none : \"\"\n"
                           "start : A\n"
                           "behind : 3\t# (3:ALL)\n");
}

TEST(RscText, WritesTables) {
    RscText file;
    file.text("# head\n").openTable("table", 4);
    file.cell(0).cell(2.5).cell("word").quotedCell("a b").endRow();
    file.cell(7u).gap().cell(8L).cell(9UL).endRow();
    file.closeTable();
    EXPECT_EQ(file.view(), "# head\n"
                           "table 4 {\n"
                           "\t0\t2.5\tword\t\"a b\"\n"
                           "\t7\t\t8\t9\n"
                           "}\n");
}

TEST(RealText, HasSixDigitsAsAStreamWritesThem) {
    const struct {
        double value;
        const char* text;
    } rows[] = {
        {2.0, "2"},
        {0.5, "0.5"},
        {10.0, "10"},
        {297, "297"},
        {1.23456789, "1.23457"},
        {123456, "123456"},
        {1234567, "1.23457e+06"},
        {1e6, "1e+06"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {-0.25, "-0.25"},
        {0, "0"},
        {1e100, "1e+100"},
        {99999.95, "99999.9"},
        {999999.5, "1e+06"},
    };
    for (const auto& row : rows) {
        std::ostringstream stream;
        stream << row.value;
        EXPECT_EQ(realText(row.value), row.text);
        EXPECT_EQ(realText(row.value), stream.str());
    }
    EXPECT_EQ(realText(std::numeric_limits<double>::max()), "1.79769e+308");
    EXPECT_EQ(realText(-std::numeric_limits<double>::denorm_min()), "-4.94066e-324");
}

TEST(RscText, ReplacesTheFile) {
    const TempDir dir;
    writeFile(dir.file("a"), "a much longer text than the new one");
    EXPECT_TRUE(RscText().word("a", "1").writeTo(dir.file("a").c_str()));
    EXPECT_EQ(contentOf(dir.file("a")), "a : 1\n");
}

TEST(RscText, FailsWhereTheFileCannotBeOpened) {
    const TempDir dir;
    dir.openToAll();
    const RscText file;
    EXPECT_FALSE(file.writeTo(dir.path().c_str())) << "a directory";
    EXPECT_FALSE(file.writeTo(dir.file("none/a").c_str())) << "no such directory";
    EXPECT_FALSE(file.writeTo(nullptr));
    const std::string path = dir.file("guarded");
    writeFile(path, "old");
    setMode(path, 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return RscText().word("a", "1").writeTo(path.c_str()) ? 1 : 0; }),
              0);
    EXPECT_EQ(contentOf(path), "old");
}

} // namespace
