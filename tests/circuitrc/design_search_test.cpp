#include "bexa/store/data_file.h"

#include "tests/circuitrc/datarc_fixture.h"

#include <string>

namespace bexa::test {
namespace {

class DesignSearch : public DatarcFixture {
protected:
    DesignSearch() {
        dir.makeDirectory("one");
        dir.makeDirectory("two");
        for (const char* name : {"one", "two"}) {
            const unsigned int index = name == std::string("one") ? 0 : 1;
            rc->symbPath(index, name, dir.file(name).c_str());
            rc->contPath(index, name, dir.file(name).c_str());
        }
    }

    Resource rc = fresh();
    int index = 7;
};

TEST_F(DesignSearch, FindsTheFirstDirectoryThatHoldsTheFile) {
    writeFile(dir.file("two/a.smb"), "");
    EXPECT_EQ(BexDataFile::searchSymb("a", *rc, index), dir.file("two/a.smb").c_str());
    EXPECT_EQ(index, 1);
    writeFile(dir.file("one/a.smb"), "");
    EXPECT_EQ(BexDataFile::searchSymb("a", *rc, index), dir.file("one/a.smb").c_str());
    EXPECT_EQ(index, 0);
}

TEST_F(DesignSearch, ReplacesTheSuffixByThatOfTheKind) {
    writeFile(dir.file("one/a.smb"), "");
    writeFile(dir.file("one/a.blk"), "");
    dir.makeDirectory("two/a.cir");
    EXPECT_EQ(BexDataFile::searchSymb("a.x", *rc, index), dir.file("one/a.smb").c_str());
    EXPECT_EQ(BexDataFile::searchCirc("a.smb", *rc, index), dir.file("two/a.cir").c_str());
    EXPECT_EQ(index, 1);
    EXPECT_EQ(BexDataFile::searchBlock("a.CIR", *rc, index), dir.file("one/a.blk").c_str());
    EXPECT_EQ(index, 0);
}

TEST_F(DesignSearch, LooksForBlocksInTheDirectoriesOfContents) {
    dir.makeDirectory("symbols");
    ASSERT_TRUE(rc->symbPath(0, "s", dir.file("symbols").c_str()));
    writeFile(dir.file("two/b.blk"), "");
    EXPECT_EQ(BexDataFile::searchBlock("b", *rc, index), dir.file("two/b.blk").c_str());
    EXPECT_EQ(index, 1);
    writeFile(dir.file("symbols/c.blk"), "");
    EXPECT_EQ(BexDataFile::searchBlock("c", *rc, index), "");
}

TEST_F(DesignSearch, GivesTheCanonicalSpelling) {
    dir.makeDirectory("one/sub.cir");
    writeFile(dir.file("one/sub.cir/a.smb"), "");
    EXPECT_EQ(BexDataFile::searchSymb("sub.CIR/a", *rc, index), dir.file("one/sub.cir/a.smb").c_str());
}

TEST_F(DesignSearch, GivesNothingForWhatIsNotThere) {
    EXPECT_EQ(BexDataFile::searchSymb("nosuch", *rc, index), "");
    EXPECT_EQ(index, -1);
    index = 7;
    EXPECT_EQ(BexDataFile::searchCirc("", *rc, index), "");
    EXPECT_EQ(index, -1);
}

TEST_F(DesignSearch, GivesNothingForANullName) {
    EXPECT_EQ(BexDataFile::searchSymb(nullptr, *rc, index), "");
    EXPECT_EQ(index, -1);
    index = 7;
    EXPECT_EQ(BexDataFile::searchCirc(nullptr, *rc, index), "");
    EXPECT_EQ(index, -1);
    index = 7;
    EXPECT_EQ(BexDataFile::searchBlock(nullptr, *rc, index), "");
    EXPECT_EQ(index, -1);
}

} // namespace
} // namespace bexa::test
