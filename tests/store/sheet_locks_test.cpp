#include "bexa/store/sheet_locks.h"

#include <ctime>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bexa/store/lock_file.h"
#include "tests/store/lock_fixture.h"
#include "tests/support/fresh_process.h"

using namespace bexa::test;

namespace {

class SheetLocks : public LockTest {
protected:
    unsigned long lock(LexSheetType type = LexSheetLogged) const {
        return BexLock(&owner, type, sheet.c_str());
    }
    unsigned long unlock(LexSheetType type = LexSheetLogged) const {
        return BexUnlock(&owner, type, sheet.c_str());
    }
    unsigned long isFree() const {
        BexLockInfo ignored;
        return BexCheckLock(LexSheetLogged, sheet.c_str(), ignored);
    }
    std::vector<std::string> logFiles() const { return listOf(log); }
};

const auto invalidType = static_cast<LexSheetType>(2);
const std::vector<std::string> noFiles;

std::string localMinute() {
    const std::time_t now = std::time(nullptr);
    char text[32];
    std::strftime(text, sizeof text, "%m/%d/%Y %H:%M", std::localtime(&now));
    return text;
}

} // namespace

TEST(SheetLockName, LiesInTheLogDirectoryOrBesideTheSheet) {
    const struct {
        LexSheetType type;
        const char* path;
        const char* lockFile;
        const char* meaning;
    } rows[] = {
        {LexSheetLogged, "a.cir/001.sht", "a.cir/log/001.___", "a sheet"},
        {LexSheetLocal, "a.cir/001.sht", "a.cir/001.___", "a local sheet"},
        {LexSheetLogged, "/x/a.cir/001.sht", "/x/a.cir/log/001.___", "an absolute path"},
        {LexSheetLogged, "001.sht", "./log/001.___", "no directory"},
        {LexSheetLocal, "001.sht", "./001.___", "no directory"},
        {LexSheetLogged, "/001.sht", "/log/001.___", "the root"},
        {LexSheetLogged, "a.cir/001", "a.cir/log/001.___", "no suffix"},
        {LexSheetLogged, "a.cir/1.2.sht", "a.cir/log/1.2.___", "the last suffix goes"},
        {LexSheetLogged, "a.cir/001.NET", "a.cir/log/001.___", "any suffix goes"},
        {LexSheetLogged, "A.CIR/001.SHT", "A.CIR/log/001.___", "no canonical spelling"},
    };
    for (const auto& row : rows) {
        YString result;
        EXPECT_EQ(BexGetLockFilename(row.type, row.path, result), 1u) << row.meaning;
        EXPECT_STREQ(result, row.lockFile) << row.meaning;
    }
}

TEST(SheetLockName, WhatHasNoNameLeavesTheResultAlone) {
    YString result = "before";
    EXPECT_EQ(BexGetLockFilename(invalidType, "a.cir/001.sht", result), 0u);
    EXPECT_EQ(BexGetLockFilename(LexSheetLogged, nullptr, result), 0u);
    EXPECT_EQ(BexGetLockFilename(LexSheetLocal, "", result), 0u);
    EXPECT_EQ(result, "before");
}

TEST_F(SheetLocks, TheFileHoldsItsSixLines) {
    const std::string before = localMinute();
    ASSERT_TRUE(lock());
    const std::string after = localMinute();
    const auto expected = [&](const std::string& date) {
        return std::to_string(Ygetpid()) + '\n' + std::to_string(bexa::detail::ownerNumber(&owner)) + '\n' +
               date + '\n' + YgetUserName() + "\n:7\n" + hostName() + '\n';
    };
    const std::string content = contentOf(lockFile);
    EXPECT_TRUE(content == expected(before) || content == expected(after)) << content;
    EXPECT_TRUE(std::regex_search(content, std::regex(R"(\n\d\d/\d\d/\d{4} \d\d:\d\d\n)")));
}

TEST_F(SheetLocks, OnlyTheLockFileAppears) {
    ASSERT_TRUE(lock());
    EXPECT_EQ(logFiles(), std::vector<std::string>{"001.___"});
}

TEST_F(SheetLocks, SecondUnlockRemovesTheFile) {
    ASSERT_TRUE(lock());
    ASSERT_TRUE(lock());
    EXPECT_TRUE(unlock());
    EXPECT_TRUE(exists(lockFile));
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
    EXPECT_FALSE(unlock());
}

TEST_F(SheetLocks, HoldersNeedNotHaveTheSameOwner) {
    const int other = 0;
    ASSERT_TRUE(lock());
    ASSERT_TRUE(BexLock(&other, LexSheetLogged, sheet.c_str()));
    EXPECT_TRUE(BexUnlock(nullptr, LexSheetLogged, sheet.c_str()));
    EXPECT_TRUE(BexUnlock(nullptr, LexSheetLogged, sheet.c_str()));
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, ARecordWithoutHoldersIsReadyForTheNextLock) {
    ASSERT_TRUE(lock());
    ASSERT_TRUE(unlock());
    ASSERT_TRUE(lock());
    EXPECT_TRUE(exists(lockFile));
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, UnlockIsFalseWhileNobodyInTheProcessHoldsTheSheet) {
    writeFile(lockFile, ownLock(":7"));
    EXPECT_FALSE(unlock()); // a lock of another process: no record
    ASSERT_TRUE(lock());
    ASSERT_TRUE(unlock());
    EXPECT_FALSE(unlock()); // a record, with count 0
    EXPECT_TRUE(exists(lockFile));
}

TEST_F(SheetLocks, ALockOfSomebodyElseIsRefusedAndShown) {
    const std::string strangers[] = {
        lockBy("somebody", ":7", hostName()),
        lockBy(YgetUserName(), ":8", hostName()),
        lockBy(YgetUserName(), ":7", "elsewhere"),
    };
    for (const std::string& stranger : strangers) {
        writeFile(lockFile, stranger);
        EXPECT_FALSE(lock()) << stranger;
        EXPECT_EQ(contentOf(lockFile), stranger);
        EXPECT_FALSE(unlock()) << stranger;
    }
}

TEST_F(SheetLocks, CheckTellsWhoHoldsTheSheet) {
    writeFile(lockFile, lockBy("somebody", ":8", "elsewhere"));
    BexLockInfo info;
    EXPECT_FALSE(BexCheckLock(LexSheetLogged, sheet.c_str(), info));
    EXPECT_EQ(info.pid, 4711);
    EXPECT_EQ(info.handle, 12);
    EXPECT_EQ(info.fileName, lockFile.c_str());
    EXPECT_EQ(info.date, "03/09/2024 17:05");
    EXPECT_EQ(info.user, "somebody");
    EXPECT_EQ(info.display, ":8");
    EXPECT_EQ(info.host, "elsewhere");
}

TEST_F(SheetLocks, AFreeSheetGivesTheNameOfItsLockFileOnly) {
    BexLockInfo info;
    info.user = "before";
    EXPECT_TRUE(BexCheckLock(LexSheetLogged, sheet.c_str(), info));
    EXPECT_EQ(info.fileName, lockFile.c_str());
    EXPECT_EQ(info.user, "before");
}

TEST_F(SheetLocks, ASheetWhoseLockFileHasNoNameIsNeverFreeNorLocked) {
    BexLockInfo info;
    EXPECT_FALSE(BexCheckLock(invalidType, sheet.c_str(), info));
    EXPECT_FALSE(BexCheckLock(LexSheetLogged, nullptr, info));
    EXPECT_EQ(info.fileName, "");
    EXPECT_FALSE(lock(invalidType));
    EXPECT_FALSE(BexLock(&owner, LexSheetLogged, ""));
    ASSERT_TRUE(lock());
    EXPECT_FALSE(unlock(invalidType));
    EXPECT_TRUE(unlock());
}

TEST_F(SheetLocks, ALocalSheetIsNeverLocked) {
    writeFile(dir.file("a.cir/001.___"), lockBy("somebody", ":8", "elsewhere"));
    BexLockInfo info;
    info.fileName = "before";
    EXPECT_TRUE(BexCheckLock(LexSheetLocal, sheet.c_str(), info));
    EXPECT_EQ(info.fileName, "before");
    EXPECT_TRUE(lock(LexSheetLocal));
    EXPECT_TRUE(unlock(LexSheetLocal));
    EXPECT_TRUE(unlock(LexSheetLocal));
    EXPECT_EQ(listOf(dir.file("a.cir")), (std::vector<std::string>{"001.___", "log"}));
    EXPECT_TRUE(BexLock(&owner, LexSheetLocal, nullptr));
}

TEST_F(SheetLocks, ALockOfAFormerRunIsJoinedAndStaysBehind) {
    writeFile(lockFile, ownLock(":7"));
    EXPECT_TRUE(lock());
    EXPECT_TRUE(lock());
    EXPECT_TRUE(unlock());
    EXPECT_TRUE(unlock());
    EXPECT_EQ(contentOf(lockFile), ownLock(":7"));
}

TEST_F(SheetLocks, ASheetJoinedOnceIsOwnedWhenLockedAnew) {
    writeFile(lockFile, ownLock(":7"));
    ASSERT_TRUE(lock());
    ASSERT_TRUE(unlock());
    std::filesystem::remove(lockFile);
    ASSERT_TRUE(lock());
    ASSERT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, ALockWithoutItsLastLineFeedIsNobodysOwn) {
    const std::string whole = ownLock(":7");
    writeFile(lockFile, whole.substr(0, whole.size() - 1));
    EXPECT_FALSE(lock());
}

TEST_F(SheetLocks, AShortOrEmptyLockIsNobodysOwn) {
    const std::string whole = ownLock(":7");
    for (const std::string& content :
         {std::string(), std::string("1\n2\n"), whole.substr(0, whole.rfind(':'))}) {
        writeFile(lockFile, content);
        EXPECT_FALSE(isFree());
        EXPECT_FALSE(lock()) << content;
    }
}

TEST_F(SheetLocks, WithoutDisplayTheUserStandsInItsPlace) {
    const std::string user = YgetUserName();
    display.unset();
    ASSERT_TRUE(lock());
    EXPECT_NE(contentOf(lockFile).find('\n' + user + '\n' + user + '\n' + hostName() + '\n'),
              std::string::npos);
    EXPECT_TRUE(lock());
}

TEST_F(SheetLocks, AnEmptyDisplayCountsAsUnset) {
    display.set("");
    ASSERT_TRUE(lock());
    display.unset();
    EXPECT_TRUE(lock());
    EXPECT_TRUE(unlock());
    display.set("");
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, SelfIsUserDisplayAndHost) {
    BexLockInfo info;
    info.user = YgetUserName();
    info.display = ":7";
    info.host = hostName().c_str();
    EXPECT_TRUE(BexSelfLocked(nullptr, info));
    info.pid = Ygetpid() + 1;
    info.handle = 99;
    EXPECT_TRUE(BexSelfLocked(&owner, info));
    display.set(":8");
    EXPECT_FALSE(BexSelfLocked(nullptr, info));
    display.unset();
    EXPECT_FALSE(BexSelfLocked(nullptr, info));
    info.display = info.user;
    EXPECT_TRUE(BexSelfLocked(nullptr, info));
    info.host = "elsewhere";
    EXPECT_FALSE(BexSelfLocked(nullptr, info));
    EXPECT_FALSE(BexSelfLocked(nullptr, BexLockInfo()));
}

TEST_F(SheetLocks, AtAnotherDisplayThisProcessIsSomebodyElse) {
    ASSERT_TRUE(lock());
    display.set(":8");
    EXPECT_FALSE(lock());
    EXPECT_FALSE(unlock());
    display.set(":7");
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, ALockFileTakenAwayLeavesTheSheetCountedButUnprotected) {
    ASSERT_TRUE(lock());
    std::filesystem::remove(lockFile);
    EXPECT_FALSE(unlock());
    // The holder is still counted, so no new lock file is made.
    EXPECT_TRUE(lock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, TheLastUnlockRemovesWhateverLockStandsThere) {
    ASSERT_TRUE(lock());
    writeFile(lockFile, lockBy("somebody", ":8", "elsewhere"));
    EXPECT_FALSE(lock());
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, ADirectoryInPlaceOfTheLockFileLooksFreeAndCannotBeTaken) {
    dir.makeDirectory("a.cir/log/001.___");
    EXPECT_TRUE(isFree());
    EXPECT_FALSE(lock());
    EXPECT_FALSE(unlock());
}

TEST_F(SheetLocks, ADanglingLinkInPlaceOfTheLockFileCannotBeTaken) {
    std::filesystem::create_symlink("nowhere", lockFile);
    EXPECT_FALSE(lock());
    EXPECT_EQ(logFiles(), std::vector<std::string>{"001.___"});
}

TEST_F(SheetLocks, WithoutALogDirectoryNothingIsLocked) {
    std::filesystem::remove(log);
    EXPECT_FALSE(lock());
    EXPECT_EQ(listOf(dir.file("a.cir")), noFiles);
    dir.makeDirectory("a.cir/log");
    EXPECT_TRUE(lock());
    EXPECT_TRUE(unlock());
}

TEST_F(SheetLocks, SheetsAreLockedApart) {
    const std::string second = dir.file("a.cir/002.sht");
    ASSERT_TRUE(lock());
    ASSERT_TRUE(BexLock(&owner, LexSheetLogged, second.c_str()));
    EXPECT_EQ(logFiles(), (std::vector<std::string>{"001.___", "002.___"}));
    EXPECT_TRUE(unlock());
    EXPECT_EQ(logFiles(), std::vector<std::string>{"002.___"});
    EXPECT_TRUE(BexUnlock(&owner, LexSheetLogged, second.c_str()));
}

TEST_F(SheetLocks, OneSheetUnderTwoSpellingsIsJoined) {
    const std::string other = dir.file("a.cir/./001.sht");
    ASSERT_TRUE(lock());
    ASSERT_TRUE(BexLock(&owner, LexSheetLogged, other.c_str()));
    EXPECT_TRUE(BexUnlock(&owner, LexSheetLogged, other.c_str()));
    EXPECT_TRUE(exists(lockFile));
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(lockFile));
}

TEST_F(SheetLocks, InShiftJisTheSecondByteOfANameIsNoSeparator) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    const std::string kanji = dir.file("a.cir/\x8f\x5c\x82\xa0.sht");
    ASSERT_TRUE(BexLock(&owner, LexSheetLogged, kanji.c_str()));
    EXPECT_EQ(logFiles(), std::vector<std::string>{"\x8f\x5c\x82\xa0.___"});
    EXPECT_TRUE(BexUnlock(&owner, LexSheetLogged, kanji.c_str()));
    EXPECT_EQ(logFiles(), noFiles);
}
