#pragma once

#include "bexa/foundation/yrsc/keyed_file.h"
#include "bexa/props/prop_spec_file.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace bexa::test {

inline std::string joined(const YString_Array& texts, const std::string& separator = " ") {
    std::string all;
    for (int i = 0; i < texts.size(); ++i) {
        if (i != 0) all += separator;
        all += texts.at(i);
    }
    return all;
}

inline std::string linesOf(const BexPropSpecFile& specification) {
    YString_Array lines;
    specification.makeString(lines);
    std::string text;
    for (int i = 0; i < lines.size(); ++i) text.append(lines.at(i)).append("\n");
    return text;
}

inline std::string namesOf(const BexPropOwnerRec* owner, unsigned long withRefTables = 1,
                           unsigned long expand = 1) {
    YString_Array names;
    if (!owner || !owner->enumPropNames(names, withRefTables, expand)) return "none";
    return joined(names);
}

// Property specifications in a directory of their own, without a message catalogue.
class SpecTest : public testing::Test {
protected:
    std::string written(const std::string& content, const std::string& name = "PropSpec") const {
        writeFile(dir_.file(name), content);
        return dir_.file(name);
    }
    // True when the file was read.
    bool read(BexPropSpecFile& specification, const std::string& content) const {
        return specification.readFrom(written(content).c_str()) == 1;
    }
    // The list that stands in the only row of a section: "( a b )".
    YioRscList listOf(const std::string& row) const {
        const YioRscFile file(written("T {\n" + row + "\n}\n", "row").c_str());
        const std::unique_ptr<YioRscValue> value(file.value("T"));
        return *value->table()->value(0, 0)->list();
    }
    BexPropSpecRec rowOf(const std::string& row) const {
        const YioRscList list = listOf(row);
        BexPropSpecRec record;
        EXPECT_EQ(record.readFrom(&list), 1UL) << row;
        return record;
    }

    TempDir dir_;
    EnvGuard root_{"YDSROOT", std::nullopt};
    EnvGuard locale_{"LC_ALL", "C"};
};

} // namespace bexa::test
