// What the tests of block files share: a directory of their own, an environment that holds nothing of the machine's,
// and verbs for blocks.
#pragma once

#include "bexa/design/block_file.h"
#include "tests/support/datarc.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bexa::test {

inline constexpr unsigned long pureTable = 1;
inline constexpr unsigned long expandedTable = 0;

struct DiscardBlock {
    void operator()(BexBlockFile* file) const { BexBlockFile::close(file, BexCloseDiscard, pureTable); }
};
using BlockPtr = std::unique_ptr<BexBlockFile, DiscardBlock>;

// Rows as "10 D[0-3] 4": number, name, bits.
inline std::vector<std::string> rowsOf(const BexBlockPinAssignTable& table) {
    std::vector<std::string> rows;
    for (int i = 0; i < table.size(); ++i) {
        const BexBlockPinAssign& row = table.at(i);
        const std::string name = row.sigN() ? row.sigN() : "(null)";
        rows.push_back(std::to_string(row.figId()) + ' ' + name + ' ' + std::to_string(row.bits()));
    }
    return rows;
}

inline std::vector<std::string> pureRows(const BexBlockFile& file) {
    return rowsOf(file.purePinAssignTable());
}

inline std::vector<std::string> expandedRows(const BexBlockFile& file) {
    return rowsOf(file.pinAssignTable());
}

class BlockFile : public testing::Test {
protected:
    BlockPtr open(const char* name, BexOpenMode mode, const BexDatarc* rc = nullptr) const {
        return BlockPtr(BexBlockFile::open(dir.path().c_str(), name, mode, rc));
    }
    BlockPtr load(std::string_view content, const BexDatarc* rc = nullptr) const {
        writeFile(dir.file("loaded.blk"), content);
        return open("loaded.blk", BexOpenRead, rc);
    }
    // A block whose pins are the rows of `table`, for instance `5 "D[0-3]"`.
    BlockPtr loadPins(const std::string& rows, const BexDatarc* rc = nullptr) const {
        return load("pinAssign 2 {\n" + rows + "\n}\n", rc);
    }
    std::string saved(const BexBlockFile& file, unsigned long pure) const {
        EXPECT_TRUE(file.saveAs(dir.path().c_str(), "saved.blk", BexSaveAny, pure));
        return contentOf(dir.file("saved.blk"));
    }

    TempDir dir;
    EnvGuard root{"YDSROOT", dir.file("no-root")};
    EnvGuard projectRoot{"YDS_PROJECT_ROOT", std::nullopt};
    EnvGuard familyRoot{"HK8_PROJECT_ROOT", std::nullopt};
    EnvGuard home{"HOME", dir.file("no-home")};
    EnvGuard locale{"LC_ALL", "C"};
};

} // namespace bexa::test
