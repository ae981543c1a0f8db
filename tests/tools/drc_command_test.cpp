#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>

namespace bexa::test {
namespace {

class DrcCommand : public Program {
protected:
    Outcome show(std::string_view content) const {
        writeFile(file("drccheck.rsc"), content);
        return run({"drc", "drccheck.rsc"});
    }
};

TEST_F(DrcCommand, ShowsChecksAndParameters) {
    EXPECT_EQ(good({"drc", "resources/drccheck.rsc"}), expected("drc.txt"));
}

TEST_F(DrcCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"drc", "resources/drccheck.rsc"}), Json::parse(expected("drc.json")));
}

TEST_F(DrcCommand, EverySettingOfTheFormatIsShown) {
    EXPECT_EQ(show(contentOf(testData("batch/every_setting_drccheck.rsc"))).code, 0);
    EXPECT_EQ(json({"drc", "drccheck.rsc"}), Json::parse(expected("drc_every_setting.json")));
}

TEST_F(DrcCommand, TheFileOfTheUserIsLeftAside) {
    const std::string home = file("home/hk8800/ds");
    std::filesystem::create_directories(home);
    writeFile(home + "/drccheck.rsc", "OpenPin { ( color 9 ) }");
    set("HOME", file("home"));
    EXPECT_EQ(good({"drc", "resources/drccheck.rsc"}), expected("drc.txt"));
}

TEST_F(DrcCommand, TheModeIsNeverReadFromAFile) {
    EXPECT_EQ(show("DuplicateReference { ( mode partName ) }").code, 0);
    EXPECT_EQ(
        json({"drc", "drccheck.rsc"})["parameters"][4],
        Json::parse(
            R"({"check": "DuplicateReference", "word": "mode", "value": "pinNumber", "second": null})"));
}

TEST_F(DrcCommand, WhatTheCheckerPassesOverIsAFinding) {
    const Outcome result = run({"drc", "faulty/drccheck.rsc"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("drc_faulty.txt"));
    const std::string remedy = "faulty/drccheck.rsc: write it in parentheses: a word and its value, and for "
                               "focus in LackingProperty two\n";
    EXPECT_EQ(result.err,
              "bexa: row 2 of OpenPin is malformed, and what follows it is lost: " + remedy +
                  "bexa: the check FanOut is no table: faulty/drccheck.rsc: write it as FanOut { ( "
                  "switch ON ) }\n"
                  "bexa: row 1 of LackingProperty is malformed, and what follows it is lost: " +
                  remedy);
}

TEST_F(DrcCommand, RowsThatAreOnlyPassedOverAreNoFinding) {
    for (const char* content :
         {"OpenPin { ( count 3 ) }", "OpenPin { ( color ) ( ) }", "DuplicateProperty { ( focus x ) }",
          "LackingProperty { ( focus ) }", "LackingProperty { ( FOCUS a b c ) }", "OpenPin { }"}) {
        EXPECT_EQ(show(content).err, "") << content;
    }
}

TEST_F(DrcCommand, AFileWithoutAnyCheckIsAFinding) {
    for (const std::string_view content : {std::string_view(""), std::string_view("openpin { ( color 3 ) }"),
                                           std::string_view("\0\x01\xFF", 3)}) {
        const Outcome result = show(content);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.err, "bexa: none of the checks stands in the file: drccheck.rsc: check that it is a "
                              "design-rule resource; the built-in settings are shown\n");
    }
}

TEST_F(DrcCommand, AFileThatCannotBeReadIsTold) {
    for (const char* path : {"nowhere", "library", ""}) {
        const Outcome result = run({"drc", path});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("bexa: the file cannot be read: ") + (*path ? path : "\"\"") +
                                  ": check the path, and that it is a plain file which you may read\n");
    }
}

TEST_F(DrcCommand, AFileThatMayNotBeReadIsTold) {
    setMode(file("resources/drccheck.rsc"), 0);
    if (!becomeNobody()) GTEST_SKIP() << "the program lies where others can't run it";
    EXPECT_EQ(run({"drc", "resources/drccheck.rsc"}).code, 2);
}

} // namespace
} // namespace bexa::test
