#include "tests/support/files.h"
#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class CountCommand : public Program {};

TEST_F(CountCommand, PrintsTheNamesThatFollow) {
    EXPECT_EQ(good({"count", "R008", "--times", "3"}), expected("count.txt"));
    EXPECT_EQ(json({"count", "R008", "--times", "3"}), Json::parse(expected("count.json")));
}

TEST_F(CountCommand, RowsSayWhatFollows) {
    const struct {
        Arguments arguments;
        const char* names;
    } rows[] = {
        {{"R001"}, "R002\n"},
        {{"R999"}, "R1000\n"}, // the width grows
        {{"D[7]", "--times", "2"}, "D[8]\nD[9]\n"},
        {{"D[07]", "--step", "3"}, "D[10]\n"},
        {{"[07]", "--step", "2"}, "[09]\n"},
        {{"R003", "--step", "-1", "--times", "3"}, "R002\nR001\nR000\n"},
        {{"R10", "--step", "-5", "--times", "2"}, "R05\nR00\n"},
        {{"R1", "--step", "0", "--times", "2"}, "R1\nR1\n"},
        {{"R2147483640", "--step", "7"}, "R2147483647\n"},
        {{"--", "-V5"}, "-V6\n"},
        {{"12"}, "13\n"},
        // A range whose step overshoots is one signal, and counts from 0 in its width.
        {{"D[0-5-9]"}, "D[00001]\n"},
    };
    for (const auto& row : rows) {
        Arguments arguments{"count"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        EXPECT_EQ(good(arguments), row.names);
    }
}

TEST_F(CountCommand, FewerNamesThanAskedForAreAFinding) {
    const struct {
        const char* name;
        const char* step;
        const char* names;
        const char* count;
    } rows[] = {
        {"D[2]", "-1", "D[1]\nD[0]\n", "2"},
        {"R001", "-2", "", "0"}, // would be below 0
        {"R5", "-3", "R2\n", "1"},
        {"R2147483640", "5", "R2147483645\n", "1"}, // the next is beyond, not the last there is
        {"R2147483647", "1", "", "0"},
        {"R1", "2147483647", "", "0"},
        {"R99999999999", "1", "", "0"},
    };
    for (const auto& row : rows) {
        const Outcome result = run({"count", row.name, "--step", row.step, "--times", "4"});
        EXPECT_EQ(result.code, 1) << row.name;
        EXPECT_EQ(result.out, row.names);
        EXPECT_EQ(result.err, std::string("bexa: only ") + row.count + " of 4 names follow \"" + row.name +
                                  "\": the command line: numbers run from 0 to 2147483647\n");
    }
    EXPECT_EQ(json({"count", "D[2]", "--step", "-1", "--times", "4"})["names"],
              Json::parse(R"(["D[1]", "D[0]"])"));
}

TEST_F(CountCommand, WhatCannotCountIsAFinding) {
    const struct {
        const char* name;
        const char* reason;
    } rows[] = {
        {"ABC", "has no number to count"},       {"[]", "has no number to count"},
        {"D[0-3]", "is not that of one signal"}, {"A[1],B", "is not that of one signal"},
        {"D[3", "is not that of one signal"},    {"[1x]", "is not that of one signal"},
        {"", "is not that of one signal"},
    };
    for (const auto& row : rows) {
        const Outcome result = run({"count", row.name});
        EXPECT_EQ(result.code, 1) << row.name;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("bexa: the name \"") + row.name + "\" " + row.reason +
                                  ": the command line: write it like R001, D[7] or [07]\n");
    }
}

TEST_F(CountCommand, TheCircuitSaysTheDelimiters) {
    std::string resource = contentOf(file("resources/bexdata.rsc"));
    for (const auto& [key, mark] : {std::pair{"busStartChar", '<'}, std::pair{"busEndChar", '>'}}) {
        const std::size_t line = resource.find(key);
        ASSERT_NE(line, std::string::npos);
        resource[resource.find_first_of("[]", line)] = mark;
    }
    writeFile(file("resources/bexdata.rsc"), resource);
    EXPECT_EQ(good({"count", "D<09>", "--circuit", "amplifier.cir"}), "D<10>\n");
    EXPECT_EQ(run({"count", "D<09>"}).code, 1);
    EXPECT_EQ(run({"count", "D1", "--circuit", "library"}).code, 2);
}

TEST_F(CountCommand, NumbersOutOfRangeAreWrongUse) {
    for (const char* times : {"0", "-1", "1000001", "x", ""}) {
        EXPECT_EQ(run({"count", "R1", "--times", times}).code, 2) << times;
    }
    for (const char* step : {"-2147483648", "2147483648", "x", ""}) {
        EXPECT_EQ(run({"count", "R1", "--step", step}).code, 2) << step;
    }
}

} // namespace
} // namespace bexa::test
