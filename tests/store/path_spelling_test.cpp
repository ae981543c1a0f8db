#include "bexa/store/path_spelling.h"

#include "bexa/store/data_file.h"
#include "bexa/store/file.h"
#include "tests/support/fresh_process.h"

#include <gtest/gtest.h>

#include <string>

using namespace bexa::test;

namespace {

std::string changed(const std::string& path) {
    return std::string(BexFile::extChange(path.c_str()).view());
}

struct Row {
    const char* path;
    const char* result;
    const char* meaning;
};

template <std::size_t Size>
void expectRows(const Row (&rows)[Size]) {
    for (const Row& row : rows) EXPECT_EQ(changed(row.path), row.result) << row.path << ": " << row.meaning;
}

std::string upper(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

} // namespace

TEST(ExtChange, KeepsEmptyAndOneCharacterPaths) {
    EXPECT_EQ(BexFile::extChange(nullptr), "");
    EXPECT_EQ(changed(""), "");
    for (const char* path : {"/", "a", ".", "\\"}) EXPECT_EQ(changed(path), path);
}

TEST(ExtChange, TidiesSeparators) {
    constexpr Row rows[] = {
        {"a//b/", "a/b", "doubled and trailing separators go"},
        {"//a", "/a", "of those in front one stays"},
        {"//", "/", "the root"},
        {"///", "/", "the root"},
        {"./a/../b", "./a/../b", "steps stay"},
        {"a\\b\\", "a\\b\\", "a backslash separates nothing"},
    };
    expectRows(rows);
}

TEST(ExtChange, EveryPlainSuffixTakesItsSpelling) {
    for (const std::string suffix :
         {".cir", ".smb", ".blk", ".rlt", ".cmp", ".dbf", ".prf", ".evf", ".elf", ".eds"}) {
        EXPECT_EQ(changed("Dir/Name" + upper(suffix)), "Dir/Name" + suffix);
        EXPECT_EQ(changed("Name" + upper(suffix) + "/Other"), "Name" + suffix + "/Other")
            << "a directory, too";
        EXPECT_EQ(changed("Na.Me" + upper(suffix)), "Na.Me" + suffix) << "the last dot counts";
        EXPECT_EQ(changed(upper(suffix)), suffix) << "a component that is all suffix";
    }
}

TEST(ExtChange, LeavesWhatItDoesNotKnow) {
    constexpr Row rows[] = {
        {"A.TXT", "A.TXT", "an unknown suffix"},
        {"CIR", "CIR", "a suffix without its dot is a name"},
        {"A.CI", "A.CI", "a part of a suffix"},
        {"A.CIRX", "A.CIRX", "a longer suffix"},
        {"A.CIR.", "A.CIR.", "a dot at the end is the last dot"},
        {"LOG", "LOG", "a name without its circuit"},
        {"ENETDB", "ENETDB", "the net database isn't in the table"},
        {"x.cir/ENETDB", "x.cir/ENETDB", "nor in a circuit"},
    };
    expectRows(rows);
}

TEST(ExtChange, HtbFilesLoseTheirSuffixExceptTheKnownOne) {
    constexpr Row rows[] = {
        {"foo.HTB", "foo", "any name"},
        {"swsprdef.HTB", "SwsPrDef.htb", "the known name"},
        {"a/SWSPRDEF.htb/b", "a/SwsPrDef.htb/b", "in the middle"},
        {"Foo.CIR.htb", "Foo.CIR", "what is left isn't looked at again"},
        {"x.cir.HTB/001.SHT", "x.cir/001.sht", "but it is a parent like any other"},
        {".HTB", "", "nothing is left"},
    };
    expectRows(rows);
}

TEST(ExtChange, SheetsAndMembersNeedACircuitAbove) {
    constexpr Row rows[] = {
        {"X.CIR/001.SHT", "X.cir/001.sht", "suffix"},
        {"x.Cir/a.NET", "x.cir/a.net", "suffix"},
        {"001.SHT", "001.SHT", "no parent"},
        {"x/001.SHT", "x/001.SHT", "the parent is no circuit"},
        {"x.cir/y/001.SHT", "x.cir/y/001.SHT", "the grandparent doesn't count"},
        {".CIR/001.SHT", ".cir/001.sht", "a parent that is all suffix"},
        {"x.cir/RCPATH", "x.cir/rcpath", "name"},
        {"x.cir/InstNc", "x.cir/instnc", "name"},
        {"x.cir/LOG", "x.cir/log", "name"},
        {"x.cir/EXT", "x.cir/ext", "name"},
        {"x.cir/DRC", "x.cir/drc", "name"},
        {"x.cir/FRAME", "x.cir/frame", "name"},
        {"x.cir/LOG.", "x.cir/LOG.", "with a dot it is no name"},
    };
    expectRows(rows);
}

TEST(ExtChange, FilesOfTheLogLowerTheirParentWhateverItIsCalled) {
    constexpr Row rows[] = {
        {"x.cir/LOG/NETLIST", "x.cir/log/netlist", "name"},
        {"x.cir/OTHER/A.ERR", "x.cir/other/A.err", "any parent is lowered"},
        {"x.CIR/L1/a.WRN", "x.cir/l1/a.wrn", "suffix"},
        {"a/LOG/NetList", "a/LOG/NetList", "no circuit: nothing changes"},
        {"LOG/NetList", "LOG/NetList", "no grandparent"},
        {"x.cir/NetList", "x.cir/NetList", "directly in the circuit"},
        {"x.cir/LOG/b/NetList", "x.cir/log/b/NetList", "too far below"},
    };
    expectRows(rows);
    for (const char* name : {"netlist", "marklist", "cpinopn", "nnodeopn", "ioopn", "snetunm", "sbusunm",
                             "prnmdup", "prnmopn", "drcchk", "sherc"}) {
        EXPECT_EQ(changed("C.cir/LOG/" + upper(name)), "C.cir/log/" + std::string(name));
    }
}

TEST(ExtChange, ResourcesAndTheirInfoDirectory) {
    constexpr Row rows[] = {
        {"INFO/BEXDATA.RSC", "info/bexdata.rsc", "known name and directory"},
        {"Other/BexEnv.Rsc", "Other/bexenv.rsc", "any directory"},
        {"BEXCOLOR.rsc", "bexcolor.rsc", "no directory"},
        {"GeneBlk.RSC", "geneblk.rsc", "known name"},
        {"INFO/Mine.RSC", "info/Mine.rsc", "another name keeps its case"},
        {"INFO/bexdata", "INFO/bexdata", "without the suffix nothing is known"},
        {"INFO/x/bexdata.RSC", "INFO/x/bexdata.rsc", "the grandparent doesn't count"},
    };
    expectRows(rows);
}

TEST(ExtChange, MacrosLowerThreeParentsOrNothing) {
    constexpr Row rows[] = {
        {"HOME/HK8800/DS/My.MAC", "home/hk8800/ds/My.mac", "three parents"},
        {"/HOME/HK8800/DS/My.MAC", "/home/hk8800/ds/My.mac", "below the root"},
        {"A/B/C/D/My.MAC", "A/b/c/d/My.mac", "the fourth stays"},
        {"HK8800/DS/My.MAC", "HK8800/DS/My.MAC", "two parents: not even the suffix"},
        {"/A/B/My.MAC", "/A/B/My.MAC", "the root is no parent"},
        {"My.MAC", "My.MAC", "none"},
    };
    expectRows(rows);
}

TEST(ExtChange, SpecificationsBelowALanguageOfEtc) {
    constexpr Row rows[] = {
        {"etc/ENG/propspec", "etc/eng/PropSpec", "English"},
        {"/A/ETC/Jpn/PARTSPEC", "/A/etc/jpn/PartSpec", "Japanese"},
        {"ETC/kor/propspec", "ETC/kor/propspec", "another language: nothing"},
        {"lib/ENG/propspec", "lib/ENG/propspec", "not in etc: nothing"},
        {"ENG/propspec", "ENG/propspec", "no grandparent"},
        {"ETC/compkind", "etc/CompKind", "component kinds directly in etc"},
        {"x/COMPKIND", "x/COMPKIND", "elsewhere"},
        {"ETC/eng/compkind", "ETC/eng/compkind", "too far below"},
    };
    expectRows(rows);
}

TEST(ExtChange, EveryByteValuePasses) {
    for (int value = 1; value < 256; ++value) {
        if (value == '/') continue;
        const std::string name = "n" + std::string(1, static_cast<char>(value)) + "n";
        EXPECT_EQ(changed("A.CIR/" + name + "/B.SMB"), "A.cir/" + name + "/B.smb") << value;
    }
}

TEST(ExtChange, LongPathsAndManyComponentsPass) {
    std::string path;
    std::string expected;
    for (int i = 0; i < 100000; ++i) {
        path += "/A.CIR//001.SHT";
        expected += "/A.cir/001.sht";
    }
    EXPECT_EQ(changed(path), expected);
    const std::string component(1000000, '.');
    EXPECT_EQ(changed(component), component);
}

TEST(ExtChange, InShiftJisTheSecondByteIsNeverALetter) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    // A kana of the bytes 0x83 'A', one of 0x83 0x5C, and a lead byte without a second.
    EXPECT_EQ(changed("x.cir/L\x83\x41G/a.ERR"), "x.cir/l\x83\x41g/a.err");
    EXPECT_EQ(changed("A\x83\x5C/\x83\x41/Z/a.MAC"), "a\x83\x5C/\x83\x41/z/a.mac");
    EXPECT_EQ(changed("\x83.CIR/\x83/001.SHT"), "\x83.cir/\x83/001.SHT")
        << "a dot and a slash are themselves";
}

TEST(ExtChange, ElsewhereEveryLetterIsOne) {
    if (!startedInLocale("C")) return;
    EXPECT_EQ(changed("x.cir/L\x83\x41G/a.ERR"), "x.cir/l\x83\x61g/a.err");
}

TEST(PathSpelling, PathsThatNeedNoPrefix) {
    for (const char* path :
         {"/", "/a", ".", "./a", "../a", "$", "$X/a", "\\", "\\a", "C:", "x:", "C:x", "z:/a"}) {
        EXPECT_TRUE(BexDataFile::pathIsExchanged(path)) << path;
        EXPECT_TRUE(bexa::detail::isAnchored(path)) << path;
    }
    for (const char* path : {"", "C", "abc", "1:", "::", "@:", "[:", "`:", "{:", "#a", " /a", "a/b"}) {
        EXPECT_FALSE(BexDataFile::pathIsExchanged(path)) << path;
    }
    EXPECT_FALSE(BexDataFile::pathIsExchanged(nullptr));
    EXPECT_FALSE(BexDataFile::pathIsExchanged("\xC3:")) << "a letter is A to Z or a to z";
}

TEST(PathSpelling, TheStoredFormOfAPath) {
    constexpr Row rows[] = {
        {"lib", "./lib", "relative to the circuit"},
        {"L", "./L", "one letter is no drive"},
        {"lib/A.CIR/", "./lib/A.cir", "in canonical spelling"},
        {"../lib", "../lib", "anchored"},
        {"$X/LIB", "$X/LIB", "anchored"},
        {"C:/A.SMB", "C:/A.smb", "anchored and spelled"},
    };
    for (const Row& row : rows) {
        const YString form = bexa::detail::normalisedPath(row.path);
        EXPECT_EQ(form, row.result) << row.meaning;
        EXPECT_EQ(bexa::detail::normalisedPath(form.view()), row.result) << "again changes nothing";
    }
}

TEST(PathSpelling, SamePathsInAnyCase) {
    EXPECT_TRUE(bexa::detail::samePathIgnoringCase("/A/b.CIR", "/a/B.cir"));
    EXPECT_TRUE(bexa::detail::samePathIgnoringCase("", ""));
    EXPECT_FALSE(bexa::detail::samePathIgnoringCase("/a", "/a/"));
    EXPECT_FALSE(bexa::detail::samePathIgnoringCase("[", "{")) << "no letters, though 0x20 apart";
}

TEST(PathSpelling, InShiftJisPairsAreComparedAsTheyAre) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    EXPECT_TRUE(bexa::detail::samePathIgnoringCase("A\x83\x41", "a\x83\x41"));
    EXPECT_FALSE(bexa::detail::samePathIgnoringCase("a\x83\x41", "a\x83\x61"));
    EXPECT_FALSE(bexa::detail::hasBackslash("a\x83\x5C"));
    EXPECT_FALSE(bexa::detail::endsInBackslash("a\x83\x5C"));
    EXPECT_TRUE(bexa::detail::hasBackslash("\x83\x5C\\a"));
    EXPECT_TRUE(bexa::detail::endsInBackslash("\x83\x5C\\"));
}
