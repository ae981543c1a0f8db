#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>

namespace bexa::test {
namespace {

class CircuitCommand : public Program {};

TEST_F(CircuitCommand, ShowsWhatTheCircuitHolds) {
    EXPECT_EQ(good({"circuit", "amplifier.cir"}), expected("circuit.txt"));
}

TEST_F(CircuitCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"circuit", "amplifier.cir"}), Json::parse(expected("circuit.json")));
}

TEST_F(CircuitCommand, ASeparatorBehindThePathCountsForNothing) {
    EXPECT_EQ(good({"circuit", "amplifier.cir/"}), good({"circuit", "amplifier.cir"}));
    EXPECT_EQ(good({"block", "output_stage.blk", "--circuit", "output_stage.cir//"}),
              expected("block_pure.txt"));
}

TEST_F(CircuitCommand, EntriesOfThePathListLeadToFiles) {
    set("AMPLIFIER_LIBRARY", file("library"));
    const Json rows = json({"circuit", "amplifier.cir"})["rcpath"];
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0]["leadsTo"], "resources/bexdata.rsc");
    EXPECT_EQ(rows[1]["path"], "$AMPLIFIER_LIBRARY/settings");
    EXPECT_EQ(rows[1]["leadsTo"], file("library/settings/bexenv.rsc"));
    EXPECT_EQ(rows[1]["present"], true);
    EXPECT_EQ(rows[2]["leadsTo"], "amplifier.cir/geneblk.rsc");
    EXPECT_EQ(rows[2]["present"], false);
}

TEST_F(CircuitCommand, WhatIsMissingIsShown) {
    std::filesystem::remove(file("amplifier.cir/002.net"));
    std::filesystem::remove(file("amplifier.cir/enetdb"));
    std::filesystem::remove(file("amplifier.cir/log/readme.txt"));
    std::filesystem::remove_all(file("amplifier.cir/frame"));
    const Json circuit = json({"circuit", "amplifier.cir"});
    EXPECT_EQ(circuit["sheets"][1]["net"], nullptr);
    EXPECT_EQ(circuit["readable"], false);
    EXPECT_EQ(circuit["parts"][0]["state"], "not readable") << "an empty directory";
    EXPECT_EQ(circuit["parts"][3]["state"], "missing");
    EXPECT_EQ(circuit["parts"][6]["state"], "missing");
}

TEST_F(CircuitCommand, SheetsStandInTheOrderOfTheirNumbers) {
    writeFile(file("amplifier.cir/999.sht"), "");
    writeFile(file("amplifier.cir/_001.sht"), "a temporary copy");
    const Json sheets = json({"circuit", "amplifier.cir"})["sheets"];
    ASSERT_EQ(sheets.size(), 6U);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(sheets[static_cast<std::size_t>(i)]["number"], i + 1);
    EXPECT_EQ(sheets[5]["number"], 999);
}

TEST_F(CircuitCommand, WithoutAListTheSystemsResourceCounts) {
    std::filesystem::remove(file("amplifier.cir/rcpath"));
    const Json circuit = json({"circuit", "amplifier.cir"});
    EXPECT_EQ(circuit["resource"], "system/info/bexdata.rsc");
    EXPECT_EQ(circuit["foundThrough"], "system");
    EXPECT_EQ(circuit["settings"]["nodeSize"], 2.0) << "built in";
}

TEST_F(CircuitCommand, WithoutAnyResourceTheBuiltInSettingsCount) {
    std::filesystem::remove(file("amplifier.cir/rcpath"));
    set("YDSROOT", "nowhere");
    const Json circuit = json({"circuit", "amplifier.cir"});
    EXPECT_EQ(circuit["resource"], nullptr);
    EXPECT_EQ(circuit["foundThrough"], "built-in settings");
    EXPECT_EQ(circuit["settings"]["busStartChar"], "[");
    EXPECT_EQ(circuit["colorTable"][2]["name"], "red");
}

struct Fault {
    const char* circuit;
    const char* message;
};

TEST_F(CircuitCommand, FaultsAreToldBesideWhatCanBeShown) {
    const Fault faults[] = {
        {"faulty/broken_resource.cir",
         "bexa: the circuit resource cannot be read: faulty/broken/bexdata.rsc: check that you may read it, "
         "that "
         "each table has the right number of columns, and that each value fits its key\n"},
        {"faulty/lost_resource.cir", "bexa: the circuit resource is not there: faulty/nowhere/bexdata.rsc: "
                                     "put it there, or correct the entry "
                                     "bexdata in the circuit's rcpath\n"},
        {"faulty/broken_rcpath.cir", "bexa: the resource path list cannot be read: "
                                     "faulty/broken_rcpath.cir/rcpath: check that you may read it "
                                     "and that each line is NAME : \"DIRECTORY\"\n"},
    };
    for (const Fault& fault : faults) {
        const Outcome result = run({"circuit", fault.circuit, "--json"});
        EXPECT_EQ(result.code, 2) << fault.circuit;
        EXPECT_EQ(result.err, fault.message);
        EXPECT_EQ(Json::parse(result.out)["sheets"].size(), 1U) << fault.circuit;
    }
}

TEST_F(CircuitCommand, OtherPathsAreRefused) {
    const Fault faults[] = {
        {"library", "bexa: not a circuit: library: give the path of a directory whose name ends in .cir\n"},
        {"", "bexa: not a circuit: \"\": give the path of a directory whose name ends in .cir\n"},
        {"nowhere.cir", "bexa: no such circuit: nowhere.cir: check the path; a circuit is a directory\n"},
    };
    for (const Fault& fault : faults) {
        const Outcome result = run({"circuit", fault.circuit});
        EXPECT_EQ(result.code, 2) << fault.circuit;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, fault.message);
    }
}

TEST_F(CircuitCommand, LooksWithoutChangingAnything) {
    const auto listed = [this] { return listOf(file("amplifier.cir")); };
    const auto before = listed();
    run({"circuit", "amplifier.cir"});
    run({"block", "output_stage.blk", "--circuit", "amplifier.cir"});
    EXPECT_EQ(listed(), before);
}

} // namespace
} // namespace bexa::test
