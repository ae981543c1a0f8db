#include "bexa/foundation/ycore/process.h"

#include "tests/support/child.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

using bexa::test::Child;

namespace {

constexpr uid_t unknownUser = 543210;

TEST(Process, TheIdIsTheSystems) {
    EXPECT_EQ(Ygetpid(), static_cast<long>(::getpid()));
}

TEST(Process, TheUserIsTheEffectiveOneOfTheDatabase) {
    const passwd* entry = ::getpwuid(::geteuid());
    if (!entry) GTEST_SKIP() << "this user is not in the password database";
    EXPECT_STREQ(YgetUserName(), entry->pw_name);
}

TEST(Process, AUserTheDatabaseDoesNotKnowIsNamedByTheEnvironmentOrByNumber) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user";
    const auto nameIs = [](const char* wanted) {
        return ::setuid(unknownUser) == 0 && std::strcmp(YgetUserName(), wanted) == 0 ? 0 : 1;
    };
    EXPECT_EQ(Child().with("USER", "designer").run([&] { return nameIs("designer"); }), 0);
    EXPECT_EQ(Child().with("USER", "").run([&] { return nameIs("543210"); }), 0);
    EXPECT_EQ(Child().without("USER").run([&] { return nameIs("543210"); }), 0);
}

TEST(Process, ANameHandedOutStaysValidWhenTheUserChanges) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user";
    EXPECT_EQ(Child().without("USER").run([] {
        const char* before = YgetUserName();
        const std::string text = before;
        if (::setuid(unknownUser) != 0) return 1;
        return text == before && text != YgetUserName() ? 0 : 2;
    }),
              0);
}

TEST(Process, TheHostNameFitsTheBuffer) {
    char system[256] = {};
    ASSERT_EQ(::gethostname(system, sizeof system - 1), 0);
    char buffer[256];
    EXPECT_NE(Ygethostname(buffer, sizeof buffer), 0U);
    EXPECT_STREQ(buffer, system);
    char small[3] = {'x', 'x', 'x'};
    EXPECT_NE(Ygethostname(small, 2), 0U);
    EXPECT_EQ(small[0], system[0]);
    EXPECT_EQ(small[1], '\0');
    EXPECT_EQ(small[2], 'x');
}

TEST(Process, WithoutABufferThereIsNoHostName) {
    char untouched = 'x';
    EXPECT_EQ(Ygethostname(&untouched, 0), 0U);
    EXPECT_EQ(untouched, 'x');
    EXPECT_EQ(Ygethostname(nullptr, 10), 0U);
}

} // namespace
