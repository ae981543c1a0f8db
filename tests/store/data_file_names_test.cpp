#include "bexa/store/data_file.h"

#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/fresh_process.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

using namespace bexa::test;

namespace {

YString name(const char* path, int type, const char* member) {
    return BexDataFile::fileName(path, BexDataFile::Type(type), member);
}

YString temporary(const char* path, int type, const char* member) {
    return BexDataFile::tmpFileName(path, BexDataFile::Type(type), member);
}

// A circuit with a resource path list.
struct ResourceByPath : testing::Test {
    TempDir dir;
    std::string circuit = dir.makeDirectory("c.cir");
    EnvGuard circuitPath{"CIRCUIT_PATH", std::nullopt};
    EnvGuard variable{"BEXA_TEST_DIR", std::nullopt};

    void list(const std::string& lines) const { writeFile(circuit + "/rcpath", lines); }
    std::string find(const char* resource) const {
        return std::string(BexDataFile::fileName(circuit.c_str(), BexResourceByPath, resource).view());
    }
};

} // namespace

TEST(DataFile, TheNumbersOfTheKindsAreFixed) {
    EXPECT_EQ(BexAnyFile, 0);
    EXPECT_EQ(BexCircuitFile, 1);
    EXPECT_EQ(BexSymbolFile, 2);
    EXPECT_EQ(BexBlockDataFile, 3);
    EXPECT_EQ(BexSheetFile, 4);
    EXPECT_EQ(BexSheetNetFile, 5);
    EXPECT_EQ(BexDrcDir, 6);
    EXPECT_EQ(BexInstanceFile, 7);
    EXPECT_EQ(BexResourceByPath, 8);
    EXPECT_EQ(BexLogDir, 9);
    EXPECT_EQ(BexExtDir, 10);
    EXPECT_EQ(BexRcpathFile, 11);
    EXPECT_EQ(BexFrameDir, 12);
    EXPECT_EQ(BexDataFile::BexEnetdbFile, 13);
}

TEST(DataFile, KindsOfPaths) {
    struct Row {
        const char* path;
        int type;
    };
    constexpr Row rows[] = {
        {"a/b.cir", 1},     {"B.CIR", 1},   {"a/b.cir/", 1},
        {"a.Smb", 2},       {"a.BLK", 3},   {"x.cir/001.sht", 4},
        {"_001.sht", 4},    {"#1.SHT", 4},  {"a.net", 5},
        {"DRC", 6},         {"InstNc", 7},  {"x/log", 9},
        {"EXT", 10},        {"rcpath", 11}, {"Frame", 12},
        {"enetdb", 13},     {"log.txt", 0}, {"log.", 0},
        {"x.cir/other", 0}, {"cir", 0},     {".cir", 1},
        {"a.cir.x", 0},     {"a.cirx", 0},  {"_log", 0},
        {"log/x", 0},       {"", 0},        {"/", 0},
        {"..", 0},          {"a\\log", 9},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(BexDataFile::fileType(row.path), row.type) << row.path;
        EXPECT_EQ(BexDataFile(row.path).fileType(), row.type) << row.path;
    }
    EXPECT_EQ(BexDataFile::fileType(nullptr), BexAnyFile);
}

TEST(DataFile, NamesOfMembers) {
    struct Row {
        int type;
        const char* name;
        const char* result;
    };
    constexpr Row rows[] = {
        {0, "x", "a/b.cir/x"},
        {0, nullptr, "a/b.cir"},
        {0, "LOG", "a/b.cir/log"},
        {1, "ignored", "a/b.cir"},
        {1, nullptr, "a/b.cir"},
        {2, "x", "a/b.cir/x.smb"},
        {2, "x.y", "a/b.cir/x.smb"},
        {2, nullptr, "a/b.smb"},
        {3, "ignored", "a/b.blk"},
        {3, nullptr, "a/b.blk"},
        {4, "1.X", "a/b.cir/1.sht"},
        {4, "001", "a/b.cir/001.sht"},
        {4, "a.b.c", "a/b.cir/a.b.sht"},
        {4, nullptr, "a/b.sht"},
        {5, "001", "a/b.cir/001.net"},
        {5, nullptr, "a/b.net"},
        {6, nullptr, "a/b.cir/drc"},
        {6, "x", "a/b.cir/drc/x"},
        {7, "ignored", "a/b.cir/instnc"},
        {9, nullptr, "a/b.cir/log"},
        {9, "NETLIST", "a/b.cir/log/netlist"},
        {10, nullptr, "a/b.cir/ext"},
        {10, "x", "a/b.cir/ext/x"},
        {11, "ignored", "a/b.cir/rcpath"},
        {12, nullptr, "a/b.cir/frame"},
        {12, "x", "a/b.cir/frame/x"},
        {13, "ignored", "a/b.cir/enetdb"},
        {14, "x", "a/b.cir/x"},
        {14, nullptr, "a/b.cir"},
        {99, "x", "a/b.cir/x"},
        {-1, "x", "a/b.cir/x"},
        {4, "", "a/b.sht"},
        {0, "/x", "a/b.cir/x"},
    };
    for (const Row& row : rows) {
        const auto type = BexDataFile::Type(row.type);
        const std::string context = std::to_string(row.type) + " " + (row.name ? row.name : "null");
        EXPECT_EQ(name("a/b.cir", row.type, row.name), row.result) << context;
        EXPECT_EQ(BexDataFile("a/b.cir").fileName(type, row.name), row.result) << context;
    }
}

TEST(DataFile, NamesComeOutInCanonicalSpelling) {
    EXPECT_EQ(name("A/B.CIR", 4, "001.SHT"), "A/B.cir/001.sht");
    EXPECT_EQ(name("A//B.CIR/", 9, nullptr), "A/B.cir/log");
    EXPECT_EQ(name("A/B.CIR", 3, nullptr), "A/B.blk") << "the suffix is cut in any case of letters";
    EXPECT_EQ(name("A/B.cir/", 3, nullptr), "A/B.blk") << "and in front of a separator";
    EXPECT_EQ(name("b.cir", 3, nullptr), "b.blk");
}

TEST(DataFile, OnlyACircuitHasMembers) {
    for (int type = 1; type <= 14; ++type) {
        for (const char* path : {"a/b.dat", "", "a", "a.cir/b", "cir"})
            EXPECT_EQ(name(path, type, "001"), "") << type;
        EXPECT_EQ(name(nullptr, type, "001"), "");
        EXPECT_EQ(temporary("a/b.dat", type, "001"), "");
        EXPECT_EQ(temporary("a/b.dat", type, nullptr), "");
    }
    EXPECT_EQ(name("a/b.dat", 0, "001"), "a/b.dat/001");
    EXPECT_EQ(name(nullptr, 0, "001"), "");
}

TEST(DataFile, AnObjectWithoutAPathHasNoNames) {
    const BexDataFile none;
    EXPECT_EQ(none.circuitDir(), "");
    for (const BexDataFile& file : {none, BexDataFile(nullptr), BexDataFile("")}) {
        for (int type = 0; type <= 14; ++type) {
            EXPECT_EQ(file.fileName(BexDataFile::Type(type), "x"), "");
            EXPECT_EQ(file.tmpFileName(BexDataFile::Type(type), "x"), "");
            EXPECT_EQ(file.backupFileName(BexDataFile::Type(type), "x"), "");
        }
    }
}

TEST(DataFile, AnObjectTakesAnotherPath) {
    BexDataFile file("a.cir");
    const BexDataFile copy(file);
    file.circuitDir("b.cir");
    EXPECT_EQ(file.fileName(BexLogDir, nullptr), "b.cir/log");
    EXPECT_EQ(copy.circuitDir(), "a.cir");
    file.circuitDir(nullptr);
    EXPECT_EQ(file.circuitDir(), "");
}

TEST(DataFile, CopiesLieBesideTheirFile) {
    EXPECT_EQ(temporary("a/b.cir", 3, nullptr), "a/_b.blk");
    EXPECT_EQ(BexDataFile::backupFileName("a/b.cir", BexBlockDataFile, nullptr), "a/#b.blk");
    EXPECT_EQ(temporary("a/b.cir", 4, "001"), "a/b.cir/_001.sht");
    EXPECT_EQ(BexDataFile::backupFileName("a/b.cir", BexSheetFile, "001"), "a/b.cir/#001.sht");
    EXPECT_EQ(temporary("a/b.cir", 9, "netlist"), "a/b.cir/log/_netlist");
    EXPECT_EQ(temporary("a/b.cir", 7, nullptr), "a/b.cir/_instnc");
    EXPECT_EQ(temporary("a/b.cir", 1, nullptr), "a/_b.cir");
    EXPECT_EQ(temporary("b.cir", 3, nullptr), "_b.blk") << "no directory, none added";
    EXPECT_EQ(temporary("b/b.cir", 9, nullptr), "b/b.cir/_log") << "the last component, not one like it";
    EXPECT_EQ(temporary("a/b.dat", 0, "x"), "a/b.dat/_x");
    EXPECT_EQ(BexDataFile("a/b.cir").tmpFileName(BexSheetFile, "1"), "a/b.cir/_1.sht");
    EXPECT_EQ(BexDataFile("a/b.cir").backupFileName(BexSheetFile, "1"), "a/b.cir/#1.sht");
}

TEST(DataFile, AKindThatIgnoresItsNameIgnoresTheMarkOnIt) {
    EXPECT_EQ(temporary("a/b.cir", 7, "x"), "a/b.cir/instnc");
    EXPECT_EQ(temporary("a/b.cir", 3, "x"), "a/b.blk");
    EXPECT_EQ(BexDataFile::backupFileName("a/b.cir", BexRcpathFile, "x"), "a/b.cir/rcpath");
}

TEST(DataFile, FromAFileToItsCopyAndBack) {
    struct Row {
        const char* path;
        const char* marked;
        const char* unmarked;
    };
    constexpr Row rows[] = {
        {"a/x", "a/_x", "a/x"}, {"a/_x", "a/__x", "a/x"}, {"a/__x", "a/___x", "a/_x"},
        {"a/_", "a/__", "a"},   {"x", "./_x", "./x"},     {"_x", "./__x", "./x"},
        {"/x", "/_x", "/x"},    {"a//x/", "a/_x", "a/x"}, {"a/X.SHT", "a/_X.SHT", "a/X.SHT"},
        {"", "", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(BexDataFile::fname2temp(row.path), row.marked) << row.path;
        EXPECT_EQ(BexDataFile::temp2fname(row.path), row.unmarked) << row.path;
    }
    EXPECT_EQ(BexDataFile::fname2backup("a/x"), "a/#x");
    EXPECT_EQ(BexDataFile::backup2fname("a/##x"), "a/#x") << "only one character goes";
    EXPECT_EQ(BexDataFile::backup2fname("a/_x"), "a/_x") << "the other mark stays";
    EXPECT_EQ(BexDataFile::temp2fname("a/#x"), "a/#x");
    EXPECT_EQ(BexDataFile::fname2temp(nullptr), "");
    EXPECT_EQ(BexDataFile::backup2fname(nullptr), "");
}

TEST(DataFile, NamesOfCopiesAreKnownByTheirFirstCharacter) {
    EXPECT_TRUE(BexDataFile::isTmpFileName("a/_001.sht", BexSheetFile));
    EXPECT_TRUE(BexDataFile::isTmpFileName("a/_001.sht", BexAnyFile));
    EXPECT_FALSE(BexDataFile::isTmpFileName("a/_001.sht", BexSheetNetFile));
    EXPECT_FALSE(BexDataFile::isTmpFileName("_a/001.sht", BexSheetFile));
    EXPECT_FALSE(BexDataFile::isTmpFileName("a/#001.sht", BexSheetFile));
    EXPECT_FALSE(BexDataFile::isTmpFileName("a/_log", BexLogDir)) << "with the mark it isn't that directory";
    EXPECT_TRUE(BexDataFile::isBackupFileName("#x", BexAnyFile));
    EXPECT_TRUE(BexDataFile::isBackupFileName("a/#1.NET", BexSheetNetFile));
    EXPECT_FALSE(BexDataFile::isBackupFileName("a/_1.net", BexSheetNetFile));
    EXPECT_FALSE(BexDataFile::isTmpFileName(nullptr, BexAnyFile));
    EXPECT_FALSE(BexDataFile::isTmpFileName("", BexAnyFile));
}

TEST(DataFile, SheetNumbers) {
    struct Row {
        const char* path;
        int no;
    };
    constexpr Row rows[] = {
        {"a/012.sht", 12},
        {"a/#012.sht", 12},
        {"a/_7.sht", 7},
        {"a/abc.sht", 0},
        {"", -1},
        {"12", 12},
        {".sht", -1},
        {"a/12/.sht", -1}, // no name, and not the number of the directory
        {"_", 0},
        {"_.sht", 0},
        {"1000.sht", 1000},
        {"12x.sht", 12},
        {"-3.sht", -3},
        {" 4.sht", 4},
        {"+5.sht", 5},
        {"__5.sht", 0},
        {"1.2.sht", 1},
        {"/", -1},
        {"a/3.sht/", 3},
        {"99999999999.sht", INT_MAX},
        {"-99999999999.sht", INT_MIN},
    };
    for (const Row& row : rows) EXPECT_EQ(BexDataFile::sheetNo(row.path), row.no) << row.path;
    EXPECT_EQ(BexDataFile::sheetNo(nullptr), -1);
}

TEST(DataFile, SheetNamesHaveThreeDigitsAtLeast) {
    EXPECT_EQ(BexDataFile::sheetName("a/b.cir", 7), "a/b.cir/007.sht");
    EXPECT_EQ(BexDataFile::sheetName("a/b.cir", 0), "a/b.cir/000.sht");
    EXPECT_EQ(BexDataFile::sheetName("a/b.cir", 1234), "a/b.cir/1234.sht");
    EXPECT_EQ(BexDataFile::sheetNetName("A/B.CIR/", 12), "A/B.cir/012.net");
    EXPECT_EQ(BexDataFile::sheetName(nullptr, 1), "001.sht");
    EXPECT_EQ(BexDataFile("a.cir").sheetName(1), "a.cir/001.sht");
    EXPECT_EQ(BexDataFile("a.cir").sheetNetName(1), "a.cir/001.net");
}

TEST(DataFile, ANumberBeyondIntComesOutNegative) {
    EXPECT_EQ(BexDataFile::sheetName("a.cir", UINT_MAX), "a.cir/-01.sht");
    EXPECT_EQ(BexDataFile::sheetName("a.cir", 2147483648U), "a.cir/-2147483648.sht");
}

TEST(DataFile, ExchangePorts) {
    for (const char* text : {"exPort", "EXPORT", "export12", "eXpOrT_x"})
        EXPECT_TRUE(BexDataFile::isExPort(text)) << text;
    for (const char* text : {"", "exPor", "xexPort", "ex port"})
        EXPECT_FALSE(BexDataFile::isExPort(text)) << text;
    EXPECT_FALSE(BexDataFile::isExPort(nullptr));
}

TEST(DataFile, AddSuffixReplacesAnother) {
    EXPECT_EQ(BexDataFile::addSuffix("a/b", ".smb"), "a/b.smb");
    EXPECT_EQ(BexDataFile::addSuffix("a/b.x", ".smb"), "a/b.smb");
    EXPECT_EQ(BexDataFile::addSuffix("a/b.SMB", ".smb"), "a/b.smb") << "spelled afterwards";
    EXPECT_EQ(BexDataFile::addSuffix("a/b.TXT", ".txt"), "a/b.TXT") << "the same but for its case";
    EXPECT_EQ(BexDataFile::addSuffix("A.CIR//b.x", nullptr), "A.CIR//b.x") << "unchanged";
    EXPECT_EQ(BexDataFile::addSuffix("A.CIR/b", ".x"), "A.cir/b.x");
    EXPECT_EQ(BexDataFile::addSuffix("a/b.x", ""), "a/b");
    EXPECT_EQ(BexDataFile::addSuffix(nullptr, ".x"), "");
    EXPECT_EQ(BexDataFile::addSuffix(nullptr, nullptr), "");
}

TEST(DataFile, AccessOfAnotherKindIsRefused) {
    const TempDir dir;
    const std::string sheet = dir.makeDirectory("c.cir") + "/001.sht";
    writeFile(sheet, "");
    EXPECT_EQ(BexDataFile::access(sheet.c_str(), 4, BexSheetFile), 0);
    EXPECT_EQ(BexDataFile::access(sheet.c_str(), 4, BexAnyFile), 0);
    EXPECT_EQ(BexDataFile::access(sheet.c_str(), 4, BexSheetNetFile), -1);
    EXPECT_TRUE(BexDataFile::isExist(sheet.c_str(), BexSheetFile));
    EXPECT_FALSE(BexDataFile::isExist(sheet.c_str(), BexCircuitFile));
    EXPECT_FALSE(BexDataFile::isExist(dir.file("c.cir/002.sht").c_str(), BexSheetFile));
    const BexDataFile circuit(dir.file("c.cir").c_str());
    EXPECT_TRUE(circuit.isExist(BexCircuitFile));
    EXPECT_FALSE(circuit.isExist(BexSheetFile));
    EXPECT_EQ(circuit.access(0, BexCircuitFile), 0);
    EXPECT_EQ(BexDataFile::access(nullptr, 0, BexAnyFile), -1);
}

TEST(DataFile, NamesOfEveryByteAndLengthPass) {
    for (int value = 1; value < 256; ++value) {
        if (value == '/' || value == '.' || value == '\\') continue;
        const std::string byte(1, static_cast<char>(value));
        EXPECT_EQ(name("c.cir", 4, ("n" + byte).c_str()), ("c.cir/n" + byte + ".sht").c_str()) << value;
    }
    const std::string circuit = std::string(4096, 'x') + ".cir";
    EXPECT_EQ(name(circuit.c_str(), 4, "1"), (circuit + "/1.sht").c_str());
    EXPECT_EQ(BexDataFile::sheetNo(std::string(5000, '9').c_str()), INT_MAX);
}

TEST(DataFile, InShiftJisASecondByteSeparatesNothing) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    EXPECT_EQ(BexDataFile::fileType("\x83\x5Clog"), BexAnyFile);
    EXPECT_EQ(name("\x83\x5C.CIR", 3, nullptr), "\x83\x5C.blk");
    EXPECT_EQ(temporary("\x83\x5Cx.cir", 3, nullptr), "_\x83\x5Cx.blk");
    EXPECT_EQ(BexDataFile::fname2temp("a/\x83\x5Cx"), "a/_\x83\x5Cx");
}

TEST_F(ResourceByPath, OfACircuitWithoutAListIsEmpty) {
    EXPECT_EQ(find("bexdata"), "");
    list("bexdata \"x\"\n");
    EXPECT_EQ(find("bexdata"), "") << "a broken list";
    list("other : \"lib\"\n");
    EXPECT_EQ(find("bexdata"), "");
    EXPECT_EQ(find(nullptr), "");
}

TEST_F(ResourceByPath, ARelativeDirectoryStartsBesideTheCircuit) {
    list("bexdata : \"lib/sub\"\nup : \"../lib\"\nhere : \".\"\n");
    EXPECT_EQ(find("bexdata"), dir.file("lib/sub/bexdata.rsc"));
    EXPECT_EQ(find("here"), dir.file("here.rsc"));
    EXPECT_EQ(find("up"), dir.path().substr(0, dir.path().rfind('/')) + "/lib/up.rsc");
}

TEST_F(ResourceByPath, AnAbsoluteDirectoryStandsAsItIs) {
    list("bexdata : \"/lib/../x\"\nwith.suffix : \"/lib\"\n");
    EXPECT_EQ(find("bexdata"), "/lib/../x/bexdata.rsc") << "not packed";
    EXPECT_EQ(find("with.suffix"), "/lib/with.rsc") << "the suffix is replaced";
}

TEST_F(ResourceByPath, AVariableLeadsToTheDirectory) {
    list("bexdata : \"$BEXA_TEST_DIR/sub\"\n");
    variable.set("/lib");
    EXPECT_EQ(find("bexdata"), "/lib/sub/bexdata.rsc");
    variable.set("/other");
    EXPECT_EQ(find("bexdata"), "/other/sub/bexdata.rsc") << "read at each call";
}

TEST_F(ResourceByPath, CircuitPathAloneIsTheCircuitItself) {
    list("bexdata : \"$CIRCUIT_PATH\"\n");
    EXPECT_EQ(find("bexdata"), circuit + "/bexdata.rsc");
    circuitPath.set("/elsewhere");
    EXPECT_EQ(find("bexdata"), "/elsewhere/bexdata.rsc") << "unless the environment has one";
}

TEST_F(ResourceByPath, CircuitPathWithARestIsLostBeforehand) {
    list("bexdata : \"$CIRCUIT_PATH/lib\"\n");
    EXPECT_EQ(find("bexdata"), "/lib/bexdata.rsc");
}

TEST_F(ResourceByPath, AVariableThatLeadsToOneIsFollowed) {
    list("bexdata : \"$BEXA_TEST_DIR\"\n");
    variable.set("$CIRCUIT_PATH/sub/../lib");
    EXPECT_EQ(find("bexdata"), circuit + "/lib/bexdata.rsc");
}

TEST_F(ResourceByPath, AnUnknownVariableAloneLeavesTheNameRelative) {
    list("bexdata : \"$BEXA_TEST_DIR\"\n");
    EXPECT_EQ(find("bexdata"), "bexdata.rsc");
}

TEST_F(ResourceByPath, ACopyIsLookedForUnderItsMarkedName) {
    list("bexdata : \"/lib\"\n_marked : \"/lib\"\n");
    EXPECT_EQ(BexDataFile::tmpFileName(circuit.c_str(), BexResourceByPath, "bexdata"), "");
    EXPECT_EQ(BexDataFile::tmpFileName(circuit.c_str(), BexResourceByPath, "marked"), "/lib/_marked.rsc");
    EXPECT_EQ(BexDataFile::backupFileName(circuit.c_str(), BexResourceByPath, nullptr), "");
}
