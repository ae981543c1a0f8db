// What the tests of the environment resource share: a directory of their own, an environment that holds nothing of the
// machine's, and verbs for resources.
#pragma once

#include "bexa/envrc/envrc.h"
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
    void operator()(BexEnvrc* envrc) const { BexEnvrc::close(envrc, BexCloseDiscard); }
};
using Resource = std::unique_ptr<BexEnvrc, Discard>;

class EnvrcFixture : public ::testing::Test {
protected:
    static std::string golden() { return contentOf(testData("envrc/fresh.rsc")); }

    // A new resource whose file doesn't exist yet.
    Resource fresh(const char* currentDir = nullptr) const {
        return Resource(BexEnvrc::open(dir.file("fresh.rsc").c_str(), BexOpenCreate, nullptr, currentDir));
    }
    // A resource read from a file with this text; null when the load fails.
    Resource loaded(std::string_view text) const {
        std::filesystem::remove(dir.file("loaded.rsc")); // a new file costs far less than a truncated one
        writeFile(dir.file("loaded.rsc"), text);
        return Resource(BexEnvrc::open(dir.file("loaded.rsc").c_str(), BexOpenRead, nullptr, nullptr));
    }
    // The text that a save of the resource writes.
    std::string saved(const BexEnvrc& envrc) const {
        std::filesystem::remove(dir.file("saved.rsc"));
        EXPECT_TRUE(envrc.saveAs(dir.file("saved.rsc").c_str(), BexSaveAny));
        return contentOf(dir.file("saved.rsc"));
    }
    // What stands in a saved text behind a key, from the blank on; nothing where the key isn't written.
    static std::optional<std::string> entryOf(const std::string& text, const std::string& key) {
        const std::size_t at = text.find("\n" + key + " ");
        if (at == std::string::npos) return std::nullopt;
        return text.substr(at + 1 + key.size());
    }
    // The value in the file, for a key of one line.
    std::optional<std::string> valueIn(const BexEnvrc& envrc, const std::string& key) const {
        const auto entry = entryOf(saved(envrc), key);
        if (!entry || !entry->starts_with(" : ")) return std::nullopt;
        return entry->substr(3, entry->find('\n') - 3);
    }

    TempDir dir;

private:
    EnvGuard zipText_{"YDS_ZIP_TEXT", std::nullopt};
    EnvGuard pbox_{"YDS_DO_NOT_SELECT_UNVISIBLE_PBOX", std::nullopt};
    EnvGuard locale_{"LC_ALL", "C"};
};

} // namespace bexa::test
