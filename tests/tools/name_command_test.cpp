#include "tests/support/files.h"
#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class NameCommand : public Program {};

struct Row {
    std::string name;
    std::string result;
};

TEST_F(NameCommand, ExpandPrintsOneLineForEachSignal) {
    const Row rows[] = {
        {"CLK", "CLK\n"},
        {"[3]", ""}, // an array needs a root
        {"[a,b]", ""},
        {"D[2-0]", "D[2]\nD[1]\nD[0]\n"},
        {"D[0-6-2]", "D[0]\nD[2]\nD[4]\nD[6]\n"},
        {"A[0-1],B,C[3,1]", "A[0]\nA[1]\nB\nC[3]\nC[1]\n"},
        {"{}", "{}\n"},
        {"%%", "%%\n"},
        {"A,,B", "A\n\nB\n"},
    };
    for (const Row& row : rows) EXPECT_EQ(run({"name", "expand", row.name}).out, row.result) << row.name;
}

TEST_F(NameCommand, ExpandTakesSeveralNames) {
    EXPECT_EQ(good({"name", "expand", "A[0-1]", "B"}), "A[0]\nA[1]\nB\n");
}

TEST_F(NameCommand, CompressPrintsOneLineForEachName) {
    EXPECT_EQ(good({"name", "compress", "D[0],D[2],D[4]", "CLK"}), "D[0-4-2]\nCLK\n");
}

TEST_F(NameCommand, CheckTellsTheResultInWords) {
    const Outcome result = run({"name", "check", "D[0-3],CLK", "D[3-", ""});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "names\n"
                          "  name        arrays  signals  result\n"
                          "  D[0-3],CLK       2        5  good\n"
                          "  D[3-             0        0  breaks the grammar of names\n"
                          "  \"\"               0        0  is empty\n");
    EXPECT_EQ(result.err,
              "bexa: the name \"D[3-\" breaks the grammar of names: the command line: write it like "
              "CLK, D[7], D[0-31], D[0-14-2,20] or A[0-3],B\n"
              "bexa: the name \"\" is empty: the command line: give it at least one signal\n");
}

TEST_F(NameCommand, ABadNameDoesNotStopTheOthers) {
    const Outcome expanded = run({"name", "expand", "D[", "CLK"});
    EXPECT_EQ(expanded.code, 1);
    EXPECT_EQ(expanded.out, "CLK\n");
    const Outcome compressed = run({"name", "compress", "D[", "D[0],D[1]"});
    EXPECT_EQ(compressed.code, 1);
    EXPECT_EQ(compressed.out, "D[0-1]\n");
}

TEST_F(NameCommand, NamesMayLookLikeCommandsAndOptions) {
    EXPECT_EQ(good({"name", "expand", "circuit", "name", "check", "help"}), "circuit\nname\ncheck\nhelp\n");
    EXPECT_EQ(good({"name", "expand", "--", "-VEE", "--json"}), "-VEE\n--json\n");
}

TEST_F(NameCommand, DelimitersComeFromTheCircuit) {
    writeFile(file("resources/bexdata.rsc"), "busStartChar : \"<\"\nbusEndChar : \">\"\n"
                                             "rangeEndChar : \":\"\nrangeStepChar : \"/\"\n");
    EXPECT_EQ(good({"name", "expand", "--circuit", "amplifier.cir", "D<0:4/2>"}), "D<0>\nD<2>\nD<4>\n");
    EXPECT_EQ(good({"name", "compress", "--circuit", "amplifier.cir", "D<0>,D<1>"}), "D<0:1>\n");
}

TEST_F(NameCommand, DelimitersThatAreNotDefinedAreTold) {
    writeFile(file("resources/bexdata.rsc"), "busStartChar : \"\"\n");
    const Outcome result = run({"name", "check", "--circuit", "amplifier.cir", "CLK"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err,
              "bexa: the name \"CLK\" has no delimiters to be read with: the command line: define "
              "busStartChar, busEndChar, rangeEndChar and bitEndChar in the circuit resource\n");
}

TEST_F(NameCommand, DelimitersAreBuiltInWithoutAnyResource) {
    set("YDSROOT", "nowhere");
    EXPECT_EQ(good({"name", "expand", "D[0-1]"}), "D[0]\nD[1]\n");
    EXPECT_FALSE(exists(file("nowhere"))) << "looking must create nothing";
}

TEST_F(NameCommand, JsonHoldsAllThatIsKnownOfEachName) {
    const Json expanded = json({"name", "expand", "D[0-1]", "D["});
    EXPECT_EQ(expanded, Json::parse(R"({"names": [
        {"name": "D[0-1]", "valid": true, "error": null, "signals": ["D[0]", "D[1]"]},
        {"name": "D[", "valid": false, "error": "breaks the grammar of names"}]})"));
    EXPECT_EQ(json({"name", "compress", "D[0],D[1]"})["names"][0]["compressed"], "D[0-1]");
    const Json checked = json({"name", "check", "D[0-1],E"});
    EXPECT_EQ(checked["names"][0]["arrays"], 2);
    EXPECT_EQ(checked["names"][0]["signals"], 3);
}

TEST_F(NameCommand, BytesThatAreNoTextBecomeValidJson) {
    const Json row = json({"name", "check", "A\xFF\x80"})["names"][0];
    EXPECT_EQ(row["name"], "A\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_F(NameCommand, WideBusesExpandWhole) {
    const std::string out = good({"name", "expand", "D[0-99999]"});
    EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 100000);
}

} // namespace
} // namespace bexa::test
