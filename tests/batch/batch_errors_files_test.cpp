#include "tests/batch/batch_errors_fixture.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

// Where reports go.
class BatchErrorFiles : public BatchErrors {};

} // namespace

// Naming the files

TEST_F(BatchErrorFiles, FilesHaveTheirNameDirectoryAndSuffix) {
    dir.makeDirectory("a.cir/log");
    BexBatErr report("check");
    // The directory in its canonical spelling, the suffix with or without a dot.
    report.dirSet((dir.path() + "//a.CIR/log/").c_str());
    ASSERT_TRUE(report.apoErrFile("job", "txt", 1));
    EXPECT_TRUE(exists(dir.file("a.cir/log/job.txt")));
    ASSERT_TRUE(report.apoWarnFile("job", ".w", 1));
    EXPECT_TRUE(exists(dir.file("a.cir/log/job.w")));
    ASSERT_TRUE(report.apoWarnFile("bare", "", 1));
    EXPECT_TRUE(exists(dir.file("a.cir/log/bare")));
    ASSERT_TRUE(report.apoWarnFile("bare", nullptr, 1));
    ASSERT_TRUE(report.progSet("both", 1));
    EXPECT_EQ(listOf(dir.file("a.cir/log")),
              (std::vector<std::string>{"bare", "both.err", "both.wrn", "job.txt", "job.w"}));
}

TEST_F(BatchErrorFiles, WithoutADirectoryFilesStandInTheCurrentOne) {
    for (const char* none : {static_cast<const char*>(nullptr), ""}) {
        const auto body = [&] {
            if (::chdir(dir.path().c_str()) != 0) return 1;
            BexBatErr report("check");
            report.dirSet("no/such/directory");
            report.dirSet(none);
            return report.progSet("job", 1) ? 0 : 2;
        };
        EXPECT_EQ(Child().run(body), 0);
        EXPECT_TRUE(fs::remove(dir.file("job.err")) && fs::remove(dir.file("job.wrn")));
    }
}

TEST_F(BatchErrorFiles, TheDirectoryCountsForFilesNamedLater) {
    const std::string later = dir.makeDirectory("later");
    EXPECT_EQ(errorsOf([&](BexBatErr& report) {
                  report.dirSet(later.c_str());
                  report.freeWriteErr("here");
              }),
              errorHeader + "here");
    EXPECT_TRUE(listOf(later).empty());
}

TEST_F(BatchErrorFiles, WithoutANameNothingChanges) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.sortErrMess(1);
                  report.errHeaderStr("mine");
                  report.msgWriteErr(200, nullptr, "B");
                  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
                      EXPECT_EQ(report.progSet(none, 0), 0UL);
                      EXPECT_EQ(report.apoErrFile(none, 0), 0UL);
                      EXPECT_EQ(report.apoErrFile(none, "txt", 1), 0UL);
                      EXPECT_EQ(report.apoWarnFile(none, 0), 0UL);
                      EXPECT_EQ(report.apoWarnFile(none, "txt", 1), 0UL);
                  }
                  EXPECT_TRUE(report.errOccurred());
                  report.msgWriteErr(100, nullptr);
              }),
              header("mine") + "\n<Mess.100  > low\n\n<Mess.200  > net B\n");
}

TEST_F(BatchErrorFiles, SettingsMadeBeforeTheFileIsNamedAreForgotten) {
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    report.errHeaderStr("lost");
    report.printErrHeader(0);
    report.sortErrMess(1);
    ASSERT_TRUE(report.apoErrFile("job", 0));
    report.msgWriteErr(200, nullptr, "B");
    report.msgWriteErr(100, nullptr);
    EXPECT_EQ(errors(), errorHeader + "\n<Mess.200  > net B\n\n<Mess.100  > low\n");
}

TEST_F(BatchErrorFiles, SettingsMadeBehindTheNameCount) {
    const auto anotherText = [](BexBatErr& report) {
        report.errHeaderStr("Rules broken");
        report.freeWriteErr("x\n");
        report.errHeaderStr("too late");
    };
    EXPECT_EQ(errorsOf(anotherText), header("Rules broken") + "x\n");
    const auto noText = [](BexBatErr& report) {
        report.errHeaderStr(nullptr);
        report.freeWriteErr("x\n");
    };
    EXPECT_EQ(errorsOf(noText), header("") + "x\n");
}

TEST_F(BatchErrorFiles, AnAppendedRunStandsBehindABlankLine) {
    const auto run = [](BexBatErr& report) { report.msgWriteErr(100, "U1"); };
    const std::string first = errorsOf(run, 1);
    EXPECT_EQ(first, errorHeader + "\n<Mess.100  > low\n             objectId:U1\n");
    EXPECT_EQ(errorsOf(run, 1), first + "\n" + first);
    EXPECT_EQ(errorsOf(run, 0), first);
}

TEST_F(BatchErrorFiles, AnAppendedRunWithoutAHeaderHasNoBlankLineOfItsOwn) {
    const auto run = [](BexBatErr& report) {
        report.printErrHeader(0);
        report.freeWriteErr("x\n");
    };
    EXPECT_EQ(errorsOf(run, 1), "x\n");
    EXPECT_EQ(errorsOf(run, 1), "x\nx\n");
}

TEST_F(BatchErrorFiles, AnotherNameEndsTheReportBefore) {
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.apoErrFile("job", 0));
    report.sortErrMess(1);
    report.msgWriteErr(200, nullptr, "B");
    report.msgWriteErr(100, nullptr);
    EXPECT_EQ(errors(), errorHeader);
    ASSERT_TRUE(report.apoErrFile("next", 0));
    EXPECT_EQ(errors(), errorHeader + "\n<Mess.100  > low\n\n<Mess.200  > net B\n");
    EXPECT_FALSE(report.errOccurred());
    EXPECT_FALSE(exists(dir.file("next.err")));
    report.freeWriteErr("next\n");
    EXPECT_EQ(undated(contentOf(dir.file("next.err"))), errorHeader + "next\n");
}

TEST_F(BatchErrorFiles, EverybodyMayWriteAClosedReport) {
    const auto modeOf = [](const std::string& path) {
        struct stat state = {};
        return ::stat(path.c_str(), &state) == 0 ? state.st_mode & 0777 : 0;
    };
    const mode_t before = ::umask(077);
    {
        BexBatErr report("check");
        report.dirSet(dir.path().c_str());
        EXPECT_TRUE(report.apoErrFile("job", 0));
        report.freeWriteErr("x");
        EXPECT_EQ(modeOf(dir.file("job.err")), 0600u);
        // A report is closed by another name too.
        EXPECT_TRUE(report.apoErrFile("next", 1));
        EXPECT_EQ(modeOf(dir.file("job.err")), 0666u);
        report.freeWriteErr("x");
    }
    ::umask(before);
    EXPECT_EQ(modeOf(dir.file("next.err")), 0666u);
}

// The standard error stream

TEST_F(BatchErrorFiles, WithoutAFileTheStandardErrorStreamIsWritten) {
    EXPECT_EQ(standardErrorOf([] {
                  BexBatErr report("check");
                  report.msgWriteErr(100, "U1"); // no header: that begins with a name
                  report.freeTWriteWarn("text\n");
                  if (!report.errOccurred() || !report.warnOccurred())
                      report.freeWriteErr("nothing occurred");
              }),
              "\n<Mess.100  > low\n             objectId:U1\n             text\n");
}

TEST_F(BatchErrorFiles, WithoutAFileGatheringAndTheHeaderWorkTheSame) {
    EXPECT_EQ(standardErrorOf([] {
                  BexBatErr report("check");
                  report.printErrHeader(1);
                  report.errHeaderStr("mine");
                  report.sortErrMess(1);
                  report.sortWarnMess(1);
                  report.msgWriteWarn(100, nullptr);
                  report.msgWriteErr(200, nullptr, "B");
                  report.msgWriteErr(100, nullptr);
              }),
              // At the end of the object errors come first.
              header("mine") + "\n<Mess.100  > low\n\n<Mess.200  > net B\n\n<Mess.100  > low\n");
}

TEST_F(BatchErrorFiles, OnTheStandardErrorStreamTooAHeaderStandsApartFromTheTextBefore) {
    EXPECT_EQ(standardErrorOf([] {
                  std::fputs("before\n", stderr);
                  BexBatErr report("check");
                  report.printErrHeader(1);
                  report.freeWriteErr("x");
              }),
              "before\n\n" + header("") + "x");
}

TEST_F(BatchErrorFiles, AFileThatCannotBeOpenedLeavesTheStandardErrorStream) {
    const std::string written = standardErrorOf([this] {
        BexBatErr report("check");
        report.dirSet(dir.file("none").c_str());
        if (report.apoErrFile("job", 0)) report.freeWriteErr("succeeded");
        report.msgWriteErr(100, nullptr); // without a header: the stream is open already
        // A later name that can be opened counts.
        report.dirSet(dir.path().c_str());
        if (!report.apoErrFile("job", 0)) report.freeWriteErr("failed");
        report.freeWriteErr("in the file");
    });
    EXPECT_EQ(written, "\n<Mess.100  > low\n");
    EXPECT_EQ(errors(), errorHeader + "in the file");
}

TEST_F(BatchErrorFiles, TheWarningsKeepTheirStateWhenTheErrorsFail) {
    dir.makeDirectory("later/blocked.err");
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.progSet("job", 0));
    report.freeWriteWarn("one\n");
    report.dirSet(dir.file("none").c_str());
    EXPECT_EQ(report.progSet("next", 0), 0UL);
    report.dirSet(dir.file("later").c_str());
    EXPECT_EQ(report.progSet("blocked", 0), 0UL); // a directory
    report.freeWriteWarn("two\n");
    EXPECT_TRUE(report.warnOccurred());
    EXPECT_EQ(warnings(), header("Warning Occurred !!!") + "one\ntwo\n");
    EXPECT_FALSE(exists(dir.file("later/blocked.wrn")));
}

TEST_F(BatchErrorFiles, AFileThatMayNotBeWrittenFails) {
    writeFile(dir.file("job.err"), "old");
    setMode(dir.file("job.err"), 0444);
    const auto body = [this] {
        BexBatErr report("check");
        report.dirSet(dir.path().c_str());
        return report.apoErrFile("job", 0) || report.apoErrFile("job", 1) ? 1 : 0;
    };
    EXPECT_EQ(Child().asNobody().run(body), 0);
    EXPECT_EQ(contentOf(dir.file("job.err")), "old");
}

TEST_F(BatchErrorFiles, AFullDiskIsNotNoticed) {
    const auto body = [this] {
        fillDisk(100);
        BexBatErr report("check");
        report.dirSet(dir.path().c_str());
        if (!report.progSet("job", 0)) return 1;
        report.sortWarnMess(1);
        for (int i = 0; i < 100; ++i) {
            report.msgWriteErr(200, "U1", std::to_string(i).c_str());
            report.msgWriteWarn(200, "U1", std::to_string(i).c_str());
        }
        report.freeWriteErr("text");
        return report.errOccurred() && report.warnOccurred() ? 0 : 2;
    };
    EXPECT_EQ(Child().run(body), 0);
    EXPECT_EQ(contentOf(dir.file("job.err")).size(), 100u);
    EXPECT_EQ(contentOf(dir.file("job.wrn")).size(), 100u);
}
