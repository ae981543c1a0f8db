#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>
#include <set>

#include <unistd.h>

namespace bexa::test {
namespace {

namespace fs = std::filesystem;

class CheckCommand : public Program {
protected:
    CheckCommand() { set("AMPLIFIER_LIBRARY", file("library")); }

    void removeLockOfMaria() { fs::remove(file("output_stage.cir/log/002.___")); }
    void addCatalogues() {
        fs::copy(testData("../../data/msg"), file("system/msg"), fs::copy_options::recursive);
    }
    // The numbers of what was found.
    std::multiset<int> found(const std::string& circuit) {
        const Json document = json({"check", circuit});
        std::multiset<int> numbers;
        for (const Json& finding : document["findings"]) numbers.insert(finding["message"].get<int>());
        return numbers;
    }
};

TEST_F(CheckCommand, AGoodCircuitHasNoFindingsAndLeavesNoReports) {
    removeLockOfMaria();
    writeFile(file("check.err"), "old");
    const std::string out = good({"check", "amplifier.cir", "--report", "."});
    EXPECT_NE(out.find("./output_stage.cir"), std::string::npos) << "reached through its block";
    EXPECT_FALSE(exists(file("check.err")));
    EXPECT_FALSE(exists(file("check.wrn")));
}

TEST_F(CheckCommand, ALockLeftOnTheSheetOfABlockIsAFinding) {
    const Outcome result = run({"check", "amplifier.cir"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err,
              "bexa: the sheet is locked by maria on ws12 since 03/09/2024 17:05: "
              "./output_stage.cir/002.sht: ask the holder to close it, or run bexa unlock if the lock was "
              "left behind\n");
}

TEST_F(CheckCommand, FindsExactlyTheFaultsOfTheSample) {
    const Outcome result = run({"check", "faulty/untidy.cir", "--report", ".", "--junit", "junit.xml"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("check_untidy.txt"));
    EXPECT_EQ(contentOf(file("check.err")), expected("check_untidy.err"));
    EXPECT_EQ(contentOf(file("check.wrn")), expected("check_untidy.wrn"));
    EXPECT_EQ(contentOf(file("junit.xml")), expected("check_untidy.xml"));
}

TEST_F(CheckCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"check", "faulty/untidy.cir"}), Json::parse(expected("check_untidy.json")));
}

TEST_F(CheckCommand, TheEnglishCatalogueHasTheTextsThatAreBuiltIn) {
    addCatalogues();
    run({"check", "faulty/untidy.cir", "--report", "."});
    EXPECT_EQ(contentOf(file("check.err")), expected("check_untidy.err"));
    EXPECT_EQ(contentOf(file("check.wrn")), expected("check_untidy.wrn"));
}

TEST_F(CheckCommand, ReportsAreInTheLanguageOfTheCatalogue) {
    addCatalogues();
    set("YLANG", "japanese");
    run({"check", "faulty/untidy.cir", "--report", "."});
    EXPECT_EQ(contentOf(file("check.err")), expected("check_untidy_jpn.err"));
}

TEST_F(CheckCommand, WhatCannotBeReadIsAFinding) {
    EXPECT_EQ(found("faulty/broken_rcpath.cir"), std::multiset<int>{31001});
    EXPECT_EQ(found("faulty/lost_resource.cir"), std::multiset<int>{31003});
    EXPECT_EQ(found("faulty/broken_resource.cir"), std::multiset<int>{31004});
    fs::copy_file(file("faulty/wrong_columns.kinds"), file("system/etc/CompKind"),
                  fs::copy_options::overwrite_existing);
    EXPECT_EQ(found("faulty/lost_resource.cir"), (std::multiset<int>{31003, 31012}));
}

TEST_F(CheckCommand, AFaultOfTheInstallationIsToldOnceForAllCircuits) {
    removeLockOfMaria();
    writeFile(file("system/etc/CompKind"), "ComponentKind 4 {\n");
    EXPECT_EQ(found("amplifier.cir"), std::multiset<int>{31012});
}

TEST_F(CheckCommand, ATitleInQuotesHoldsNoBlock) {
    removeLockOfMaria();
    writeFile(file("output_stage.cir/001.sht"), "sheet 1 \"the output_stage output_stage \"\n");
    EXPECT_TRUE(found("amplifier.cir").empty());
    writeFile(file("output_stage.cir/001.sht"), "cmp1\toutput_stage\r\n");
    EXPECT_EQ(found("amplifier.cir"), std::multiset<int>{31011});
}

TEST_F(CheckCommand, GapsBetweenTheNumbersOfSheetsAreNoFinding) {
    removeLockOfMaria();
    fs::remove(file("amplifier.cir/002.sht"));
    fs::remove(file("amplifier.cir/002.net"));
    EXPECT_TRUE(found("amplifier.cir").empty());
}

TEST_F(CheckCommand, CopiesAndALockOfARunningProcessAreNotLeftBehind) {
    removeLockOfMaria();
    char host[256] = {};
    ASSERT_EQ(::gethostname(host, sizeof host - 1), 0);
    const auto lock = [&](const std::string& process) {
        writeFile(file("amplifier.cir/log/001.___"),
                  process + "\n0\n01/01/2024 00:00\nme\n:0\n" + host + "\n");
    };
    writeFile(file("amplifier.cir/_001.sht"), "");
    lock(std::to_string(::getpid()));
    EXPECT_TRUE(found("amplifier.cir").empty());
    lock("2147483646");
    EXPECT_EQ(found("amplifier.cir"), (std::multiset<int>{31018, 31020})) << "no such process";
}

TEST_F(CheckCommand, JunitIsWellFormedWhateverTheNames) {
    writeFile(file("faulty/untidy.blk"),
              "circuitName : untidy.cir\npinAssign 2 {\n\t10\t\"<&'>\x1B\xFF]]>[\"\n}\n");
    run({"check", "faulty/untidy.cir", "--junit", "junit.xml"});
    EXPECT_NE(contentOf(file("junit.xml")).find("(&lt;&amp;'&gt;\xEF\xBF\xBD\xEF\xBF\xBD]]&gt;[)"),
              std::string::npos)
        << contentOf(file("junit.xml"));
}

TEST_F(CheckCommand, WhatCannotBeCarriedOutEndsWithTwo) {
    EXPECT_EQ(run({"check", "nowhere.cir"}).code, 2);
    EXPECT_EQ(run({"check", "notes.txt"}).code, 2);
    EXPECT_EQ(run({"check", "amplifier.cir", "--report", "nowhere"}).code, 2);
    EXPECT_EQ(run({"check", "amplifier.cir", "--junit", "nowhere/junit.xml"}).code, 2);
    EXPECT_EQ(run({"check"}).code, 2);
}

} // namespace
} // namespace bexa::test
