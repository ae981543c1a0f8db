#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bexa/store/library_locks.h"
#include "bexa/store/sheet_locks.h"
#include "tests/store/lock_fixture.h"
#include "tests/support/child.h"

using namespace bexa::test;

namespace {

// Exit statuses of children.
constexpr int Yes = 0;
constexpr int No = 1;
constexpr int Broken = 2;

enum class Users { One, Many };

class LocksAcrossProcesses : public LockTest {
protected:
    std::string sheetNamed(const std::string& name) const { return dir.file("a.cir/" + name + ".sht"); }
    bool lock(const std::string& name = "001") const {
        return BexLock(&owner, LexSheetLogged, sheetNamed(name).c_str());
    }
    bool unlock(const std::string& name = "001") const {
        return BexUnlock(&owner, LexSheetLogged, sheetNamed(name).c_str());
    }
    int tryLock() const { return lock() ? Yes : No; }

    // The lock as a process sees it that asks who holds the sheet.
    BexLockInfo holder(const std::string& name = "001") const {
        BexLockInfo info;
        BexCheckLock(LexSheetLogged, sheetNamed(name).c_str(), info);
        return info;
    }
    bool isWhole(const BexLockInfo& info) const {
        return info.pid > 0 && info.date.length() == 16 && info.user == YgetUserName() &&
               info.display.length() && info.host == hostName().c_str();
    }

    // Starts processes that run `body` at the same time, and expects Yes of each.
    static void race(unsigned processes, Users users, const std::function<int()>& body) {
        const Gate start;
        std::vector<Child> children(processes);
        for (unsigned i = 0; i < processes; ++i) {
            children[i].with("DISPLAY", users == Users::One ? ":1" : ':' + std::to_string(i)).start([&] {
                start.pass();
                return body();
            });
        }
        start.open(processes);
        for (Child& child : children) EXPECT_EQ(child.wait(), Yes);
    }
};

constexpr unsigned racers = 32;

// The sheets that they race for.
std::vector<std::string> sheetNames() {
    std::vector<std::string> names;
    for (int number = 100; number < 300; ++number) names.push_back(std::to_string(number));
    return names;
}

std::vector<std::string> lockFilesOf(std::vector<std::string> names) {
    for (std::string& name : names) name += ".___";
    return names;
}

// Sets the size that files can grow to, as a disk that is nearly full.
void limitFiles(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

TEST_F(LocksAcrossProcesses, OneHoldsAnotherIsRefusedAThirdJoins) {
    const Gate locked;
    const Gate done;
    Child first;
    first.with("DISPLAY", ":1").start([&] {
        if (!lock()) return Broken;
        locked.open();
        done.pass();
        return unlock() ? Yes : No;
    });
    locked.pass();

    EXPECT_EQ(Child().with("DISPLAY", ":2").run([&] { return tryLock(); }), No);
    EXPECT_EQ(Child().with("DISPLAY", ":2").run([&] { return unlock() ? Yes : No; }), No);
    const BexLockInfo seen = holder();
    EXPECT_TRUE(isWhole(seen));
    EXPECT_EQ(seen.display, ":1");
    EXPECT_NE(seen.pid, Ygetpid());

    // The same user at the same display joins, and doesn't end the lock of the first.
    EXPECT_EQ(Child().with("DISPLAY", ":1").run([&] { return lock() && unlock() ? Yes : No; }), Yes);
    EXPECT_EQ(holder().pid, seen.pid);

    done.open();
    EXPECT_EQ(first.wait(), Yes);
    EXPECT_FALSE(exists(lockFile));
    EXPECT_EQ(Child().with("DISPLAY", ":2").run([&] { return lock() && unlock() ? Yes : No; }), Yes);
}

TEST_F(LocksAcrossProcesses, OneUserIsRefusedByTheLockOfAnother) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user";
    setMode(log, 0777);
    ASSERT_TRUE(lock());
    EXPECT_EQ(Child().asNobody().run([&] { return tryLock(); }), No);
    ASSERT_TRUE(unlock());
    EXPECT_EQ(Child().asNobody().run([&] { return tryLock(); }), Yes);
    EXPECT_FALSE(lock());
    EXPECT_EQ(holder().user, "nobody");
}

TEST_F(LocksAcrossProcesses, TheLockOfAKilledProcessBlocksOthersButNotItsAuthor) {
    const auto lockAndDie = [&] {
        lock();
        return ::raise(SIGKILL);
    };
    EXPECT_EQ(Child().with("DISPLAY", ":1").run(lockAndDie), Child::signalled);
    EXPECT_EQ(listOf(log), std::vector<std::string>{"001.___"});
    const std::string left = contentOf(lockFile);
    EXPECT_EQ(Child().with("DISPLAY", ":2").run([&] { return tryLock(); }), No);
    EXPECT_EQ(Child().with("DISPLAY", ":1").run([&] { return lock() && unlock() ? Yes : No; }), Yes);
    EXPECT_EQ(contentOf(lockFile), left);
}

TEST_F(LocksAcrossProcesses, TheEndOfAProcessLeavesItsLockFile) {
    const auto lockAndExit = [&]() -> int {
        lock();
        std::exit(Yes); // the library is unloaded as at the end of a program
    };
    EXPECT_EQ(Child().run(lockAndExit), Yes);
    EXPECT_TRUE(exists(lockFile));
}

// All run through the same sheets, so they meet at each of them.
TEST_F(LocksAcrossProcesses, OfRacingStrangersExactlyOneTakesASheet) {
    const std::vector<std::string> names = sheetNames();
    const std::string won = dir.makeDirectory("won");
    const auto body = [&]() -> int {
        for (const std::string& name : names) {
            // Those who lose see the lock of the winner, whole.
            if (!lock(name)) {
                if (!isWhole(holder(name))) return Broken;
            } else if (::mkdir((won + '/' + name).c_str(), 0777) != 0) {
                return Broken; // somebody else has won it, too
            }
        }
        return Yes;
    };
    race(racers, Users::Many, body);
    EXPECT_EQ(listOf(won), names);
    EXPECT_EQ(listOf(log), lockFilesOf(names));
}

TEST_F(LocksAcrossProcesses, OfRacingProcessesOfOneUserExactlyOneCreatesTheFileAndTheOthersJoin) {
    const std::vector<std::string> names = sheetNames();
    const auto body = [&]() -> int {
        for (const std::string& name : names) {
            if (!lock(name)) return No;
            // A process that took another's file for its own creation would remove it.
            if (holder(name).pid != Ygetpid() && !unlock(name)) return Broken;
        }
        return Yes;
    };
    race(racers, Users::One, body);
    EXPECT_EQ(listOf(log), lockFilesOf(names));
}

TEST_F(LocksAcrossProcesses, ASheetThatIsLockedAndUnlockedAllTheTimeIsNeverHeldByTwo) {
    const std::string guard = dir.file("guard");
    const auto body = [&]() -> int {
        for (int turn = 0; turn < 50; ++turn) {
            if (!lock()) continue;
            // Whoever holds the sheet is alone.
            if (::mkdir(guard.c_str(), 0777) != 0) return Broken;
            if (::rmdir(guard.c_str()) != 0 || !unlock()) return Broken;
        }
        return Yes;
    };
    race(8, Users::Many, body);
    EXPECT_EQ(listOf(log), std::vector<std::string>());
}

TEST_F(LocksAcrossProcesses, AFullDiskGivesFalseAndLeavesNothingBehind) {
    for (const rlim_t room : {0u, 10u}) {
        const auto body = [&]() -> int {
            limitFiles(room);
            if (lock() || unlock() || !listOf(log).empty()) return Broken;
            limitFiles(1'000'000);
            return lock() && unlock() ? Yes : No;
        };
        EXPECT_EQ(Child().run(body), Yes) << "room for " << room << " bytes";
        EXPECT_EQ(listOf(log), std::vector<std::string>());
    }
}

TEST_F(LocksAcrossProcesses, AReadOnlyDirectoryGivesFalseAndLeavesNothingBehind) {
    setMode(log, 0555);
    EXPECT_EQ(Child().asNobody().run([&] { return lock() || unlock() ? Yes : No; }), No);
    EXPECT_EQ(listOf(log), std::vector<std::string>());
}

TEST_F(LocksAcrossProcesses, AFailedRemovalLeavesTheSheetLocked) {
    dir.openToAll();
    // Only its owner can take the rights to a directory away and give them back.
    const std::string ownLog = dir.file("log");
    const std::string ownSheet = dir.file("001.sht");
    const auto unlockIt = [&] { return BexUnlock(&owner, LexSheetLogged, ownSheet.c_str()); };
    const auto body = [&]() -> int {
        ::mkdir(ownLog.c_str(), 0755);
        if (!BexLock(&owner, LexSheetLogged, ownSheet.c_str())) return Broken;
        setMode(ownLog, 0555);
        if (unlockIt() || listOf(ownLog).size() != 1) return Broken;
        setMode(ownLog, 0755);
        return unlockIt() && listOf(ownLog).empty() ? Yes : No;
    };
    EXPECT_EQ(Child().asNobody().run(body), Yes);
}

TEST_F(LocksAcrossProcesses, AnUnreadableLockLooksFreeAndIsJoined) {
    setMode(log, 0777);
    writeFile(lockFile, lockBy("somebody", ":8", "elsewhere"));
    setMode(lockFile, 0);
    const auto body = [&]() -> int {
        BexLockInfo info;
        if (!BexCheckLock(LexSheetLogged, sheet.c_str(), info)) return Broken;
        if (!lock()) return No;
        return unlock() ? Broken : Yes; // it looks free to an unlock as well
    };
    EXPECT_EQ(Child().asNobody().run(body), Yes);
    EXPECT_TRUE(exists(lockFile));
}

TEST_F(LocksAcrossProcesses, ALibraryIsLockedForOthers) {
    const std::string library = dir.file("parts.lib");
    const auto isLocked = [&] { return BexLcdbIsLocked(&owner, library.c_str()) ? Yes : No; };
    const auto unlockIt = [&] { return BexLcdbUnlock(&owner, library.c_str()) ? Yes : No; };
    EXPECT_EQ(
        Child().with("DISPLAY", ":1").run([&] { return BexLcdbLock(&owner, library.c_str()) ? Yes : No; }),
        Yes);
    EXPECT_EQ(Child().with("DISPLAY", ":2").run(isLocked), Yes);
    EXPECT_EQ(Child().with("DISPLAY", ":1").run(isLocked), No);
    EXPECT_EQ(Child().with("DISPLAY", ":2").run(unlockIt), No);
    EXPECT_EQ(Child().with("DISPLAY", ":1").run(unlockIt), Yes);
    EXPECT_EQ(Child().with("DISPLAY", ":2").run(isLocked), No);
}

TEST_F(LocksAcrossProcesses, ALibraryThatCannotBeWrittenIsNotLocked) {
    const std::string library = log + "/parts.lib";
    setMode(log, 0555);
    EXPECT_EQ(Child().asNobody().run([&] { return BexLcdbLock(&owner, library.c_str()) ? Yes : No; }), No);
}

TEST_F(LocksAcrossProcesses, ALibraryCountsAsLockedOnceItsLockFileIsOpenEvenOnAFullDisk) {
    const std::string library = dir.file("parts.lib");
    const auto body = [&]() -> int {
        limitFiles(0);
        return BexLcdbLock(&owner, library.c_str()) ? Yes : No;
    };
    EXPECT_EQ(Child().run(body), Yes);
    EXPECT_EQ(contentOf(dir.file("parts.___")), "");
}
