#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class ZoneCommand : public Program {};

TEST_F(ZoneCommand, ShowsTheNumberAndTheNextZone) {
    EXPECT_EQ(good({"zone", "AZ", "--step", "3"}), expected("zone.txt"));
    EXPECT_EQ(json({"zone", "AZ", "--step", "3"}), Json::parse(expected("zone.json")));
}

TEST_F(ZoneCommand, EachStyleCountsInItsOwnWay) {
    const struct {
        const char* label;
        const char* step;
        const char* style;
        long number;
        const char* next;
    } rows[] = {
        {"A", "1", "letters", 0, "B"},
        {"Z", "1", "letters", 25, "AA"},
        {"AA", "-1", "letters", 26, "Z"},
        {"ZZ", "1", "letters", 701, "AAA"},
        {"C", "0", "letters", 2, "C"},
        {"9", "1", "digits", 9, "10"},
        {"10", "-9", "digits", 10, "1"},
        {"007", "1", "digits", 7, "8"},
        {"0", "1", "digits", 0, "1"},
        // Letters that are not capitals are counted by their code, as everywhere in the suite.
        {"a", "1", "letters", 32, "AH"},
    };
    for (const auto& row : rows) {
        const Json zone = json({"zone", row.label, "--step", row.step});
        EXPECT_EQ(zone["style"], row.style) << row.label;
        EXPECT_EQ(zone["number"], row.number) << row.label;
        EXPECT_EQ(zone["next"], row.next) << row.label;
    }
}

TEST_F(ZoneCommand, TheStepIsOneUnlessItIsGiven) {
    EXPECT_EQ(good({"zone", "B"}), "label   B\nstyle   letters\nnumber  1\nstep    1\nnext    C\n");
}

TEST_F(ZoneCommand, AStepBeyondTheZonesIsAFinding) {
    const std::string remedy =
        ": the command line: letters begin at A, digits at 1; numbers stay below 9223372036854775807\n";
    const struct {
        const char* label;
        const char* step;
    } rows[] = {{"A", "-1"},
                {"1", "-1"},
                {"0", "0"},
                {"B", "-2147483648"},
                {"9223372036854775806", "1"},
                {"99999999999999999999", "-1"},
                {"ZZZZZZZZZZZZZZZZZZZZ", "1"}};
    for (const auto& row : rows) {
        const Outcome result = run({"zone", row.label, "--step", row.step});
        EXPECT_EQ(result.code, 1) << row.label;
        EXPECT_EQ(result.err,
                  std::string("bexa: no zone is ") + row.step + " from \"" + row.label + '"' + remedy);
        EXPECT_TRUE(json({"zone", row.label, "--step", row.step})["next"].is_null()) << row.label;
    }
}

TEST_F(ZoneCommand, ANumberThatIsTooLargeIsNotTold) {
    EXPECT_TRUE(json({"zone", "99999999999999999999"})["number"].is_null());
    EXPECT_EQ(json({"zone", "9223372036854775806"})["number"], 9223372036854775806);
}

TEST_F(ZoneCommand, WhatIsNoLabelIsAFinding) {
    for (const char* label : {"A1", "1A", "", "A-1", "A B", "1.5", "\xEF\xBC\xA1"}) {
        const Outcome result = run({"zone", label});
        EXPECT_EQ(result.code, 1) << label;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("bexa: \"") + label +
                                  "\" is no label of a zone: the command line: write letters alone, such as "
                                  "AB, or digits alone, such as 12\n");
    }
}

TEST_F(ZoneCommand, AStepThatIsNoNumberIsWrongUse) {
    for (const char* step : {"", "x", "1x", "99999999999", "-99999999999"}) {
        EXPECT_EQ(run({"zone", "A", "--step", step}).code, 2) << step;
    }
}

} // namespace
} // namespace bexa::test
