#pragma once

#include <unistd.h>

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "bexa/foundation/ycore/process.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace bexa::test {

// Holds processes up until it is opened. Make it before the processes.
class Gate {
public:
    Gate() {
        if (::pipe(ends_) != 0) throw std::runtime_error("no pipe");
    }
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;
    ~Gate() {
        ::close(ends_[0]);
        ::close(ends_[1]);
    }

    // Lets one process through.
    void open() const {
        if (::write(ends_[1], "x", 1) != 1) throw std::runtime_error("a gate is stuck");
    }
    void open(unsigned processes) const {
        while (processes--) open();
    }
    void pass() const {
        char byte = 0;
        if (::read(ends_[0], &byte, 1) != 1) throw std::runtime_error("a gate is broken");
    }

private:
    int ends_[2] = {-1, -1};
};

inline std::string hostName() {
    char name[256] = "";
    Ygethostname(name, sizeof name);
    return name;
}

// The text of a lock file, for a process and an owner of no interest.
inline std::string lockBy(const std::string& user, const std::string& display, const std::string& host) {
    return "4711\n12\n03/09/2024 17:05\n" + user + '\n' + display + '\n' + host + '\n';
}

// A lock of the user who runs the test.
inline std::string ownLock(const std::string& display) {
    return lockBy(YgetUserName(), display, hostName());
}

// A circuit without sheets but with a log directory, and this user at the display ":7".
class LockTest : public ::testing::Test {
protected:
    const TempDir dir;
    const EnvGuard display{"DISPLAY", ":7"};
    const std::string log = dir.makeDirectory("a.cir/log");
    const std::string sheet = dir.file("a.cir/001.sht");
    const std::string lockFile = dir.file("a.cir/log/001.___");
    const int owner = 0;
};

} // namespace bexa::test
