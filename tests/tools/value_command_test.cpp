#include "tests/support/files.h"
#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class ValueCommand : public Program {};

TEST_F(ValueCommand, CheckTellsEachFaultWithItsPlace) {
    struct Row {
        const char* value;
        const char* error;
        int character;
    };
    const Row rows[] = {
        {"4.7kV", "has something behind the factor", 5},
        {"10megx", "has something behind the factor", 6},
        {"5mil2", "has something behind the factor", 5},
        {"1mx", "has a character that cannot stand there", 2},
        {"12_3", "has a character that cannot stand there", 3},
        {"1e5_", "has a character that cannot stand there", 4},
        {"\xCE\xA9", "has a character that cannot stand there", 1},
        {"1-2", "has a sign that is not first", 2},
        {"1e-5-2", "has a sign that is not first", 5},
        {"1e+-2", "has a sign that is not first", 4},
        {"-k", "has a sign without a digit behind it", 1},
        {"-.5", "has a sign without a digit behind it", 1},
        {"++", "has a sign without a digit behind it", 1},
        {"-", "is a sign alone", 1},
        {"-1-2", "has a second sign", 3},
        {"-1e-5+2", "has a second sign", 6},
        {"1e5.2", "has a point in the exponent", 4},
        {"1.5e5.2", "has a point in the exponent", 6},
        {"12.", "has a point without a digit behind it", 3},
        {".", "is a point alone", 1},
        {"1.2.3", "has a second point", 4},
        {"e5", "begins with an exponent", 1},
        {"1e", "has an exponent that is no whole number", 2},
        {"12ex", "has an exponent that is no whole number", 3},
        {"1e5k", "has an exponent that is no whole number", 4},
        {"1e+k", "has an exponent that is no whole number", 4},
        {"1e5E5", "has a second exponent", 4},
        {"meg", "begins with a factor", 1},
    };
    Arguments arguments{"value", "check", "--json", "--"};
    for (const Row& row : rows) arguments.emplace_back(row.value);
    const Outcome result = run(arguments);
    EXPECT_EQ(result.code, 1);
    const Json values = Json::parse(result.out)["values"];
    ASSERT_EQ(values.size(), std::size(rows));
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_EQ(values[i]["error"], rows[i].error) << rows[i].value;
        EXPECT_EQ(values[i]["character"], rows[i].character) << rows[i].value;
        EXPECT_FALSE(values[i]["valid"].get<bool>());
    }
}

TEST_F(ValueCommand, CheckShowsATable) {
    const Outcome result = run({"value", "check", "4.7k", "1.2.3", "-5", ""});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "values\n"
                          "  value  result              character\n"
                          "  4.7k   good                -\n"
                          "  1.2.3  has a second point          4\n"
                          "  -5     good                -\n"
                          "  \"\"     good                -\n");
    EXPECT_EQ(result.err,
              "bexa: the value \"1.2.3\" has a second point: character 4: write it like 47, 4.7k, "
              "10meg, 1e-3, -5u or 5mil\n");
}

TEST_F(ValueCommand, EachFormIsOneLineAValue) {
    EXPECT_EQ(good({"value", "normal", "4.7k", "+7", "0.000", "10meg", "1mil"}), "47e2\n7\n0\n1e7\n254e-7\n");
    EXPECT_EQ(good({"value", "plain", "4.7n", "33k", "1e20"}),
              "0.0000000047\n33000\n100000000000000000000\n");
    EXPECT_EQ(good({"value", "factor", "33000", "1.5k", "0.0015"}), "33k\n1500\n1500u\n");
}

TEST_F(ValueCommand, TheFactorCanBeChosen) {
    struct Row {
        const char* factor;
        const char* value;
        const char* result;
    };
    const Row rows[] = {
        {"k", "15000", "15k\n"}, {"K", "15000", "15K\n"},  {"meg", "1500", "0.0015meg\n"},
        {"M", "1e6", "1M\n"},    {"u", "1", "1000000u\n"}, {"k", "-2k", "-2k\n"},
        {"mil", "0", "0\n"},     {"k", "1250", "1.25k\n"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(good({"value", "factor", "--in", row.factor, row.value}), row.result) << row.factor;
    }
}

TEST_F(ValueCommand, ThePointOfAChosenFactorMayBeInTheWrongPlace) {
    EXPECT_EQ(good({"value", "factor", "--in", "k", "1500", "1234"}), ".15k\n12.34k\n");
}

TEST_F(ValueCommand, AFractionOfAMilIsZero) {
    EXPECT_EQ(good({"value", "normal", "1.5mil"}), "0\n");
}

TEST_F(ValueCommand, NegativeValuesAreNoOptions) {
    EXPECT_EQ(good({"value", "normal", "-5", "-5k", "-0.5"}), "-5\n-5e3\n-5e-1\n");
    EXPECT_EQ(good({"value", "factor", "-2.5e-3", "--in", "u"}), "-2500u\n");
    EXPECT_EQ(run({"value", "normal", "-.5"}).code, 1);
    EXPECT_EQ(run({"value", "normal", "-k"}).err,
              "bexa: unknown word -k: bexa value normal: see bexa value normal --help\n");
}

TEST_F(ValueCommand, ABadValueDoesNotStopTheOthers) {
    const Outcome result = run({"value", "plain", "1k", "1kk", "2k", "1e21", "3k"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "1000\n2000\n3000\n");
    EXPECT_EQ(
        result.err,
        "bexa: the value \"1kk\" has something behind the factor: character 3: write it like 47, 4.7k, "
        "10meg, 1e-3, -5u or 5mil\n"
        "bexa: the value \"1e21\" takes more than 20 zeros as a plain number: the command line: see its "
        "normal form with bexa value normal\n");
}

TEST_F(ValueCommand, AValueThatNoFactorFitsIsAFinding) {
    const Outcome result = run({"value", "factor", "1e33", "12e-16"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "bexa: the value \"1e33\" is too large or too small for the factor: the command "
                          "line: see its normal form with bexa value normal\n"
                          "bexa: the value \"12e-16\" is too large or too small for the factor: the command "
                          "line: see its normal form with bexa value normal\n");
    EXPECT_EQ(run({"value", "factor", "--in", "k", "1e-30"}).code, 1);
}

TEST_F(ValueCommand, AnUnknownFactorIsWrongUse) {
    for (const char* factor : {"q", "kk", "kilo", ""}) {
        EXPECT_EQ(run({"value", "factor", "5", "--in", factor}).code, 2) << factor;
    }
    EXPECT_EQ(run({"value", "plain", "5", "--in", "k"}).code, 2) << "only factor has --in";
}

TEST_F(ValueCommand, JsonHoldsAllThatIsKnownOfEachValue) {
    EXPECT_EQ(json({"value", "factor", "33000", "1..2", "1e33"}), Json::parse(R"({"values": [
        {"value": "33000", "valid": true, "error": null, "character": null, "factor": "33k"},
        {"value": "1..2", "valid": false, "error": "has a point without a digit behind it", "character": 2},
        {"value": "1e33", "valid": true, "error": "is too large or too small for the factor",
         "character": null}]})"));
    EXPECT_EQ(json({"value", "normal", "4.7k"})["values"][0]["normal"], "47e2");
    EXPECT_EQ(json({"value", "plain", "4.7k"})["values"][0]["plain"], "4700");
}

TEST_F(ValueCommand, LongValuesAreExact) {
    const std::string digits(10000, '7');
    EXPECT_EQ(good({"value", "plain", digits + "k"}), digits + "000\n");
}

} // namespace
} // namespace bexa::test
