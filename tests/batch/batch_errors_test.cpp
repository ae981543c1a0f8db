#include "tests/batch/batch_errors_fixture.h"

#include <cstdarg>
#include <ctime>
#include <string>
#include <vector>

using namespace bexa::test;

namespace {

void writeV(BexBatErr& report, void (BexBatErr::*write)(unsigned, const char*, va_list), unsigned number,
            ...) {
    va_list args;
    va_start(args, number);
    (report.*write)(number, nullptr, args);
    va_end(args);
}

} // namespace

TEST_F(BatchErrors, AReportIsWrittenThrough) {
    BexBatErr report("YDSROOT/check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.progSet("job", 0));
    report.msgWriteErr(300, "U1.4", 14, "U1");
    report.msgWriteErr(0, "U1.7");
    report.freeWriteErr("free text\n");
    report.freeTWriteErr("indented text\n");
    report.msgWriteWarn(200, nullptr, "VCC");
    report.msgWriteWarn(100, "\x83\x5C\x83\x5C");
    // All of it is on the disk while the channels are open.
    EXPECT_EQ(errors(), contentOf(testData("batch/written_through.err")));
    EXPECT_EQ(warnings(), contentOf(testData("batch/written_through.wrn")));
    EXPECT_TRUE(report.errOccurred());
    EXPECT_TRUE(report.warnOccurred());
}

TEST_F(BatchErrors, AReportIsGatheredAndSorted) {
    const std::string gathered = errorsOf([](BexBatErr& report) {
        report.sortErrMess(1);
        report.msgWriteErr(200, "A.10", "VCC");
        report.msgWriteErr(0, "A.9");
        report.msgWriteErr(100, nullptr);
        report.msgWriteErr(200, "A", "VCC");
        report.msgWriteErr(0, "A.10");
        report.msgWriteErr(0, "A.1");
        report.msgWriteErr(200, "B", "GND");
        report.msgWriteErr(12345678, "X");
    });
    EXPECT_EQ(gathered, contentOf(testData("batch/gathered.err")));
}

TEST_F(BatchErrors, TheHeaderHasTheDateOfTheFirstMessage) {
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.apoErrFile("job", 0));
    std::time_t before = std::time(nullptr);
    report.msgWriteErr(100, nullptr);
    std::string dates;
    for (const std::time_t after = std::time(nullptr); before <= after; ++before)
        dates += std::ctime(&before);
    const std::string content = contentOf(dir.file("job.err"));
    const std::size_t line = content.find("#            ", content.find("!!!")) + 13;
    EXPECT_NE(dates.find(content.substr(line, 25)), std::string::npos) << content;
}

// Nothing to say

TEST_F(BatchErrors, NoMessageAndNoObjectOpensNothing) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.msgWriteErr(0, nullptr);
                  EXPECT_EQ(report.errOccurred(), 0UL);
              }),
              "no file");
}

TEST_F(BatchErrors, ARunWithoutMessagesRemovesTheReportOfAnEarlierRun) {
    writeFile(dir.file("job.err"), "old\n");
    EXPECT_EQ(errorsOf([](BexBatErr&) {}), "no file");
    EXPECT_FALSE(exists(dir.file("job.wrn")));
}

TEST_F(BatchErrors, AnAppendingRunWithoutMessagesKeepsTheReportAsItIs) {
    writeFile(dir.file("job.err"), "old\n");
    EXPECT_EQ(errorsOf([](BexBatErr&) {}, 1), "old\n");
    EXPECT_EQ(contentOf(dir.file("job.wrn")), "");
}

TEST_F(BatchErrors, AMissingMessageIsDroppedWithItsObjectBehindTheHeader) {
    for (const unsigned number : {999u, 400u}) {
        EXPECT_EQ(errorsOf([&](BexBatErr& report) {
                      report.msgWriteErr(number, "U1");
                      EXPECT_EQ(report.errOccurred(), 0UL);
                  }),
                  errorHeader);
    }
}

TEST_F(BatchErrors, WithoutAProgramThereAreNoMessages) {
    BexBatErr report;
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.progSet("job", 0));
    report.msgWriteErr(100, nullptr);
    EXPECT_FALSE(report.errOccurred());
    EXPECT_TRUE(report.setProgram("check"));
    report.msgWriteErr(100, nullptr);
    EXPECT_TRUE(report.errOccurred());
}

TEST_F(BatchErrors, ANullTextIsNotWrittenAndAnEmptyOneOpensTheFile) {
    const auto nothing = [](BexBatErr& report) {
        report.freeWriteErr(nullptr);
        report.freeTWriteErr(nullptr);
        EXPECT_FALSE(report.errOccurred());
    };
    EXPECT_EQ(errorsOf(nothing), "no file");
    const auto empty = [](BexBatErr& report) {
        report.freeWriteErr("");
        EXPECT_TRUE(report.errOccurred());
    };
    EXPECT_EQ(errorsOf(empty), errorHeader);
}

// The forms of entries

TEST_F(BatchErrors, NumbersStandLeftInFiveColumns) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.msgWriteErr(100, nullptr);
                  report.msgWriteErr(12345678, nullptr);
              }),
              "\n<Mess.100  > low\n\n<Mess.12345678> long number\n");
}

TEST_F(BatchErrors, ANumberBeyondAnIntIsPrintedNegative) {
    for (const unsigned long gathering : {0UL, 1UL}) {
        EXPECT_EQ(errorsOf([&](BexBatErr& report) {
                      report.printErrHeader(0);
                      report.sortErrMess(gathering);
                      report.msgWriteErr(4294967295u, nullptr);
                      if (gathering) report.msgWriteErr(100, nullptr);
                  }),
                  // In order it is the highest all the same.
                  std::string(gathering ? "\n<Mess.100  > low\n" : "") + "\n<Mess.-1   > highest\n");
    }
}

TEST_F(BatchErrors, AnObjectWithoutAMessageStandsAlone) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.msgWriteErr(0, "U1");
                  EXPECT_TRUE(report.errOccurred());
              }),
              errorHeader + "             objectId:U1\n");
}

TEST_F(BatchErrors, AnEmptyObjectIsAnObject) {
    for (const unsigned long gathering : {0UL, 1UL}) {
        EXPECT_EQ(errorsOf([&](BexBatErr& report) {
                      report.printErrHeader(0);
                      report.sortErrMess(gathering);
                      report.msgWriteErr(100, "");
                  }),
                  "\n<Mess.100  > low\n             objectId:\n");
    }
}

TEST_F(BatchErrors, TheListFormsTakeTheArgumentsOfTheirCaller) {
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.progSet("job", 0));
    writeV(report, &BexBatErr::msgWriteErrV, 300, 14, "U1");
    writeV(report, &BexBatErr::msgWriteWarnV, 200, "VCC");
    EXPECT_EQ(errors(), errorHeader + "\n<Mess.300  > 14 pins of U1\n");
    EXPECT_EQ(warnings(), header("Warning Occurred !!!") + "\n<Mess.200  > net VCC\n");
}

TEST_F(BatchErrors, PercentSignsInArgumentsAndTextsAreNoFormats) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.msgWriteErr(200, "%n%s", "%s%n");
                  report.freeWriteErr("%d%n");
              }),
              "\n<Mess.200  > net %s%n\n             objectId:%n%s\n%d%n");
}

TEST_F(BatchErrors, LongTextsAreWrittenWhole) {
    const std::string text(100'000, 'x');
    EXPECT_EQ(errorsOf([&](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.msgWriteErr(200, text.c_str(), text.c_str());
                  report.freeTWriteErr(text.c_str());
              }),
              "\n<Mess.200  > net " + text + "\n             objectId:" + text + "\n             " + text);
}

TEST_F(BatchErrors, TheChannelsAreIndependent) {
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.progSet("job", 0));
    report.sortWarnMess(1);
    report.printWarnHeader(0);
    report.msgWriteWarn(200, nullptr, "B");
    report.msgWriteWarn(100, nullptr);
    EXPECT_FALSE(report.errOccurred());
    report.msgWriteErr(200, nullptr, "A");
    EXPECT_EQ(errors(), errorHeader + "\n<Mess.200  > net A\n");
    EXPECT_EQ(warnings(), "");
    report.freeTWriteWarn("done\n");
    report.freeWriteWarn("now\n");
    EXPECT_EQ(warnings(), "\n<Mess.100  > low\n\n<Mess.200  > net B\n             done\nnow\n");
}

// Gathering

TEST_F(BatchErrors, ARepeatedMessageIsOneEntry) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.sortErrMess(1);
                  report.msgWriteErr(200, "U2", "VCC");
                  report.msgWriteErr(100, nullptr);
                  report.msgWriteErr(200, "U1", "VCC");
                  report.msgWriteErr(200, "U2", "VCC");
              }),
              "\n<Mess.100  > low\n"
              "\n<Mess.200  > net VCC\n             objectId:U1\n             objectId:U2\n");
}

TEST_F(BatchErrors, MessagesOfOneNumberAreInOrderOfTheBytesOfTheirTexts) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.sortErrMess(1);
                  for (const char* net : {"\x83\x5C", "a10", "a9", "A", "~"})
                      report.msgWriteErr(200, nullptr, net);
              }),
              "\n<Mess.200  > net A\n\n<Mess.200  > net a10\n\n<Mess.200  > net a9\n\n<Mess.200  > net ~\n"
              "\n<Mess.200  > net \x83\x5C\n");
}

TEST_F(BatchErrors, ObjectsAreInOrderOfTheirParts) {
    const struct {
        std::vector<const char*> given;
        std::vector<const char*> printed;
    } rows[] = {
        {{"A.10", "A.9", "A.1", "A"}, {"A", "A.1", "A.9", "A.10"}},
        {{"B.1", "A.2", "A.1.1"}, {"A.1.1", "A.2", "B.1"}},
        {{"1.10", "1.9"}, {"1.9", "1.10"}},
        {{"A10", "A9"}, {"A9", "A10"}},
        {{"-1", "-2", "+1", "0"}, {"-2", "-1", "0", "+1"}},
        {{"99999999999999999999", "100000000000000000000", "3"},
         {"3", "99999999999999999999", "100000000000000000000"}},
        {{"b", "", "a"}, {"", "a", "b"}},
        // Empty parts vanish, so these are equal and stay in their order.
        {{"A..1", "A.1", ".A.1.", "A.01"}, {"A..1", "A.1", ".A.1.", "A.01"}},
        {{"A.1", ".", "..."}, {".", "...", "A.1"}},
        {{"\x83\x5C", "\x83\x41", "Z"}, {"Z", "\x83\x41", "\x83\x5C"}},
    };
    for (const auto& row : rows) {
        std::string expected = "\n<Mess.100  > low\n";
        for (const char* objectId : row.printed)
            expected += std::string("             objectId:") + objectId + "\n";
        EXPECT_EQ(errorsOf([&](BexBatErr& report) {
                      report.printErrHeader(0);
                      report.sortErrMess(1);
                      for (const char* objectId : row.given) report.msgWriteErr(100, objectId);
                  }),
                  expected);
    }
}

TEST_F(BatchErrors, ObjectsWrittenThroughStayAsTheyCome) {
    EXPECT_EQ(
        errorsOf([](BexBatErr& report) {
            report.printErrHeader(0);
            report.msgWriteErr(100, "B");
            report.msgWriteErr(0, "A");
            report.msgWriteErr(0, "A");
        }),
        "\n<Mess.100  > low\n             objectId:B\n             objectId:A\n             objectId:A\n");
}

TEST_F(BatchErrors, AGatheredObjectWithoutAMessageIsDroppedButCounts) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.sortErrMess(1);
                  report.msgWriteErr(0, "U1");
                  EXPECT_TRUE(report.errOccurred());
              }),
              errorHeader);
}

TEST_F(BatchErrors, AMissingMessageLeavesTheCurrentOne) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.sortErrMess(1);
                  report.msgWriteErr(100, nullptr);
                  report.msgWriteErr(999, "dropped");
                  report.msgWriteErr(0, "U1");
              }),
              "\n<Mess.100  > low\n             objectId:U1\n");
}

TEST_F(BatchErrors, AFreeTextStandsBehindWhatWasGathered) {
    EXPECT_EQ(errorsOf([](BexBatErr& report) {
                  report.printErrHeader(0);
                  report.sortErrMess(1);
                  report.msgWriteErr(200, nullptr, "B");
                  report.msgWriteErr(100, "U1");
                  report.freeWriteErr("text\n");
                  report.msgWriteErr(0, "no message yet"); // the list is a new one
                  report.msgWriteErr(300, nullptr, 1, "U1");
                  report.msgWriteErr(200, nullptr, "B");
              }),
              "\n<Mess.100  > low\n             objectId:U1\n\n<Mess.200  > net B\ntext\n"
              "\n<Mess.200  > net B\n\n<Mess.300  > 1 pins of U1\n");
}

TEST_F(BatchErrors, TurningGatheringOffPrintsAndTurningItOnAgainDoesNothing) {
    BexBatErr report("check");
    report.dirSet(dir.path().c_str());
    ASSERT_TRUE(report.apoErrFile("job", 0));
    report.sortErrMess(0);
    report.sortErrMess(1);
    report.sortErrMess(0);
    EXPECT_FALSE(exists(dir.file("job.err"))); // nothing gathered opens nothing
    report.sortErrMess(1);
    report.msgWriteErr(200, nullptr, "B");
    report.sortErrMess(1);
    report.msgWriteErr(100, nullptr);
    EXPECT_EQ(errors(), errorHeader);
    report.sortErrMess(0);
    const std::string gathered = errorHeader + "\n<Mess.100  > low\n\n<Mess.200  > net B\n";
    EXPECT_EQ(errors(), gathered);
    report.sortErrMess(0);
    report.msgWriteErr(200, nullptr, "A");
    EXPECT_EQ(errors(), gathered + "\n<Mess.200  > net A\n");
}

TEST_F(BatchErrors, GatheredMessagesCountAsOccurredAtOnce) {
    EXPECT_NE(errorsOf([](BexBatErr& report) {
                  report.sortErrMess(1);
                  report.msgWriteErr(100, nullptr);
                  EXPECT_EQ(report.errOccurred(), 1UL);
                  EXPECT_EQ(report.warnOccurred(), 0UL);
              }),
              errorHeader);
}
