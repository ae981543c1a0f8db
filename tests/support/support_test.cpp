#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

using namespace bexa::test;

TEST(TempDirFixture, IsRemovedWithAllItHolds) {
    std::string path;
    {
        const TempDir dir;
        path = dir.path();
        writeFile(dir.makeDirectory("a/b") + "/c", "x");
        setMode(dir.file("a/b"), 0);
    }
    EXPECT_FALSE(exists(path));
}

TEST(FilesFixture, ContentIsKeptAsBytes) {
    const TempDir dir;
    const std::string bytes("a\0\r\n\x83\x5c", 6);
    writeFile(dir.file("x"), bytes);
    EXPECT_EQ(contentOf(dir.file("x")), bytes);
    EXPECT_EQ(listOf(dir.path()), std::vector<std::string>{"x"});
}

TEST(FilesFixture, AMissingFileIsAnError) {
    const TempDir dir;
    EXPECT_THROW(contentOf(dir.file("none")), std::runtime_error);
    EXPECT_THROW(writeFile(dir.file("none/x"), ""), std::runtime_error);
}

TEST(EnvGuardFixture, PutsTheOldStateBack) {
    const EnvGuard outer("BEXA_TEST_VARIABLE", "outer");
    {
        const EnvGuard inner("BEXA_TEST_VARIABLE", std::nullopt);
        EXPECT_EQ(std::getenv("BEXA_TEST_VARIABLE"), nullptr);
        inner.set("inner");
        EXPECT_STREQ(std::getenv("BEXA_TEST_VARIABLE"), "inner");
    }
    EXPECT_STREQ(std::getenv("BEXA_TEST_VARIABLE"), "outer");
}

TEST(ChildFixture, ItsStatusComesBack) {
    EXPECT_EQ(Child().run([] { return 7; }), 7);
    EXPECT_EQ(Child().run([]() -> int { throw std::runtime_error("on purpose"); }), Child::threw);
    EXPECT_EQ(Child().run([]() -> int { return ::raise(SIGKILL); }), Child::signalled);
}

TEST(ChildFixture, SeveralRunAtOnce) {
    std::vector<Child> children(3);
    for (Child& child : children) child.start([] { return 3; });
    for (Child& child : children) EXPECT_EQ(child.wait(), 3);
    EXPECT_THROW(children[0].wait(), std::logic_error);
}

TEST(ChildFixture, SeesItsOwnEnvironment) {
    const EnvGuard taken("BEXA_TEST_TAKEN", "x");
    const auto body = [] {
        const char* given = std::getenv("BEXA_TEST_GIVEN");
        return given && std::string(given) == "y" && !std::getenv("BEXA_TEST_TAKEN") ? 0 : 1;
    };
    EXPECT_EQ(Child().with("BEXA_TEST_GIVEN", "y").without("BEXA_TEST_TAKEN").run(body), 0);
    EXPECT_EQ(std::getenv("BEXA_TEST_GIVEN"), nullptr);
}

TEST(ChildFixture, PermissionsBiteForNobody) {
    const TempDir dir;
    writeFile(dir.file("secret"), "x");
    setMode(dir.file("secret"), 0);
    const std::string secret = dir.file("secret");
    EXPECT_EQ(Child().asNobody().run([&] { return ::access(secret.c_str(), R_OK) == 0 ? 1 : 0; }), 0);
}
