// What the tests of the circuit resource share: a directory of their own, an environment that holds nothing of the
// machine's, and verbs for resources.
#pragma once

#include "bexa/circuitrc/datarc.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace bexa::test {

struct Discard {
    void operator()(BexDatarc* rc) const { BexDatarc::close(rc, BexCloseDiscard); }
};
using Resource = std::unique_ptr<BexDatarc, Discard>;

class DatarcFixture : public ::testing::Test {
protected:
    // A new resource whose file doesn't exist yet.
    Resource fresh(const char* currentDir = nullptr) const {
        return Resource(BexDatarc::open(dir.file("fresh.rsc").c_str(), BexOpenCreate, currentDir));
    }
    // A resource read from a file with this text; null when the load fails.
    Resource loaded(std::string_view text, const char* currentDir = nullptr) const {
        std::filesystem::remove(dir.file("loaded.rsc")); // a new file costs far less than a truncated one
        writeFile(dir.file("loaded.rsc"), text);
        return Resource(BexDatarc::open(dir.file("loaded.rsc").c_str(), BexOpenRead, currentDir));
    }
    // The text that a save of the resource writes.
    std::string saved(const BexDatarc& rc) const {
        std::filesystem::remove(dir.file("saved.rsc"));
        EXPECT_TRUE(rc.saveAs(dir.file("saved.rsc").c_str(), BexSaveAny));
        return contentOf(dir.file("saved.rsc"));
    }
    // The palette file of the user, so that the palettes of new resources are valid.
    void givePalette(std::string_view text = "colorTable 2 {\n}\n") const {
        dir.makeDirectory("home/hk8800/ds");
        writeFile(dir.file("home/hk8800/ds/bexcolor.rsc"), text);
    }

    TempDir dir;

private:
    EnvGuard home_{"HOME", dir.path() + "/home"};
    EnvGuard system_{"YDSROOT", dir.path() + "/system"};
    EnvGuard project_{"YDS_PROJECT_ROOT", std::nullopt};
    EnvGuard family_{"HK8_PROJECT_ROOT", std::nullopt};
    EnvGuard simpleArray_{"YDS_SIMPLE_ARRAY", std::nullopt};
    EnvGuard dateFormat_{"YDS_DATE_FORMAT", std::nullopt};
    EnvGuard timeFormat_{"YDS_TIME_FORMAT", std::nullopt};
    EnvGuard locale_{"LC_ALL", "C"};
};

} // namespace bexa::test
