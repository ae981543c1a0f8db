#include "bexa/foundation/ygeneral/ydir_reader.h"

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace bexa::test;

namespace {

std::vector<std::string> namesFrom(YDirReader& reader) {
    std::vector<std::string> names;
    while (const YDirEntry* entry = reader.Read(YDirReader::AllEntries)) {
        names.emplace_back(entry->name());
    }
    std::ranges::sort(names);
    return names;
}

TEST(YDirReader, ReadsEveryEntryButTheSteps) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    writeFile(dir.file(".hidden"), "");
    dir.makeDirectory("inner");
    YDirReader reader(dir.path().c_str());
    ASSERT_EQ(reader.Open(), 1U);
    EXPECT_EQ(namesFrom(reader), (std::vector<std::string>{".hidden", "file", "inner"}));
    EXPECT_EQ(reader.Read(), nullptr);
}

TEST(YDirReader, OpenBeginsAnew) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    YDirReader reader(dir.path().c_str());
    reader.Open();
    EXPECT_EQ(namesFrom(reader).size(), 1U);
    EXPECT_EQ(reader.Open(), 1U);
    EXPECT_EQ(namesFrom(reader).size(), 1U);
    reader.Close();
    EXPECT_EQ(reader.Read(), nullptr);
    EXPECT_EQ(reader.Open(), 1U);
    EXPECT_EQ(namesFrom(reader).size(), 1U);
}

TEST(YDirReader, WithoutOpenNothingIsRead) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    YDirReader reader(dir.path().c_str());
    EXPECT_EQ(reader.Read(), nullptr);
    reader.Close();
}

TEST(YDirReader, OnlyADirectoryOpens) {
    const TempDir dir;
    writeFile(dir.file("file"), "");
    EXPECT_EQ(YDirReader(dir.file("file").c_str()).Open(), 0U);
    EXPECT_EQ(YDirReader(dir.file("missing").c_str()).Open(), 0U);
    EXPECT_EQ(YDirReader("").Open(), 0U);
    EXPECT_EQ(YDirReader(nullptr).Open(), 0U);
}

TEST(YDirReader, AnEmptyDirectoryHasNoEntry) {
    const TempDir dir;
    YDirReader reader(dir.path().c_str());
    EXPECT_EQ(reader.Open(), 1U);
    EXPECT_EQ(reader.Read(), nullptr);
}

} // namespace
