#include "tests/support/fresh_process.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace bexa::test {
namespace {

constexpr const char* mark = "BEXA_TEST_STARTED_IN_LOCALE";

std::string runningTest() {
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    return std::string(test->test_suite_name()) + '.' + test->name();
}

// Never returns: the process becomes the test program anew.
[[noreturn]] void becomeTest(const std::string& test, const std::string& locale) {
    ::setenv(mark, locale.c_str(), 1);
    ::setenv("LC_ALL", locale.c_str(), 1);
    for (const char* name :
         {"YLANG", "GTEST_OUTPUT", "XML_OUTPUT_FILE", "GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"}) {
        ::unsetenv(name);
    }
    const std::string filter = "--gtest_filter=" + test;
    ::execl("/proc/self/exe", "fresh_test", filter.c_str(), "--gtest_brief=1", static_cast<char*>(nullptr));
    ::_exit(EXIT_FAILURE);
}

} // namespace

bool startedInLocale(const std::string& locale) {
    const char* startedIn = std::getenv(mark);
    if (startedIn && startedIn == locale) return true;
    const std::string test = runningTest();
    const pid_t process = ::fork();
    if (process == 0) becomeTest(test, locale);
    int status = 0;
    const bool ended = process > 0 && ::waitpid(process, &status, 0) == process;
    EXPECT_TRUE(ended && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS)
        << test << " in " << locale;
    return false;
}

} // namespace bexa::test
