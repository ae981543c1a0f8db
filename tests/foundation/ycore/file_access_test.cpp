#include "bexa/foundation/ycore/file_access.h"

#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>

using namespace bexa::test;

namespace {

TEST(FileAccess, SaysYesWithANonzeroWord) {
    const TempDir dir;
    const std::string file = dir.file("here");
    writeFile(file, "text");
    for (const int mode : {0, 2, 4, 6}) {
        EXPECT_NE(Yaccess(file.c_str(), mode), 0U) << mode;
        EXPECT_EQ(Yaccess(dir.file("missing").c_str(), mode), 0U) << mode;
        EXPECT_EQ(Yaccess(nullptr, mode), 0U) << mode;
        EXPECT_EQ(Yaccess("", mode), 0U) << mode;
    }
}

TEST(FileAccess, ADirectoryExistsToo) {
    const TempDir dir;
    EXPECT_NE(Yaccess(dir.path().c_str(), 0), 0U);
}

TEST(FileAccess, FollowsThePermissions) {
    const TempDir dir;
    const std::string file = dir.file("here");
    writeFile(file, "text");
    const auto passed = [&](unsigned permissions) {
        setMode(file, permissions);
        return Child().asNobody().run([&] {
            int result = 0;
            for (const int mode : {0, 2, 4}) {
                result |= Yaccess(file.c_str(), mode) ? 1 << mode : 0;
            }
            return result;
        });
    };
    EXPECT_EQ(passed(0666), 1 | 4 | 16);
    EXPECT_EQ(passed(0444), 1 | 16);
    EXPECT_EQ(passed(0222), 1 | 4);
    EXPECT_EQ(passed(0000), 1);
}

TEST(FileAccess, StatGivesTheStateOfAFile) {
    const TempDir dir;
    writeFile(dir.file("five"), "12345");
    struct _stat state = {};
    EXPECT_EQ(Ystat(dir.file("five").c_str(), &state), 0);
    EXPECT_EQ(state.st_size, 5);
    EXPECT_EQ(Ystat(dir.path().c_str(), &state), 0);
    EXPECT_TRUE(S_ISDIR(state.st_mode));
}

TEST(FileAccess, AFailedStatLeavesTheStateAlone) {
    struct _stat state = {};
    state.st_size = 77;
    EXPECT_NE(Ystat("/no/such/file", &state), 0);
    EXPECT_NE(Ystat(nullptr, &state), 0);
    EXPECT_NE(Ystat("/", nullptr), 0);
    EXPECT_EQ(state.st_size, 77);
}

TEST(FileAccess, ChmodSetsThePermissions) {
    const TempDir dir;
    const std::string file = dir.file("here");
    writeFile(file, "");
    EXPECT_EQ(Ychmod(file.c_str(), 0600), 0);
    EXPECT_EQ(Ychmod(file.c_str(), 438), 0);
    struct _stat state = {};
    ASSERT_EQ(Ystat(file.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 07777, 0666U);
    EXPECT_NE(Ychmod(dir.file("missing").c_str(), 0666), 0);
    EXPECT_NE(Ychmod(nullptr, 0666), 0);
}

TEST(FileAccess, UnlinkRemovesAFileAndNoDirectory) {
    const TempDir dir;
    writeFile(dir.file("here"), "");
    EXPECT_EQ(Yunlink(dir.file("here").c_str()), 0);
    EXPECT_FALSE(exists(dir.file("here")));
    EXPECT_NE(Yunlink(dir.file("here").c_str()), 0);
    const std::string inner = dir.makeDirectory("inner");
    EXPECT_NE(Yunlink(inner.c_str()), 0);
    EXPECT_TRUE(exists(inner));
    EXPECT_NE(Yunlink(nullptr), 0);
}

} // namespace
