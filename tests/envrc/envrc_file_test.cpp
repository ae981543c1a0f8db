// What the reader takes and passes over, what the writer writes, and what hostile files do.

#include "tests/envrc/envrc_fixture.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace bexa::test {
namespace {

class EnvrcFile : public EnvrcFixture {};

// The golden file changes only when the format does: renew it from a fresh resource's save and read the difference.
TEST_F(EnvrcFile, OfAFreshResourceIsTheGoldenFile) {
    EXPECT_EQ(saved(*fresh()), golden());
}

TEST_F(EnvrcFile, IsTheSameAfterLoadAndSave) {
    const Resource envrc = loaded(golden());
    ASSERT_TRUE(envrc);
    EXPECT_EQ(saved(*envrc), golden());
}

TEST_F(EnvrcFile, WithEveryEntryIsTheSameAfterLoadAndSave) {
    const std::string full = contentOf(testData("envrc/full.rsc"));
    const Resource envrc = loaded(full);
    ASSERT_TRUE(envrc);
    EXPECT_EQ(saved(*envrc), full);
}

TEST_F(EnvrcFile, MayHaveItsEntriesInAnyOrder) {
    const std::string full = contentOf(testData("envrc/full.rsc"));
    std::string entries;
    for (std::size_t at = 0; at < full.size();) { // the last entry first
        std::size_t end = full.find('\n', at) + 1;
        if (full[end - 2] == '{') end = full.find("}\n", at) + 2;
        entries.insert(0, full, at, end - at);
        at = end;
    }
    const Resource envrc = loaded(entries);
    ASSERT_TRUE(envrc);
    EXPECT_EQ(saved(*envrc), full);
}

TEST_F(EnvrcFile, DeclaresTheCodingOfTheProcess) {
    const EnvGuard euc("LC_ALL", "ja_JP.eucJP");
    std::string expected = golden();
    expected.replace(expected.find("sjis"), 4, "euc");
    EXPECT_EQ(saved(*fresh()), expected);
}

TEST_F(EnvrcFile, MayBeEmpty) {
    const std::string header = golden().substr(0, golden().find("screenTrap"));
    for (const std::string& text :
         {std::string(), header, std::string("\n# only a comment"), std::string("\r\n\t ")}) {
        SCOPED_TRACE(text);
        const Resource envrc = loaded(text);
        ASSERT_TRUE(envrc);
        EXPECT_EQ(saved(*envrc), golden());
    }
}

TEST_F(EnvrcFile, MayHaveLineEndsOfAnySystem) {
    std::string text;
    for (const char c : contentOf(testData("envrc/full.rsc")))
        text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    const Resource envrc = loaded(text);
    ASSERT_TRUE(envrc);
    EXPECT_EQ(saved(*envrc), contentOf(testData("envrc/full.rsc")));
}

struct ValueRow {
    const char* text;
    const char* key;   // of the entry that a save writes
    const char* value; // its value; null where it isn't written
};

// clang-format off
const ValueRow values[] = {
    // Numbers: a negative one is dropped, a word counts as 0.
    {"undoLimit : -1\n",                          "undoLimit",           "50"},
    {"undoLimit : 0\n",                           "undoLimit",           "0"},
    {"undoLimit : 7x\n",                          "undoLimit",           "7"},
    {"undoLimit : word\n",                        "undoLimit",           "0"},
    {"undoLimit : \"8\"\n",                       "undoLimit",           "8"},
    {"undoLimit :\n",                             "undoLimit",           "0"},
    {"undoLimit : 99999999999\n",                 "undoLimit",           "2147483647"},
    {"undoLimit : 000000000000000000000000000000000071\n", "undoLimit",  "7"}, // cut at 35 characters
    {"gridColor : 9\ngridColor : -2\n",           "gridColor",           "9"},
    {"symbolPath : -1\n",                         "symbolPath",          "0"},
    // Real numbers: no range. Six digits are written.
    {"PANRATIO : 0.5\n",                          "panRatio",            "0.5"},
    {"panRatio : 7\n",                            "panRatio",            "7"},
    {"panRatio : word\n",                         "panRatio",            "0"},
    {"panRatio : -1e-3z\n",                       "panRatio",            "-0.001"},
    {"panRatio : 1.23456789\n",                   "panRatio",            "1.23457"},
    {"panRatio : 1234567.8\n",                    "panRatio",            "1.23457e+06"},
    {"panRatio : 1e999\n",                        "panRatio",            "inf"},
    {"panRatio : nan\n",                          "panRatio",            "nan"},
    {"netTheta : 1000\n",                         "netTheta",            "1000"},
    {"circleRadius : -3\n",                       "circleRadius",        "-3"},
    // Characters: the first one of the value.
    {"zoneStartTextX : \"q r\"\n",                "zoneStartTextX",      "q"},
    {"zoneStartTextX : \"\"\n",                   "zoneStartTextX",      ""},
    {"zoneStartTextX : -\n",                      "zoneStartTextX",      "-"},
    // Words: an unknown one is dropped, a flag is one too.
    {"dFocus : nothing\n",                        "dFocus",              "mainObject"},
    {"dFocus : bNet\ndFocus : nothing\n",         "dFocus",              "bNet"},
    {"dFocus : subObject\n",                      "dFocus",              ""}, // has no word to be written with
    {"dFocus : 3\n",                              "dFocus",              "mainObject"},
    {"inputGrid : 0\n",                           "inputGrid",           "On"},
    {"inputGrid : no\n",                          "inputGrid",           "On"},
    {"inputGrid : \"off\"\n",                     "inputGrid",           "Off"},
    {"zoneOrigin : \"\"\n",                       "zoneOrigin",          "UpLeft"},
    {"autoSaveRuleCheck : Instance\n",            "autoSaveRuleCheck",   "Instance"},
    {"autoSaveRuleCheck : 2\n",                   "autoSaveRuleCheck",   "Off"},
    {"autoSaveRuleCheck : OnMemory\nautoSaveRuleCheck : 4\n", "autoSaveRuleCheck", "OnMemory"},
    {"swapSConnMode : cpin\nswapSConnMode : x\n", "swapSConnMode",       "coord"}, // knows no wrong word
    {"symbDefaultcompType : net|gnd|x\n",         "symbDefaultcompType", "net|gnd"},
    {"symbDefaultcompType : net\nsymbDefaultcompType : x\n", "symbDefaultcompType", "net"},
    {"symbDefaultcompType : net\nsymbDefaultcompType : Fig\n", "symbDefaultcompType", "fig"},
    {"cbufWithNetLabel : On\n",                   "cbufWithNetLabel",    "On"},
    // The sign mode: an unknown word counts as a number.
    {"moveSignMode : 1\n",                        "moveSignMode",        "bus"},
    {"moveSignMode : bus\n",                      "moveSignMode",        "bus"},
    {"moveSignMode : 0\n",                        "moveSignMode",        "port"},
    {"moveSignMode : port\n",                     "moveSignMode",        "port"},
    {"moveSignMode : 2\n",                        "moveSignMode",        nullptr},
    {"moveSignMode : -1\n",                       "moveSignMode",        nullptr},
    {"moveSignMode : 4294967296\n",               "moveSignMode",        nullptr},
    {"moveSignMode : 1x\n",                       "moveSignMode",        "bus"},
    {"moveSignMode : nothing\n",                  "moveSignMode",        "port"}, // the number 0
    {"moveSignMode : \"\"\n",                     "moveSignMode",        "port"},
    {"moveSignMode : 1\nmoveSignMode : 2\n",      "moveSignMode",        "bus"},
    {"moveSignMode\n",                            "moveSignMode",        nullptr},
    // Presence words: set by a good value only.
    {"zipText : off\n",                           "zipText",             "Off"},
    {"zipText : ON\n",                            "zipText",             "On"},
    {"zipText : 1\n",                             "zipText",             nullptr},
    {"zipText : \"\"\n",                          "zipText",             nullptr},
    {"doNotSelectUnvisiblePbox : Off\n",          "doNotSelectUnvisiblePbox", "Off"},
    {"doNotSelectUnvisiblePbox : x\n",            "doNotSelectUnvisiblePbox", nullptr},
    {"doNotSelectUnivisiblePbox : On\n",          "doNotSelectUnvisiblePbox", nullptr}, // the reader's spelling
    // Pitches and offsets: mended only where an entry can't be read.
    {"zonePitchX : -5\n",                         "zonePitchX",          "-5"},
    {"zonePitchX : -5\nzonePitchX { }\n",         "zonePitchX",          "1"},
    {"zonePitchY : 0\nzonePitchY\n",              "zonePitchY",          "1"},
    {"zonePitchY : 0.5\nzonePitchY { }\n",        "zonePitchY",          "0.5"},
    {"zonePitchX { }\n",                          "zonePitchX",          "50"},
    {"zoneOffsetX : -5\n",                        "zoneOffsetX",         "-5"},
    {"zoneOffsetX : -5\nzoneOffsetX { }\n",       "zoneOffsetX",         "0"},
    {"zoneOffsetY : -0.1\nzoneOffsetY\n",         "zoneOffsetY",         "0"},
    {"zoneOffsetY : 3\nzoneOffsetY { }\n",        "zoneOffsetY",         "3"},
    {"circleRadius : -5\ncircleRadius { }\n",     "circleRadius",        "-5"},
    // Texts.
    {"autoSaveReloadRscFile : a b\n",             "autoSaveReloadRscFile", "\"a\""},
    {"autoSaveReloadKeyName : \"\"\n",            "autoSaveReloadKeyName", "\"\""},
    {"autoSaveReloadKeyName : # comment\n",       "autoSaveReloadKeyName", "\"\""},
    {"autoSaveReloadKeyName : a\"b\n",            "autoSaveReloadKeyName", "\"a\"b\""}, // read back as "a"
    // The last entry counts, and a lost colon costs the key behind it.
    {"undoLimit : 1\nundoLimit : 2\n",            "undoLimit",           "2"},
    {"panRatio\nundoLimit : 7\n",                 "undoLimit",           "50"},
    {"panRatio\nx : y\nundoLimit : 7\n",          "undoLimit",           "7"},
    {"nosuch : 9\nnosuch 2 { 0 undoLimit : 4 }\nundoLimit : 3\n", "undoLimit", "3"},
    {"} } : 5 \"x\" undoLimit : 3\n",             "undoLimit",           "3"},
};
// clang-format on

TEST_F(EnvrcFile, IsReadByTheRuleOfEachKey) {
    for (const ValueRow& row : values) {
        SCOPED_TRACE(row.text);
        const Resource envrc = loaded(row.text);
        ASSERT_TRUE(envrc);
        EXPECT_EQ(valueIn(*envrc, row.key), row.value ? std::optional<std::string>(row.value) : std::nullopt);
    }
}

TEST_F(EnvrcFile, MendsABadPitchOnlyBehindAnEntryThatCanNotBeRead) {
    EXPECT_EQ(valueIn(*loaded("zonePitchX : -5\n"), "zonePitchX"), "-5");
    EXPECT_EQ(valueIn(*loaded("zonePitchX : -5\nzonePitchX { }\n"), "zonePitchX"), "1");
    EXPECT_EQ(valueIn(*loaded("zoneOffsetX : -5\n"), "zoneOffsetX"), "-5");
    EXPECT_EQ(valueIn(*loaded("zoneOffsetX : -5\nzoneOffsetX { }\n"), "zoneOffsetX"), "0");
}

TEST_F(EnvrcFile, TakesAnUnknownMoveSignForTheNumberItBeginsWith) {
    EXPECT_EQ(valueIn(*loaded("moveSignMode : 1x\n"), "moveSignMode"), "bus");
    EXPECT_EQ(valueIn(*loaded("moveSignMode : bus\nmoveSignMode : nothing\n"), "moveSignMode"), "port");
    EXPECT_EQ(valueIn(*loaded("moveSignMode : 2\n"), "moveSignMode"), std::nullopt);
}

TEST_F(EnvrcFile, PassesTheKeysOfOlderFilesOver) {
    for (const char* key : {"cursorType", "cursorColor", "rotateRatio", "gridHighlightColor", "CURSORTYPE"}) {
        const Resource envrc = loaded(key + std::string(" : undoLimit\nundoLimit : 3\n"));
        ASSERT_TRUE(envrc);
        EXPECT_EQ(envrc->undoLimit(), 3u);
        EXPECT_EQ(entryOf(saved(*envrc), key), std::nullopt);
    }
}

TEST_F(EnvrcFile, DropsTheKeysThatAreReadButNeverWritten) {
    const Resource envrc = loaded("dProject : \"p\"\nlogfile : \"l\"\nmcpSearchFlag : On\n");
    ASSERT_TRUE(envrc);
    EXPECT_STREQ(envrc->dProject(), "p");
    EXPECT_STREQ(envrc->logfile(), "l");
    EXPECT_EQ(envrc->mcpSearchFlag(), 1u);
    EXPECT_EQ(saved(*envrc), golden());
}

TEST_F(EnvrcFile, KnowsNothingOfTheWidthOfTheLabelList) {
    const Resource envrc = loaded("chgNetLabelListWidthSize : 40\nchgNetLabelListHeightSize : 41\n");
    ASSERT_TRUE(envrc);
    EXPECT_EQ(envrc->chgNetLabelListWidthSize(), 30u);
    EXPECT_EQ(envrc->chgNetLabelListHeightSize(), 41u);
    EXPECT_TRUE(envrc->set("chgNetLabelListWidthSize", 50L));
    EXPECT_EQ(saved(*envrc).find("ListWidthSize"), std::string::npos);
}

TEST_F(EnvrcFile, CarriesTheFontForUnixThatNobodyHandsOut) {
    const Resource envrc = loaded("measureFontForUNIX : \"9x15\"\n");
    ASSERT_TRUE(envrc);
    EXPECT_STREQ(envrc->measureFont(), "FixedSys/12/Normal");
    EXPECT_EQ(valueIn(*envrc, "measureFontForUNIX"), "\"9x15\"");
}

TEST_F(EnvrcFile, ReadsATextWithAQuoteBackDifferently) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("autoSaveReloadKeyName", "a\"b"));
    EXPECT_TRUE(envrc->set("autoSaveReloadRscFile", "kept"));
    const std::string text = saved(*envrc);
    EXPECT_NE(text.find("\nautoSaveReloadKeyName : \"a\"b\"\n"), std::string::npos);
    const Resource again = loaded(text);
    ASSERT_TRUE(again);
    EXPECT_STREQ(again->autoSaveReloadKeyName(), "a");
    EXPECT_STREQ(again->autoSaveReloadRscFile(), "kept");
}

TEST_F(EnvrcFile, IsUnreadableBehindATextThatEndsInAQuote) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("autoSaveReloadKeyName", "a\""));
    EXPECT_FALSE(loaded(saved(*envrc)));
}

TEST_F(EnvrcFile, CutsALongTextOnACharacterBoundary) {
    const Resource envrc = loaded("dProject : \"" + std::string(1022, 'a') + "\x83\x5c\x83\x5c\"\n");
    ASSERT_TRUE(envrc);
    EXPECT_EQ(envrc->dProject(), std::string(1022, 'a'));
    EXPECT_EQ(loaded("dProject : " + std::string(1023, 'a') + "b\n")->dProject(), std::string(1023, 'a'));
}

TEST_F(EnvrcFile, KeepsDoubleByteTexts) {
    const std::string shiftJis = "dProject : \"\x83\x5c\x95\x5c#\"\n"; // second bytes are backslashes
    EXPECT_STREQ(loaded(shiftJis)->dProject(), "\x83\x5c\x95\x5c#");
    const std::string euc = "# japanese_coding:euc\ndProject : \"\xa5\xbd\xc9\xbd#\"\n";
    EXPECT_STREQ(loaded(euc)->dProject(), "\x83\x5c\x95\x5c#");
}

TEST_F(EnvrcFile, SurvivesACharacterThatIsHalfOfAPair) {
    const Resource envrc = loaded("zoneStartTextX : \x83\x5c\nundoLimit : 7\n");
    ASSERT_TRUE(envrc);
    EXPECT_EQ(envrc->zoneStartTextX(), '\x83');
    const Resource again = loaded(saved(*envrc));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->zoneStartTextX(), '\x83');
    EXPECT_EQ(again->zoneStartTextY(), '1');
    EXPECT_EQ(again->undoLimit(), 7u);
}

// ---- Tables

struct TableRow {
    const char* text;
    const char* rows; // as written
};

#define GRID0 "\t0\t1\t4\t10\t10\n"
#define SYMBOL0 "\t0\t\"sym\"\t0\t0\t10\t10\n"
#define SCHEMATIC0 "\t0\t\"sch\"\t0\t0\t297\t210\t0\t\"waku\"\n"

// clang-format off
const TableRow tables[] = {
    // Rows are stored at their own index; one of the built-in table stays unless it is replaced.
    {"gridTable 5 { }",                             "gridTable 5 {\n" GRID0 "}\n"},
    {"gridTable 5 { 0 7 8 9 10.5 }",                "gridTable 5 {\n\t0\t7\t8\t9\t10.5\n}\n"},
    {"gridTable 5 { 2 7 8 9 1 1 5 6 7 8 }",         "gridTable 5 {\n" GRID0 "\t1\t5\t6\t7\t8\n\t2\t7\t8\t9\t1\n}\n"},
    {"gridTable 5 { 5 1 1 1 1 }",                   "gridTable 5 {\n" GRID0 "\t1\t0\t0\t0\t0\n\t2\t0\t0\t0\t0\n\t3\t0\t0\t0\t0\n\t4\t0\t0\t0\t0\n\t5\t1\t1\t1\t1\n}\n"},
    {"gridTable 5 { 1 999999 1 1e6 1 }",            "gridTable 5 {\n" GRID0 "\t1\t999999\t1\t1e+06\t1\n}\n"}, // no upper limit
    {"gridTable 5 { x 2 3 4 5 }",                   "gridTable 5 {\n\t0\t2\t3\t4\t5\n}\n"},
    {"gridTable 5 { 1 2 3 4 0.00000000000000000001 }", "gridTable 5 {\n" GRID0 "}\n"}, // cut at 19 characters
    {"symSheetSizeTable 6 { 1 \"A 4\" -1 -2.5 0 0 }", "symSheetSizeTable 6 {\n" SYMBOL0 "\t1\t\"A 4\"\t-1\t-2.5\t0\t0\n}\n"},
    {"symSheetSizeTable 6 { 2 n 1 2 3 4 }",         "symSheetSizeTable 6 {\n" SYMBOL0 "\t1\t\"\"\t0\t0\t0\t0\n\t2\t\"n\"\t1\t2\t3\t4\n}\n"},
    {"schSheetSizeTable 8 { 1 n 1 2 3 4 5 f }",     "schSheetSizeTable 8 {\n" SCHEMATIC0 "\t1\t\"n\"\t1\t2\t3\t4\t5\t\"f\"\n}\n"},
    {"schSheetSizeTable 8 { 2 n 1 2 3 4 5 f }",     "schSheetSizeTable 8 {\n" SCHEMATIC0 "\t1\t\"\"\t0\t0\t0\t0\t0\t\"\"\n\t2\t\"n\"\t1\t2\t3\t4\t5\t\"f\"\n}\n"},
    {"schSheetSizeTable 8 { 0 \"\" 1 2 3 4 65537 \"\" }", "schSheetSizeTable 8 {\n\t0\t\"\"\t1\t2\t3\t4\t1\t\"\"\n}\n"},
    {"schSheetAttrTable 3 { 1 n v }",               "schSheetAttrTable 3 {\n\t0\t\"\"\t\"\"\n\t1\t\"n\"\t\"v\"\n}\n"},
    {"schSheetAttrTable 3 { 0 n v 0 m w }",         "schSheetAttrTable 3 {\n\t0\t\"m\"\t\"w\"\n}\n"},
    {"SCHSHEETATTRTABLE 3 { 0 n v }",               "schSheetAttrTable 3 {\n\t0\t\"n\"\t\"v\"\n}\n"},

    // A row that is refused ends its table; what came before it stays.
    {"gridTable 5 { 0 2 2 2 2 -1 1 1 1 1 1 3 3 3 3 }", "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 1 0 1 1 1 }",         "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 1 1 0 1 1 }",         "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 1 1 1 0 1 }",         "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 1 1 1 1 -1 }",        "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 1 1 1 1 nan }",       "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 1 1 }",               "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 0 2 2 2 2 { 1 1 1 1 1 } }",     "gridTable 5 {\n\t0\t2\t2\t2\t2\n}\n"},
    {"gridTable 5 { 1048576 1 1 1 1 }",             "gridTable 5 {\n" GRID0 "}\n"},
    {"gridTable 5 { 99999999999 1 1 1 1 }",         "gridTable 5 {\n" GRID0 "}\n"},
    {"symSheetSizeTable 6 { 1 n 0 0 -1 0 }",        "symSheetSizeTable 6 {\n" SYMBOL0 "}\n"},
    {"symSheetSizeTable 6 { 1 n 0 0 0 -1 }",        "symSheetSizeTable 6 {\n" SYMBOL0 "}\n"},
    {"symSheetSizeTable 6 { -1 n 0 0 0 1 }",        "symSheetSizeTable 6 {\n" SYMBOL0 "}\n"},
    {"schSheetSizeTable 8 { 1 n 0 0 -1 0 0 f }",    "schSheetSizeTable 8 {\n" SCHEMATIC0 "}\n"},
    {"schSheetSizeTable 8 { 1 n 0 0 0 nan 0 f }",   "schSheetSizeTable 8 {\n" SCHEMATIC0 "}\n"},
    {"schSheetSizeTable 8 { 1 n 0 0 0 0 -1 f }",    "schSheetSizeTable 8 {\n" SCHEMATIC0 "}\n"},
    {"schSheetSizeTable 8 { -1 n 0 0 0 0 0 f }",    "schSheetSizeTable 8 {\n" SCHEMATIC0 "}\n"},
    {"schSheetSizeTable 8 { 1 n 0 0 0 0 0 }",       "schSheetSizeTable 8 {\n" SCHEMATIC0 "}\n"},
    {"schSheetAttrTable 3 { 0 a b -1 n v }",        "schSheetAttrTable 3 {\n\t0\t\"a\"\t\"b\"\n}\n"},
    {"schSheetAttrTable 3 { 0 a b 1 n }",           "schSheetAttrTable 3 {\n\t0\t\"a\"\t\"b\"\n}\n"},

    // So does a wrong head.
    {"gridTable 4 { 0 2 2 2 2 }",                   "gridTable 5 {\n" GRID0 "}\n"},
    {"gridTable { 0 2 2 2 2 }",                     "gridTable 5 {\n" GRID0 "}\n"},
    {"gridTable 5 : 0",                             "gridTable 5 {\n" GRID0 "}\n"},
    {"gridTable : 5",                               "gridTable 5 {\n" GRID0 "}\n"},
    {"symSheetSizeTable 8 { 0 n 1 2 3 4 5 f }",     "symSheetSizeTable 6 {\n" SYMBOL0 "}\n"},
    {"schSheetSizeTable 7 { 0 n 1 2 3 4 5 }",       "schSheetSizeTable 8 {\n" SCHEMATIC0 "}\n"},
    {"schSheetAttrTable 2 { n v }",                 "schSheetAttrTable 3 {\n}\n"},
};
// clang-format on

TEST_F(EnvrcFile, WithABrokenTableLosesOnlyTheRestOfThatTable) {
    for (const TableRow& row : tables) {
        SCOPED_TRACE(row.text);
        const Resource envrc = loaded(std::string(row.text) + "\nundoLimit : 7\n");
        ASSERT_TRUE(envrc);
        EXPECT_EQ(envrc->undoLimit(), 7u);
        EXPECT_NE(saved(*envrc).find(row.rows), std::string::npos) << saved(*envrc);
        EXPECT_TRUE(loaded(saved(*envrc)));
    }
}

TEST_F(EnvrcFile, WithGapsInItsGridsLosesThemAtTheNextLoad) {
    const std::string gaps = saved(*loaded("gridTable 5 { 3 1 1 1 1 }\n"));
    EXPECT_EQ(loaded(gaps)->gridTableCount(), 1); // the empty rows are written, and refused
    const std::string sizes = saved(*loaded("schSheetSizeTable 8 { 3 n 1 1 1 1 1 f }\n"));
    EXPECT_EQ(loaded(sizes)->schSheetSizeTableCount(), 4);
}

TEST_F(EnvrcFile, CutsLongNamesAndAttributes) {
    const std::string word(2000, 'a');
    const Resource envrc =
        loaded("symSheetSizeTable 6 { 0 " + word + " 0 0 1 1 }\nschSheetSizeTable 8 { 0 " + word +
               " 0 0 1 1 0 " + word + " }\nschSheetAttrTable 3 { 0 " + word + " " + word + " }\n");
    ASSERT_TRUE(envrc);
    char name[2048];
    char other[2048];
    long n[4];
    int number = 0;
    EXPECT_TRUE(envrc->symSheetSize(0, name, n[0], n[1], n[2], n[3]));
    EXPECT_EQ(name, std::string(1023, 'a'));
    EXPECT_TRUE(envrc->schSheetSize(0, name, n[0], n[1], n[2], n[3], number, other));
    EXPECT_EQ(name, std::string(1023, 'a'));
    EXPECT_EQ(other, std::string(1023, 'a'));
    EXPECT_TRUE(envrc->schSheetAttr(0, name, other));
    EXPECT_EQ(name, std::string(63, 'a'));
    EXPECT_EQ(other, std::string(63, 'a'));
}

TEST_F(EnvrcFile, MayHoldMoreRowsThanASetterTakes) {
    const Resource envrc =
        loaded("gridTable 5 { 40 1 1 1 1 }\nsymSheetSizeTable 6 { 900 n 0 0 1 1 }\n"
               "schSheetSizeTable 8 { 900 n 0 0 1 1 0 f }\nschSheetAttrTable 3 { 900 n v }\n");
    ASSERT_TRUE(envrc);
    EXPECT_EQ(envrc->gridTableCount(), 41);
    EXPECT_EQ(envrc->symSheetSizeTableCount(), 901);
    EXPECT_EQ(envrc->schSheetSizeTableCount(), 901);
    EXPECT_EQ(envrc->schSheetAttrTableCount(), 901);
    EXPECT_FALSE(envrc->setGridTable(40, 1, 1, 1.0, 1.0));
}

// ---- Hostile files

TEST_F(EnvrcFile, CutAnywhereNeverCrashesAndStaysAsItIs) {
    const std::string path = dir.file("cut.rsc");
    const std::string full = contentOf(testData("envrc/full.rsc"));
    writeFile(path, full);
    for (std::size_t size = full.size(); size-- > 0;) {
        std::filesystem::resize_file(path, size);
        const Resource envrc(BexEnvrc::open(path.c_str(), BexOpenUpdate, nullptr, nullptr));
        ASSERT_EQ(std::filesystem::file_size(path), size);
    }
}

TEST_F(EnvrcFile, WithAQuoteLeftOpenOrANulByteFailsToLoadAndIsLeftAlone) {
    using namespace std::string_literals;
    for (const std::string& text :
         {"dProject : \"p\nundoLimit : 1\n"s, "nosuch : \"x\n"s, "undoLimit : 1\n\0"s,
          "schSheetAttrTable 3 { 0 \"a }\n"s, "undoLimit\0 : 1\n"s}) {
        EXPECT_FALSE(loaded(text));
        EXPECT_EQ(contentOf(dir.file("loaded.rsc")), text);
    }
}

TEST_F(EnvrcFile, OfBinaryBytesNeverCrashes) {
    std::string bytes;
    unsigned seed = 1;
    for (int i = 0; i < 65536; ++i) {
        seed = seed * 1103515245u + 12345u;
        bytes += static_cast<char>(seed >> 16);
    }
    const Resource envrc = loaded(bytes);
}

// Puts one byte into a file, without writing the rest of it anew.
void damage(const std::string& path, std::size_t at, char byte) {
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(at));
    file.put(byte);
}

TEST_F(EnvrcFile, DamagedAnywhereNeverCrashes) {
    const std::string path = dir.file("damaged.rsc");
    const std::string text = golden();
    writeFile(path, text);
    for (std::size_t at = 0; at < text.size(); at += 5) {
        for (const char byte : {'\0', '"', '{', '}', '\xff', '\x83', ':', '9', '\n'}) {
            damage(path, at, byte);
            const Resource envrc(BexEnvrc::open(path.c_str(), BexOpenRead, nullptr, nullptr));
        }
        damage(path, at, text[at]);
    }
    EXPECT_EQ(contentOf(path), text);
}

TEST_F(EnvrcFile, MayHaveALineOfTenMegabytes) {
    const Resource words = loaded("nosuch : " + std::string(10'000'000, 'x') + "\nundoLimit : 1\n");
    ASSERT_TRUE(words);
    EXPECT_EQ(words->undoLimit(), 1u);
    const Resource quoted = loaded("dProject : \"" + std::string(10'000'000, 'x') + "\"\nundoLimit : 2\n");
    ASSERT_TRUE(quoted);
    EXPECT_EQ(quoted->dProject(), std::string(1023, 'x'));
    EXPECT_EQ(quoted->undoLimit(), 2u);
}

} // namespace
} // namespace bexa::test
