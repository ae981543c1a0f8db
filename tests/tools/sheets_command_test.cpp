#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>

namespace bexa::test {
namespace {

class SheetsCommand : public Program {
protected:
    void add(const std::string& name) const { writeFile(file("output_stage.cir/" + name), ""); }
};

TEST_F(SheetsCommand, ShowsSheetsNetFilesCopiesAndLocks) {
    add("_001.sht");
    add("#001.sht");
    add("#002.net");
    EXPECT_EQ(good({"sheets", "output_stage.cir"}), expected("sheets.txt"));
    EXPECT_EQ(json({"sheets", "output_stage.cir/"}), Json::parse(expected("sheets.json")));
}

TEST_F(SheetsCommand, WhatBelongsToNoSheetHasRowsOfItsOwn) {
    add("_007.sht"); // what a crash left of a sheet that was never saved
    add("012.net");
    add("log/009.___");
    const Json rows = json({"sheets", "output_stage.cir"})["sheets"];
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[2], Json::parse(R"({"number": 7, "sheet": null, "net": null, "tmpSheet": "_007.sht",
                  "tmpNet": null, "backupSheet": null, "backupNet": null, "lockedBy": null})"));
    EXPECT_EQ(rows[3]["lockedBy"], "") << "a lock that names nobody is a lock";
    EXPECT_EQ(rows[4]["net"], "012.net");
}

TEST_F(SheetsCommand, FilesOfOneNumberUnderSeveralNamesDontMix) {
    add("1.sht");
    add("_1.sht");
    add("001.SHT");
    add("log/_001.sht"); // a copy in a directory of the circuit
    const Json rows = json({"sheets", "output_stage.cir"})["sheets"];
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0]["net"], "001.net");
    EXPECT_EQ(rows[1]["net"], nullptr) << "one of the two with the name 001";
    EXPECT_EQ(rows[2]["sheet"], "1.sht");
    EXPECT_EQ(rows[2]["tmpSheet"], "_1.sht");
    EXPECT_EQ(rows[3]["tmpSheet"], "log/_001.sht");
    EXPECT_EQ(rows[4]["number"], 2);
}

TEST_F(SheetsCommand, SheetsBeyond999AreLeftOutTheirNetFilesAreNot) {
    add("1000.sht");
    add("1000.net");
    const Json rows = json({"sheets", "output_stage.cir"})["sheets"];
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[2]["sheet"], nullptr);
    EXPECT_EQ(rows[2]["net"], "1000.net");
}

TEST_F(SheetsCommand, ACircuitWithoutSheetsHasNone) {
    good({"new", "fresh.cir"});
    EXPECT_EQ(good({"sheets", "fresh.cir"}), "circuit  fresh.cir\n\nsheets\n  none\n");
}

TEST_F(SheetsCommand, AFileInPlaceOfADirectoryIsToldBesideWhatCanBeShown) {
    std::filesystem::remove_all(file("output_stage.cir/log"));
    add("log");
    const Outcome result = run({"sheets", "output_stage.cir", "--json"});
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.err.find("bexa: not all files could be found for the column tmpSheet: output_stage.cir: "
                              "check that you may read it, and that log, ext, drc and frame in it are "
                              "directories\n"),
              std::string::npos)
        << result.err;
    EXPECT_EQ(Json::parse(result.out)["sheets"].size(), 2U);
}

TEST_F(SheetsCommand, ALockFileThatCannotBeReadIsTold) {
    std::filesystem::create_directory(file("output_stage.cir/log/001.___"));
    const Outcome result = run({"sheets", "output_stage.cir"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "bexa: the lock file cannot be read: output_stage.cir/log/001.___: check what "
                          "stands there and that you may read it\n");
}

TEST_F(SheetsCommand, OtherPathsAreRefused) {
    const Outcome result = run({"sheets", "library"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: not a circuit: library: give the path of a directory whose name ends in .cir\n");
}

} // namespace
} // namespace bexa::test
