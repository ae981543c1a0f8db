#include "tests/tools/program.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace bexa::test {
namespace {

class PropCommand : public Program {
protected:
    // The groups of an expression, sorted: the order of a walk is the library's own.
    std::vector<std::string> groupsOf(const std::string& expression) const {
        std::vector<std::string> rows;
        const Json document = json({"prop", "show", expression});
        for (const Json& row : document["groups"]) rows.push_back(row.dump());
        std::sort(rows.begin(), rows.end());
        return rows;
    }
};

TEST_F(PropCommand, ShowsGroupsKeysAndValues) {
    EXPECT_EQ(good({"prop", "show", "(PACKAGE (TYPE \"SOP 8\"))"}), "expression  (PACKAGE (TYPE \"SOP 8\"))\n"
                                                                    "valid       yes\n"
                                                                    "plainWord   no\n"
                                                                    "\n"
                                                                    "groups\n"
                                                                    "  group    key   value\n"
                                                                    "  PACKAGE  TYPE  SOP 8\n");
}

TEST_F(PropCommand, EachKeyIsARow) {
    using testing::ElementsAre;
    EXPECT_THAT(groupsOf("(PART (LENGTH 10) (WIDTH 5)) (P (A))"),
                ElementsAre(R"({"group":"P","key":"A","value":""})",
                            R"({"group":"PART","key":"LENGTH","value":"10"})",
                            R"({"group":"PART","key":"WIDTH","value":"5"})"));
    EXPECT_THAT(groupsOf("((A 1))"), ElementsAre(R"({"group":"","key":"A","value":"1"})"));
}

TEST_F(PropCommand, APlainWordIsTold) {
    EXPECT_EQ(json({"prop", "show", "10uF "}),
              Json::parse(R"({"expression": "10uF ", "valid": true, "plainWord": true,
                              "groups": [{"group": "10uF", "key": null, "value": null}]})"));
    EXPECT_EQ(json({"prop", "show", "a b "})["plainWord"], false) << "two words";
}

TEST_F(PropCommand, AWordAtTheVeryEndIsLost) {
    EXPECT_EQ(json({"prop", "show", "10uF"}),
              Json::parse(R"({"expression": "10uF", "valid": true, "plainWord": false, "groups": []})"));
}

TEST_F(PropCommand, AnExpressionThatStopsHalfwayIsGood) {
    EXPECT_EQ(good({"prop", "show", "(P (A 1)"}), "expression  (P (A 1)\n"
                                                  "valid       yes\n"
                                                  "plainWord   no\n"
                                                  "\n"
                                                  "groups\n"
                                                  "  none\n");
}

TEST_F(PropCommand, ARefusedExpressionIsAFinding) {
    for (const char* expression : {"()", "(P)", "(P (A 1) Q)", "((A 1 2))", ")"}) {
        const Outcome result = run({"prop", "show", expression});
        EXPECT_EQ(result.code, 1) << expression;
        EXPECT_EQ(result.err, "bexa: the expression \"" + std::string(expression) +
                                  "\" is refused: the command line: write it like (PART (LENGTH 10) (TYPE "
                                  "\"SOP 8\"))\n");
    }
}

TEST_F(PropCommand, WhatStandsBeforeTheFaultIsShown) {
    EXPECT_EQ(json({"prop", "show", "word ) more"}),
              Json::parse(R"({"expression": "word ) more", "valid": false, "plainWord": false,
                              "groups": [{"group": "word", "key": null, "value": null}]})"));
}

TEST_F(PropCommand, TextsThatSteerATerminalAreShownAsCodes) {
    const std::string out = good({"prop", "show", "(P (A \x1B[2J))"});
    EXPECT_EQ(out.find('\x1B'), std::string::npos) << out;
}

TEST_F(PropCommand, WrongUseIsTold) {
    EXPECT_EQ(run({"prop"}).err, "bexa: A subcommand is required: bexa prop: see bexa prop --help\n");
    EXPECT_EQ(run({"prop", "show"}).err,
              "bexa: EXPR is required: bexa prop show: see bexa prop show --help\n");
}

} // namespace
} // namespace bexa::test
