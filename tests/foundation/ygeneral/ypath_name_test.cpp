#include "bexa/foundation/ygeneral/ypath_name.h"

#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/fresh_process.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>

using namespace bexa::test;

namespace {

struct Pair {
    const char* path;
    const char* result;
};

std::string currentDirectory() {
    char buffer[4096];
    return ::getcwd(buffer, sizeof buffer);
}

TEST(YPathName, JoinsWithExactlyOneSeparator) {
    struct Row {
        const char* path;
        const char* added;
        const char* result;
    };
    const Row rows[] = {
        {"a", "b", "a/b"},   {"a/", "b", "a/b"},   {"a\\", "b", "a\\b"},      {"", "b", "b"},
        {"", "/b", "/b"},    {"/", "b", "/b"},     {"a", "b/c.d", "a/b/c.d"}, {"a", "/b", "a/b"},
        {"a/", "/b", "a/b"}, {"a", "", "a"},       {"a", nullptr, "a"},       {"", nullptr, ""},
        {nullptr, "b", "b"}, {"a//", "b", "a//b"}, {"a/b", "..", "a/b/.."},
    };
    for (const Row& row : rows) {
        EXPECT_STREQ(YPathName(row.path, row.added), row.result);
        YPathName path(row.path);
        EXPECT_EQ(&(path += row.added), &path);
        EXPECT_STREQ(path, row.result);
    }
}

TEST(YPathName, CanBeAppendedToItself) {
    YPathName path("a directory with a name that lies on the heap/b");
    path += path;
    EXPECT_STREQ(path, "a directory with a name that lies on the heap/b/"
                       "a directory with a name that lies on the heap/b");
    YPathName small("a/b");
    small += static_cast<const char*>(small) + 2;
    EXPECT_STREQ(small, "a/b/b");
    small.addSuffix(static_cast<const char*>(small) + 2);
    EXPECT_STREQ(small, "a/b/b.b/b");
}

TEST(YPathName, IsMadeFromEveryKindOfText) {
    const YString text("a/b");
    const YPathName path(text);
    YPathName other;
    other = text;
    EXPECT_TRUE(path == other);
    other = "c";
    EXPECT_STREQ(other, "c");
    other = path;
    EXPECT_STREQ(other, "a/b");
    other = static_cast<const char*>(nullptr);
    EXPECT_STREQ(other, "");
    EXPECT_STREQ(YPathName(static_cast<const char*>(nullptr)), "");
}

TEST(YPathName, SuffixIsThatOfTheLastComponent) {
    const Pair rows[] = {
        {"a.cir", ".cir"},
        {"x.y/a.cir", ".cir"},
        {"x.y/a", ""},
        {"a.b.c", ".c"},
        {".profile", ".profile"},
        {"d/.rc", ".rc"},
        {".a.b", ".b"},
        {"a.", "."},
        {"a.cir/", ""},
        {"x.y\\a", ""},
        {"x\\a.b", ".b"},
        {".", ""},
        {"..", ""},
        {"a/..", ""},
        {"a/.", ""},
        {"...", "."},
        {"", ""},
        {"/", ""},
        {"a", ""},
    };
    for (const Pair& row : rows) {
        EXPECT_STREQ(YPathName(row.path).getSuffix(), row.result) << row.path;
    }
}

TEST(YPathName, SuffixPointsIntoThePath) {
    const YPathName path("dir/name.rsc");
    EXPECT_EQ(path.getSuffix(), static_cast<const char*>(path) + 8);
}

TEST(YPathName, AddSuffixSuppliesTheDot) {
    EXPECT_STREQ(YPathName("a").addSuffix(".cir"), "a.cir");
    EXPECT_STREQ(YPathName("a").addSuffix("cir"), "a.cir");
    EXPECT_STREQ(YPathName("a.b").addSuffix(".cir"), "a.b.cir");
    EXPECT_STREQ(YPathName("a").addSuffix(""), "a");
    EXPECT_STREQ(YPathName("a").addSuffix(nullptr), "a");
}

TEST(YPathName, CutSuffixOfNullCutsAnySuffix) {
    const Pair rows[] = {
        {"a.cir", "a"}, {"a", "a"},     {"x.y/a", "x.y/a"}, {"a.b.c", "a.b"},     {"d/.profile", "d/"},
        {"..", ".."},   {"a/.", "a/."}, {"", ""},           {"a.cir/", "a.cir/"},
    };
    for (const Pair& row : rows) {
        EXPECT_STREQ(YPathName(row.path).cutSuffix(nullptr), row.result) << row.path;
        EXPECT_STREQ(YPathName(row.path).cutSuffix(), row.result) << row.path;
    }
}

TEST(YPathName, CutSuffixOfATextCutsOnlyThatSuffix) {
    struct Row {
        const char* path;
        const char* suffix;
        const char* result;
    };
    const Row rows[] = {
        {"a.cir", ".cir", "a"},     {"a.cir", ".CIR", "a.cir"},
        {"a.cir", "cir", "a.cir"},  {"a.cir", ".blk", "a.cir"},
        {"a.b.c", ".b.c", "a.b.c"}, {"a", ".cir", "a"},
        {"a.cir", "", "a.cir"},     {"a", "", "a"},
    };
    for (const Row& row : rows) {
        EXPECT_STREQ(YPathName(row.path).cutSuffix(row.suffix), row.result) << row.path << ' ' << row.suffix;
    }
}

TEST(YPathName, DirnameIsAllBeforeTheLastComponent) {
    const Pair rows[] = {
        {"a/b", "a"},  {"a/b/c", "a/b"},  {"a", "."},      {"/x", "/"},       {"/", "/"},
        {"", "."},     {"a/b/", "a"},     {"a//b", "a"},   {"//x", "/"},      {"a/", "."},
        {"a\\b", "a"}, {"a/b\\c", "a/b"}, {"C:/x", "C:/"}, {"C:\\x", "C:\\"}, {"C:/x/y", "C:/x"},
        {"C:x", "."},  {"./a", "."},      {"../a", ".."},
    };
    for (const Pair& row : rows) {
        EXPECT_STREQ(YPathName(row.path).dirname(), row.result) << row.path;
    }
}

TEST(YPathName, BasenameIsTheLastComponent) {
    const Pair rows[] = {
        {"a/b", "b"}, {"a", "a"},    {"/x", "x"},   {"/", ""},   {"", ""},       {"a/b/", "b"},
        {"a//", "a"}, {"a\\b", "b"}, {"C:/x", "x"}, {"C:/", ""}, {"a/..", ".."}, {"a/b.c", "b.c"},
    };
    for (const Pair& row : rows) {
        EXPECT_STREQ(YPathName(row.path).basename(), row.result) << row.path;
        EXPECT_STREQ(YPathName(row.path).basename(nullptr), row.result) << row.path;
    }
}

TEST(YPathName, BasenameCanLeaveASuffixOut) {
    EXPECT_STREQ(YPathName("a/b.cir").basename(".cir"), "b");
    EXPECT_STREQ(YPathName("a/b.cir/").basename(".cir"), "b");
    EXPECT_STREQ(YPathName("a/b.cir").basename(".blk"), "b.cir");
    EXPECT_STREQ(YPathName("a/b").basename(".cir"), "b");
    EXPECT_STREQ(YPathName("a/b.cir").basename(""), "b.cir");
}

TEST(YPathName, PackTidiesTheText) {
    const Pair rows[] = {
        {"a/./b", "a/b"},
        {"a/../b", "b"},
        {"a/b/../..", "."},
        {"./a", "a"},
        {"../a", "../a"},
        {"../../a/..", "../.."},
        {"a/../../b", "../b"},
        {"/..", "/"},
        {"/../a", "/a"},
        {"/a/..", "/"},
        {"a//b/", "a/b"},
        {"//a", "/a"},
        {"/", "/"},
        {".", "."},
        {"", "."},
        {"a\\.\\b", "a/b"},
        {"C:\\a\\..\\b", "C:/b"},
        {"C:/..", "C:/"},
        {"C:/a/../..", "C:/"},
        {"...", "..."},
        {"$X/../a", "a"},
        {"a/..b/.", "a/..b"},
        {"..", ".."},
    };
    for (const Pair& row : rows) {
        YPathName path(row.path);
        EXPECT_EQ(&path.pack(), &path);
        EXPECT_STREQ(path, row.result) << row.path;
    }
}

TEST(YPathName, ExpandMakesAPathAbsolute) {
    const EnvGuard root("BEXA_TEST_ROOT", "/root dir");
    const EnvGuard relative("BEXA_TEST_RELATIVE", "rel\\dir");
    const EnvGuard empty("BEXA_TEST_EMPTY", "");
    const EnvGuard unset("BEXA_TEST_UNSET", std::nullopt);
    const std::string here = currentDirectory();
    const struct {
        const char* path;
        std::string result;
    } rows[] = {
        {"/a/b", "/a/b"},
        {"a/b", here + "/a/b"},
        {".", here + "/."},
        {"a/./../b", here + "/a/./../b"},
        {"a\\b", here + "/a/b"},
        {"\\a", "/a"},
        {"C:\\a", "C:/a"},
        {"c:a", "c:a"},
        {"1:a", here + "/1:a"},
        {"$BEXA_TEST_ROOT/a", "/root dir/a"},
        {"${BEXA_TEST_ROOT}a", "/root dira"},
        {"a/$BEXA_TEST_ROOT", here + "/a//root dir"},
        {"$BEXA_TEST_RELATIVE/a", here + "/rel/dir/a"},
        {"$BEXA_TEST_UNSET/a", "$BEXA_TEST_UNSET/a"},
        {"$BEXA_TEST_UNSET\\a", "$BEXA_TEST_UNSET/a"},
        {"$BEXA_TEST_EMPTY/a", "/a"},
        {"$BEXA_TEST_EMPTY", ""},
        {"", ""},
    };
    for (const auto& row : rows) {
        YPathName path(row.path);
        EXPECT_EQ(&path.expand(), &path);
        EXPECT_EQ(path.view(), row.result) << row.path;
    }
}

TEST(YPathName, TestTellsWhatStandsThere) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    EXPECT_EQ(YPathName(dir.path().c_str()).Test(), 1);
    EXPECT_EQ(YPathName(dir.file("file").c_str()).Test(), 2);
    EXPECT_EQ(YPathName(dir.file("missing").c_str()).Test(), 0);
    EXPECT_EQ(YPathName().Test(), 0);
}

TEST(YPathName, MkdirMakesOneLevel) {
    const TempDir dir;
    EXPECT_EQ(YPathName(dir.file("a/b").c_str()).Mkdir(), 0U);
    EXPECT_EQ(YPathName(dir.file("a").c_str()).Mkdir(), 1U);
    EXPECT_EQ(YPathName(dir.file("a").c_str()).Mkdir(), 0U);
    EXPECT_EQ(YPathName(dir.file("a").c_str()).Test(), YPathName::TestDirectory);
    EXPECT_EQ(YPathName().Mkdir(), 0U);
}

// 0x83 0x5C is one character of Shift-JIS whose second byte is that of a backslash.
TEST(YPathName, ASecondByteIsNoSeparatorInShiftJis) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    const YPathName path("dir\\\x83\x5C.cir");
    EXPECT_STREQ(path.dirname(), "dir");
    EXPECT_STREQ(path.basename(), "\x83\x5C.cir");
    EXPECT_STREQ(path.getSuffix(), ".cir");
    EXPECT_STREQ(YPathName("\x83\x5C", "a"), "\x83\x5C/a");
    EXPECT_STREQ(YPathName("a/\x83\x5C/../b").pack(), "a/b");
    EXPECT_STREQ(YPathName("/\x83\x5C\\a").expand(), "/\x83\x5C/a");
    EXPECT_STREQ(YPathName("x.y\x83\x5C").getSuffix(), ".y\x83\x5C");
}

TEST(YPathName, EveryBackslashSeparatesWhereNoByteLeads) {
    if (!startedInLocale("C")) return;
    EXPECT_STREQ(YPathName("\x83\x5C"
                           "b")
                     .basename(),
                 "b");
}

} // namespace
