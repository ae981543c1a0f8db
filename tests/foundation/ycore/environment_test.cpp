#include "bexa/foundation/ycore/environment.h"

#include "tests/support/env_guard.h"

#include <gtest/gtest.h>

using bexa::test::EnvGuard;

namespace {

TEST(Environment, GivesTheValueOrNull) {
    const EnvGuard variable("BEXA_TEST_VARIABLE", "value");
    EXPECT_STREQ(ygetenv("BEXA_TEST_VARIABLE", 1), "value");
    EXPECT_STREQ(ygetenv("BEXA_TEST_VARIABLE", 0), "value");
    variable.set("");
    EXPECT_STREQ(ygetenv("BEXA_TEST_VARIABLE", 1), "");
    variable.unset();
    EXPECT_EQ(ygetenv("BEXA_TEST_VARIABLE", 1), nullptr);
}

TEST(Environment, WithoutANameThereIsNoValue) {
    EXPECT_EQ(ygetenv(nullptr, 1), nullptr);
    EXPECT_EQ(ygetenv("", 1), nullptr);
}

} // namespace
