#pragma once

#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <optional>
#include <string>
#include <string_view>

namespace bexa::test {

// From now on no file of this process grows beyond `size` bytes, as on a full disk. For a child: there is no way back.
inline void fillDisk(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = size;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

// An installation and a user's home directory of the test's own. Nothing of them is on the disk but what the test puts
// there.
class BatchFixture : public ::testing::Test {
protected:
    std::string userFile(std::string_view name) const {
        return dir.file("home/hk8800/ds/" + std::string(name));
    }
    std::string systemFile(std::string_view name) const {
        return dir.file("system/info/" + std::string(name));
    }
    void giveUser(std::string_view name, std::string_view content) const {
        dir.makeDirectory("home/hk8800/ds");
        writeFile(userFile(name), content);
    }
    void giveSystem(std::string_view name, std::string_view content) const {
        dir.makeDirectory("system/info/eng");
        writeFile(systemFile(name), content);
    }

    const TempDir dir;

private:
    const EnvGuard home{"HOME", dir.file("home")};
    const EnvGuard root{"YDSROOT", dir.file("system")};
    const EnvGuard project{"YDS_PROJECT_ROOT", std::nullopt};
    const EnvGuard familyProject{"HK8_PROJECT_ROOT", std::nullopt};
    const EnvGuard language{"YLANG", std::nullopt};
};

} // namespace bexa::test
