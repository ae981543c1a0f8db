#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <filesystem>

namespace bexa::test {
namespace {

namespace fs = std::filesystem;

class MergeCommand : public Program {
protected:
    Outcome merge(std::string_view first, std::string_view second) const {
        writeFile(file("first"), first);
        writeFile(file("second"), second);
        return run({"merge", "first", "second", "target"});
    }
};

TEST_F(MergeCommand, PutsTheSecondReportBehindTheFirst) {
    EXPECT_EQ(good({"merge", "reports/amplifier.err", "reports/output_stage.err", "all.err"}),
              expected("merge.txt"));
    EXPECT_EQ(contentOf(file("all.err")), expected("merged.err"));
    EXPECT_EQ(json({"merge", "reports/amplifier.err", "reports/output_stage.err", "all.err"}),
              Json::parse(expected("merge.json")));
}

TEST_F(MergeCommand, NothingButTheTargetIsMade) {
    std::vector<std::string> names = listOf(file(""));
    names.insert(names.begin() + 1, "all.err");
    good({"merge", "reports/amplifier.err", "reports/output_stage.err", "all.err"});
    EXPECT_EQ(listOf(file("")), names);
}

TEST_F(MergeCommand, TheTargetMayBeAnInput) {
    const std::string first = contentOf(file("reports/amplifier.err"));
    good({"merge", "reports/amplifier.err", "reports/output_stage.err", "reports/amplifier.err"});
    EXPECT_EQ(contentOf(file("reports/amplifier.err")), expected("merged.err"));
    writeFile(file("reports/amplifier.err"), first);
    good({"merge", "reports/amplifier.err", "reports/output_stage.err", "reports/output_stage.err"});
    EXPECT_EQ(contentOf(file("reports/output_stage.err")), expected("merged.err"));
}

TEST_F(MergeCommand, ATargetKeepsItsRightsAndItsLink) {
    writeFile(file("real"), "old");
    setMode(file("real"), 0600);
    fs::create_symlink("real", file("all.err"));
    good({"merge", "reports/amplifier.err", "reports/output_stage.err", "all.err"});
    EXPECT_TRUE(fs::is_symlink(file("all.err")));
    EXPECT_EQ(contentOf(file("real")), expected("merged.err"));
    EXPECT_EQ(fs::status(file("real")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// Each leaves the target as it was.
TEST_F(MergeCommand, WhatCannotBeMergedWholeIsRefused) {
    using namespace std::string_literals;
    const struct {
        std::string first;
        std::string second;
        const char* message;
    } rows[] = {
        {"a\n", "#h\n#open",
         "the report ends in its header, without a line feed: second:2: end the line, or write the report "
         "again"},
        {"a\n", "#",
         "the report ends in its header, without a line feed: second:1: end the line, or write the "
         "report again"},
        {"a\n", "#h\n#" + std::string(1022, 'x') + "\nb\n",
         "a line of the header is too long: second:2: shorten it to 1023 bytes with its line feed"},
        {"a\n", "b\n\0c\n"s, "the byte 0x00 cannot stand in a report: second:2:1: check that it is a report"},
        {"a\0\n"s, "b\n", "the byte 0x00 cannot stand in a report: first:1:2: check that it is a report"},
    };
    writeFile(file("target"), "old");
    for (const auto& row : rows) {
        const Outcome result = merge(row.first, row.second);
        EXPECT_EQ(result.code, 1) << row.message;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("bexa: ") + row.message + "; nothing was written\n");
        EXPECT_EQ(contentOf(file("target")), "old");
    }
}

TEST_F(MergeCommand, WhatStandsJustWithinTheBoundsIsMerged) {
    const struct {
        std::string first;
        std::string second;
        std::string target;
    } rows[] = {
        {"a\n", "#" + std::string(1021, 'x') + "\nb\n", "a\nb\n"},
        {"#" + std::string(5000, 'x') + "\n#open", "b", "#" + std::string(5000, 'x') + "\n#openb"},
        {"a\n", "b\n#open", "a\nb\n#open"},
        {"", "#h\n\nb\n", "\nb\n"},
        {"", "", ""},
        {"\x83\x5C\n", "#\n\x83\x23\n", "\x83\x5C\n\x83\x23\n"},
        {"a\n", std::string(300'000, 'x'), "a\n" + std::string(300'000, 'x')},
    };
    for (const auto& row : rows) {
        const Outcome result = merge(row.first, row.second);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(contentOf(file("target")), row.target);
    }
}

TEST_F(MergeCommand, ASecondReportWithNothingBehindItsHeaderRepeatsALineWhichIsAFinding) {
    const struct {
        const char* second;
        const char* target;
    } rows[] = {{"", "a\nb\nb\n"}, {"#h\n#i\n", "a\nb\n#i\n"}};
    for (const auto& row : rows) {
        const Outcome result = merge("a\nb\n", row.second);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.err,
                  "bexa: the report has nothing behind its header: second: take the last line out of "
                  "target, where the last line of this report stands, or of the first one if this is "
                  "empty\n");
        EXPECT_EQ(contentOf(file("target")), row.target);
    }
}

TEST_F(MergeCommand, ManyHeaderLinesAreNoMatter) {
    std::string header;
    for (int i = 0; i < 100'000; ++i) header += "#\n";
    EXPECT_EQ(merge("a\n", header + "b\n").code, 0);
    EXPECT_EQ(contentOf(file("target")), "a\nb\n");
}

TEST_F(MergeCommand, AReportThatCannotBeReadIsTold) {
    writeFile(file("all.err"), "old");
    for (const char* path : {"nowhere", "library"}) {
        const std::string message = std::string("bexa: the file cannot be read: ") + path +
                                    ": check the path, and that it is a plain file which you may read\n";
        for (const Arguments& arguments : {Arguments{"merge", path, "parts.csv", "all.err"},
                                           Arguments{"merge", "parts.csv", path, "all.err"}}) {
            const Outcome result = run(arguments);
            EXPECT_EQ(result.code, 2);
            EXPECT_EQ(result.err, message);
            EXPECT_EQ(contentOf(file("all.err")), "old");
        }
    }
}

TEST_F(MergeCommand, OnlyAFileIsReplaced) {
    fs::create_symlink("nothing", file("dangling"));
    for (const char* target : {"library", "dangling", "/dev/null"}) {
        const Outcome result = run({"merge", "reports/amplifier.err", "reports/output_stage.err", target});
        EXPECT_EQ(result.code, 2) << target;
        EXPECT_EQ(result.err, std::string("bexa: something that is not a file stands there: ") + target +
                                  ": give another target\n");
    }
    EXPECT_TRUE(fs::is_symlink(file("dangling")));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(MergeCommand, ATargetThatCannotBeMadeIsTold) {
    const Outcome result =
        run({"merge", "reports/amplifier.err", "reports/output_stage.err", "none/all.err"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the merged report cannot be written: none/all.err: check that its directory is "
              "there, that you may write in it, and that there is room; everything is as it was\n");
}

TEST_F(MergeCommand, AProtectedTargetStays) {
    writeFile(file("all.err"), "old");
    setMode(file("all.err"), 0444);
    setMode(file(""), 0777);
    if (!becomeNobody()) GTEST_SKIP() << "the program lies where others can't run it";
    const Outcome result = run({"merge", "reports/amplifier.err", "reports/output_stage.err", "all.err"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(
        result.err,
        "bexa: the file is protected against writing: all.err: make it writable, or give another file\n");
    EXPECT_EQ(contentOf(file("all.err")), "old");
}

} // namespace
} // namespace bexa::test
