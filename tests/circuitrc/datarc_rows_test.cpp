#include "bexa/foundation/ygeometry/yangle.h"

#include "tests/circuitrc/datarc_fixture.h"

#include <array>
#include <limits>
#include <string>

namespace bexa::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double radiansPerDegree = 0.017453292519943295;

// A row as one text, the numbers first; "none" when the reader refuses.
std::string textStyle(const BexDatarc& rc, unsigned int index) {
    std::array<long, 5> size{};
    YString name;
    YString single;
    YString twofold;
    if (!rc.textSize(index, &size[0], &size[1], &size[2], &size[3], &size[4], &name)) return "none";
    EXPECT_TRUE(rc.textFontFile(index, &single, &twofold));
    std::string text;
    for (long value : size) text += std::to_string(value) + ' ';
    return text + std::string(name.view()) + ' ' + std::string(single.view()) + ' ' +
           std::string(twofold.view());
}

std::string lineStyle(const BexDatarc& rc, unsigned long index) {
    std::array<long, 3> length{-1, -1, -1};
    YString name;
    if (!rc.lineStyle(index, &length[0], &length[1], &length[2], &name)) return "none";
    std::string text;
    for (long value : length) text += std::to_string(value) + ' ';
    return text + std::string(name.view());
}

std::string fillStyle(const BexDatarc& rc, unsigned int index) {
    unsigned long type = 99;
    std::array<long, 2> pitch{-1, -1};
    std::array<Yangle, 2> angle{Yangle(9), Yangle(9)};
    YString name;
    if (!rc.fillStyle(index, &type, &pitch[0], &pitch[1], &angle[0], &angle[1], &name)) return "none";
    std::string text =
        std::to_string(type) + ' ' + std::to_string(pitch[0]) + ' ' + std::to_string(pitch[1]) + ' ';
    for (const Yangle& each : angle) text += std::to_string(each.radian()).substr(0, 6) + ' ';
    return text + std::string(name.view());
}

std::string unit(const BexDatarc& rc, unsigned int index) {
    char name[32];
    unsigned int factor = 0;
    double scale = 0.0;
    if (!rc.precision(index, name, &factor, &scale)) return "none";
    return std::string(name) + ' ' + std::to_string(factor) + ' ' + std::to_string(scale).substr(0, 3);
}

std::string width(const BexDatarc& rc, unsigned int index) {
    long value = -1;
    return rc.lineWidth(index, &value) ? std::to_string(value) : "none";
}

class Rows : public DatarcFixture {
protected:
    Resource rc = fresh();
};

// ---- Readers

TEST_F(Rows, AreBuiltIn) {
    EXPECT_EQ(unit(*rc, 0), "mm 1000 1.0");
    EXPECT_EQ(textStyle(*rc, 0), "10000 10000 0 0 0 def font/eng/_sysfont.vec font/jpn/yqfont.vec");
    EXPECT_EQ(width(*rc, 0), "0");
    EXPECT_EQ(lineStyle(*rc, 0), "0 0 0 solid");
    EXPECT_EQ(lineStyle(*rc, 1), "10000 10000 0 dash");
    EXPECT_EQ(lineStyle(*rc, 2), "10000 2000 5000 dash1");
    EXPECT_EQ(lineStyle(*rc, 3), "10000 2000 5000 dash2");
    EXPECT_EQ(fillStyle(*rc, 0), "0 0 0 0.0000 0.0000 none");
    EXPECT_EQ(fillStyle(*rc, 1), "1 0 0 0.0000 0.0000 solid");
    EXPECT_EQ(rc->precisionCount(), 1u);
    EXPECT_EQ(rc->colorCount(), 15u);
    EXPECT_EQ(rc->textSizeCount(), 1u);
    EXPECT_EQ(rc->lineWidthCount(), 1u);
    EXPECT_EQ(rc->lineStyleCount(), 4u);
    EXPECT_EQ(rc->fillStyleCount(), 2u);
    EXPECT_EQ(rc->symbPathCount(), 1u);
    EXPECT_EQ(rc->contPathCount(), 1u);
    EXPECT_EQ(rc->lcdbPathCount(), 1u);
}

TEST_F(Rows, OfTheTwoLastLineStylesDifferOnlyByName) {
    EXPECT_EQ(lineStyle(*rc, 2), "10000 2000 5000 dash1");
    EXPECT_EQ(lineStyle(*rc, 3), "10000 2000 5000 dash2");
}

TEST_F(Rows, AreRefusedAtAndBeyondTheCount) {
    for (unsigned int index : {0u, 0x7fffffffu, 0xffffffffu}) {
        EXPECT_EQ(unit(*rc, index < 1 ? 1 : index), "none");
        EXPECT_EQ(textStyle(*rc, index < 1 ? 1 : index), "none");
        EXPECT_EQ(width(*rc, index < 1 ? 1 : index), "none");
        EXPECT_EQ(lineStyle(*rc, index < 4 ? 4 : index), "none");
        EXPECT_EQ(fillStyle(*rc, index < 2 ? 2 : index), "none");
        EXPECT_FALSE(rc->textFontFile(index < 1 ? 1 : index, nullptr, nullptr));
        EXPECT_EQ(rc->isLangFontStr(index < 1 ? 1 : index, 1), nullptr);
    }
    EXPECT_FALSE(rc->lineStyle(0x100000000ul, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Rows, AreReadWithoutTheOutputsThatAreNull) {
    EXPECT_TRUE(rc->precision(0, nullptr, nullptr, nullptr));
    EXPECT_TRUE(rc->textSize(0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(rc->textFontFile(0, nullptr, nullptr));
    EXPECT_TRUE(rc->lineStyle(0, nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(rc->fillStyle(0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Rows, OfTheSolidLineHaveNoLengthsWhateverTheFileHolds) {
    rc = loaded("lineStyleTable 5 {\n\t0\t1\t2\t3\t\"line\"\n}\n");
    EXPECT_EQ(lineStyle(*rc, 0), "0 0 0 line");
}

TEST_F(Rows, OfFillStylesGiveWhatTheirTypeHasARoleFor) {
    rc = loaded("fillStyleTable 7 {\n"
                "\t0\t0\t1\t2\t30\t60\t\"a\"\n"
                "\t1\t1\t1\t2\t30\t60\t\"b\"\n"
                "\t2\t2\t1\t2\t30\t60\t\"c\"\n"
                "\t3\t3\t1\t2\t180\t-90\t\"d\"\n"
                "}\n");
    EXPECT_EQ(fillStyle(*rc, 0), "0 0 0 0.0000 0.0000 a");
    EXPECT_EQ(fillStyle(*rc, 1), "1 0 0 0.0000 0.0000 b");
    EXPECT_EQ(fillStyle(*rc, 2), "2 1000 0 0.5235 0.0000 c");
    EXPECT_EQ(fillStyle(*rc, 3), "3 1000 2000 3.1415 -1.570 d");
    Yangle angle;
    rc->fillStyle(2, nullptr, nullptr, nullptr, &angle, nullptr, nullptr);
    EXPECT_EQ(angle.radian(), 30 * radiansPerDegree);
}

TEST_F(Rows, OfColoursAreRefusedWithoutAPalette) {
    short red = 1;
    YString name("kept");
    EXPECT_FALSE(rc->color(1, &red, &red, &red, &name));
    EXPECT_FALSE(rc->color(1, &name));
    EXPECT_EQ(name, "kept");
    EXPECT_EQ(red, 1);
    EXPECT_FALSE(rc->color(1, "paper"));
    EXPECT_FALSE(rc->color(1, 1, 2, 3, "paper"));
    EXPECT_EQ(rc->colorCount(), 15u);
}

TEST_F(Rows, OfColoursHaveFullComponentsWhateverThePaletteHolds) {
    givePalette();
    rc = fresh();
    short red = 0;
    short green = 0;
    short blue = 0;
    YString name;
    EXPECT_TRUE(rc->color(0, &red, &green, &blue, &name));
    EXPECT_EQ(red + green + blue, 3 * 255);
    EXPECT_EQ(name, "black");
    EXPECT_TRUE(rc->color(0, &red, &green, &blue, nullptr));
    EXPECT_TRUE(rc->color(2, &name));
    EXPECT_EQ(name, "red");
}

TEST_F(Rows, OfColoursPastTheEndHaveAnEmptyName) {
    givePalette();
    rc = fresh();
    for (unsigned int index : {15u, 0x7fffffffu, 0xffffffffu}) {
        YString name("x");
        EXPECT_TRUE(rc->color(index, &name));
        EXPECT_EQ(name, "");
    }
    EXPECT_EQ(rc->colorCount(), 15u);
}

TEST_F(Rows, OfColoursAreNamedThroughThePalette) {
    givePalette();
    rc = fresh();
    YString name;
    EXPECT_TRUE(rc->color(15, 1, 2, 3, "last"));
    EXPECT_TRUE(rc->color(15, &name));
    EXPECT_EQ(name, "last");
    EXPECT_EQ(rc->colorCount(), 16u);
    EXPECT_FALSE(rc->color(16, "x"));
    EXPECT_FALSE(rc->color(65536, "x"));
    EXPECT_FALSE(rc->color(0xffffffffu, "x"));
    EXPECT_FALSE(rc->color(0, static_cast<const char*>(nullptr)));
}

// ---- Fonts

struct FontRow {
    const char* font;
    const char* language; // as isLangFontStr gives it, null for none
};

const FontRow fonts[] = {{"/x/y/hangle.vec", "kor"},
                         {"yhangul.vec", "kor"},
                         {"a/yhankul.vec", "kor"},
                         {"x/ychinese.vec", "chn"},
                         {"-", nullptr},
                         {"", nullptr},
                         {"HANGLE.VEC", nullptr},
                         {"hangle.vec/x", nullptr},
                         {"hangle", nullptr},
                         {"xychinese.vec", nullptr}};

TEST_F(Rows, OfTextStylesTellTheirLanguageByTheFontFile) {
    for (const FontRow& row : fonts) {
        SCOPED_TRACE(row.font);
        rc = loaded(std::string("textTable 9 { 0 1 1 0 0 0 \"hangle.vec\" \"") + row.font + "\" \"t\" }");
        const std::string language = row.language ? row.language : "";
        EXPECT_STREQ(rc->isLangFontStr(0, 0), row.language);
        EXPECT_EQ(rc->isExtraFont(0), row.language ? 1u : 0u);
        EXPECT_EQ(rc->isLangExtraFont(0, "kor"), language == "kor" ? 1u : 0u);
        EXPECT_EQ(rc->isLangExtraFont(0, "chn"), language == "chn" ? 1u : 0u);
        for (const char* other : {static_cast<const char*>(nullptr), "", "jpn", "KOR"}) {
            EXPECT_FALSE(rc->isLangExtraFont(0, other));
        }
    }
}

TEST_F(Rows, SpellTheLanguageOfAFontInSixWays) {
    const char* korean[] = {"kor", "korean", "KOREAN", "KOR", "Korean", "Kor", "kor"};
    const char* chinese[] = {"chn", "chinese", "CHINESE", "CHN", "Chinese", "Chn", "chn"};
    rc = loaded("textTable 9 { 0 1 1 0 0 0 - hangle.vec t 1 1 1 0 0 0 - ychinese.vec t }");
    for (unsigned int form = 0; form < 7; ++form) {
        EXPECT_STREQ(rc->isLangFontStr(0, form), korean[form]);
        EXPECT_STREQ(rc->isLangFontStr(1, form), chinese[form]);
    }
    EXPECT_STREQ(rc->isLangFontStr(0, 0xffffffffu), "kor");
}

TEST_F(Rows, OfTextStylesGiveNamedFontsUnchanged) {
    rc = loaded("textTable 9 { 0 1 1 0 0 0 \"a.vec\" \"/b//c.vec\" t }");
    EXPECT_EQ(textStyle(*rc, 0), "1000 1000 0 0 0 t a.vec /b//c.vec");
}

// ---- Setters

TEST_F(Rows, OfUnitsAreStored) {
    EXPECT_TRUE(rc->precision(0, "inch", 100000, 0.0));
    EXPECT_EQ(unit(*rc, 0), "inch 100000 0.0");
    EXPECT_FALSE(rc->precision(2, "x", 1, 1.0));
    EXPECT_FALSE(rc->precision(0, nullptr, 1, 1.0));
    EXPECT_FALSE(rc->precision(0, "x", 100001, 1.0));
    EXPECT_FALSE(rc->precision(0, "x", 1, -0.5));
    EXPECT_FALSE(rc->precision(0, "x", 1, 100000.5));
    EXPECT_FALSE(rc->precision(0, "x", 1, notANumber));
    EXPECT_EQ(unit(*rc, 0), "inch 100000 0.0");
    EXPECT_EQ(rc->precisionCount(), 1u);
    EXPECT_FALSE(rc->precision(1, nullptr, 1, 1.0)); // refused, but the table has grown
    EXPECT_EQ(unit(*rc, 1), "inch 100000 0.0");
}

TEST_F(Rows, OfAUnitWithoutAFactorScaleToZero) {
    EXPECT_TRUE(rc->precision(0, "none", 0, 1.0));
    EXPECT_EQ(rc->encode(5.0), 0);
    EXPECT_EQ(rc->decode(5), 0.0);
}

TEST_F(Rows, OfTextStylesAreStored) {
    EXPECT_TRUE(rc->textSize(1, 100000.0, 0.5, 0.0, 100000.0, 2.0, "big", "", nullptr));
    EXPECT_EQ(textStyle(*rc, 1),
              "100000000 500 0 100000000 2000 big font/eng/_sysfont.vec font/jpn/yqfont.vec");
    EXPECT_TRUE(rc->textSize(255, 1, 1, 1, 1, 1, "", "s", "d"));
    EXPECT_EQ(rc->textSizeCount(), 256u);
    EXPECT_EQ(textStyle(*rc, 255), "1000 1000 1000 1000 1000  s d");
    EXPECT_FALSE(rc->textSize(256, 1, 1, 1, 1, 1, "", "s", "d"));
}

TEST_F(Rows, OfTextStylesRefuseMeasuresOutOfRange) {
    const std::string before = textStyle(*rc, 0);
    for (double bad : {0.0, -1.0, 100000.5, notANumber}) {
        EXPECT_FALSE(rc->textSize(0, bad, 1, 1, 1, 1, "x", "-", "-"));
        EXPECT_FALSE(rc->textSize(0, 1, bad, 1, 1, 1, "x", "-", "-"));
    }
    for (double bad : {-1.0, 100000.5, notANumber}) {
        EXPECT_FALSE(rc->textSize(0, 1, 1, bad, 1, 1, "x", "-", "-"));
        EXPECT_FALSE(rc->textSize(0, 1, 1, 1, bad, 1, "x", "-", "-"));
        EXPECT_FALSE(rc->textSize(0, 1, 1, 1, 1, bad, "x", "-", "-"));
    }
    EXPECT_FALSE(rc->textSize(0, 1, 1, 1, 1, 1, nullptr, "-", "-"));
    EXPECT_EQ(textStyle(*rc, 0), before);
}

TEST_F(Rows, OfTextStylesGrowTheTableEvenWhenTheyAreRefused) {
    EXPECT_FALSE(rc->textSize(1, 0.0, 1, 1, 1, 1, "x", "s", "d"));
    ASSERT_EQ(rc->textSizeCount(), 2u);
    EXPECT_EQ(textStyle(*rc, 1), "10000 10000 0 0 0 - font/eng/_sysfont.vec font/jpn/yqfont.vec");
}

TEST_F(Rows, OfAGapOfTextStylesAreRoundedToTheUnit) {
    EXPECT_TRUE(rc->textSize(0, 1.00049, 1.0005, 0, 0, 0, "x", "s", "d"));
    EXPECT_TRUE(rc->textSize(2, 1, 1, 1, 1, 1, "y", "s", "d"));
    EXPECT_NE(saved(*rc).find("\t1\t1\t1.001\t0\t0\t0\t\"-\"\t\"-\"\t\"-\"\n"), std::string::npos);
}

TEST_F(Rows, OfLineWidthsAreStored) {
    EXPECT_TRUE(rc->lineWidth(0, 100000.0));
    EXPECT_EQ(width(*rc, 0), "100000000");
    EXPECT_TRUE(rc->lineWidth(0, 0.0));
    for (double bad : {-0.5, 100000.5, notANumber}) EXPECT_FALSE(rc->lineWidth(0, bad));
    EXPECT_EQ(width(*rc, 0), "0");
    EXPECT_FALSE(rc->lineWidth(5, 1.0));
    EXPECT_EQ(rc->lineWidthCount(), 1u);
    EXPECT_TRUE(rc->lineWidth(4, 1.0));
    EXPECT_EQ(rc->lineWidthCount(), 5u);
}

TEST_F(Rows, OfAGapOfLineWidthsHoldTheEncodedNumber) {
    EXPECT_TRUE(rc->lineWidth(0, 0.5));
    EXPECT_FALSE(rc->lineWidth(2, -1.0));
    ASSERT_EQ(rc->lineWidthCount(), 3u);
    EXPECT_NE(saved(*rc).find("lineWidth 2 {\n\t0\t0.5\n\t1\t500\n\t2\t500\n}\n"), std::string::npos);
}

TEST_F(Rows, OfALargerTableFromAFileAreReadButNotSet) {
    rc = loaded("lineWidth 2 { 6 1.5 }");
    ASSERT_EQ(rc->lineWidthCount(), 7u);
    EXPECT_EQ(width(*rc, 6), "1500");
    EXPECT_EQ(width(*rc, 3), "0");
    EXPECT_FALSE(rc->lineWidth(5, 1.0));
    EXPECT_TRUE(rc->lineWidth(4, 1.0));
}

TEST_F(Rows, OfLineStylesAreStored) {
    EXPECT_TRUE(rc->lineStyle(1, 1, 2, 3, "one"));
    EXPECT_EQ(lineStyle(*rc, 1), "1000 2000 0 one");
    EXPECT_TRUE(rc->lineStyle(3, 0, 100000, 3, "three"));
    EXPECT_EQ(lineStyle(*rc, 3), "0 100000000 3000 three");
    EXPECT_FALSE(rc->lineStyle(4, 1, 2, 3, "four"));
    for (double bad : {-1.0, 100000.5, notANumber}) {
        EXPECT_FALSE(rc->lineStyle(1, bad, 1, 1, "x"));
        EXPECT_FALSE(rc->lineStyle(1, 1, bad, 1, "x"));
        EXPECT_FALSE(rc->lineStyle(1, 1, 1, bad, "x"));
    }
    EXPECT_FALSE(rc->lineStyle(1, 1, 1, 1, nullptr));
    EXPECT_EQ(lineStyle(*rc, 1), "1000 2000 0 one");
    EXPECT_NE(saved(*rc).find("\t1\t1\t2\t0\t\"one\"\n"), std::string::npos);
}

TEST_F(Rows, OfTheSolidLineAreNeverChangedAndTheCallerIsToldSuccess) {
    EXPECT_TRUE(rc->lineStyle(0, 1, 2, 3, "changed"));
    EXPECT_NE(saved(*rc).find("\t0\t0\t0\t0\t\"solid\"\n"), std::string::npos);
    EXPECT_FALSE(rc->lineStyle(0, -1, 2, 3, "x"));
}

TEST_F(Rows, OfFillStylesAreStored) {
    EXPECT_TRUE(rc->fillStyle(2, 2, 1.5, 2.5, 45.0, 90.0, "lines"));
    EXPECT_TRUE(rc->fillStyle(3, 3, 1.5, 2.5, 0.0, 359.9, "net"));
    EXPECT_TRUE(rc->fillStyle(1, 1, 1.5, 2.5, 45.0, 90.0, "full"));
    const std::string text = saved(*rc);
    EXPECT_NE(text.find("\t1\t1\t0\t0\t0\t0\t\"full\"\n\t2\t2\t1.5\t0\t45\t0\t\"lines\"\n"
                        "\t3\t3\t1.5\t2.5\t0\t359.9\t\"net\"\n"),
              std::string::npos)
        << text;
    EXPECT_FALSE(rc->fillStyle(256, 1, 0, 0, 0, 0, "x"));
    EXPECT_TRUE(rc->fillStyle(255, 1, 0, 0, 0, 0, "x"));
    EXPECT_EQ(rc->fillStyleCount(), 256u);
}

TEST_F(Rows, OfTheFirstFillStyleAreAlwaysWithoutFill) {
    EXPECT_TRUE(rc->fillStyle(0, 2, 1.5, 2.5, 45.0, 90.0, "hollow"));
    EXPECT_EQ(fillStyle(*rc, 0), "0 0 0 0.0000 0.0000 hollow");
    EXPECT_NE(saved(*rc).find("\t0\t0\t0\t0\t0\t0\t\"hollow\"\n"), std::string::npos);
    EXPECT_FALSE(rc->fillStyle(0, 4, 0, 0, 0, 0, "x"));
}

TEST_F(Rows, OfFillStylesRefuseNumbersOutOfRange) {
    const std::string before = fillStyle(*rc, 1);
    EXPECT_FALSE(rc->fillStyle(1, 4, 0, 0, 0, 0, "x"));
    EXPECT_FALSE(rc->fillStyle(1, 0x10001, 0, 0, 0, 0, "x"));
    for (double bad : {-1.0, 100000.5, notANumber}) {
        EXPECT_FALSE(rc->fillStyle(1, 3, bad, 0, 0, 0, "x"));
        EXPECT_FALSE(rc->fillStyle(1, 3, 0, bad, 0, 0, "x"));
    }
    for (double bad : {-1.0, 360.0, notANumber}) {
        EXPECT_FALSE(rc->fillStyle(1, 3, 0, 0, bad, 0, "x"));
        EXPECT_FALSE(rc->fillStyle(1, 3, 0, 0, 0, bad, "x"));
    }
    EXPECT_FALSE(rc->fillStyle(1, 1, 0, 0, 0, 0, nullptr));
    EXPECT_EQ(fillStyle(*rc, 1), before);
}

TEST_F(Rows, OfFillStylesGrowTheTableEvenWhenTheyAreRefused) {
    EXPECT_FALSE(rc->fillStyle(2, 2, 1, 1, 360.0, 0, "x"));
    EXPECT_EQ(rc->fillStyleCount(), 3u);
    EXPECT_EQ(fillStyle(*rc, 2), "0 0 0 0.0000 0.0000 -");
}

TEST_F(Rows, OfAGapOfFillStylesHoldTheEncodedPitches) {
    rc = loaded("fillStyleTable 7 { 0 3 0.5 2 30 60 \"first\" }");
    EXPECT_TRUE(rc->fillStyle(3, 1, 0, 0, 0, 0, "last"));
    EXPECT_NE(saved(*rc).find("\t2\t3\t500\t2000\t30\t60\t\"-\"\n"), std::string::npos);
}

TEST_F(Rows, AreStoredAtTheLowSixteenBitsOfTheirIndex) {
    EXPECT_TRUE(rc->lineWidth(65536, 1.5));
    EXPECT_EQ(width(*rc, 0), "1500");
    EXPECT_TRUE(rc->lineStyle(0xffff0001ul, 1, 2, 3, "low"));
    EXPECT_EQ(lineStyle(*rc, 1), "1000 2000 0 low");
    EXPECT_TRUE(rc->precision(0x10000, "low", 10, 1.0));
    EXPECT_EQ(unit(*rc, 0), "low 10 1.0");
    EXPECT_TRUE(rc->fillStyle(0x20000, 1, 0, 0, 0, 0, "low"));
    EXPECT_EQ(fillStyle(*rc, 0), "0 0 0 0.0000 0.0000 low");
    EXPECT_TRUE(rc->symbPath(0x10000, "low", "/low"));
    EXPECT_FALSE(rc->lineWidth(0x8000, 1.0)); // negative
    EXPECT_FALSE(rc->lineWidth(0xffffffffu, 1.0));
    EXPECT_EQ(rc->lineWidthCount(), 1u);
}

} // namespace
} // namespace bexa::test
