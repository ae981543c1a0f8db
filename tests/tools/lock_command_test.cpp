#include "tests/support/files.h"
#include "tests/tools/program.h"

#include "bexa/foundation/ycore/process.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace bexa::test {
namespace {

constexpr const char* sheet = "amplifier.cir/004.sht";

// The three commands for locks: they are one story.
class LockCommand : public Program {
protected:
    LockCommand() { set("DISPLAY", ":0"); }

    std::string lockFile() const { return file("amplifier.cir/log/004.___"); }
    std::vector<std::string> linesOfLock() const {
        std::istringstream text(contentOf(lockFile()));
        std::vector<std::string> lines;
        for (std::string line; std::getline(text, line);) lines.push_back(line);
        return lines;
    }
    // A lock of one's own at display :0 that a process took which still runs: the test itself.
    void lockByARunningProcess() const {
        char host[256];
        Ygethostname(host, sizeof host);
        writeFile(lockFile(), std::to_string(::getpid()) + "\n1\n03/09/2024 17:05\n" + YgetUserName() +
                                  "\n:0\n" + host + '\n');
    }
};

TEST_F(LockCommand, ALockOutlivesTheProgramAndEndsWithUnlock) {
    EXPECT_EQ(good({"lock", sheet}), expected("lock.txt"));
    const auto lines = linesOfLock();
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[3], YgetUserName());
    EXPECT_EQ(lines[4], ":0");

    EXPECT_EQ(good({"unlock", sheet}), expected("unlock.txt"));
    EXPECT_FALSE(exists(lockFile()));
    EXPECT_EQ(listOf(file("amplifier.cir/log")), std::vector<std::string>{"readme.txt"});
}

TEST_F(LockCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"lock", sheet}), Json::parse(R"({"sheet": "amplifier.cir/004.sht",
        "lockFile": "amplifier.cir/log/004.___", "state": "locked"})"));
    EXPECT_EQ(json({"lock", sheet})["state"], "was yours already");
    EXPECT_EQ(json({"unlock", sheet})["state"], "unlocked");
}

TEST_F(LockCommand, ALockOfOnesOwnIsJoinedAndStaysAsItIs) {
    good({"lock", sheet});
    const std::string before = contentOf(lockFile());
    EXPECT_EQ(good({"lock", sheet}), expected("lock_again.txt"));
    EXPECT_EQ(contentOf(lockFile()), before);
}

TEST_F(LockCommand, AnotherDisplayIsAnotherPerson) {
    good({"lock", sheet});
    const std::string before = contentOf(lockFile());
    const std::string since = linesOfLock()[2], user = YgetUserName(), host = linesOfLock()[5];
    const std::string message =
        "bexa: the sheet is locked by " + user + " at :0 on " + host + " since " + since +
        ": amplifier.cir/004.sht: ask the holder to close it, or to run bexa unlock if the "
        "lock was left behind\n";
    set("DISPLAY", ":1");
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"lock", sheet}, {"unlock", sheet}, {"unlock", sheet, "--force"}}) {
        const Outcome result = run(words);
        EXPECT_EQ(result.code, 1) << words[0];
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, message);
        EXPECT_EQ(contentOf(lockFile()), before);
    }
    EXPECT_EQ(json({"locks", "amplifier.cir"})["locks"][0]["yours"], false);
    set("DISPLAY", ":0");
    good({"unlock", sheet});
}

TEST_F(LockCommand, WithoutADisplayThePersonIsTheUser) {
    unset("DISPLAY");
    good({"lock", sheet});
    EXPECT_EQ(linesOfLock()[4], YgetUserName());
    set("DISPLAY", "");
    EXPECT_EQ(json({"lock", sheet})["state"], "was yours already") << "an empty one counts as none";
    set("DISPLAY", ":0");
    const Outcome result = run({"unlock", sheet});
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(
        result.err.starts_with("bexa: the sheet is locked by " + std::string(YgetUserName()) + " on "))
        << result.err;
}

TEST_F(LockCommand, OfSeveralPeopleWhoComeTogetherOneGetsTheSheet) {
    const std::vector<std::string> displays{":1", ":2", ":3", ":4", ":5", ":6"};
    const auto codes = runTogether("DISPLAY", displays, {"lock", sheet});
    EXPECT_EQ(std::count(codes.begin(), codes.end(), 0), 1);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), 1), 5);
    const auto winner = static_cast<std::size_t>(std::find(codes.begin(), codes.end(), 0) - codes.begin());
    EXPECT_EQ(linesOfLock()[4], displays[winner]);
    EXPECT_EQ(listOf(file("amplifier.cir/log")), (std::vector<std::string>{"004.___", "readme.txt"}));
}

TEST_F(LockCommand, OnePersonWhoComesManyTimesHasOneLock) {
    const auto codes = runTogether("DISPLAY", {":1", ":1", ":1", ":1"}, {"lock", sheet});
    EXPECT_EQ(codes, (std::vector<int>{0, 0, 0, 0}));
    const auto ends = runTogether("DISPLAY", {":2", ":3"}, {"unlock", sheet});
    EXPECT_EQ(ends, (std::vector<int>{1, 1}));
    EXPECT_TRUE(exists(lockFile()));
}

TEST_F(LockCommand, ASheetThatAProgramOfYoursHoldsStaysLocked) {
    lockByARunningProcess();
    EXPECT_EQ(json({"locks", "amplifier.cir"})["locks"][0]["running"], true);
    const Outcome result = run({"unlock", sheet});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err,
              "bexa: the process " + std::to_string(::getpid()) +
                  " that locked the sheet for you still runs: amplifier.cir/004.sht: close the sheet "
                  "there, or end its lock all the same with --force\n");
    EXPECT_TRUE(exists(lockFile()));
    EXPECT_EQ(json({"unlock", sheet, "--force"})["state"], "unlocked");
    EXPECT_FALSE(exists(lockFile()));
}

TEST_F(LockCommand, UnlockingWhatIsNotLockedIsAFinding) {
    const Outcome result = run({"unlock", sheet});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err,
              "bexa: the sheet is not locked: amplifier.cir/004.sht: bexa locks shows what is locked in "
              "its circuit\n");
}

TEST_F(LockCommand, TheLockOfASheetThatIsGoneCanBeEnded) {
    good({"lock", sheet});
    std::filesystem::remove(file(sheet));
    good({"unlock", sheet});
    EXPECT_FALSE(exists(lockFile()));
}

struct Row {
    std::vector<std::string> arguments;
    const char* message;
};

TEST_F(LockCommand, OnlySheetsAreLocked) {
    writeFile(file("amplifier.cir/_004.sht"), "");
    writeFile(file("amplifier.cir/#004.sht"), "");
    writeFile(file("loose.sht"), "");
    const Row rows[] = {
        {{"lock", "amplifier.cir/004.net"},
         "bexa: not a sheet: amplifier.cir/004.net: give the path of a file whose name ends in .sht\n"},
        {{"unlock", ""}, "bexa: not a sheet: \"\": give the path of a file whose name ends in .sht\n"},
        {{"lock", "amplifier.cir/_004.sht"},
         "bexa: a copy of a sheet: amplifier.cir/_004.sht: give the sheet itself: a lock holds for its "
         "copies, "
         "too\n"},
        {{"unlock", "amplifier.cir/#004.sht"},
         "bexa: a copy of a sheet: amplifier.cir/#004.sht: give the sheet itself: a lock holds for its "
         "copies, "
         "too\n"},
        {{"lock", "amplifier.cir/044.sht"}, "bexa: no such sheet: amplifier.cir/044.sht: check the path\n"},
        {{"lock", "loose.sht"},
         "bexa: the sheet cannot be locked: ./log/loose.___: check that the directory log is "
         "there, that you may write in it, and that there is room\n"},
    };
    for (const Row& row : rows) {
        const Outcome result = run(row.arguments);
        EXPECT_EQ(result.code, 2) << row.message;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, row.message);
    }
    EXPECT_EQ(listOf(file("amplifier.cir/log")), std::vector<std::string>{"readme.txt"});
}

TEST_F(LockCommand, ALockFileThatCannotBeReadIsToldNotJoined) {
    std::filesystem::create_directory(lockFile());
    const std::string message =
        "bexa: the lock file cannot be read: amplifier.cir/log/004.___: check what stands "
        "there and that you may read it\n";
    for (const char* command : {"lock", "unlock"}) {
        const Outcome result = run({command, sheet});
        EXPECT_EQ(result.code, 2) << command;
        EXPECT_EQ(result.err, message);
    }
    EXPECT_EQ(run({"locks", "amplifier.cir"}).err, message);
    EXPECT_TRUE(std::filesystem::is_directory(lockFile()));
}

TEST_F(LockCommand, ADirectoryThatIsProtectedKeepsItsLocks) {
    if (!becomeNobody()) GTEST_SKIP() << "nobody can't run the program here";
    const std::string log = file("amplifier.cir/log");
    setMode(log, 0555);
    EXPECT_TRUE(run({"lock", sheet})
                    .err.starts_with("bexa: the sheet cannot be locked: amplifier.cir/log/004.___: "));
    setMode(log, 0777);
    good({"lock", sheet});
    setMode(log, 0555);
    const Outcome result = run({"unlock", sheet});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the lock file cannot be removed: amplifier.cir/log/004.___: check that you may write "
              "in its directory\n");
    EXPECT_TRUE(exists(lockFile()));
    setMode(log, 0777);
    good({"unlock", sheet});
}

TEST_F(LockCommand, AnotherUserIsAnotherPerson) {
    setMode(file("amplifier.cir/log"), 0777);
    good({"lock", sheet});
    if (!becomeNobody() || ::geteuid() != 0) GTEST_SKIP() << "there is nobody else here";
    const Outcome result = run({"unlock", sheet});
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(result.err.starts_with("bexa: the sheet is locked by ")) << result.err;
    EXPECT_TRUE(exists(lockFile()));
}

TEST_F(LockCommand, LocksShowsWhoHoldsWhichSheet) {
    EXPECT_EQ(good({"locks", "output_stage.cir"}), expected("locks.txt"));
    EXPECT_EQ(json({"locks", "output_stage.cir"}), Json::parse(expected("locks.json")));
    EXPECT_EQ(good({"locks", "amplifier.cir"}), "circuit  amplifier.cir\n\nlocks\n  none\n");
}

TEST_F(LockCommand, LocksKnowsTheProcessesOfThisHostOnly) {
    good({"lock", sheet});
    EXPECT_EQ(json({"locks", "amplifier.cir"})["locks"][0]["running"], false) << "bexa lock has ended";
    EXPECT_EQ(json({"locks", "output_stage.cir"})["locks"][0]["running"], nullptr);
}

TEST_F(LockCommand, ALockFileThatTellsNothingIsSomebodys) {
    for (const char* content : {"", "\n\n\n\n\n\n", "0\n0\n", "-1\nx\n", "99999999999999999999\n"}) {
        writeFile(lockFile(), content);
        const Json row = json({"locks", "amplifier.cir"})["locks"][0];
        EXPECT_EQ(row["yours"], false) << content;
        EXPECT_EQ(row["running"], nullptr) << content;
        const Outcome result = run({"lock", sheet});
        EXPECT_EQ(result.code, 1) << content;
        EXPECT_TRUE(result.err.starts_with("bexa: the sheet is locked by somebody: ")) << result.err;
    }
}

TEST_F(LockCommand, LocksStandInTheOrderOfTheirSheets) {
    for (const char* name : {"010.___", "9.___", "001.___", "notes.txt"}) {
        writeFile(file("amplifier.cir/log/" + std::string(name)), "1\n2\n");
    }
    const Json rows = json({"locks", "amplifier.cir"})["locks"];
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0]["sheet"], "001.sht");
    EXPECT_EQ(rows[1]["sheet"], "9.sht");
    EXPECT_EQ(rows[2]["sheet"], "010.sht");
}

TEST_F(LockCommand, ACircuitWithoutADirectoryForLocksIsTold) {
    std::filesystem::remove_all(file("amplifier.cir/log"));
    const Outcome result = run({"locks", "amplifier.cir"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the directory of the locks cannot be read: amplifier.cir/log: check that it is there "
              "and that you may read it\n");
}

} // namespace
} // namespace bexa::test
