#include "bexa/store/library_locks.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "bexa/store/lock_file.h"
#include "tests/store/lock_fixture.h"

using namespace bexa::test;

namespace {

class LibraryLocks : public LockTest {
protected:
    unsigned long lock() const { return BexLcdbLock(&owner, library.c_str()); }
    unsigned long isLocked() const { return BexLcdbIsLocked(&owner, library.c_str()); }
    unsigned long unlock() const { return BexLcdbUnlock(&owner, library.c_str()); }

    const std::string library = dir.file("parts.lib");
    const std::string libraryLock = dir.file("parts.___");
};

} // namespace

TEST_F(LibraryLocks, TheLockFileLiesBesideTheLibrary) {
    EXPECT_TRUE(lock());
    const BexLockInfo expected = bexa::detail::lockOfThisProcess(&owner);
    BexLockInfo info;
    EXPECT_FALSE(BexLcdbIsLocked(&owner, library.c_str(), info));
    EXPECT_EQ(info.fileName, libraryLock.c_str());
    EXPECT_EQ(info.pid, expected.pid);
    EXPECT_EQ(info.handle, expected.handle);
    EXPECT_EQ(info.display, ":7");
    EXPECT_EQ(contentOf(libraryLock), bexa::detail::lockFileText(info));
}

TEST_F(LibraryLocks, ALibraryWithoutSuffixGetsOne) {
    EXPECT_TRUE(BexLcdbLock(&owner, dir.file("parts").c_str()));
    EXPECT_TRUE(exists(libraryLock));
}

TEST_F(LibraryLocks, TheFirstUnlockEndsTheLock) {
    EXPECT_TRUE(lock());
    EXPECT_TRUE(lock());
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(libraryLock));
    EXPECT_FALSE(unlock());
}

TEST_F(LibraryLocks, LockingOverwritesTheLockOfSomebodyElse) {
    writeFile(libraryLock, lockBy("somebody", ":8", "elsewhere") + "and more\n");
    EXPECT_TRUE(lock());
    EXPECT_FALSE(isLocked());
    BexLockInfo info;
    BexLcdbIsLocked(&owner, library.c_str(), info);
    EXPECT_EQ(contentOf(libraryLock), bexa::detail::lockFileText(info));
}

TEST_F(LibraryLocks, ALockOfSomebodyElseIsSeenAndStays) {
    const std::string stranger = lockBy("somebody", ":8", "elsewhere");
    writeFile(libraryLock, stranger);
    BexLockInfo info;
    EXPECT_TRUE(BexLcdbIsLocked(&owner, library.c_str(), info));
    EXPECT_EQ(info.user, "somebody");
    EXPECT_EQ(info.date, "03/09/2024 17:05");
    EXPECT_FALSE(unlock());
    EXPECT_EQ(contentOf(libraryLock), stranger);
}

TEST_F(LibraryLocks, ALockOfAFormerRunIsOnesOwn) {
    writeFile(libraryLock, ownLock(":7"));
    EXPECT_FALSE(isLocked());
    EXPECT_TRUE(unlock());
    EXPECT_FALSE(exists(libraryLock));
}

TEST_F(LibraryLocks, AShortLockIsSomebodyElses) {
    writeFile(libraryLock, "");
    EXPECT_TRUE(isLocked());
    EXPECT_FALSE(unlock());
}

TEST_F(LibraryLocks, AnEmptyDisplayCountsAsUnset) {
    display.set("");
    ASSERT_TRUE(lock());
    display.unset();
    EXPECT_FALSE(isLocked());
    EXPECT_TRUE(unlock());
}

TEST_F(LibraryLocks, ANullPathCannotBeLockedAndYetIsLocked) {
    BexLockInfo info;
    for (const char* path : {static_cast<const char*>(nullptr), ""}) {
        EXPECT_FALSE(BexLcdbLock(&owner, path));
        EXPECT_TRUE(BexLcdbIsLocked(&owner, path));
        EXPECT_TRUE(BexLcdbIsLocked(&owner, path, info));
        EXPECT_FALSE(BexLcdbUnlock(&owner, path));
    }
    EXPECT_EQ(info.fileName, "");
}

TEST_F(LibraryLocks, AMissingLockFileMeansFree) {
    EXPECT_FALSE(isLocked());
    EXPECT_FALSE(unlock());
}

TEST_F(LibraryLocks, ADirectoryInPlaceOfTheLockFileIsNoLock) {
    std::filesystem::create_directory(libraryLock);
    EXPECT_FALSE(lock());
    EXPECT_FALSE(isLocked());
    EXPECT_FALSE(unlock());
}
