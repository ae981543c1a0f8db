#include "bexa/batch/batch_errors.h"

#include "tests/batch/batch_fixture.h"
#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

class ReportMerge : public ::testing::Test {
protected:
    unsigned long merge() const {
        return BexBatErr::mergeFile(first.c_str(), second.c_str(), target.c_str());
    }
    // The target of a merge that succeeds.
    std::string merged(const std::string& firstContent, const std::string& secondContent) const {
        writeFile(first, firstContent);
        writeFile(second, secondContent);
        EXPECT_EQ(merge(), 1UL);
        return contentOf(target);
    }

    const TempDir dir;
    const std::string first = dir.file("first");
    const std::string second = dir.file("second");
    const std::string target = dir.file("target");
};

} // namespace

TEST_F(ReportMerge, RowsSayWhatComesOut) {
    const struct {
        const char* first;
        const char* second;
        const char* target;
    } rows[] = {
        {"a\n", "b\n", "a\nb\n"},
        {"#h\na\n", "#h\nb\n", "#h\na\nb\n"}, // only the header of the second goes
        {"a\n", "#h\n#\n\nb\n#c\nd", "a\n\nb\n#c\nd"},
        {"a", "b", "ab"},
        {"", "#h\nb\n", "b\n"},
        {"a\r\n", "#h\r\nb\r\n", "a\r\nb\r\n"},
        {"a\n", " #b\n", "a\n #b\n"},
        {"\x83\x5C\n", "\x83\x23\n", "\x83\x5C\n\x83\x23\n"},
    };
    for (const auto& row : rows) EXPECT_EQ(merged(row.first, row.second), row.target) << row.second;
}

TEST_F(ReportMerge, AnEmptySecondReportRepeatsTheLastLineOfTheFirst) {
    EXPECT_EQ(merged("a\nb\n", ""), "a\nb\nb\n");
    EXPECT_EQ(merged("a\nb", ""), "a\nbb");
    EXPECT_EQ(merged("", ""), "");
    // A long line is repeated from its last piece on.
    const std::string line = std::string(1023, 'x') + "end\n";
    EXPECT_EQ(merged(line, ""), line + "end\n");
}

TEST_F(ReportMerge, ASecondReportOfHeaderLinesOnlyContributesItsLastLine) {
    EXPECT_EQ(merged("a\n", "#h\n#i\n"), "a\n#i\n");
    EXPECT_EQ(merged("", "#\n"), "#\n");
}

TEST_F(ReportMerge, ALastHeaderLineWithoutALineFeedEndsTheMergeAndIsContributed) {
    EXPECT_EQ(merged("a\n", "#h\n#i"), "a\n#i");
    EXPECT_EQ(merged("a\n", "#"), "a\n#");
    const std::string whole = "#" + std::string(1022, 'x'); // just a piece
    EXPECT_EQ(merged("a\n", whole), "a\n" + whole);
}

TEST_F(ReportMerge, AHeaderLineLongerThanAPieceEndsTheMerge) {
    const std::string longest = "#" + std::string(1021, 'x') + "\n";
    EXPECT_EQ(merged("a\n", longest + "b\n"), "a\nb\n");
    EXPECT_EQ(merged("a\n", "#" + std::string(1022, 'x') + "\nb\n"), "a\n");
    EXPECT_EQ(merged("a\n", "#h\n#" + std::string(5000, 'x') + "\nb\n"), "a\n");
    EXPECT_EQ(merged("a\n", "#" + std::string(5000, 'x')), "a\n");
}

TEST_F(ReportMerge, LongLinesAreCopiedWhole) {
    const std::string line = std::string(300'000, 'x') + "\n";
    EXPECT_EQ(merged(line, line), line + line);
}

TEST_F(ReportMerge, ANulByteHidesTheRestOfItsPiece) {
    using namespace std::string_literals;
    EXPECT_EQ(merged("a\0b\nc\n"s, "\0#d\ne\0"s), "ac\ne");
    EXPECT_EQ(merged("a\n", "#\0\nb\n"s), "a\n"); // the line feed too, so the header line goes on
}

TEST_F(ReportMerge, AMissingReportLeavesNoTarget) {
    writeFile(target, "old");
    writeFile(first, "a\n");
    EXPECT_EQ(merge(), 0UL);
    EXPECT_FALSE(exists(target));
    fs::rename(first, second);
    EXPECT_EQ(merge(), 0UL);
    EXPECT_FALSE(exists(target));
}

TEST_F(ReportMerge, ADirectoryIsNoReport) {
    writeFile(first, "a\n");
    fs::create_directory(second);
    EXPECT_EQ(merge(), 0UL);
    EXPECT_FALSE(exists(target));
    EXPECT_EQ(BexBatErr::mergeFile(second.c_str(), first.c_str(), target.c_str()), 0UL);
    EXPECT_FALSE(exists(target));
    EXPECT_EQ(BexBatErr::mergeFile(first.c_str(), first.c_str(), second.c_str()), 0UL);
}

TEST_F(ReportMerge, AReportThatMayNotBeReadLeavesNoTarget) {
    dir.openToAll();
    writeFile(first, "a\n");
    writeFile(second, "b\n");
    setMode(second, 0);
    EXPECT_EQ(Child().asNobody().run([this] { return merge() ? 1 : 0; }), 0);
    EXPECT_FALSE(exists(target));
}

TEST_F(ReportMerge, WithoutAPathNothingIsMerged) {
    writeFile(first, "a\n");
    const char* const path = first.c_str();
    EXPECT_EQ(BexBatErr::mergeFile(path, path, nullptr), 0UL);
    EXPECT_EQ(BexBatErr::mergeFile(path, path, dir.file("none/target").c_str()), 0UL);
    EXPECT_EQ(BexBatErr::mergeFile(nullptr, path, target.c_str()), 0UL);
    EXPECT_EQ(BexBatErr::mergeFile(path, nullptr, target.c_str()), 0UL);
    EXPECT_EQ(listOf(dir.path()), std::vector<std::string>{"first"});
}

TEST_F(ReportMerge, ATargetThatIsASourceIsEmptiedAndTheMergeEnds) {
    std::string lines;
    for (int i = 0; i < 10'000; ++i) lines += std::to_string(i) + '\n';
    writeFile(first, lines);
    writeFile(second, "b\n");
    EXPECT_EQ(BexBatErr::mergeFile(first.c_str(), second.c_str(), second.c_str()), 1UL);
    EXPECT_EQ(contentOf(second), lines + "9999\n"); // as with an empty second report
    writeFile(second, "b\n");
    EXPECT_EQ(BexBatErr::mergeFile(first.c_str(), second.c_str(), first.c_str()), 1UL);
    EXPECT_EQ(contentOf(first), "b\n");
}

TEST_F(ReportMerge, AFullDiskIsNotNoticed) {
    writeFile(first, "a\n");
    writeFile(second, std::string(1000, 'b') + '\n');
    const auto body = [this] {
        fillDisk(10);
        return merge() == 1 ? 0 : 1;
    };
    EXPECT_EQ(Child().run(body), 0);
    EXPECT_EQ(contentOf(target), "a\nbbbbbbbb");
}
