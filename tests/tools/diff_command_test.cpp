#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>

namespace bexa::test {
namespace {

namespace fs = std::filesystem;

class DiffCommand : public Program {};

TEST_F(DiffCommand, PinByPin) {
    const Outcome result = run({"diff", "output_stage.blk", "faulty/bad_pins.blk"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("diff_blocks.txt"));
    EXPECT_EQ(result.err,
              "bexa: the two differ in 27 places: output_stage.blk and faulty/bad_pins.blk: see the "
              "output, or make them equal\n");
    EXPECT_EQ(json({"diff", "output_stage.blk", "faulty/bad_pins.blk"}),
              Json::parse(expected("diff_blocks.json")));
}

TEST_F(DiffCommand, ACopyIsEqual) {
    const auto recursive = fs::copy_options::recursive;
    fs::copy(file("amplifier.cir"), file("copy.cir"), recursive);
    fs::create_directory(file("other"));
    fs::copy(file("output_stage.blk"), file("other/renamed.blk"));
    fs::copy(file("resources/bexdata.rsc"), file("other/settings"));
    const std::pair<const char*, const char*> pairs[] = {
        {"amplifier.cir/", "copy.cir"},
        {"output_stage.blk", "other/renamed.blk"},
        {"resources/bexdata.rsc", "resources/bexdata.rsc"},
        {"library/settings/bexenv.rsc", "library/settings/bexenv.rsc"},
    };
    for (const auto& [first, second] : pairs) {
        const Json told = Json::parse(good({"diff", first, second, "--json"}));
        EXPECT_EQ(told["equal"], true) << first;
        EXPECT_EQ(told["differences"], Json::array()) << first;
    }
}

TEST_F(DiffCommand, SettingBySetting) {
    fs::copy(file("resources/bexdata.rsc"), file("resources/other.rsc"));
    run({"rc", "resources/other.rsc", "--set", "nodeSize=3", "busStartChar=<", "noMountAliasValue=無し"});
    const Json told = json({"diff", "resources/bexdata.rsc", "resources/other.rsc"});
    EXPECT_EQ(told["equal"], false);
    EXPECT_EQ(told["differences"], Json::parse(R"([
        {"where": "settings.busStartChar", "first": "[", "second": "<"},
        {"where": "settings.nodeSize", "first": 1.5, "second": 3.0},
        {"where": "settings.defaultCircleFillStyle", "first": 2, "second": 0},
        {"where": "settings.noMountAliasValue", "first": "未実装", "second": "無し"}])"))
        << "with what the writer leaves out";
}

TEST_F(DiffCommand, TablesByTheNamesOfTheirRows) {
    writeFile(file("a.rsc"), "undoLimit : 7\nschSheetAttrTable 3 {\n\t0\t\"by\"\t\"me\"\n}\n");
    writeFile(file("b.rsc"), "undoLimit : 8\ngridTable 5 {\n\t1\t2\t3\t4\t5\n}\n");
    const Json rows = json({"diff", "a.rsc", "b.rsc"})["differences"];
    EXPECT_EQ(rows[0], Json::parse(R"({"where": "settings.undoLimit", "first": 7, "second": 8})"));
    EXPECT_EQ(rows[2],
              Json::parse(R"({"where": "schSheetAttrTable[0].name", "first": "by", "second": null})"));
    EXPECT_EQ(rows[5], Json::parse(R"({"where": "gridTable[1].firstCount", "first": null, "second": 2})"));
}

TEST_F(DiffCommand, RowsOfOneNameAreComparedInTheirOrder) {
    writeFile(file("a.blk"), "pinAssign 2 {\n\t1\t\"A\"\n\t1\t\"B\"\n}\n");
    writeFile(file("b.blk"), "pinAssign 2 {\n\t1\t\"A\"\n\t1\t\"C\"\n}\n");
    const Json rows = json({"diff", "a.blk", "b.blk"})["differences"];
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0], Json::parse(R"({"where": "pins[1#2].signal", "first": "B", "second": "C"})"));
}

TEST_F(DiffCommand, NumbersThatAreNoneAreEqual) {
    writeFile(file("a.rsc"), "panRatio : nan\n");
    EXPECT_EQ(json({"diff", "a.rsc", "a.rsc"})["equal"], true);
}

TEST_F(DiffCommand, TextsOutsideUtf8PassThrough) {
    writeFile(file("a.rsc"), "logfile : \"\x89\xB9\"\n");
    writeFile(file("b.rsc"), "logfile : \"\x8A\x79\"\n");
    set("LANG", "ja_JP.SJIS");
    const Outcome result = run({"diff", "a.rsc", "b.rsc"});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.out.find("settings.logfile  \x89\xB9     \x8A\x79\n"), std::string::npos) << result.out;
}

TEST_F(DiffCommand, Circuits) {
    const Outcome result = run({"diff", "amplifier.cir", "output_stage.cir"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("diff_circuits.txt"));
}

struct Refusal {
    const char* first;
    const char* second;
    const char* message;
};

TEST_F(DiffCommand, WhatCannotBeComparedIsTold) {
    const Refusal refusals[] = {
        {"output_stage.blk", "amplifier.cir",
         "bexa: the two are of different kinds: output_stage.blk is a block file, amplifier.cir a circuit: "
         "give "
         "two of one kind\n"},
        {"resources/bexdata.rsc", "library/settings/bexenv.rsc",
         "bexa: the two are of different kinds: resources/bexdata.rsc is a circuit resource, "
         "library/settings/bexenv.rsc an environment resource: give two of one kind\n"},
        {"parts.csv", "parts.csv",
         "bexa: nothing that can be compared: parts.csv: give a circuit, a block file, a circuit resource or "
         "an "
         "environment resource\n"},
        {"nowhere", "parts.csv", "bexa: no such file: nowhere: check the path\n"},
        {"nowhere.cir", "amplifier.cir",
         "bexa: no such circuit: nowhere.cir: check the path; a circuit is a directory\n"},
        {"output_stage.blk", "faulty/wrong_columns.blk",
         "bexa: the block file cannot be read: faulty/wrong_columns.blk: check that you may read it, that "
         "pinAssign has 2 columns, and that each row is a number and a name\n"},
        {"faulty/broken_rcpath.cir", "faulty/broken_rcpath.cir",
         "bexa: the resource path list cannot be read: faulty/broken_rcpath.cir/rcpath: check that you may "
         "read "
         "it and that each line is NAME : \"DIRECTORY\"\n"
         "bexa: the resource path list cannot be read: faulty/broken_rcpath.cir/rcpath: check that you may "
         "read "
         "it and that each line is NAME : \"DIRECTORY\"\n"},
    };
    for (const Refusal& refusal : refusals) {
        const Outcome result = run({"diff", refusal.first, refusal.second});
        EXPECT_EQ(result.code, 2) << refusal.first;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, refusal.message);
    }
}

} // namespace
} // namespace bexa::test
