#include "bexa/foundation/os.h"

#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

namespace os = bexa::detail::os;
using namespace bexa::test;

namespace {

TEST(WholeFile, ReadsEveryByte) {
    const TempDir dir;
    std::string bytes;
    for (int i = 0; i < 300000; ++i) {
        bytes += static_cast<char>(i * 7);
    }
    for (const std::string& content : {std::string(), std::string("a\0b\r\n\x1A", 6), bytes}) {
        writeFile(dir.file("file"), content);
        std::string read = "before";
        EXPECT_TRUE(os::readWholeFile(dir.file("file").c_str(), read));
        EXPECT_EQ(read, content);
    }
}

TEST(WholeFile, ReadsAFileThatDoesNotTellItsSize) {
    std::string read;
    EXPECT_TRUE(os::readWholeFile("/proc/self/status", read));
    EXPECT_NE(read.find("Name:"), std::string::npos);
}

TEST(WholeFile, OnlyAFileCanBeRead) {
    const TempDir dir;
    ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0600), 0);
    for (const std::string& path : {dir.path(), dir.file("missing"), dir.file("pipe"), std::string()}) {
        std::string read = "before";
        EXPECT_FALSE(os::readWholeFile(path.c_str(), read)) << path;
        EXPECT_EQ(read, "") << path;
    }
    std::string read = "before";
    EXPECT_FALSE(os::readWholeFile(nullptr, read));
    EXPECT_EQ(read, "");
}

TEST(WholeFile, OneWithoutPermissionCannotBeRead) {
    const TempDir dir;
    writeFile(dir.file("file"), "text");
    setMode(dir.file("file"), 0);
    EXPECT_EQ(Child().asNobody().run([&] {
        std::string read;
        return os::readWholeFile(dir.file("file").c_str(), read) ? 1 : 0;
    }),
              0);
}

TEST(WholeFile, WritingReplacesTheContentInPlace) {
    const TempDir dir;
    const std::string file = dir.file("file");
    EXPECT_TRUE(os::writeWholeFile(file.c_str(), "a longer text\n"));
    EXPECT_EQ(contentOf(file), "a longer text\n");
    ASSERT_EQ(::link(file.c_str(), dir.file("same").c_str()), 0);
    EXPECT_TRUE(os::writeWholeFile(file.c_str(), "short\n", os::LineEnds::AsGiven));
    EXPECT_EQ(contentOf(dir.file("same")), "short\n");
}

TEST(WholeFile, WhatCannotBeOpenedCannotBeWritten) {
    const TempDir dir;
    EXPECT_FALSE(os::writeWholeFile(dir.path().c_str(), "text"));
    EXPECT_FALSE(os::writeWholeFile(dir.file("no/where").c_str(), "text"));
    EXPECT_FALSE(os::writeWholeFile("", "text"));
    EXPECT_FALSE(os::writeWholeFile(nullptr, "text"));
}

TEST(WholeFile, AWriteThatFailsLaterIsNotReported) {
    if (os::kindOf("/dev/full") == os::PathKind::Missing) GTEST_SKIP() << "no device that is always full";
    EXPECT_TRUE(os::writeWholeFile("/dev/full", "text"));
}

TEST(WholeFile, CreationIsExclusiveAndLeavesNothingElse) {
    const TempDir dir;
    const std::string file = dir.file("lock");
    EXPECT_EQ(os::createWholeFile(file.c_str(), "mine\n"), os::Creation::Made);
    EXPECT_EQ(os::createWholeFile(file.c_str(), "yours\n"), os::Creation::Exists);
    EXPECT_EQ(contentOf(file), "mine\n");
    EXPECT_EQ(os::createWholeFile(dir.path().c_str(), ""), os::Creation::Exists);
    EXPECT_EQ(os::createWholeFile(dir.file("no/where").c_str(), ""), os::Creation::Failed);
    EXPECT_EQ(os::createWholeFile("", ""), os::Creation::Failed);
    EXPECT_EQ(os::createWholeFile(nullptr, ""), os::Creation::Failed);
    EXPECT_EQ(listOf(dir.path()), std::vector<std::string>{"lock"});
}

TEST(WholeFile, CreationHasThePermissionsOfAnyNewFile) {
    const TempDir dir;
    const mode_t mask = ::umask(022);
    EXPECT_EQ(os::createWholeFile(dir.file("lock").c_str(), ""), os::Creation::Made);
    ::umask(mask);
    struct stat state = {};
    ASSERT_EQ(::stat(dir.file("lock").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777, 0644U);
    EXPECT_EQ(state.st_nlink, 1U);
}

TEST(WholeFile, CreationIsNotHinderedByADraftThatACrashLeftBehind) {
    const TempDir dir;
    writeFile(dir.file(".bexa-" + std::to_string(os::processId()) + "-0"), "left");
    EXPECT_EQ(os::createWholeFile(dir.file("lock").c_str(), "mine"), os::Creation::Made);
    EXPECT_EQ(contentOf(dir.file("lock")), "mine");
}

TEST(WholeFile, OfManyProcessesThatCreateAFileOneMakesItWhole) {
    const TempDir dir;
    const std::string file = dir.file("lock");
    const std::string content(100000, 'x');
    for (int round = 0; round < 20; ++round) {
        std::vector<Child> children(6);
        for (Child& child : children) {
            child.start([&] {
                const os::Creation made = os::createWholeFile(file.c_str(), content);
                if (made == os::Creation::Made) return 1;
                return made == os::Creation::Exists && contentOf(file) == content ? 0 : 2;
            });
        }
        std::vector<int> results;
        for (Child& child : children) {
            results.push_back(child.wait());
        }
        EXPECT_EQ(std::ranges::count(results, 1), 1);
        EXPECT_EQ(std::ranges::count(results, 0), 5);
        EXPECT_TRUE(os::removeFile(file.c_str()));
    }
    EXPECT_TRUE(listOf(dir.path()).empty());
}

TEST(Paths, KindsAreToldApart) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    ASSERT_EQ(::symlink(dir.path().c_str(), dir.file("link").c_str()), 0);
    ASSERT_EQ(::symlink("nowhere", dir.file("dangling").c_str()), 0);
    EXPECT_EQ(os::kindOf(dir.path().c_str()), os::PathKind::Directory);
    EXPECT_EQ(os::kindOf(dir.file("link").c_str()), os::PathKind::Directory);
    EXPECT_EQ(os::kindOf(dir.file("file").c_str()), os::PathKind::File);
    EXPECT_EQ(os::kindOf("/dev/null"), os::PathKind::File);
    EXPECT_EQ(os::kindOf(dir.file("dangling").c_str()), os::PathKind::Missing);
    EXPECT_EQ(os::kindOf(""), os::PathKind::Missing);
    EXPECT_EQ(os::kindOf(nullptr), os::PathKind::Missing);
}

TEST(Paths, OpeningTellsWhatMayBeDoneAndChangesNothing) {
    const TempDir dir;
    const std::string file = dir.file("file");
    writeFile(file, "text");
    const auto opens = [&](unsigned permissions) {
        setMode(file, permissions);
        return Child().asNobody().run([&] {
            return (os::opensForReading(file.c_str()) ? 1 : 0) +
                   (os::opensForAppending(file.c_str()) ? 2 : 0);
        });
    };
    EXPECT_EQ(opens(0666), 3);
    EXPECT_EQ(opens(0444), 1);
    EXPECT_EQ(opens(0222), 2);
    EXPECT_EQ(opens(0000), 0);
    setMode(file, 0600);
    EXPECT_EQ(contentOf(file), "text");
    for (const std::string& path : {dir.path(), dir.file("missing")}) {
        EXPECT_FALSE(os::opensForReading(path.c_str()));
        EXPECT_FALSE(os::opensForAppending(path.c_str()));
    }
    EXPECT_FALSE(os::opensForReading(nullptr));
    EXPECT_FALSE(exists(dir.file("missing")));
}

TEST(Paths, EachRemovalKnowsItsKind) {
    const TempDir dir;
    const std::string inner = dir.makeDirectory("inner");
    const std::string file = dir.file("inner/file");
    writeFile(file, "");
    EXPECT_FALSE(os::removeDirectory(file.c_str()));
    EXPECT_FALSE(os::removeFile(inner.c_str()));
    EXPECT_FALSE(os::removeDirectory(inner.c_str()));
    EXPECT_TRUE(os::removeFile(file.c_str()));
    EXPECT_TRUE(os::removeDirectory(inner.c_str()));
    EXPECT_FALSE(os::removeDirectory(nullptr));
}

TEST(Paths, OneLevelIsMade) {
    const TempDir dir;
    EXPECT_FALSE(os::makeDirectory(dir.file("a/b").c_str()));
    EXPECT_TRUE(os::makeDirectory(dir.file("a").c_str()));
    EXPECT_FALSE(os::makeDirectory(dir.file("a").c_str()));
    EXPECT_TRUE(os::makeDirectory(dir.file("a/b").c_str()));
    EXPECT_FALSE(os::makeDirectory(nullptr));
}

TEST(Paths, TheCurrentDirectoryMayBeDeepOrGone) {
    const TempDir dir;
    EXPECT_EQ(Child().run([&] {
        std::string deep = dir.path();
        for (int i = 0; i < 10; ++i) {
            deep += "/" + std::string(100, 'd');
            if (!os::makeDirectory(deep.c_str())) return 1;
        }
        if (::chdir(deep.c_str()) != 0) return 2;
        if (os::currentDirectory() != deep) return 3;
        if (!os::removeDirectory(deep.c_str())) return 4;
        return os::currentDirectory().empty() ? 0 : 5;
    }),
              0);
}

TEST(DirectorySearch, GivesEachNameButTheStepsOnce) {
    const TempDir dir;
    std::vector<std::string> made = {".hidden", "..odd", "a", "b"};
    for (const std::string& name : made) {
        writeFile(dir.file(name), "");
    }
    os::DirectorySearch search(dir.path().c_str());
    ASSERT_TRUE(search.isOpen());
    std::vector<std::string> found;
    for (std::string name; search.next(name);) {
        found.push_back(name);
    }
    std::ranges::sort(found);
    std::ranges::sort(made);
    EXPECT_EQ(found, made);
}

TEST(DirectorySearch, OnlyADirectoryIsOpen) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    std::string name = "before";
    const std::string file = dir.file("file");
    for (const char* path : {file.c_str(), "/no/such", "", static_cast<const char*>(nullptr)}) {
        os::DirectorySearch search(path);
        EXPECT_FALSE(search.isOpen());
        EXPECT_FALSE(search.next(name));
    }
}

} // namespace
