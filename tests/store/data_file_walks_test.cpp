#include "bexa/store/data_file.h"

#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

using namespace bexa::test;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace {

using Names = std::vector<std::string>;

int collect(void* names, const char* path) {
    static_cast<Names*>(names)->emplace_back(path);
    return 0;
}

int stopAtOnce(void* names, const char* path) {
    collect(names, path);
    return 1;
}

struct Walks : testing::Test {
    TempDir dir;
    std::string circuit = dir.makeDirectory("c.cir");

    void make(const Names& names) const {
        for (const auto& name : names) {
            dir.makeDirectory(std::filesystem::path("c.cir/" + name).parent_path().string());
            writeFile(circuit + "/" + name, "");
        }
    }
    // What a walk gave, sorted and without the circuit in front.
    Names members(Names paths) const {
        for (auto& path : paths) {
            EXPECT_EQ(path.substr(0, circuit.size() + 1), circuit + "/");
            path.erase(0, circuit.size() + 1);
        }
        std::sort(paths.begin(), paths.end());
        return paths;
    }
    Names files(BexDataFile::Type type) const {
        Names names;
        EXPECT_TRUE(BexDataFile::enumFileNames(circuit.c_str(), type, collect, &names));
        return members(names);
    }
    Names temporaries(BexDataFile::Type type) const {
        Names names;
        EXPECT_TRUE(BexDataFile::enumTmpFileNames(circuit.c_str(), type, collect, &names));
        return members(names);
    }
    Names backups(BexDataFile::Type type) const {
        Names names;
        EXPECT_TRUE(BexDataFile::enumBackupFileNames(circuit.c_str(), type, collect, &names));
        return members(names);
    }
};

using DataFileWalks = Walks;

} // namespace

TEST_F(DataFileWalks, SheetsAndTheirCopies) {
    make({"001.sht", "_001.sht", "#001.sht", "1000.sht", "abc.sht"});
    EXPECT_EQ(BexDataFile::sheetCount(circuit.c_str()), 1U);
    EXPECT_EQ(BexDataFile(circuit.c_str()).sheetCount(), 1U);
    Names names;
    EXPECT_TRUE(BexDataFile::enumTmpSheetNames(circuit.c_str(), collect, &names));
    EXPECT_THAT(members(names), ElementsAre("_001.sht"));
    names.clear();
    EXPECT_TRUE(BexDataFile::enumBackupSheetNames(circuit.c_str(), collect, &names));
    EXPECT_THAT(members(names), ElementsAre("#001.sht"));
}

TEST_F(DataFileWalks, SheetsBeyond999AreLeftOutThoughTheyHaveNames) {
    make({"0.sht", "1.sht", "999.sht", "1000.sht", "-1.sht", "002.SHT", "x.net"});
    EXPECT_THAT(files(BexSheetFile), ElementsAre("002.SHT", "1.sht", "999.sht"));
    EXPECT_EQ(BexDataFile::sheetName(circuit.c_str(), 1000), (circuit + "/1000.sht").c_str());
}

TEST_F(DataFileWalks, NetFilesHaveNoBound) {
    make({"0.net", "1000.net", "abc.net", "_1.net", "1.sht"});
    EXPECT_THAT(files(BexSheetNetFile), ElementsAre("0.net", "1000.net", "abc.net"));
    EXPECT_EQ(BexDataFile::sheetNetCount(circuit.c_str()), 3U);
    EXPECT_EQ(BexDataFile(circuit.c_str()).sheetNetCount(), 3U);
}

TEST_F(DataFileWalks, AnyFileMeansAllButCopies) {
    make({"a", "_b", "#c", "log/x", "1000.sht"});
    EXPECT_THAT(files(BexAnyFile), ElementsAre("1000.sht", "a", "log"));
    EXPECT_THAT(files(BexLogDir), ElementsAre("log"));
}

TEST_F(DataFileWalks, MembersUseTheObjectsPath) {
    make({"1.sht", "_1.sht", "#1.sht", "1.net", "_1.net", "#1.net"});
    const BexDataFile file(circuit.c_str());
    const auto expectOne = [&](unsigned long result, Names& names, const char* name) {
        EXPECT_TRUE(result);
        EXPECT_THAT(members(names), ElementsAre(name));
        names.clear();
    };
    Names names;
    expectOne(file.enumSheetNames(collect, &names), names, "1.sht");
    expectOne(file.enumTmpSheetNames(collect, &names), names, "_1.sht");
    expectOne(file.enumBackupSheetNames(collect, &names), names, "#1.sht");
    expectOne(file.enumSheetNetNames(collect, &names), names, "1.net");
    expectOne(file.enumTmpSheetNetNames(collect, &names), names, "_1.net");
    expectOne(file.enumBackupSheetNetNames(collect, &names), names, "#1.net");
    expectOne(file.enumFileNames(BexSheetFile, collect, &names), names, "1.sht");
    expectOne(file.enumTmpFileNames(BexSheetFile, collect, &names), names, "_1.sht");
    expectOne(file.enumBackupFileNames(BexSheetFile, collect, &names), names, "#1.sht");
}

TEST_F(DataFileWalks, CopiesAreFoundInTheDirectoriesOfTheCircuit) {
    make({"_a", "#a", "log/_b", "LOG/_c", "frame/_d.sht", "ext/#e", "drc/log/_f", "other/_g", "log/x"});
    EXPECT_THAT(temporaries(BexAnyFile), ElementsAre("LOG/_c", "_a", "drc/log/_f", "frame/_d.sht", "log/_b"));
    EXPECT_THAT(temporaries(BexSheetFile), ElementsAre("frame/_d.sht"));
    EXPECT_THAT(backups(BexAnyFile), ElementsAre("#a", "ext/#e"));
}

TEST_F(DataFileWalks, ADirectoryMayBeACopyToo) {
    make({"_log/x"});
    EXPECT_THAT(temporaries(BexAnyFile), ElementsAre("_log"));
}

TEST_F(DataFileWalks, AnEmptyDirectoryIsWalkedWithNothingFound) {
    EXPECT_THAT(files(BexAnyFile), IsEmpty());
    EXPECT_THAT(temporaries(BexAnyFile), IsEmpty());
    EXPECT_THAT(backups(BexAnyFile), IsEmpty());
    EXPECT_EQ(BexDataFile::sheetCount(circuit.c_str()), 0U);
}

TEST_F(DataFileWalks, APlainFileNamedLikeADirectoryEndsTheWalkOverCopies) {
    for (const char* name : {"log", "FRAME", "ext", "Drc"}) {
        make({name});
        Names names;
        EXPECT_FALSE(BexDataFile::enumTmpFileNames(circuit.c_str(), BexAnyFile, collect, &names)) << name;
        EXPECT_FALSE(BexDataFile::enumBackupFileNames(circuit.c_str(), BexAnyFile, collect, &names)) << name;
        EXPECT_TRUE(BexDataFile::enumFileNames(circuit.c_str(), BexAnyFile, collect, &names))
            << "not the plain walk";
        std::filesystem::remove(circuit + "/" + name);
    }
}

TEST_F(DataFileWalks, TheCallbackEndsAnyWalk) {
    make({"1.sht", "2.sht", "log/_1.sht", "log/_2.sht", "#1.sht", "#2.sht"});
    using Walk = unsigned long (*)(const char*, BexDataFile::Callback, void*);
    const Walk walks[] = {BexDataFile::enumSheetNames, BexDataFile::enumTmpSheetNames,
                          BexDataFile::enumBackupSheetNames};
    for (const Walk walk : walks) {
        Names names;
        EXPECT_FALSE(walk(circuit.c_str(), stopAtOnce, &names));
        EXPECT_EQ(names.size(), 1U);
    }
}

TEST_F(DataFileWalks, WhatCannotBeWalked) {
    make({"file"});
    Names names;
    for (const std::string& path : {circuit + "/missing", circuit + "/file", std::string()}) {
        EXPECT_FALSE(BexDataFile::enumFileNames(path.c_str(), BexAnyFile, collect, &names));
        EXPECT_FALSE(BexDataFile::enumTmpFileNames(path.c_str(), BexAnyFile, collect, &names));
        EXPECT_FALSE(BexDataFile::enumBackupFileNames(path.c_str(), BexAnyFile, collect, &names));
        EXPECT_EQ(BexDataFile::sheetCount(path.c_str()), 0U);
        EXPECT_EQ(BexDataFile::sheetNetCount(path.c_str()), 0U);
    }
    EXPECT_FALSE(BexDataFile::enumFileNames(nullptr, BexAnyFile, collect, &names));
    EXPECT_FALSE(BexDataFile::enumTmpFileNames(nullptr, BexAnyFile, collect, &names));
    EXPECT_FALSE(BexDataFile::enumFileNames(circuit.c_str(), BexAnyFile, nullptr, nullptr))
        << "nobody to tell";
    EXPECT_FALSE(BexDataFile::enumTmpFileNames(circuit.c_str(), BexAnyFile, nullptr, nullptr));
    EXPECT_EQ(BexDataFile::sheetCount(nullptr), 0U);
    EXPECT_THAT(names, IsEmpty());
}

TEST_F(DataFileWalks, ADirectoryThatMayNotBeReadEndsTheWalk) {
    make({"log/_a"});
    setMode(circuit + "/log", 0);
    EXPECT_EQ(Child().asNobody().run([&] {
        Names names;
        return static_cast<int>(BexDataFile::enumTmpFileNames(circuit.c_str(), BexAnyFile, collect, &names));
    }),
              0);
}

TEST_F(DataFileWalks, OneSeparatorStandsBeforeTheName) {
    make({"1.sht"});
    Names names;
    EXPECT_TRUE(BexDataFile::enumSheetNames((circuit + "/").c_str(), collect, &names));
    EXPECT_THAT(names, ElementsAre(circuit + "/1.sht"));
}

TEST_F(DataFileWalks, ABackslashAtTheEndIsFollowedByASeparator) {
    make({"x\\/1.sht"});
    Names names;
    EXPECT_TRUE(BexDataFile::enumSheetNames((circuit + "/x\\").c_str(), collect, &names));
    EXPECT_THAT(names, ElementsAre(circuit + "/x\\/1.sht"));
}

TEST_F(DataFileWalks, ACircleOfLinksEndsTheWalkWithFalse) {
    make({"_a"});
    for (const char* name : {"log", "ext", "drc", "frame"})
        std::filesystem::create_directory_symlink(circuit, circuit + "/" + name);
    Names names;
    EXPECT_FALSE(BexDataFile::enumTmpFileNames(circuit.c_str(), BexAnyFile, collect, &names));
    EXPECT_THAT(names, Each(EndsWith("/_a")));
    EXPECT_LT(names.size(), 5000U);
}

TEST_F(DataFileWalks, ADeepTreeIsWalkedOrRefusedButNeverTooMuch) {
    std::string path = "c.cir";
    for (int depth = 0; depth < 100; ++depth) path += "/log";
    dir.makeDirectory(path);
    writeFile(dir.file(path + "/_deep"), "");
    EXPECT_EQ(temporaries(BexAnyFile).size(), 1U);
    // Without descriptors left the walk fails; it neither crashes nor goes on.
    EXPECT_EQ(Child().run([&] {
        const rlimit few = {32, 32};
        if (setrlimit(RLIMIT_NOFILE, &few) != 0) return 2;
        Names names;
        return static_cast<int>(BexDataFile::enumTmpFileNames(circuit.c_str(), BexAnyFile, collect, &names));
    }),
              0);
}

TEST_F(DataFileWalks, CleanUpMayRemoveWhatItIsShown) {
    make({"_a", "_b", "log/_c", "keep"});
    const auto removeIt = [](void*, const char* path) { return std::filesystem::remove(path) ? 0 : 1; };
    EXPECT_TRUE(BexDataFile::enumTmpFileNames(circuit.c_str(), BexAnyFile, removeIt, nullptr));
    EXPECT_EQ(listOf(circuit), (Names{"keep", "log"}));
    EXPECT_THAT(listOf(circuit + "/log"), IsEmpty());
}
