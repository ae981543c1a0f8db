#include "bexa/foundation/rsc_header.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>

using namespace bexa::test;

namespace {

struct Found {
    YioRscJCoding file;
    YioRscJCoding local;
    std::string version;
};

Found found(const char* path) {
    YioRscJCoding file = YioRscJCoding(9);
    YioRscJCoding local = YioRscJCoding(9);
    YString version = "?";
    BexYioRsc::getRscJCoding(path, file, local, &version);
    return {file, local, std::string(version.view())};
}

Found foundIn(const std::string& content) {
    const TempDir dir;
    writeFile(dir.file("a"), content);
    return found(dir.file("a").c_str());
}

TEST(RscHeader, NamesTheCodingOfTheProcess) {
    EnvGuard locale("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(BexYioRsc::getHeaderString(), "# TALVO HK8800 systems - resource declaration.\n"
                                            "# Resource version:2.1x\n"
                                            "# japanese_coding:euc\n");
    for (const char* other : {"ja_JP.SJIS", "ja_JP.JIS7", "C"}) {
        locale.set(other);
        EXPECT_EQ(BexYioRsc::getHeaderString(), "# TALVO HK8800 systems - resource declaration.\n"
                                                "# Resource version:2.1x\n"
                                                "# japanese_coding:sjis\n");
    }
}

TEST(RscHeader, IsFoundAgain) {
    const EnvGuard locale("LC_ALL", "ja_JP.eucJP");
    const std::string header(BexYioRsc::getHeaderString().view());
    const EnvGuard other("LC_ALL", "C");
    EXPECT_EQ(foundIn(header).file, YioRscEuc);
    EXPECT_EQ(foundIn(header).local, YioRscSjis);
    EXPECT_EQ(foundIn(header).version, "2.1x");
}

TEST(RscHeader, DeclaresTheCoding) {
    const struct {
        std::string content;
        YioRscJCoding coding;
        const char* meaning;
    } rows[] = {
        {"# japanese_coding:euc\n", YioRscEuc, "as written"},
        {"# Japanese coding:euc\n", YioRscEuc, "the older form"},
        {"#japanese_coding:euc\n", YioRscEuc, "no blank"},
        {" \t# \t japanese_coding: \t euc\n", YioRscEuc,
         "blanks before the mark, behind it and behind the colon"},
        {"# japanese_coding:eucJP and more\n", YioRscEuc, "anything behind the word"},
        {"# japanese_coding:euc", YioRscEuc, "no line end"},
        {"# japanese_coding:euc\r\n", YioRscEuc, "CR LF"},
        {"# japanese_coding:sjis\n# japanese_coding:euc\n", YioRscEuc, "the later one counts"},
        {"# japanese_coding:euc\n# japanese_coding:sjis\n", YioRscSjis, "the later one counts"},
        {"# japanese_coding:euc\n# japanese_coding:jis\n", YioRscEuc, "an unknown word changes nothing"},
        {"key : 1\n# japanese_coding:euc\n", YioRscEuc, "behind lines that are no comments"},
        {"\n# japanese_coding:euc\n", YioRscSjis, "behind a blank line"},
        {"key : 1\n \t\r\n# japanese_coding:euc\n", YioRscSjis, "behind a line of white space"},
        {"# JAPANESE_CODING:euc\n", YioRscSjis, "other letters"},
        {"# japanese_coding :euc\n", YioRscSjis, "a blank before the colon"},
        {"# my japanese_coding:euc\n", YioRscSjis, "not at the start"},
        {"japanese_coding:euc\n", YioRscSjis, "no comment"},
        {std::string(4094, 'x') + "\n# japanese_coding:euc\n", YioRscEuc, "a long line"},
        {std::string(4095, 'x') + "# japanese_coding:euc\n", YioRscEuc, "a longer line counts as several"},
        {std::string(4095, 'x') + "\n# japanese_coding:euc\n", YioRscSjis, "the last of which may be blank"},
        {std::string(4094, 'x') + "# japanese_coding:euc\n", YioRscSjis, "or no comment"},
        {std::string("a\0b\n# japanese_coding:euc\n", 26), YioRscEuc, "a NUL byte ends the text of its line"},
        {std::string("\0b\n# japanese_coding:euc\n", 25), YioRscSjis, "which may leave a blank line"},
        {std::string("# japanese_\0coding:euc\n", 23), YioRscSjis, "or half a declaration"},
        {"", YioRscSjis, "an empty file"},
    };
    const EnvGuard locale("LC_ALL", "C");
    for (const auto& row : rows) EXPECT_EQ(foundIn(row.content).file, row.coding) << row.meaning;
}

TEST(RscHeader, BehindABlankLineIsNotSeen) {
    const EnvGuard locale("LC_ALL", "C");
    const std::string declared = "# japanese_coding:euc\n";
    EXPECT_EQ(foundIn("key : 1\n" + declared).file, YioRscEuc) << "a line that is not blank ends nothing";
    EXPECT_EQ(foundIn("\n" + declared).file, YioRscSjis);
    EXPECT_EQ(foundIn(" \t\n" + declared).file, YioRscSjis);
}

TEST(RscHeader, DeclaresTheVersion) {
    const struct {
        const char* content;
        const char* version;
    } rows[] = {
        {"# Resource version:3.0\n", "3.0"},    {"#   Resource version: \t 3.0 b\n", "3.0 b"},
        {"# Resource version:3.0\r\n", "3.0"},  {"# Resource version:3.0", "3.0"},
        {"# Resource version:\n", ""},          {"# resource version:3.0\n", "2.1x"},
        {"\n# Resource version:3.0\n", "2.1x"}, {"# Resource version:3\n# Resource version:4\n", "4"},
    };
    for (const auto& row : rows) EXPECT_EQ(foundIn(row.content).version, row.version) << row.content;
}

TEST(RscHeader, MissingLeavesTheCodingOfTheProcess) {
    EnvGuard locale("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(foundIn("key : 1\n").file, YioRscEuc);
    EXPECT_EQ(foundIn("# japanese_coding:sjis\n").local, YioRscEuc) << "never changed by a file";
    locale.set("C");
    EXPECT_EQ(foundIn("key : 1\n").file, YioRscSjis);
}

TEST(RscHeader, OfAMissingFileIsThatOfTheProcess) {
    const TempDir dir;
    const EnvGuard locale("LC_ALL", "ja_JP.eucJP");
    const std::string missing = dir.file("missing");
    for (const char* path : {missing.c_str(), dir.path().c_str(), static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(found(path).file, YioRscEuc);
        EXPECT_EQ(found(path).local, YioRscEuc);
        EXPECT_EQ(found(path).version, "2.1x");
    }
}

TEST(RscHeader, VersionNeedNotBeAsked) {
    YioRscJCoding file{};
    YioRscJCoding local{};
    const TempDir dir;
    writeFile(dir.file("a"), "# Resource version:3.0\n# japanese_coding:euc\n");
    BexYioRsc::getRscJCoding(dir.file("a").c_str(), file, local, nullptr);
    EXPECT_EQ(file, YioRscEuc);
}

} // namespace
