#include "bexa/store/access_snapshot.h"

#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <string>

using namespace bexa::test;

namespace {

// Opens what is protected.
struct File : BexSecFile {
    using BexSecFile::BexSecFile;
    using BexSecFile::IsDir;
    using BexSecFile::SetPathname;
};

struct Snapshot : testing::Test {
    TempDir dir;
    std::string path = dir.file("path");
};

using SecFile = Snapshot;
using SecDirectory = Snapshot;

} // namespace

TEST_F(SecFile, OfNothing) {
    const BexSecFile none;
    EXPECT_EQ(none.GetPathname(), "");
    for (const BexSecFile& file : {none, BexSecFile(nullptr), BexSecFile(""), BexSecFile(path.c_str())}) {
        EXPECT_FALSE(file.IsExist());
        EXPECT_FALSE(file.IsReadable());
        EXPECT_FALSE(file.IsWritable());
        EXPECT_FALSE(file.IsRWable());
    }
}

TEST_F(SecFile, OfAFileThatMayBeReadAndWritten) {
    writeFile(path, "content");
    const File file(path.c_str());
    EXPECT_STREQ(file, path.c_str());
    EXPECT_EQ(file.GetPathname(), path.c_str());
    EXPECT_TRUE(file.IsExist());
    EXPECT_TRUE(file.IsReadable());
    EXPECT_TRUE(file.IsWritable());
    EXPECT_TRUE(file.IsRWable());
    EXPECT_FALSE(file.IsDir());
    EXPECT_EQ(contentOf(path), "content") << "a look changes nothing";
}

TEST_F(SecFile, PermissionsAreLearnedByOpening) {
    writeFile(path, "");
    const auto nobodySees = [&](unsigned mode) {
        setMode(path, mode);
        return Child().asNobody().run([&] {
            const BexSecFile file(path.c_str());
            return static_cast<int>(file.IsExist() + 2 * file.IsReadable() + 4 * file.IsWritable() +
                                    8 * file.IsRWable());
        });
    };
    EXPECT_EQ(nobodySees(0000), 1);
    EXPECT_EQ(nobodySees(0444), 3);
    EXPECT_EQ(nobodySees(0222), 5);
    EXPECT_EQ(nobodySees(0666), 15);
}

TEST_F(SecFile, ADirectoryPassesNoTest) {
    writeFile(dir.file("entry"), "");
    const File file(dir.path().c_str());
    EXPECT_TRUE(file.IsDir());
    EXPECT_FALSE(file.IsExist());
    EXPECT_FALSE(file.IsReadable());
    EXPECT_FALSE(file.IsWritable());
    EXPECT_FALSE(file.IsRWable());
}

TEST_F(SecFile, AnEmptyDirectoryIsOne) {
    EXPECT_TRUE(File(dir.path().c_str()).IsDir());
    EXPECT_FALSE(BexSecDirectory(dir.path().c_str()).IsReadable());
}

TEST_F(SecFile, APipeIsLookedAtWithoutWaiting) {
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    EXPECT_TRUE(BexSecFile(path.c_str()).IsExist());
}

TEST_F(SecFile, IsNotRefreshed) {
    const BexSecFile before(path.c_str());
    writeFile(path, "");
    EXPECT_FALSE(before.IsExist());
    const BexSecFile after(path.c_str());
    std::filesystem::remove(path);
    EXPECT_TRUE(after.IsExist());
}

TEST_F(SecFile, TheCopyHoldsWhatWasSeenWhileAssignmentLooksAnew) {
    const BexSecFile before(path.c_str());
    writeFile(path, "");
    const BexSecFile copy(before);
    EXPECT_FALSE(copy.IsExist());
    EXPECT_EQ(copy.GetPathname(), path.c_str());
    BexSecFile assigned;
    assigned = before;
    EXPECT_TRUE(assigned.IsExist());
    EXPECT_EQ(assigned.GetPathname(), path.c_str());
}

TEST_F(SecFile, AssigningAPathLooksAnew) {
    writeFile(path, "");
    BexSecFile file(path.c_str());
    file = dir.file("missing").c_str();
    EXPECT_FALSE(file.IsExist());
    file = path.c_str();
    EXPECT_TRUE(file.IsExist());
    std::filesystem::remove(path);
    EXPECT_TRUE(file.IsExist());
    const BexSecFile& same = file;
    file = same;
    EXPECT_FALSE(file.IsExist()) << "also from itself";
    file = static_cast<const char*>(nullptr);
    EXPECT_EQ(file.GetPathname(), "");
}

TEST_F(SecDirectory, WithAnEntry) {
    writeFile(dir.file("entry"), "");
    const BexSecDirectory directory(dir.path().c_str());
    EXPECT_TRUE(directory.IsExist());
    EXPECT_TRUE(directory.IsReadable());
    EXPECT_TRUE(directory.IsWritable());
    EXPECT_TRUE(directory.IsExecutable());
    EXPECT_TRUE(directory.IsFullControl());
    EXPECT_TRUE(BexSecDirectory((dir.path() + "/").c_str()).IsReadable());
}

TEST_F(SecDirectory, AHiddenEntryCounts) {
    writeFile(dir.file(".hidden"), "");
    EXPECT_TRUE(BexSecDirectory(dir.path().c_str()).IsReadable());
}

TEST_F(SecDirectory, AnEmptyDirectoryIsNotReadableButUnderFullControl) {
    const BexSecDirectory directory(dir.path().c_str());
    EXPECT_TRUE(directory.IsExist());
    EXPECT_FALSE(directory.IsReadable());
    EXPECT_TRUE(directory.IsWritable());
    EXPECT_TRUE(directory.IsExecutable());
    EXPECT_TRUE(directory.IsFullControl());
}

TEST_F(SecDirectory, EveryDirectoryCountsAsWritable) {
    dir.makeDirectory("closed");
    const std::string closed = dir.file("closed");
    writeFile(closed + "/entry", "");
    setMode(closed, 0);
    EXPECT_EQ(Child().asNobody().run([&] {
        const BexSecDirectory directory(closed.c_str());
        return directory.IsFullControl() && !directory.IsReadable() ? 0 : 1;
    }),
              0);
}

TEST_F(SecDirectory, AFileAndNothingPassNoTest) {
    writeFile(path, "");
    for (const BexSecDirectory& directory :
         {BexSecDirectory(), BexSecDirectory(path.c_str()), BexSecDirectory(dir.file("missing").c_str())}) {
        EXPECT_FALSE(directory.IsExist());
        EXPECT_FALSE(directory.IsReadable());
        EXPECT_FALSE(directory.IsWritable());
        EXPECT_FALSE(directory.IsExecutable());
        EXPECT_FALSE(directory.IsFullControl());
    }
}

TEST_F(SecDirectory, CopyAndAssignmentBothLookAnew) {
    const BexSecDirectory before(dir.path().c_str());
    ASSERT_FALSE(before.IsReadable());
    writeFile(dir.file("entry"), "");
    const BexSecDirectory copy(before);
    EXPECT_TRUE(copy.IsReadable());
    BexSecDirectory assigned;
    assigned = before;
    EXPECT_TRUE(assigned.IsReadable());
    BexSecDirectory fromPath;
    fromPath = dir.path().c_str();
    EXPECT_TRUE(fromPath.IsReadable());
    EXPECT_FALSE(before.IsReadable()) << "the source keeps what it saw";
}
