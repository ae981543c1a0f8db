#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>

namespace bexa::test {
namespace {

class NewCommand : public Program {};

TEST_F(NewCommand, MakesACircuitThatCanBeRead) {
    EXPECT_EQ(good({"new", "fresh.cir", "--path", "geneblk=$CIRCUIT_PATH", "--path", "bexdata=./resources"}),
              expected("new.txt"));
    EXPECT_EQ(listOf(file("fresh.cir")), (std::vector<std::string>{"drc", "ext", "frame", "log", "rcpath"}));
    EXPECT_EQ(contentOf(file("fresh.cir/rcpath")),
              "geneblk : \"$CIRCUIT_PATH\"\nbexdata : \"./resources\"\n");
    EXPECT_EQ(json({"circuit", "fresh.cir"})["readable"], true);
}

TEST_F(NewCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"new", "fresh.cir", "--path", "bexdata=resources"}),
              Json::parse(R"({"circuit": "fresh.cir", "readable": true, "editable": true, "rcpath": [
                  {"name": "bexdata", "path": "./resources", "leadsTo": "resources/bexdata.rsc",
                   "present": true}]})"));
}

TEST_F(NewCommand, NoEntriesMakeAnEmptyList) {
    EXPECT_EQ(json({"new", "fresh.cir"})["rcpath"], Json::array());
    EXPECT_EQ(contentOf(file("fresh.cir/rcpath")), "");
}

TEST_F(NewCommand, ThePathGetsItsCanonicalSpelling) {
    EXPECT_EQ(json({"new", "library//FRESH.CIR/"})["circuit"], "library/FRESH.cir");
    EXPECT_TRUE(exists(file("library/FRESH.cir/rcpath")));
}

struct Row {
    std::vector<std::string> arguments;
    const char* message;
};

constexpr const char* badEntry =
    ": write it NAME=DIRECTORY, such as bexdata=./resources, without quotes in it and no blanks or any of "
    "{ } : # in the name\n";

TEST_F(NewCommand, OtherPathsAreRefused) {
    const Row rows[] = {
        {{"amplifier.cir"}, "bexa: something stands there already: amplifier.cir: give another name\n"},
        {{"amplifier.CIR/"}, "bexa: something stands there already: amplifier.cir: give another name\n"},
        {{"README.md"}, "bexa: not the name of a circuit: README.md: give a path that ends in .cir\n"},
        {{"fresh"}, "bexa: not the name of a circuit: fresh: give a path that ends in .cir\n"},
        {{""}, "bexa: not the name of a circuit: \"\": give a path that ends in .cir\n"},
        {{"nowhere/fresh.cir"}, "bexa: no such directory: nowhere: make it first, or check the path\n"},
        {{"README.md/fresh.cir"}, "bexa: no such directory: README.md: make it first, or check the path\n"},
    };
    const auto before = listOf(file(""));
    for (const Row& row : rows) {
        const Outcome result = run({"new", row.arguments[0]});
        EXPECT_EQ(result.code, 2) << row.message;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, row.message);
    }
    EXPECT_EQ(listOf(file("")), before);
}

TEST_F(NewCommand, AnEntryThatTheListCannotHoldIsRefusedBeforeAnythingIsMade) {
    const std::string tooLong = "a=/" + std::string(1022, 'x');
    const std::string entries[] = {"bexdata", "bexdata=", "=./resources", "two words=a", "a:b=c",
                                   "#a=b",    "a{=b",     "a=\"quoted\"", "a=line\nend", "a\x01=b",
                                   "",        tooLong};
    for (const std::string& entry : entries) {
        const Outcome result = run({"new", "fresh.cir", "--path", entry});
        EXPECT_EQ(result.code, 2) << entry;
        EXPECT_TRUE(result.err.starts_with("bexa: not an entry for the resource path list: ")) << result.err;
        EXPECT_TRUE(result.err.ends_with(badEntry)) << result.err;
        EXPECT_FALSE(exists(file("fresh.cir"))) << entry;
    }
}

TEST_F(NewCommand, TheLongestEntryThatIsTakenIsReadBackWhole) {
    const std::string directory = '/' + std::string(1021, 'x');
    EXPECT_EQ(json({"new", "fresh.cir", "--path", "a=" + directory})["rcpath"][0]["path"], directory);
}

TEST_F(NewCommand, ANameHasOneDirectory) {
    const Outcome result = run({"new", "fresh.cir", "--path", "a=b", "--path", "a=c"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "bexa: the name is given twice: a: give each resource one directory\n");
    EXPECT_FALSE(exists(file("fresh.cir")));
}

TEST_F(NewCommand, ADirectoryMayHoldMoreSignsOfEquality) {
    EXPECT_EQ(json({"new", "fresh.cir", "--path", "a=/x=y"})["rcpath"][0]["path"], "/x=y");
}

TEST_F(NewCommand, ALinkThatLeadsNowhereIsInTheWay) {
    std::filesystem::create_symlink("nowhere", file("fresh.cir"));
    const Outcome result = run({"new", "fresh.cir"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "bexa: the circuit cannot be made: fresh.cir: check that you may write in its "
                          "directory and that there is room\n");
}

TEST_F(NewCommand, AProtectedDirectoryTakesNoCircuit) {
    if (!becomeNobody()) GTEST_SKIP() << "nobody can't run the program here";
    setMode(file("library"), 0555);
    const Outcome result = run({"new", "library/fresh.cir"});
    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(result.err.starts_with("bexa: the circuit cannot be made: library/fresh.cir: "))
        << result.err;
}

} // namespace
} // namespace bexa::test
