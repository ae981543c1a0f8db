#include "bexa/circuitrc/palette.h"

#include "tests/circuitrc/datarc_fixture.h"

#include <string>

namespace bexa::test {
namespace {

class Palette : public DatarcFixture {
protected:
    void giveSystemPalette(std::string_view text) const {
        dir.makeDirectory("system/info");
        writeFile(dir.file("system/info/bexcolor.rsc"), text);
    }
    std::string personal() const { return dir.file("home/hk8800/ds/bexcolor.rsc"); }
    std::string system() const { return dir.file("system/info/bexcolor.rsc"); }
};

std::string componentsOf(const BexColorElem& row) {
    return std::to_string(row.red) + ' ' + std::to_string(row.green) + ' ' + std::to_string(row.blue);
}

TEST_F(Palette, HasBuiltInRowsWithoutAFile) {
    const BexColor color;
    EXPECT_FALSE(color.isValid());
    ASSERT_EQ(color.colorCount(), 15);
    EXPECT_STREQ(color.color(0), "black");
    EXPECT_STREQ(color.color(2), "red");
    EXPECT_EQ(componentsOf(color.at(0)), "0 0 0");
    EXPECT_EQ(componentsOf(color.at(1)), "255 255 255");
    EXPECT_EQ(componentsOf(color.at(2)), "255 0 0");
    for (int i : {1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}) EXPECT_STREQ(color.color(i), "white");
}

TEST_F(Palette, IsReadFromTheUsersFileFirst) {
    givePalette("colorTable 2 {\n\t1\t\"mine\"\n}\n");
    giveSystemPalette("colorTable 2 {\n\t1\t\"theirs\"\n}\n");
    const BexColor color;
    EXPECT_TRUE(color.isValid());
    EXPECT_STREQ(color.color(1), "mine");
}

TEST_F(Palette, IsReadFromTheInstallationElse) {
    giveSystemPalette("colorTable 2 {\n\t1\t\"theirs\"\n}\n");
    const BexColor color;
    EXPECT_TRUE(color.isValid());
    EXPECT_STREQ(color.color(1), "theirs");
}

TEST_F(Palette, KeepsTheRowsThatTheFileDoesNotName) {
    givePalette("colorTable 2 {\n\t0\t\"ink\"\n\t1\t\"paper\"\n}\n");
    const BexColor color;
    EXPECT_EQ(color.colorCount(), 15);
    EXPECT_STREQ(color.color(0), "ink");
    EXPECT_EQ(componentsOf(color.at(0)), "255 255 255");
    EXPECT_STREQ(color.color(2), "red");
    EXPECT_EQ(componentsOf(color.at(2)), "255 0 0");
}

TEST_F(Palette, GrowsToTheRowsOfTheFile) {
    givePalette("colorTable 2 { 20 \"far\" }");
    BexColor color;
    ASSERT_EQ(color.colorCount(), 21);
    EXPECT_STREQ(color.color(20), "far");
    for (int i = 15; i < 20; ++i) {
        EXPECT_STREQ(color.color(i), "black");
        EXPECT_EQ(componentsOf(color.at(i)), "0 0 0");
    }
    EXPECT_FALSE(color.color(16, "within the table"));
    EXPECT_TRUE(color.color(15, "last"));
}

TEST_F(Palette, PassesOverOtherKeysAndOverlaysAFurtherTable) {
    givePalette(
        "first : 1\nColorTable 2 { 0 \"no\" }\ncolorTable 2 { 0 \"a\" 1 \"b\" }\ncolorTable 2 { 1 \"c\" }\n");
    const BexColor color;
    EXPECT_TRUE(color.isValid());
    EXPECT_STREQ(color.color(0), "a");
    EXPECT_STREQ(color.color(1), "c");
}

TEST_F(Palette, CutsNamesAndIndicesToTheirRoom) {
    const std::string zeros(19, '0');
    givePalette("colorTable 2 { 1 " + std::string(300, 'x') + ' ' + zeros.substr(1) + "3 inside " + zeros +
                "4 cut }");
    const BexColor color;
    EXPECT_STREQ(color.color(1), std::string(255, 'x').c_str());
    EXPECT_STREQ(color.color(3), "inside");
    EXPECT_STREQ(color.color(4), "white");
    EXPECT_STREQ(color.color(0), "cut");
}

TEST_F(Palette, ConvertsNamesFromTheCodingOfTheFile) {
    givePalette("# japanese_coding:euc\ncolorTable 2 { 1 \"\xa5\xbd\" }");
    EXPECT_STREQ(BexColor().color(1), "\x83\x5c");
}

TEST_F(Palette, IsNotValidAfterADamagedFile) {
    const char* damaged[] = {
        "colorTable 5 {\n\t0\t0\t0\t0\t\"black\"\n}\n", // the count of a file that was saved
        "colorTable {\n\t0\t\"black\"\n}\n",
        "colorTable 2 0 \"black\"",
        "colorTable 2 {\n\t-1\t\"black\"\n}\n",
        "colorTable 2 {\n\t0\n}\n",
        "colorTable 2 {\n\t0\t\"black\"\n",
        "colorTable 2 {\n\t0\t\"black\n}\n",
        "colorTable 2 {\n\t2000000000\t\"black\"\n}\n",
        "colorTable 2 {\n\t1048576\t\"black\"\n}\n",
        "\"open",
    };
    for (const char* text : damaged) {
        SCOPED_TRACE(text);
        givePalette(text);
        const BexColor color;
        EXPECT_FALSE(color.isValid());
        EXPECT_EQ(color.colorCount(), 15);
    }
}

TEST_F(Palette, ReadsTheInstallationsFileOverAUsersFileThatBreaksOff) {
    givePalette("colorTable 2 { 3 \"kept\" 4 \"covered\" -1");
    giveSystemPalette("colorTable 2 { 4 \"theirs\" }");
    BexColor color;
    EXPECT_STREQ(color.color(3), "kept");
    EXPECT_STREQ(color.color(4), "theirs");
    EXPECT_TRUE(color.save());
    EXPECT_TRUE(contentOf(system()).starts_with("colorTable 5 {\n"));
}

TEST_F(Palette, SavesAFileThatItDoesNotReadBack) {
    givePalette("colorTable 2 { 1 \"\" }");
    BexColor color;
    EXPECT_TRUE(color.color(15, "last"));
    ASSERT_TRUE(color.save());
    EXPECT_EQ(contentOf(personal()), "colorTable 5 {\n"
                                     "\t0\t0\t0\t0\t\"black\"\n"
                                     "\t1\t255\t255\t255\t\"_\"\n"
                                     "\t2\t255\t0\t0\t\"red\"\n"
                                     "\t3\t255\t255\t255\t\"white\"\n"
                                     "\t4\t255\t255\t255\t\"white\"\n"
                                     "\t5\t255\t255\t255\t\"white\"\n"
                                     "\t6\t255\t255\t255\t\"white\"\n"
                                     "\t7\t255\t255\t255\t\"white\"\n"
                                     "\t8\t255\t255\t255\t\"white\"\n"
                                     "\t9\t255\t255\t255\t\"white\"\n"
                                     "\t10\t255\t255\t255\t\"white\"\n"
                                     "\t11\t255\t255\t255\t\"white\"\n"
                                     "\t12\t255\t255\t255\t\"white\"\n"
                                     "\t13\t255\t255\t255\t\"white\"\n"
                                     "\t14\t255\t255\t255\t\"white\"\n"
                                     "\t15\t255\t255\t255\t\"last\"\n"
                                     "}\n");
    EXPECT_FALSE(BexColor().isValid());
}

TEST_F(Palette, SavesNothingWithoutAFile) {
    BexColor color;
    EXPECT_FALSE(color.save());
}

TEST_F(Palette, AnswersAnIndexOutsideWithAnEmptyNameAndDoesNotGrow) {
    const BexColor color;
    for (int index : {15, 40, -1, 2000000000}) EXPECT_STREQ(color.color(index), "");
    EXPECT_EQ(color.colorCount(), 15);
}

TEST_F(Palette, RefusesNamesOutsideItsLimit) {
    BexColor color;
    EXPECT_FALSE(color.color(-1, "x"));
    EXPECT_FALSE(color.color(16, "x"));
    EXPECT_EQ(color.colorCount(), 15);
    EXPECT_TRUE(color.color(0, "ink"));
    EXPECT_STREQ(color.color(0), "ink");
    EXPECT_EQ(componentsOf(color.at(0)), "255 255 255");
}

TEST_F(Palette, GrowsEvenWhenANullNameIsRefused) {
    BexColor color;
    EXPECT_FALSE(color.color(15, nullptr));
    EXPECT_EQ(color.colorCount(), 16);
    EXPECT_STREQ(color.color(15), "-");
    EXPECT_EQ(componentsOf(color.at(15)), "255 255 255");
}

TEST_F(Palette, CopiesItsRowsAndItsFile) {
    givePalette("colorTable 2 { 1 \"mine\" }");
    const BexColor color;
    const BexColor copy(color);
    BexColor assigned;
    assigned = color;
    EXPECT_TRUE(copy.isValid());
    EXPECT_STREQ(copy.color(1), "mine");
    EXPECT_TRUE(assigned.save());
    EXPECT_TRUE(contentOf(personal()).starts_with("colorTable 5 {\n"));
}

TEST_F(Palette, SurvivesADirectoryInPlaceOfItsFile) {
    dir.makeDirectory("home/hk8800/ds/bexcolor.rsc");
    dir.makeDirectory("system/info/bexcolor.rsc");
    EXPECT_FALSE(BexColor().isValid());
}

} // namespace
} // namespace bexa::test
