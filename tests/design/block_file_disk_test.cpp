#include "tests/design/block_file_fixture.h"
#include "tests/support/child.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace bexa::test {
namespace {

class BlockFileDisk : public BlockFile {};

TEST_F(BlockFileDisk, FindTheCircuitAndItsSheets) {
    dir.makeDirectory("lib/a.cir");
    writeFile(dir.file("lib/a.cir/001.sht"), "");
    writeFile(dir.file("lib/a.cir/instnc"), "");
    const auto rc = newDatarc(dir.path().c_str());
    ASSERT_TRUE(rc->contPath(1, "lib", dir.file("lib").c_str()));
    const BlockPtr file = open("new.blk", BexOpenCreate);
    EXPECT_FALSE(file->isExistCircuitDir(*rc, 1)) << "no circuit is named";
    EXPECT_FALSE(file->isExistCircuit(*rc, 1, 1u));
    file->circuitName("a.cir");

    EXPECT_TRUE(file->isExistCircuitDir(*rc, 1));
    EXPECT_TRUE(file->isExistCircuit(*rc, 1, 1u));
    EXPECT_TRUE(file->isExistCircuit(*rc, 1, "001.sht"));
    EXPECT_FALSE(file->isExistCircuit(*rc, 1, 2u)) << "no such sheet";
    EXPECT_FALSE(file->isExistCircuit(*rc, 1, "002.sht"));
    EXPECT_FALSE(file->isExistCircuit(*rc, 1, "instnc")) << "there, but no sheet";
    EXPECT_FALSE(file->isExistCircuitDir(*rc, 0)) << "another directory";
    EXPECT_FALSE(file->isExistCircuit(*rc, 0, 1u));
    EXPECT_FALSE(file->isExistCircuitDir(*rc, 2)) << "no such directory";
    EXPECT_FALSE(file->isExistCircuit(*rc, 2, 1u));
}

TEST_F(BlockFileDisk, WantASheetThatCanBeRead) {
    dir.openToAll();
    dir.makeDirectory("a.cir");
    writeFile(dir.file("a.cir/001.sht"), "");
    const auto rc = newDatarc(dir.path().c_str());
    const BlockPtr file = open("new.blk", BexOpenCreate);
    file->circuitName("a.cir");
    const auto found = [&] {
        return file->isExistCircuit(*rc, 0, 1u) && file->isExistCircuit(*rc, 0, "001.sht") ? 1 : 0;
    };
    EXPECT_EQ(Child().asNobody().run(found), 1);
    setMode(dir.file("a.cir/001.sht"), 0);
    EXPECT_EQ(Child().asNobody().run([&] { return static_cast<int>(file->isExistCircuit(*rc, 0, 1u)); }), 0);
    EXPECT_EQ(Child().asNobody().run(found), 0);
}

TEST_F(BlockFileDisk, WantACircuitToBeNamedLikeOne) {
    dir.makeDirectory("a.dir");
    const auto rc = newDatarc(dir.path().c_str());
    const BlockPtr file = open("new.blk", BexOpenCreate);
    file->circuitName("a.dir");
    EXPECT_FALSE(file->isExistCircuitDir(*rc, 0));
}

TEST_F(BlockFileDisk, FindTheSymbol) {
    writeFile(dir.file("a.smb"), "");
    writeFile(dir.file("a.sht"), "");
    const auto rc = newDatarc(dir.path().c_str());
    const BlockPtr file = open("new.blk", BexOpenCreate);
    EXPECT_FALSE(file->isExistSymbol(*rc, 0)) << "no symbol is named";
    file->symbName("a.smb");
    EXPECT_TRUE(file->isExistSymbol(*rc, 0));
    EXPECT_FALSE(file->isExistSymbol(*rc, 1)) << "no such directory";
    file->symbName("a.sht");
    EXPECT_FALSE(file->isExistSymbol(*rc, 0)) << "there, but no symbol";
}

TEST_F(BlockFileDisk, CountTheSheetsUnderTheOwnPath) {
    dir.makeDirectory("a.cir");
    const BlockPtr file = open("a.cir", BexOpenRead);
    // A directory can't be read as a block file, but a path of this form is what the count is made for.
    EXPECT_FALSE(file);
    const BlockPtr created = open("b.cir", BexOpenCreate);
    ASSERT_TRUE(created);
    unsigned count = 77;
    EXPECT_FALSE(created->sheetCount(count));
    EXPECT_EQ(count, 77u) << "nothing there";
    dir.makeDirectory("b.cir");
    EXPECT_FALSE(created->sheetCount(count));
    EXPECT_EQ(count, 77u) << "no sheets";
    for (const char* sheet : {"001.sht", "002.sht", "_003.sht"}) writeFile(dir.file("b.cir/") + sheet, "");
    EXPECT_TRUE(created->sheetCount(count));
    EXPECT_EQ(count, 2u);
}

class BlockFileSymbPath : public BlockFile {
protected:
    void SetUp() override {
        for (const char* name : {"first", "own", "last"}) dir.makeDirectory(name);
        const char* names[] = {"first", "own", "last"};
        for (unsigned i = 0; i < 3; ++i) ASSERT_TRUE(rc->symbPath(i, names[i], dir.file(names[i]).c_str()));
    }
    BlockPtr inDirectory(const std::string& path) const {
        return BlockPtr(BexBlockFile::open(path.c_str(), "b.blk", BexOpenCreate, rc.get()));
    }
    // The directory found for "s.smb", -1 for none.
    int find(const BlockPtr& file, const char* name = "s.smb") const {
        unsigned index = 77;
        if (file->symbPath(*rc, name, index)) return static_cast<int>(index);
        EXPECT_EQ(index, 77u) << "a failure touches nothing";
        return -1;
    }

    bexa::test::DatarcPtr rc = newDatarc(dir.path().c_str());
};

TEST_F(BlockFileSymbPath, TakesTheOwnDirectoryFirst) {
    for (const char* name : {"first/s.smb", "own/s.smb", "last/s.smb"}) writeFile(dir.file(name), "");
    EXPECT_EQ(find(inDirectory(dir.file("own"))), 1);
    EXPECT_EQ(find(inDirectory(dir.file("OWN"))), 1) << "in any case of letters";
    EXPECT_EQ(find(inDirectory(dir.file("elsewhere"))), 0);
}

TEST_F(BlockFileSymbPath, OtherwiseTheFirstThatHoldsTheSymbol) {
    writeFile(dir.file("last/s.smb"), "");
    EXPECT_EQ(find(inDirectory(dir.file("own"))), 2);
    writeFile(dir.file("first/s.smb"), "");
    EXPECT_EQ(find(inDirectory(dir.file("own"))), 0);
}

TEST_F(BlockFileSymbPath, ExpandsTheOwnDirectory) {
    writeFile(dir.file("first/s.smb"), "");
    writeFile(dir.file("own/s.smb"), "");
    const EnvGuard variable("BEXA_TEST_DIRECTORY", dir.path());
    EXPECT_EQ(find(inDirectory("$BEXA_TEST_DIRECTORY/own")), 1);
}

TEST_F(BlockFileSymbPath, FindsNothingForNullAndForWhatIsNowhere) {
    writeFile(dir.file("own/s.smb"), "");
    const BlockPtr file = inDirectory(dir.file("own"));
    EXPECT_EQ(find(file, nullptr), -1);
    EXPECT_EQ(find(file, "nosuch.smb"), -1);
}

TEST_F(BlockFileSymbPath, WorksWithoutAnOwnDirectory) {
    writeFile(dir.file("last/s.smb"), "");
    const BlockPtr file(BexBlockFile::open(nullptr, "x.smb", BexOpenRead, rc.get()));
    EXPECT_EQ(find(file), 2);
}

} // namespace
} // namespace bexa::test
