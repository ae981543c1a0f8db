#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class FindCommand : public Program {
protected:
    Arguments find(const std::string& type, const std::string& condition, const Arguments& values) const {
        Arguments arguments{"find", condition, "--type", type};
        arguments.insert(arguments.end(), values.begin(), values.end());
        return arguments;
    }
};

struct Row {
    const char* type;
    const char* condition;
    std::vector<std::string> values;
    const char* found;
};

TEST_F(FindCommand, PrintsTheValuesThatMeetTheCondition) {
    const Row rows[] = {
        {"int", "5", {"4", "5", "05"}, "5\n05\n"},
        {"int", " 5 ", {"4", "5"}, "5\n"},
        {"int", "!5", {"4", "5"}, "4\n"},
        {"int", "3<9", {"3", "4", "8", "9"}, "4\n8\n"},
        {"int", "3<", {"3", "4", "-5"}, "4\n"},
        {"int", "*", {"1", "x"}, "1\nx\n"},
        {"float", "1.5", {"1.5", "1.50", "2"}, "1.5\n1.50\n"},
        {"text", "R*", {"R1", "C1", "R"}, "R1\nR\n"},
        {"text", "*F*", {"10uF", "10k"}, "10uF\n"},
        {"text", "[RC]1", {"R1", "C1", "[RC]1"}, "[RC]1\n"},
        {"text", "b<", {"a", "b", "c"}, "c\n"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(good(find(row.type, row.condition, row.values)), row.found) << row.condition;
    }
}

TEST_F(FindCommand, TheCharacterBehindALeadingLessIsLost) {
    EXPECT_EQ(good(find("int", "<10", {"-5", "0", "5"})), "-5\n");
    EXPECT_EQ(good(find("int", "<5", {"4", "5", "600"})), "4\n5\n600\n");
}

TEST_F(FindCommand, AFloatBoundAboveMayNotBeLongerThanTheOneBelow) {
    EXPECT_EQ(run(find("float", "1<100", {"5"})).code, 1);
    EXPECT_EQ(good(find("float", "1<9", {"5"})), "5\n");
    EXPECT_EQ(good(find("float", "abc<", {"-1", "1"})), "1\n");
}

TEST_F(FindCommand, EqualOrLessKeepsItsSignInTheBounds) {
    EXPECT_EQ(good(find("text", "a=<b", {"a", "b", "a=", "<b"})), "");
}

TEST_F(FindCommand, ARefusedConditionIsAFindingThatNamesTheRules) {
    const Row rows[] = {
        {"int", "-1", {"1"}, "write N, !N, N<M, N< or *, with digits only"},
        {"int", "3=<9", {"1"}, "write N, !N, N<M, N< or *, with digits only"},
        {"float",
         "1<100",
         {"1"},
         "write N, !N, N<M, N< or *, with digits and points only, and M not longer than N"},
        {"text",
         "a*b*c",
         {"a"},
         "write TEXT, !TEXT, A<B, A<, A=<B, or a pattern with one * or a second one at its end"},
    };
    for (const Row& row : rows) {
        const Outcome result = run(find(row.type, row.condition, row.values));
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "bexa: the condition \"" + std::string(row.condition) +
                                  "\" is refused: the command line: " + row.found + '\n');
    }
}

TEST_F(FindCommand, NothingFoundIsGood) {
    EXPECT_EQ(good(find("int", "5", {"4"})), "");
}

TEST_F(FindCommand, JsonTellsOfEachValue) {
    EXPECT_EQ(json(find("text", "R*", {"R1", "C1"})),
              Json::parse(R"({"condition": "R*", "type": "text", "values": [
                  {"value": "R1", "meets": true}, {"value": "C1", "meets": false}]})"));
}

TEST_F(FindCommand, WrongUseIsTold) {
    EXPECT_EQ(run({"find", "5", "5"}).err, "bexa: --type is required: bexa find: see bexa find --help\n");
    EXPECT_EQ(run({"find", "5", "--type", "int"}).err,
              "bexa: VALUE is required: bexa find: see bexa find --help\n");
    EXPECT_EQ(run(find("hide", "5", {"5"})).err,
              "bexa: --type: hide not in {int,float,text}: bexa find: see bexa find --help\n");
}

} // namespace
} // namespace bexa::test
