#include "bexa/circuitrc/resource_tables.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

namespace {

int compareNames(const void* a, const void* b) {
    return std::strcmp(static_cast<const BexColorNameElem*>(a)->name,
                       static_cast<const BexColorNameElem*>(b)->name);
}

struct PathRow {
    const char* given;
    const char* stored;
};

const PathRow paths[] = {
    {"", "."},                  // nothing names the directory at hand
    {nullptr, "."},             //
    {".", "."},                 //
    {"/", "/"},                 //
    {"l", "./l"},               // one letter is no drive
    {"lib", "./lib"},           //
    {"lib/sym", "./lib/sym"},   //
    {"C:", "C:"},               //
    {"C:/lib", "C:/lib"},       //
    {"1:/lib", "./1:/lib"},     // a drive is a letter
    {"/lib", "/lib"},           //
    {"../lib", "../lib"},       //
    {".lib", ".lib"},           //
    {"$X/lib", "$X/lib"},       //
    {"\\lib", "\\lib"},         //
    {"lib//sym/", "./lib/sym"}, // spelt in the one canonical way
    {"/d/C.CIR", "/d/C.cir"},   //
    {"a.CIR/001.SHT", "./a.cir/001.sht"},
};

TEST(PathRows, AreStoredInOneForm) {
    for (const PathRow& row : paths) {
        SCOPED_TRACE(row.given ? row.given : "(null)");
        const BexPathElem elem("name", row.given);
        EXPECT_STREQ(elem.path, row.stored);
        EXPECT_STREQ(elem.name, "name");
    }
}

TEST(PathRows, AreCurrentByDefault) {
    const BexPathElem elem;
    EXPECT_STREQ(elem.name, "current");
    EXPECT_STREQ(elem.path, ".");
}

TEST(PathRows, AreNormalisedByEachCopyButNotByMoves) {
    BexPathElem raw;
    raw.path = "lib//X.CIR";
    const BexPathElem copy(raw);
    BexPathElem assigned;
    assigned = raw;
    EXPECT_STREQ(copy.path, "./lib/X.cir");
    EXPECT_STREQ(assigned.path, "./lib/X.cir");

    BexPathElem moved(std::move(raw));
    EXPECT_STREQ(moved.path, "lib//X.CIR");
    assigned = std::move(moved);
    EXPECT_STREQ(assigned.path, "lib//X.CIR");
}

TEST(PathRows, StayAsTheyAreWhenATableGrows) {
    BexPathTable table;
    table[0].path = "lib//";
    for (int i = 1; i < 1000; ++i) table[i] = BexPathElem("n", "/d");
    EXPECT_STREQ(table[0].path, "lib//");
    EXPECT_STREQ(BexPathTable(table)[0].path, "./lib");
}

TEST(PathRows, CanBeAssignedToThemselves) {
    BexPathElem elem("name", "/d");
    const BexPathElem& same = elem;
    elem = same;
    EXPECT_STREQ(elem.name, "name");
    EXPECT_STREQ(elem.path, "/d");
}

TEST(TableRows, StartWithTheirDefaults) {
    EXPECT_STREQ(BexPrecisionElem().name, "def");
    EXPECT_EQ(BexPrecisionElem().factor, 1u);
    EXPECT_EQ(BexPrecisionElem().scale, 1.0);
    EXPECT_STREQ(BexColorElem().name, "black");
    EXPECT_EQ(BexColorElem().red + BexColorElem().green + BexColorElem().blue, 0);
    EXPECT_STREQ(BexColorNameElem().name, "");
    EXPECT_STREQ(BexTextSizeElem().name, "");
    EXPECT_STREQ(BexTextSizeElem().singleByteFont, "");
    EXPECT_STREQ(BexTextSizeElem().doubleByteFont, "");
    EXPECT_EQ(BexTextSizeElem().size1, 0.0);
    EXPECT_EQ(BexTextSizeElem().size5, 0.0);
    EXPECT_STREQ(BexLineStyleElem().name, "");
    EXPECT_EQ(BexLineStyleElem().length3, 0.0);
    EXPECT_STREQ(BexFillStyleElem().name, "");
    EXPECT_EQ(BexFillStyleElem().type, 0);
    EXPECT_EQ(BexFillStyleElem().angle2, 0.0);
}

TEST(TableRows, TakeTheirFieldsInOrder) {
    const BexPrecisionElem unit("mil", 40, 2.5);
    EXPECT_STREQ(unit.name, "mil");
    EXPECT_EQ(unit.factor, 40u);
    EXPECT_EQ(unit.scale, 2.5);
    const BexColorElem color(1, 2, 3, "dark");
    EXPECT_EQ(color.red * 100 + color.green * 10 + color.blue, 123);
    EXPECT_STREQ(color.name, "dark");
    const BexTextSizeElem text(1, 2, 3, 4, 5, "name", "single", "double");
    EXPECT_EQ(text.size1 * 10000 + text.size2 * 1000 + text.size3 * 100 + text.size4 * 10 + text.size5,
              12345);
    EXPECT_STREQ(text.name, "name");
    EXPECT_STREQ(text.singleByteFont, "single");
    EXPECT_STREQ(text.doubleByteFont, "double");
    const BexLineStyleElem line(1, 2, 3, "dots");
    EXPECT_EQ(line.length1 * 100 + line.length2 * 10 + line.length3, 123);
    EXPECT_STREQ(line.name, "dots");
    const BexFillStyleElem fill(3, 1, 2, 4, 5, "net");
    EXPECT_EQ(fill.type, 3);
    EXPECT_EQ(fill.pitch1 * 1000 + fill.pitch2 * 100 + fill.angle1 * 10 + fill.angle2, 1245);
    EXPECT_STREQ(fill.name, "net");
}

TEST(Tables, FillAGapWithDefaultRows) {
    BexTextSizeTable texts;
    texts[5].name = "last";
    ASSERT_EQ(texts.size(), 6);
    for (int i = 0; i < 5; ++i) EXPECT_STREQ(texts[i].name, "");
    BexColorTable colors;
    colors[2].name = "red";
    EXPECT_STREQ(colors[1].name, "black");
}

TEST(Tables, FillAGapOfLineWidthsWithZeros) {
    BexLineWidthTable widths;
    widths[300] = 1.5;
    for (int i = 0; i < 300; ++i) ASSERT_EQ(widths[i], 0.0);
}

TEST(Tables, InsertAfterTheEndLeavesADefaultRowLast) {
    BexColorNameTable names;
    names.append(BexColorNameElem("a"));
    EXPECT_TRUE(names.insertAfter(1, BexColorNameElem("b")));
    ASSERT_EQ(names.size(), 2);
    EXPECT_STREQ(names[1].name, "");
}

TEST(Tables, RemoveAtTheCountDropsTheLastRow) {
    BexColorNameTable names;
    for (const char* name : {"a", "b", "c"}) names.append(BexColorNameElem(name));
    EXPECT_TRUE(names.remove(3));
    ASSERT_EQ(names.size(), 2);
    EXPECT_STREQ(names[1].name, "b");
    EXPECT_FALSE(names.remove(3));
}

TEST(Tables, AreSortedAndSearchedByTheCallersOrder) {
    BexColorNameTable names;
    const BexColorNameElem key("b");
    EXPECT_EQ(names.search(&key, compareNames), -1);
    for (const char* name : {"c", "a", "b"}) names.append(BexColorNameElem(name));
    names.sort(compareNames);
    EXPECT_EQ(names.search(&key, compareNames), 1);
    EXPECT_FALSE(names.insertSorted(key, compareNames, 1));
    EXPECT_TRUE(names.insertSorted(BexColorNameElem("bb"), compareNames, 1));
    EXPECT_STREQ(names[2].name, "bb");
}

} // namespace
