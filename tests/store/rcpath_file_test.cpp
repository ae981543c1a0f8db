#include "bexa/store/rcpath_file.h"

#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

using namespace bexa::test;

namespace {

struct Discard {
    void operator()(BexRcpathIO* list) const { BexRcpathIO::close(list, BexCloseDiscard); }
};
using List = std::unique_ptr<BexRcpathIO, Discard>;

struct RcpathFile : testing::Test {
    TempDir dir;
    std::string path = dir.file("rcpath");
    EnvGuard variable{"BEXA_TEST_DIR", std::nullopt};

    BexRcpathIO* open(BexOpenMode mode) const { return BexRcpathIO::open(path.c_str(), mode); }
    List reading() const { return List(open(BexOpenRead)); }
    // What the file holds after the content was loaded and saved.
    std::string savedAgain(const std::string& content) const {
        writeFile(path, content);
        BexRcpathIO* list = open(BexOpenUpdate);
        if (!list) return "not loaded";
        EXPECT_TRUE(BexRcpathIO::close(list, BexCloseSave));
        return contentOf(path);
    }
};

std::string names(const BexRcpathIO& list) {
    std::string all;
    for (int i = 0; i < list.rcpathCount(); ++i) all += std::string(list.rcpathTbl().at(i).name.view()) + " ";
    return all;
}

} // namespace

TEST_F(RcpathFile, IsReadAndWrittenAsInTheSamples) {
    variable.set("/dir");
    for (const char* sample : {"plain", "unsorted", "every_form"}) {
        const std::string base = testData(std::string("rcpath/") + sample);
        EXPECT_EQ(savedAgain(contentOf(base + ".in")), contentOf(base + ".out")) << sample;
        EXPECT_EQ(savedAgain(contentOf(base + ".out")), contentOf(base + ".out")) << sample << ", again";
    }
}

TEST_F(RcpathFile, EntriesAreSortedOnLoad) {
    writeFile(path, "b : \"/b\"\na : \"/a\"\nB : \"/B\"\n");
    const List list = reading();
    ASSERT_TRUE(list);
    EXPECT_EQ(names(*list), "B a b ");
    EXPECT_EQ(list->pathname(), path.c_str());
    EXPECT_EQ(list->openMode(), BexOpenRead);
    EXPECT_FALSE(list->isEditing());
}

TEST_F(RcpathFile, AVariableSurvives) {
    variable.set("/dir");
    EXPECT_EQ(savedAgain("name : \"$BEXA_TEST_DIR/x\"\n"), "name : \"$BEXA_TEST_DIR/x\"\n");
    const List list = reading();
    EXPECT_EQ(list->rcpathTbl().at(0).path, "/dir/x");
    EXPECT_EQ(list->rcpathTbl().at(0).rawPath, "$BEXA_TEST_DIR/x");
    variable.unset();
    EXPECT_EQ(savedAgain("name : \"$BEXA_TEST_DIR/x\"\n"), "name : \"$BEXA_TEST_DIR/x\"\n")
        << "also when it isn't set";
}

TEST_F(RcpathFile, AChangedPathWins) {
    variable.set("/dir");
    writeFile(path, "name : \"$BEXA_TEST_DIR/x\"\n");
    BexRcpathIO* list = open(BexOpenUpdate);
    BexRcpath entry;
    ASSERT_TRUE(list->rcpath(0, entry));
    entry.path = "/other";
    list->rcpath(entry);
    EXPECT_TRUE(BexRcpathIO::close(list, BexCloseSave));
    EXPECT_EQ(contentOf(path), "name : \"/other\"\n");
}

TEST_F(RcpathFile, AnEmptyFileHasNoEntries) {
    for (const char* content : {"", "\n\n", "# only a comment", "# japanese_coding:euc\n"}) {
        writeFile(path, content);
        const List list = reading();
        ASSERT_TRUE(list) << content;
        EXPECT_EQ(list->rcpathCount(), 0);
        EXPECT_EQ(list->searchRcpath("a"), -1);
    }
}

TEST_F(RcpathFile, ABadLineFailsTheWholeLoad) {
    for (const char* bad : {"a \"/a\"\n", "a :\n : \"x\"\n", "\"a\" : \"/a\"\n", "a { x }\n", "a 2 {\n}\n",
                            ": \"/a\"\n", "a : \"/a\n", "} \n", "a : \"/a\" b\n"}) {
        writeFile(path, std::string("good : \"/good\"\n") + bad);
        EXPECT_FALSE(reading()) << bad;
        EXPECT_EQ(contentOf(path), std::string("good : \"/good\"\n") + bad) << "the file stays";
    }
    writeFile(path, std::string("a : \"/a\"\n\0b : \"/b\"\n", 19));
    EXPECT_FALSE(reading()) << "a NUL byte";
}

TEST_F(RcpathFile, LongTokensAreCutTo1022Bytes) {
    const std::string name(2000, 'n');
    writeFile(path, name + " : \"/" + std::string(100000, 'p') + "\"\n");
    const List list = reading();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->rcpathTbl().at(0).name, name.substr(0, 1022).c_str());
    EXPECT_EQ(list->rcpathTbl().at(0).rawPath.length(), 1022);
}

TEST_F(RcpathFile, OpenTestsTheStateOfTheFile) {
    EXPECT_FALSE(open(BexOpenUpdate));
    EXPECT_FALSE(open(BexOpenRead));
    const List created(open(BexOpenCreate));
    ASSERT_TRUE(created);
    EXPECT_FALSE(exists(path)) << "nothing is written yet";
    writeFile(path, "");
    EXPECT_FALSE(open(BexOpenCreate));
    EXPECT_FALSE(BexRcpathIO::open(dir.path().c_str(), BexOpenRead)) << "a directory";
    EXPECT_FALSE(BexRcpathIO::open(dir.path().c_str(), BexOpenCreate));
    EXPECT_FALSE(BexRcpathIO::open(nullptr, BexOpenRead));
}

TEST_F(RcpathFile, OpenRespectsPermissions) {
    writeFile(path, "a : \"/a\"\n");
    const auto nobodyOpens = [&](unsigned mode, BexOpenMode open) {
        setMode(path, mode);
        return Child().asNobody().run([&] { return List(BexRcpathIO::open(path.c_str(), open)) ? 1 : 0; });
    };
    EXPECT_EQ(nobodyOpens(0444, BexOpenRead), 1);
    EXPECT_EQ(nobodyOpens(0444, BexOpenUpdate), 0);
    EXPECT_EQ(nobodyOpens(0666, BexOpenUpdate), 1);
    EXPECT_EQ(nobodyOpens(0222, BexOpenRead), 0);
    EXPECT_EQ(nobodyOpens(0222, BexOpenUpdate), 0) << "writable, but the load fails";
}

TEST_F(RcpathFile, SaveModesFitOneOpenModeEach) {
    const List created(open(BexOpenCreate));
    created->rcpath(BexRcpath("a", "/a"));
    EXPECT_FALSE(created->save(BexSaveOverwrite));
    EXPECT_FALSE(created->save(BexSaveAny));
    EXPECT_FALSE(exists(path));
    EXPECT_TRUE(created->isEditing());
    EXPECT_TRUE(created->save(BexSaveNew));
    EXPECT_EQ(contentOf(path), "a : \"/a\"\n");
    EXPECT_FALSE(created->isEditing());
    EXPECT_EQ(created->openMode(), BexOpenUpdate) << "the first save makes it an update";
    EXPECT_FALSE(created->save(BexSaveNew));
    EXPECT_TRUE(created->save(BexSaveOverwrite));
    const List list = reading();
    for (const BexSaveMode mode : {BexSaveNew, BexSaveOverwrite, BexSaveAny}) EXPECT_FALSE(list->save(mode));
}

TEST_F(RcpathFile, SavingANewListOverwritesAFileMadeMeanwhile) {
    const List created(open(BexOpenCreate));
    writeFile(path, "somebody else's");
    EXPECT_TRUE(created->save(BexSaveNew));
    EXPECT_EQ(contentOf(path), "");
}

TEST_F(RcpathFile, AFailedSaveKeepsTheStateOfTheObject) {
    path = dir.file("missing/rcpath");
    const List created(open(BexOpenCreate));
    ASSERT_TRUE(created);
    created->rcpath(BexRcpath("a", "/a"));
    EXPECT_FALSE(created->save(BexSaveNew));
    EXPECT_TRUE(created->isEditing());
    EXPECT_EQ(created->openMode(), BexOpenCreate);
}

TEST_F(RcpathFile, CloseAlwaysEndsTheObjectAndOnlyReports) {
    EXPECT_FALSE(BexRcpathIO::close(nullptr, BexCloseDiscard));
    EXPECT_FALSE(BexRcpathIO::close(nullptr, BexCloseAuto));
    EXPECT_FALSE(BexRcpathIO::close(nullptr, BexCloseSave));

    EXPECT_FALSE(BexRcpathIO::close(open(BexOpenCreate), BexCloseSave)) << "only an update is saved";
    EXPECT_FALSE(exists(path));
    EXPECT_TRUE(BexRcpathIO::close(open(BexOpenCreate), BexCloseDiscard));
    EXPECT_FALSE(exists(path));
    EXPECT_TRUE(BexRcpathIO::close(open(BexOpenCreate), BexCloseAuto));
    EXPECT_EQ(contentOf(path), "");

    writeFile(path, "b : \"/b\"\na : \"/a\"\n");
    EXPECT_TRUE(BexRcpathIO::close(open(BexOpenRead), BexCloseAuto));
    EXPECT_TRUE(BexRcpathIO::close(open(BexOpenRead), BexCloseDiscard));
    EXPECT_FALSE(BexRcpathIO::close(open(BexOpenRead), BexCloseSave));
    EXPECT_TRUE(BexRcpathIO::close(open(BexOpenUpdate), BexCloseDiscard));
    EXPECT_EQ(contentOf(path), "b : \"/b\"\na : \"/a\"\n") << "nothing of this has written";
    EXPECT_TRUE(BexRcpathIO::close(open(BexOpenUpdate), BexCloseAuto));
    EXPECT_EQ(contentOf(path), "a : \"/a\"\nb : \"/b\"\n");
}

TEST_F(RcpathFile, AFailedCloseReportsIt) {
    path = dir.file("missing/rcpath");
    EXPECT_FALSE(BexRcpathIO::close(open(BexOpenCreate), BexCloseAuto));
}

TEST_F(RcpathFile, EntriesAreAddedAndReplacedByName) {
    const List list(open(BexOpenCreate));
    for (const char* name : {"m", "z", "a"}) list->rcpath(BexRcpath(name, "/one"));
    EXPECT_EQ(names(*list), "a m z ");
    list->rcpath(BexRcpath("m", "/two"));
    EXPECT_EQ(names(*list), "a m z ");
    BexRcpath entry;
    ASSERT_TRUE(list->rcpath(1, entry));
    EXPECT_EQ(entry.path, "/two");
    EXPECT_FALSE(list->rcpath(-1, entry));
    EXPECT_FALSE(list->rcpath(3, entry));
    EXPECT_EQ(entry.path, "/two") << "left alone";
    list->rcpath(list->rcpathTbl().at(2));
    EXPECT_EQ(names(*list), "a m z ") << "an entry of its own";
}

TEST_F(RcpathFile, SearchFindsEachNameAndNoOther) {
    const List list(open(BexOpenCreate));
    EXPECT_EQ(list->searchRcpath("a"), -1);
    for (const char* name : {"b", "d", "f"}) list->rcpath(BexRcpath(name, "/x"));
    EXPECT_EQ(list->searchRcpath("b"), 0);
    EXPECT_EQ(list->searchRcpath("d"), 1);
    EXPECT_EQ(list->searchRcpath("f"), 2);
    for (const char* name : {"", "a", "c", "e", "g", "B", "bb"})
        EXPECT_EQ(list->searchRcpath(name), -1) << name;
    EXPECT_EQ(list->searchRcpath(nullptr), -1);
}

TEST_F(RcpathFile, DeleteTakesOneEntry) {
    const List list(open(BexOpenCreate));
    EXPECT_FALSE(list->deleteRcpath(0));
    EXPECT_FALSE(list->isEditing());
    for (const char* name : {"a", "b", "c"}) list->rcpath(BexRcpath(name, "/x"));
    EXPECT_TRUE(list->save(BexSaveNew));
    EXPECT_FALSE(list->deleteRcpath(-1));
    EXPECT_FALSE(list->deleteRcpath(3)) << "the count is no index here";
    EXPECT_FALSE(list->isEditing());
    EXPECT_TRUE(list->deleteRcpath(1));
    EXPECT_TRUE(list->isEditing());
    EXPECT_EQ(names(*list), "a c ");
}

TEST_F(RcpathFile, AnEntryLoadedTwiceStaysTwice) {
    EXPECT_EQ(savedAgain("a : \"/1\"\nb : \"/b\"\na : \"/2\"\n"), "a : \"/1\"\na : \"/2\"\nb : \"/b\"\n");
}

TEST_F(RcpathFile, ATableHandedOverKeepsItsOrderUntilAnEntryIsAdded) {
    BexRcpathTable table;
    table.append(BexRcpath("b", "/b"));
    table.append(BexRcpath("a", "/a"));
    const List list(open(BexOpenCreate));
    list->rcpathTbl(table);
    EXPECT_TRUE(list->isEditing());
    EXPECT_EQ(names(*list), "b a ");
    EXPECT_EQ(list->searchRcpath("a"), 1) << "found all the same";
    EXPECT_TRUE(list->save(BexSaveNew));
    EXPECT_EQ(contentOf(path), "b : \"/b\"\na : \"/a\"\n");
    list->rcpath(BexRcpath("a", "/other"));
    EXPECT_EQ(names(*list), "a b ") << "replacing sorts too";
    list->rcpathTbl(table);
    list->rcpath(BexRcpath("c", "/c"));
    EXPECT_EQ(names(*list), "a b c ");
}

TEST_F(RcpathFile, TenThousandEntriesAreReadAndSearched) {
    std::string content;
    for (int i = 9999; i >= 0; --i) content += "name" + std::to_string(10000 + i) + " : \"lib\"\n";
    writeFile(path, content);
    const List list = reading();
    ASSERT_TRUE(list);
    ASSERT_EQ(list->rcpathCount(), 10000);
    for (int i = 0; i < 10000; i += 7)
        EXPECT_EQ(list->searchRcpath(("name" + std::to_string(10000 + i)).c_str()), i);
}
