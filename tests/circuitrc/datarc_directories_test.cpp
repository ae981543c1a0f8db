#include "tests/circuitrc/datarc_fixture.h"

#include <cstring>
#include <optional>
#include <string>

namespace bexa::test {
namespace {

class Directories : public DatarcFixture {
protected:
    Directories() { rc->currentDir("/d/c.cir"); }

    // The name and the path of a row, "none" when the reader refuses.
    template <class Reader>
    static std::string row(const BexDatarc& rc, Reader reader, unsigned int index) {
        YString path;
        YString name;
        if (!(rc.*reader)(index, &path, &name)) return "none";
        return std::string(name.view()) + ' ' + std::string(path.view());
    }
    std::string symb(unsigned int index) const {
        return row(*rc, static_cast<Read>(&BexDatarc::symbPath), index);
    }
    std::string cont(unsigned int index) const {
        return row(*rc, static_cast<Read>(&BexDatarc::contPath), index);
    }
    std::string lcdb(unsigned int index) const {
        return row(*rc, static_cast<Read>(&BexDatarc::lcdbPath), index);
    }
    std::string pureSymb(unsigned int index) const {
        return row(*rc, static_cast<Read>(&BexDatarc::pureSymbPath), index);
    }

    using Read = unsigned long (BexDatarc::*)(unsigned int, YString*, YString*) const;

    Resource rc = fresh();
};

struct PathRow {
    const char* stored;
    const char* expanded;
};

// In the circuit /d/c.cir, with SYMLIB set to /lib.
const PathRow paths[] = {
    {".", "/d"},                           //
    {"./sym", "/d/sym"},                   //
    {"../sym", "/sym"},                    //
    {"./a/../b/", "/d/b"},                 //
    {".hidden", "/d/.hidden"},             //
    {"sym", "/d/sym"},                     // stored with "./" in front
    {"$CIRCUIT_PATH", "/d/c.cir"},         //
    {"$CIRCUIT_PATH/sym", "/d/c.cir/sym"}, //
    {"$circuit_path/sym", "sym"},          // a variable like any other, and not set
    {"$SYMLIB", "/lib"},                   //
    {"$SYMLIB/a", "/lib/a"},               //
    {"$SYMLIB/a/../b", "/lib/b"},          //
    {"$UNSETLIB", ""},                     //
    {"$UNSETLIB/a", "a"},                  //
    {"$", ""},                             //
    {"$NESTED/a", "$SYMLIB/a"},            // a value is used as it is
    {"/usr/sym", "/usr/sym"},              //
    {"/usr/../sym", "/usr/../sym"},        // an absolute path isn't tidied
    {"C:/sym", "C:/sym"},                  //
    {"\\sym", "\\sym"},                    //
};

TEST_F(Directories, AreExpandedByTheirFirstCharacter) {
    const EnvGuard library("SYMLIB", "/lib");
    const EnvGuard nested("NESTED", "$SYMLIB");
    const EnvGuard unset("UNSETLIB", std::nullopt);
    const EnvGuard lower("circuit_path", std::nullopt);
    for (const PathRow& row : paths) {
        SCOPED_TRACE(row.stored);
        ASSERT_TRUE(rc->symbPath(0, "s", row.stored));
        ASSERT_TRUE(rc->contPath(0, "c", row.stored));
        ASSERT_TRUE(rc->lcdbPath(0, "l", row.stored));
        EXPECT_EQ(symb(0), std::string("s ") + row.expanded);
        EXPECT_EQ(cont(0), std::string("c ") + row.expanded);
        EXPECT_EQ(lcdb(0), std::string("l ") + row.expanded);
    }
}

TEST_F(Directories, TakeTheCircuitPathFromTheResourceNotTheEnvironment) {
    const EnvGuard variable("CIRCUIT_PATH", "/elsewhere");
    ASSERT_TRUE(rc->symbPath(0, "s", "$CIRCUIT_PATH/a"));
    EXPECT_EQ(symb(0), "s /d/c.cir/a");
}

TEST_F(Directories, AreNotExpandedByThePureReaders) {
    ASSERT_TRUE(rc->symbPath(0, "s", "$SYMLIB/a"));
    ASSERT_TRUE(rc->contPath(0, "c", "cont"));
    ASSERT_TRUE(rc->lcdbPath(0, "l", "../x"));
    EXPECT_EQ(pureSymb(0), "s $SYMLIB/a");
    EXPECT_EQ(row(*rc, static_cast<Read>(&BexDatarc::pureContPath), 0), "c ./cont");
    EXPECT_EQ(row(*rc, static_cast<Read>(&BexDatarc::pureLcdbPath), 0), "l ../x");
}

TEST_F(Directories, AreRefusedAtAndBeyondTheCount) {
    YString path("kept");
    char buffer[4] = "abc";
    for (unsigned int index : {1u, 0xffffffffu}) {
        EXPECT_FALSE(rc->symbPath(index, &path, nullptr));
        EXPECT_FALSE(rc->pureSymbPath(index, &path, nullptr));
        EXPECT_FALSE(rc->contPath(index, buffer, 3, buffer, 3));
        EXPECT_FALSE(rc->pureLcdbPath(index, buffer, 3, buffer, 3));
    }
    EXPECT_EQ(path, "kept");
    EXPECT_STREQ(buffer, "abc");
}

TEST_F(Directories, AreReadWithoutTheOutputsThatAreNull) {
    YString text;
    EXPECT_TRUE(rc->symbPath(0, static_cast<YString*>(nullptr), static_cast<YString*>(nullptr)));
    EXPECT_TRUE(rc->symbPath(0, nullptr, &text));
    EXPECT_EQ(text, "current");
    EXPECT_TRUE(rc->symbPath(0, &text, nullptr));
    EXPECT_EQ(text, "/d");
    EXPECT_TRUE(rc->symbPath(0, nullptr, 0, nullptr, 0));
}

TEST_F(Directories, AreTerminatedOneBeyondTheSizeOfABuffer) {
    ASSERT_TRUE(rc->symbPath(0, "name", "/path"));
    char path[12];
    char name[12];
    std::memset(path, '#', sizeof path);
    std::memset(name, '#', sizeof name);
    EXPECT_TRUE(rc->symbPath(0, path, 10, name, 10));
    EXPECT_EQ(std::string(path, 12),
              std::string("/path\0\0\0\0#\0#", 12)); // 9 bytes, one untouched, the terminator
    EXPECT_EQ(std::string(name, 12), std::string("name\0\0\0\0\0#\0#", 12));
}

TEST_F(Directories, AreCutToOneLessThanTheSizeOfABuffer) {
    ASSERT_TRUE(rc->contPath(0, "name", "/path"));
    const struct {
        unsigned int size;
        const char* bytes; // of "/path" in a buffer of "#######"
        std::size_t count;
    } rows[] = {
        {0, "#######", 7},  // left out
        {1, "#\0#####", 7}, // nothing copied
        {2, "/#\0####", 7}, //
        {5, "/pat#\0#", 7}, //
        {6, "/path#\0", 7}, // even a text that would fit with a terminator
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        char path[8] = "#######";
        char name[8] = "#######";
        EXPECT_TRUE(rc->pureContPath(0, path, row.size, name, 0));
        EXPECT_EQ(std::string(path, 7), std::string(row.bytes, row.count));
        EXPECT_STREQ(name, "#######");
        std::memset(path, '#', 7);
        EXPECT_TRUE(rc->contPath(0, path, row.size, nullptr, 7));
        EXPECT_EQ(std::string(path, 7), std::string(row.bytes, row.count));
    }
}

// ---- Setting rows

TEST_F(Directories, TakeTheNameFirstAndThePathSecond) {
    EXPECT_TRUE(rc->symbPath(0, "first", "/second"));
    EXPECT_EQ(symb(0), "first /second");
}

TEST_F(Directories, RefuseNullTextsButGrow) {
    EXPECT_FALSE(rc->symbPath(1, nullptr, "/x"));
    EXPECT_FALSE(rc->contPath(2, "x", nullptr));
    EXPECT_EQ(rc->symbPathCount(), 2u);
    EXPECT_EQ(rc->contPathCount(), 3u);
}

TEST_F(Directories, HaveLimits) {
    EXPECT_FALSE(rc->symbPath(512, "x", "/x"));
    EXPECT_FALSE(rc->contPath(512, "x", "/x"));
    EXPECT_FALSE(rc->lcdbPath(256, "x", "/x"));
    EXPECT_FALSE(rc->symbPath(0xffffffffu, "x", "/x"));
    EXPECT_TRUE(rc->symbPath(511, "x", "/x"));
    EXPECT_TRUE(rc->contPath(511, "x", "/x"));
    EXPECT_TRUE(rc->lcdbPath(255, "x", "/x"));
    EXPECT_EQ(rc->symbPathCount(), 512u);
    EXPECT_EQ(rc->contPathCount(), 512u);
    EXPECT_EQ(rc->lcdbPathCount(), 256u);
}

TEST_F(Directories, FillAGapWithTheExpandedFirstRow) {
    ASSERT_TRUE(rc->symbPath(0, "s", "./symbols"));
    EXPECT_TRUE(rc->symbPath(2, "new", "/new"));
    EXPECT_EQ(pureSymb(1), "- /d/symbols");
    EXPECT_EQ(pureSymb(2), "new /new");
}

TEST_F(Directories, OfLibrariesFillAGapFromTheContents) {
    ASSERT_TRUE(rc->lcdbPath(0, "l", "/libraries"));
    ASSERT_TRUE(rc->contPath(0, "c", "/contents"));
    EXPECT_TRUE(rc->lcdbPath(2, "new", "/new"));
    EXPECT_EQ(lcdb(1), "- /contents");
}

TEST_F(Directories, AreNormalisedWhenStored) {
    EXPECT_TRUE(rc->symbPath(0, "s", "lib//X.CIR/"));
    EXPECT_EQ(pureSymb(0), "s ./lib/X.cir");
    EXPECT_TRUE(rc->symbPath(0, "s", ""));
    EXPECT_EQ(pureSymb(0), "s .");
}

TEST_F(Directories, LoseTheirLastRowByTwoEmptyTexts) {
    ASSERT_TRUE(rc->symbPath(1, "second", "/second"));
    EXPECT_TRUE(rc->symbPath(1, "", ""));
    EXPECT_EQ(rc->symbPathCount(), 1u);
    ASSERT_TRUE(rc->symbPath(1, "second", "/second"));
    EXPECT_TRUE(rc->symbPath(0, "", "")); // not the last one: stored
    EXPECT_EQ(rc->symbPathCount(), 2u);
    EXPECT_EQ(pureSymb(0), " .");
}

TEST_F(Directories, KeepTheGapInFrontOfARowThatTwoEmptyTextsTakeAway) {
    EXPECT_TRUE(rc->symbPath(5, "", ""));
    EXPECT_EQ(rc->symbPathCount(), 5u);
    EXPECT_EQ(pureSymb(4), "- /d");
}

TEST_F(Directories, OfAnEmptiedTableCanNotBeSetAgain) {
    EXPECT_TRUE(rc->contPath(0, "", ""));
    EXPECT_EQ(rc->contPathCount(), 0u);
    EXPECT_FALSE(rc->contPath(0, "c", "/c"));
    EXPECT_EQ(cont(0), "none");
    EXPECT_FALSE(rc->lcdbPath(1, "l", "/l")); // the pattern for its gaps is gone
    EXPECT_EQ(rc->lcdbPathCount(), 1u);
}

TEST_F(Directories, OfLibrariesKeepTheirFirstRow) {
    EXPECT_TRUE(rc->lcdbPath(0, "", ""));
    ASSERT_EQ(rc->lcdbPathCount(), 1u);
    EXPECT_EQ(row(*rc, static_cast<Read>(&BexDatarc::pureLcdbPath), 0), " .");
    EXPECT_TRUE(rc->lcdbPath(1, "l", "/l"));
    EXPECT_TRUE(rc->lcdbPath(1, "", ""));
    EXPECT_EQ(rc->lcdbPathCount(), 1u);
}

} // namespace
} // namespace bexa::test
