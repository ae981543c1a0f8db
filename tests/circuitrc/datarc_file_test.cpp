// What the reader takes and refuses, what the writer writes, and what hostile files do.

#include "tests/circuitrc/datarc_fixture.h"

#include "bexa/circuitrc/resource_tables.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace bexa::test {
namespace {

class DatarcFile : public DatarcFixture {
protected:
    static std::string golden() { return contentOf(testData("circuitrc/fresh.rsc")); }
};

// The golden file changes only when the format does: renew it from a fresh resource's save and read the difference.
TEST_F(DatarcFile, OfAFreshResourceIsTheGoldenFile) {
    EXPECT_EQ(saved(*fresh()), golden());
}

TEST_F(DatarcFile, IsTheSameAfterLoadAndSave) {
    const Resource rc = loaded(golden());
    ASSERT_TRUE(rc);
    EXPECT_EQ(saved(*rc), golden());
}

TEST_F(DatarcFile, DeclaresTheCodingOfTheProcess) {
    const EnvGuard euc("LC_ALL", "ja_JP.eucJP");
    std::string expected = golden();
    expected.replace(expected.find("sjis"), 4, "euc");
    EXPECT_EQ(saved(*fresh()), expected);
}

TEST_F(DatarcFile, MayBeEmpty) {
    for (const char* text : {"", "\n", "# only a comment", "# japanese_coding:euc\n\n", "\r\n\t \n"}) {
        SCOPED_TRACE(text);
        const Resource rc = loaded(text);
        ASSERT_TRUE(rc);
        EXPECT_EQ(saved(*rc), golden());
    }
}

TEST_F(DatarcFile, MayHaveLineEndsOfAnySystem) {
    std::string text;
    for (const char c : golden()) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    const Resource rc = loaded(text);
    ASSERT_TRUE(rc);
    EXPECT_EQ(saved(*rc), golden());
}

struct StepRow {
    const char* text;
    char rangeEnd;
    char rangeStep;
};

const StepRow steps[] = {
    {"", '-', '-'},                                              //
    {"rangeEndChar : \":\"\n", ':', ':'},                        // one character for both
    {"rangeStepChar : \"/\"\n", '-', '/'},                       //
    {"rangeStepChar : \"/\"\nrangeEndChar : \":\"\n", ':', '/'}, //
    {"rangeStepChar : \"\"\nrangeEndChar : \":\"\n", ':', ':'},  // not defined counts as missing
    {"rangeEndChar : \"\"\n", '\0', '\0'},                       //
};

TEST_F(DatarcFile, WithoutAStepCharacterUsesTheRangeEnd) {
    for (const StepRow& row : steps) {
        SCOPED_TRACE(row.text);
        const Resource rc = loaded(row.text);
        ASSERT_TRUE(rc);
        EXPECT_EQ(rc->rangeEndChar(), row.rangeEnd);
        EXPECT_EQ(rc->rangeStepChar(), row.rangeStep);
    }
}

// An index as read: the entry and what the resource gives, null when the load fails.
struct IndexRow {
    const char* text;
    long (*read)(const BexDatarc&);
    const char* value;
};

// clang-format off
#define READ(reader) [](const BexDatarc& rc) { return static_cast<long>(rc.reader()); }
const IndexRow indices[] = {
    {"defaultCompColor : -\n",                      READ(defaultCompColor),         "-1"},
    {"defaultCompColor : \"-\"\n",                  READ(defaultCompColor),         "-1"},
    {"defaultCompColor : -1\n",                     READ(defaultCompColor),         nullptr},
    {"defaultCompColor : --\n",                     READ(defaultCompColor),         "0"},
    {"defaultCompColor : word\n",                   READ(defaultCompColor),         "0"},
    {"defaultCompColor : \"\"\n",                   READ(defaultCompColor),         "0"},
    {"defaultCompColor : 14\n",                     READ(defaultCompColor),         "14"},
    {"defaultCompColor : 15\n",                     READ(defaultCompColor),         "0"},
    {"defaultCompColor : 99\n",                     READ(defaultCompColor),         "0"},
    {"defaultCompColor : 0000000000000000003\n",    READ(defaultCompColor),         "3"},
    {"defaultCompColor : 00000000000000000003\n",   READ(defaultCompColor),         nullptr}, // 20 characters
    {"defaultFrameColor : 99\n",                    READ(defaultFrameColor),        "0"},
    {"defaultFrameColor : -1\n",                    READ(defaultFrameColor),        nullptr},
    {"defaultFrameColor : 99999999999\n",           READ(defaultFrameColor),        "0"},
    {"defaultFrameColor : x\n",                     READ(defaultFrameColor),        "0"},
    {"defaultSymbFrameColor : 99\n",                READ(defaultSymbFrameColor),    "13"}, // its built-in value
    {"defaultSymbFrameColor : 14\n",                READ(defaultSymbFrameColor),    "14"},
    {"defaultSymbSheetColor : 15\n",                READ(defaultSymbSheetColor),    "0"},
    {"defaultLineWidth : 1\n",                      READ(defaultLineWidth),         "0"},
    {"lineWidth 2 { 9 1 }\ndefaultLineWidth : 9\n", READ(defaultLineWidth),         "9"},
    {"defaultLineWidth : 9\nlineWidth 2 { 9 1 }\n", READ(defaultLineWidth),         "0"}, // the table as read so far
    {"defaultLineStyle : 2\nlineStyleTable 5 { 0 0 0 0 a 1 1 1 0 b }\n", READ(defaultLineStyle), "2"},
    {"defaultLineStyle : 4\n",                      READ(defaultLineStyle),         "0"},
    {"defaultFillStyle : 2\n",                      READ(defaultFillStyle),         "0"},
    {"defaultCircleFillStyle : 2\n",                READ(defaultCircleFillStyle),   "0"},
    {"defaultTextFont : 1\n",                       READ(defaultTextFont),          "0"},
    {"noMountDispStyle : 3\n",                      READ(noMountDispStyle),         "3"},
    {"noMountDispStyle : 4\n",                      READ(noMountDispStyle),         "0"},
    {"noMountDispStyle : -1\n",                     READ(noMountDispStyle),         nullptr},
    {"nplNoMountCompDispStyle : 4\n",               READ(nplNoMountCompDispStyle),  "0"},
    {"nplNoMountCompDispStyle : -1\n",              READ(nplNoMountCompDispStyle),  nullptr},
    {"propDispNum : -7x\n",                         READ(propDispNum),              "-7"},
    {"propDispNum : 99999999999\n",                 READ(propDispNum),              "2147483647"},
    {"nodeSize : 200000\n",                         READ(nodeSize),                 "200000000"}, // no range here
    {"cornerRadius : -1\n",                         READ(cornerRadius),             "-1000"},
    {"dataTrap : word\n",                           READ(dataTrap),                 "0"},
    {"useBusAliasFlag : maybe\n",                   READ(useBusAlias),              "0"},
    {"createNetLabelFromDefRef : yes\n",            READ(createInstNetLabelMode),   "0"},
    {"sheetNetErrorLevel : soft\n",                 READ(sheetNetErrorLevel),       "0"},
    {"overwritePortMode : nosuch\n",                READ(overwritePortMode),        "0"},
    {"simpleArray : off\n",                         READ(simpleArrayMode),          "1"},
    {"simpleArray : \"\"\n",                        READ(simpleArrayMode),          "0"},
    {"simpleArray : no\n",                          READ(simpleArrayMode),          "0"},
    // The last one counts, and what isn't known is passed over.
    {"propDispNum : 1\npropDispNum : 2\n",          READ(propDispNum),              "2"},
    {"nosuch : 9\nnosuch 2 { 0 propDispNum }\npropDispNum : 1\n", READ(propDispNum), "1"},
    {"colorTable 5 {\n\t0\t1\t2\t3\t\"propDispNum\"\n}\npropDispNum : 1\n", READ(propDispNum), "1"},
    {"precisionTable 4 {\n\t0\t\"mm\"\t9\t1\n}\nnodeSize : 1\n", READ(nodeSize),    "1000"},
    {"PropDispNum : 9\n",                           READ(propDispNum),              "-1"},
};
// clang-format on

TEST_F(DatarcFile, IsReadByTheRuleOfEachKey) {
    for (const IndexRow& row : indices) {
        SCOPED_TRACE(row.text);
        const Resource rc = loaded(row.text);
        ASSERT_EQ(rc != nullptr, row.value != nullptr);
        if (!rc) continue;
        EXPECT_EQ(std::to_string(row.read(*rc)), row.value);
    }
}

struct WrittenRow {
    const char* text;
    const char* entry;
    bool written;
};

// Which entries make a setting one that is written.
const WrittenRow written[] = {
    {"busNSimpleDispFlag : 0\n", "busNSimpleDispSepChar : \"_\"\n", true},
    {"busNSimpleDispSepChar : \"+\"\n", "busNSimpleDisp", false},
    {"busNSimpleDispSepChar : \"\"\nbusNSimpleDispFlag : 1\n", "busNSimpleDispSepChar : \"_\"\n", true},
    {"useBusAliasFlag : \"\"\n", "useBusAliasFlag : Off\n", true},
    {"useBusAliasFlag { }\n", "useBusAliasFlag", false},
    {"createNetLabelFromDefRef : \"\"\n", "createNetLabelFromDefRef", false},
    {"createNetLabelFromDefRef : x\n", "createNetLabelFromDefRef : Off\n", true},
    {"sheetNetErrorLevel : \"\"\n", "sheetNetErrorLevel", false},
    {"sheetNetErrorLevel : x\n", "sheetNetErrorLevel : Normal\n", true},
    {"overwritePortMode : \"\"\n", "overwritePortMode", false},
    {"overwritePortMode : x\n", "overwritePortMode", false},
    {"overwritePortMode : NONE\n", "overwritePortMode : none\n", true},
    {"overwritePortMode : portToSig\noverwritePortMode : x\n", "overwritePortMode : none\n", true},
    {"simpleArray : NO\n", "simpleArray", false},
    {"simpleArray : 0\n", "simpleArray : YES\n", true},
    {"dateFormat : \"\"\n", "dateFormat", false},
    {"timeFormat : \"\"\n", "timeFormat", false},
    {"timeFormat : a\n", "timeFormat : \"a\"\n", true},
    {"vmarkFlag : x\n", "vmarkFlag : Off\n", true},
    {"vmarkFlag : On\nvmarkFlag : \"\"\n", "vmarkFlag : Off\n", true},
    {"vmarkStr : \"\"\n", "vmarkStr : \"\"\n", true},
    {"contentsUnvisibleCmpType : \"\"\n", "contentsUnvisibleCmpType : \"\"\t\t# (ex. ", true},
    {"nodeSize : 1234567.89\n", "nodeSize : 1.23457e+06\n", true}, // six digits
    {"nodeSize : 0.1000004\n", "nodeSize : 0.1\n", true},
};

TEST_F(DatarcFile, IsWrittenWithWhatWasGiven) {
    for (const WrittenRow& row : written) {
        SCOPED_TRACE(row.text);
        const Resource rc = loaded(row.text);
        ASSERT_TRUE(rc);
        const std::string text = saved(*rc);
        EXPECT_EQ(text.find(std::string("\n") + row.entry) != std::string::npos, row.written);
        EXPECT_TRUE(loaded(text));
    }
}

TEST_F(DatarcFile, DropsTheKeysThatAreNeverWritten) {
    const Resource rc =
        loaded("defaultSymbSheetColor : 3\ndefaultSchmSheetColor : 4\ndefaultCircleFillStyle : 1\n");
    EXPECT_EQ(rc->defaultSymbSheetColor(), 3u);
    EXPECT_EQ(saved(*rc), golden());
}

TEST_F(DatarcFile, PassesTheTablesOfOlderFilesOver) {
    const Resource rc = loaded("precisionTable 4 { 0 \"mil\" 40 1 }\nprecisionTblNo : 1\n"
                               "colorTable 5 { 0 1 2 3 \"ink\" }\npropDispNum : 1\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->propDispNum(), 1) << "what stands behind them is read";
    EXPECT_EQ(rc->encode(1.0), 1000);
    EXPECT_EQ(rc->precisionNumber(), 0u);
    for (const char* key : {"precision", "colorTable"}) EXPECT_EQ(saved(*rc).find(key), std::string::npos);
}

TEST_F(DatarcFile, GivesOnlyTheFrameColourOfSymbolsItsBuiltInValueBack) {
    const Resource rc = loaded("defaultSymbFrameColor : 99\ndefaultFrameColor : 99\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->defaultSymbFrameColor(), 13u);
    EXPECT_EQ(rc->defaultFrameColor(), 0u);
}

TEST_F(DatarcFile, IsNotWrittenWithTheSimpleDisplayForItsTwoCharactersAlone) {
    const std::string characters = "busNSimpleDispSepChar : \"+\"\nbusNSimpleDispCrownChar : \"^\"\n";
    const Resource alone = loaded(characters);
    ASSERT_TRUE(alone);
    EXPECT_EQ(saved(*alone).find("busNSimpleDisp"), std::string::npos);
    const Resource whole = loaded(characters + "busNSimpleDispFlag : 0\n");
    ASSERT_TRUE(whole);
    EXPECT_NE(saved(*whole).find("busNSimpleDispSepChar : \"+\"\n"), std::string::npos);
}

TEST_F(DatarcFile, CanNotSwitchOffTheSimpleArrayOfTheEnvironment) {
    const EnvGuard simpleArray("YDS_SIMPLE_ARRAY", "1");
    const Resource rc = loaded("simpleArray : NO\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->simpleArrayMode(), 1u);
    EXPECT_NE(saved(*rc).find("simpleArray : YES\n"), std::string::npos);
}

TEST_F(DatarcFile, ToleratesAMissingMarkButNotAMissingComponentType) {
    const Resource rc = loaded("vmarkStr 1\npropDispNum : 4\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->propDispNum(), 4);
    EXPECT_NE(saved(*rc).find("vmarkStr : \"*\"\n"), std::string::npos);
    EXPECT_FALSE(loaded("contentsUnvisibleCmpType 1\npropDispNum : 4\n"));
}

TEST_F(DatarcFile, CutsALongTextOnACharacterBoundary) {
    const Resource rc = loaded("noMountAliasName : \"" + std::string(1022, 'a') + "\x83\x5c\x83\x5c\"\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->noMountAliasName(), std::string(1022, 'a').c_str());
}

TEST_F(DatarcFile, CutsEachCellToItsRoom) {
    const std::string text(2000, 'x');
    const auto quoted = [&](std::size_t length) { return "\t\"" + text.substr(0, length) + "\""; };
    const Resource rc =
        loaded("textTable 9 { 0 1 1 0 0 0 " + text + ' ' + text + ' ' + text + " }\n" +
               "lineStyleTable 5 { 1 1 1 1 " + text + " }\n" + "fillStyleTable 7 { 1 1 0 0 0 0 " + text +
               " }\n" + "contPathTable 3 { 0 " + text + " /" + text + " }\n");
    ASSERT_TRUE(rc);
    const std::string written = saved(*rc);
    const std::string rows[] = {"\t0\t1\t1\t0\t0\t0" + quoted(511) + quoted(511) + quoted(255) + '\n',
                                "\t1\t1\t1\t0" + quoted(255) + '\n',
                                "\t1\t1\t0\t0\t0\t0" + quoted(255) + '\n',
                                "\t0" + quoted(255) + "\t\"/" + text.substr(0, 1022) + "\"\n"};
    for (const std::string& row : rows) EXPECT_NE(written.find(row), std::string::npos) << row;
}

TEST_F(DatarcFile, CutsNumbersToTheirRoom) {
    const std::string zeros(40, '0');
    const auto number = [&](std::size_t length) { return zeros.substr(0, length - 1) + '7'; };
    const Resource rc = loaded("propDispNum : " + number(35) + "\ncontentsViewer : " + number(36) +
                               "\nnodeSize : " + number(36) + "\nlineWidth 2 { " + number(35) + ' ' +
                               number(36) + " }\nsymbPathTable 3 { " + number(19) +
                               " n /inside }\ncontPathTable 3 { " + number(20) + " n /cut }\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->propDispNum(), 7);
    EXPECT_EQ(rc->contentsViewer(), 0);
    EXPECT_EQ(rc->nodeSize(), 0);
    EXPECT_EQ(rc->lineWidthCount(), 8u);
    EXPECT_NE(saved(*rc).find("\t7\t0\n}\n"), std::string::npos);
    EXPECT_EQ(rc->symbPathCount(), 8u);
    EXPECT_EQ(rc->contPathCount(), 1u);
}

TEST_F(DatarcFile, KeepsDoubleByteTexts) {
    const std::string shiftJis = "noMountAliasName : \"\x83\x5c\x95\x5c#\"\n"; // second bytes are backslashes
    EXPECT_EQ(loaded(shiftJis)->noMountAliasName(), "\x83\x5c\x95\x5c#");
    const std::string euc = "# japanese_coding:euc\nnoMountAliasName : \"\xa5\xbd\xc9\xbd#\"\n";
    EXPECT_EQ(loaded(euc)->noMountAliasName(), "\x83\x5c\x95\x5c#");
}

// ---- Tables

struct TableRow {
    const char* text;
    const char* rows; // as written, null when the load fails
};

// clang-format off
const TableRow tables[] = {
    {"textTable 9 { }",                             "textTable 9 {\n\t0\t10\t10\t0\t0\t0\t\"-\"\t\"-\"\t\"def\"\n}\n"},
    {"textTable 9 { 1 0 0 0 0 0 \"\" \"\" \"\" }",  "textTable 9 {\n\t0\t10\t10\t0\t0\t0\t\"-\"\t\"-\"\t\"def\"\n\t1\t0\t0\t0\t0\t0\t\"\"\t\"\"\t\"\"\n}\n"},
    {"textTable 9 { 0 1 2 3 4 5 s d n 0 9 8 7 6 5 t e m }", "textTable 9 {\n\t0\t9\t8\t7\t6\t5\t\"t\"\t\"e\"\t\"m\"\n}\n"},
    {"textTable 9 { 0 -1 2 3 4 5 s d n }",          nullptr},
    {"textTable 9 { 0 1 2 3 4 -5 s d n }",          nullptr},
    {"textTable 9 { 0 nan 2 3 4 5 s d n }",         nullptr},
    {"textTable 9 { 0 1 2 3 4 5 s d }",             nullptr},
    {"textTable 9 { -1 1 2 3 4 5 s d n }",          nullptr},
    {"textTable 8 { }",                             nullptr},
    {"textTable { }",                               nullptr},
    {"textTable : 9",                               nullptr},
    {"textTable 9 : { }",                           nullptr},
    {"lineWidth 2 { 6 1 }",                         "lineWidth 2 {\n\t0\t0\n\t1\t0\n\t2\t0\n\t3\t0\n\t4\t0\n\t5\t0\n\t6\t1\n}\n"},
    {"lineWidth 2 { 0 200000 }",                    "lineWidth 2 {\n\t0\t200000\n}\n"},
    {"lineWidth 2 { x word }",                      "lineWidth 2 {\n\t0\t0\n}\n"},
    {"lineWidth 2 { 0 -0.5 }",                      nullptr},
    {"lineWidth 2 { 0 }",                           nullptr},
    {"lineWidth 2 { 0 1",                           nullptr},
    {"lineWidth 2 { -1 1 }",                        nullptr},
    {"lineWidth 3 { }",                             nullptr},
    {"lineStyleTable 5 { 0 1 2 3 s }",              "lineStyleTable 5 {\n\t0\t0\t0\t0\t\"s\"\n\t1\t10\t10"},
    {"lineStyleTable 5 { 1 1 2 3 s }",              "\t1\t1\t2\t0\t\"s\"\n"},
    {"lineStyleTable 5 { 3 1 2 3 s }",              "\t3\t1\t2\t3\t\"s\"\n}\n"},
    {"lineStyleTable 5 { 4 1 2 3 s }",              nullptr},
    {"lineStyleTable 5 { -1 1 2 3 s }",             nullptr},
    {"lineStyleTable 5 { 1 1 -2 3 s }",             nullptr},
    {"lineStyleTable 4 { 1 1 2 s }",                nullptr},
    {"fillStyleTable 7 { 0 0 1 2 3 4 n }",          "fillStyleTable 7 {\n\t0\t0\t0\t0\t0\t0\t\"n\"\n"},
    {"fillStyleTable 7 { 0 2 1 2 3 4 n }",          "fillStyleTable 7 {\n\t0\t2\t1\t0\t3\t0\t\"n\"\n"},
    {"fillStyleTable 7 { 0 3 1 2 -3 400 n }",       "fillStyleTable 7 {\n\t0\t3\t1\t2\t-3\t400\t\"n\"\n"},
    {"fillStyleTable 7 { 3 1 1 2 3 4 n }",          "\t2\t0\t0\t0\t0\t0\t\"\"\n\t3\t1\t0\t0\t0\t0\t\"n\"\n}\n"},
    {"fillStyleTable 7 { 0 4 1 2 3 4 n }",          nullptr},
    {"fillStyleTable 7 { 0 -1 1 2 3 4 n }",         nullptr},
    {"fillStyleTable 7 { 0 1 -1 2 3 4 n }",         nullptr},
    {"fillStyleTable 5 { }",                        nullptr},
    {"symbPathTable 3 { 0 n lib }",                 "symbPathTable 3 {\n\t0\t\"n\"\t\"./lib\"\n}\n"},
    {"symbPathTable 3 { 1 \"\" $X/y }",             "symbPathTable 3 {\n\t0\t\"current\"\t\".\"\n\t1\t\"\"\t\"$X/y\"\n}\n"},
    {"contPathTable 3 { 2 n /x }",                  "contPathTable 3 {\n\t0\t\"current\"\t\".\"\n\t1\t\"current\"\t\".\"\n\t2\t\"n\"\t\"/x\"\n}\n"},
    {"lcdbPathTable 3 { 0 n /X.CIR/ }",             "lcdbPathTable 3 {\n\t0\t\"n\"\t\"/X.cir\"\n}\n"},
    {"symbPathTable 3 { 0 n \"\" }",                nullptr},
    {"contPathTable 3 { 0 n }",                     nullptr},
    {"lcdbPathTable 2 { }",                         nullptr},
    {"lcdbPathTable 3 { 1048576 n /x }",            nullptr},
    {"textTable 9 { 2000000000 1 2 3 4 5 s d n }",  nullptr},
    {"fillStyleTable 7 { 99999999999999 1 1 2 3 4 n }", nullptr},
};
// clang-format on

TEST_F(DatarcFile, OverlaysTablesRowByRow) {
    for (const TableRow& row : tables) {
        SCOPED_TRACE(row.text);
        const Resource rc = loaded(std::string(row.text) + "\npropDispNum : 5\n");
        ASSERT_EQ(rc != nullptr, row.rows != nullptr);
        if (!rc) continue;
        EXPECT_EQ(rc->propDispNum(), 5);
        EXPECT_NE(saved(*rc).find(row.rows), std::string::npos) << saved(*rc);
    }
}

TEST_F(DatarcFile, MayHoldMoreRowsThanASetterTakes) {
    const Resource rc = loaded("fillStyleTable 7 { 900 1 0 0 0 0 n }\ntextTable 9 { 300 1 1 0 0 0 - - n }\n"
                               "lcdbPathTable 3 { 600 n /x }\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->fillStyleCount(), 901u);
    EXPECT_EQ(rc->textSizeCount(), 301u);
    EXPECT_EQ(rc->lcdbPathCount(), 601u);
}

TEST_F(DatarcFile, MayFillATableUpToTheLimitOfFiles) {
    const Resource rc = loaded("lineWidth 2 { " + std::to_string(maxRowsFromFile - 1) + " 1 }\n");
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->lineWidthCount(), static_cast<unsigned int>(maxRowsFromFile));
}

// ---- Hostile files

TEST_F(DatarcFile, CutAnywhereNeverCrashesAndStaysAsItIs) {
    const std::string path = dir.file("cut.rsc");
    writeFile(path, golden());
    for (std::size_t size = golden().size(); size-- > 0;) {
        std::filesystem::resize_file(path, size);
        const Resource rc(BexDatarc::open(path.c_str(), BexOpenUpdate, nullptr));
        ASSERT_EQ(std::filesystem::file_size(path), size);
    }
}

TEST_F(DatarcFile, WithAQuoteLeftOpenFailsToLoadAndIsLeftAlone) {
    for (const char* text : {"busStartChar : \"[\n", "nosuch : \"x\npropDispNum : 1\n", "vmarkStr : \"*\n"}) {
        EXPECT_FALSE(loaded(text));
        EXPECT_EQ(contentOf(dir.file("loaded.rsc")), text);
    }
}

TEST_F(DatarcFile, OfBinaryBytesNeverCrashes) {
    std::string bytes;
    unsigned seed = 1;
    for (int i = 0; i < 65536; ++i) {
        seed = seed * 1103515245u + 12345u;
        bytes += static_cast<char>(seed >> 16);
    }
    const Resource rc = loaded(bytes);
}

// Puts one byte into a file, without writing the rest of it anew.
void damage(const std::string& path, std::size_t at, char byte) {
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(at));
    file.put(byte);
}

TEST_F(DatarcFile, DamagedAnywhereNeverCrashes) {
    const std::string path = dir.file("damaged.rsc");
    const std::string text = golden();
    writeFile(path, text);
    for (std::size_t at = 0; at < text.size(); at += 3) {
        for (const char byte : {'\0', '"', '{', '}', '\xff', '\x83', ':', '9', '\n'}) {
            damage(path, at, byte);
            const Resource rc(BexDatarc::open(path.c_str(), BexOpenRead, nullptr));
        }
        damage(path, at, text[at]);
    }
    EXPECT_EQ(contentOf(path), text);
}

TEST_F(DatarcFile, MayHaveALineOfTenMegabytes) {
    const Resource words = loaded("nosuch : " + std::string(10'000'000, 'x') + "\npropDispNum : 1\n");
    ASSERT_TRUE(words);
    EXPECT_EQ(words->propDispNum(), 1);
    const Resource quoted =
        loaded("noMountAliasName : \"" + std::string(10'000'000, 'x') + "\"\npropDispNum : 2\n");
    ASSERT_TRUE(quoted);
    EXPECT_EQ(quoted->noMountAliasName().length(), 1023);
    EXPECT_EQ(quoted->propDispNum(), 2);
}

} // namespace
} // namespace bexa::test
