// Life cycle, first values, identity, scaling, copies.

#include "tests/circuitrc/datarc_fixture.h"

#include "tests/support/child.h"

#include <climits>
#include <limits>
#include <string>

namespace bexa::test {
namespace {

class Datarc : public DatarcFixture {
protected:
    std::string path() const { return dir.file("c.rsc"); }
    BexDatarc* open(BexOpenMode mode) const { return BexDatarc::open(path().c_str(), mode, nullptr); }
};

// ---- Life cycle

TEST_F(Datarc, IsCreatedOnlyWhereNoFileIs) {
    const Resource rc(open(BexOpenCreate));
    ASSERT_TRUE(rc);
    EXPECT_EQ(rc->openMode(), BexOpenCreate);
    EXPECT_EQ(rc->fileName(), path());
    EXPECT_FALSE(exists(path()));
    writeFile(path(), "");
    EXPECT_EQ(open(BexOpenCreate), nullptr);
}

TEST_F(Datarc, IsNotOpenedWithoutAFile) {
    EXPECT_EQ(open(BexOpenRead), nullptr);
    EXPECT_EQ(open(BexOpenUpdate), nullptr);
    EXPECT_EQ(BexDatarc::open(nullptr, BexOpenCreate, nullptr), nullptr);
    EXPECT_EQ(BexDatarc::open("", BexOpenCreate, nullptr), nullptr);
    EXPECT_EQ(BexDatarc::open(dir.path().c_str(), BexOpenRead, nullptr), nullptr);
}

TEST_F(Datarc, IsNotOpenedWhereTheFileMayNotBeReadOrWritten) {
    dir.openToAll();
    writeFile(path(), "");
    setMode(path(), 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return open(BexOpenUpdate) ? 1 : open(BexOpenRead) ? 0 : 2; }), 0);
    setMode(path(), 0222);
    EXPECT_EQ(Child().asNobody().run([&] { return open(BexOpenRead) ? 1 : 0; }), 0);
}

TEST_F(Datarc, SavesANewFileOnce) {
    const Resource rc(open(BexOpenCreate));
    EXPECT_TRUE(rc->save());
    EXPECT_EQ(contentOf(path()), contentOf(testData("circuitrc/fresh.rsc")));
    EXPECT_FALSE(rc->save());
    EXPECT_TRUE(rc->saveAs(path().c_str(), BexSaveOverwrite));
}

TEST_F(Datarc, SavesOverTheFileItUpdates) {
    writeFile(path(), "propDispNum : 5\n");
    BexDatarc* rc = open(BexOpenUpdate);
    ASSERT_NE(rc, nullptr);
    EXPECT_TRUE(rc->set("propDispNum", 6L, 0, 0));
    EXPECT_TRUE(BexDatarc::close(rc, BexCloseSave));
    EXPECT_NE(contentOf(path()).find("propDispNum : 6\n"), std::string::npos);
}

TEST_F(Datarc, IsNotSavedWhenItIsOpenForReading) {
    writeFile(path(), "propDispNum : 5\n");
    BexDatarc* rc = open(BexOpenRead);
    ASSERT_NE(rc, nullptr);
    EXPECT_FALSE(rc->save());
    EXPECT_FALSE(BexDatarc::close(rc, BexCloseSave));
    EXPECT_EQ(rc->propDispNum(), 5);
    EXPECT_TRUE(BexDatarc::close(rc, BexCloseAuto));
    EXPECT_EQ(contentOf(path()), "propDispNum : 5\n");
}

TEST_F(Datarc, OutlivesACloseThatCanNotSave) {
    BexDatarc* rc = open(BexOpenCreate);
    writeFile(path(), "of somebody else");
    EXPECT_FALSE(BexDatarc::close(rc, BexCloseAuto));
    EXPECT_TRUE(rc->saveAs(dir.file("other.rsc").c_str(), BexSaveNew));
    EXPECT_TRUE(BexDatarc::close(rc, BexCloseDiscard));
    EXPECT_EQ(contentOf(path()), "of somebody else");
}

TEST_F(Datarc, ClosesNothingByDiscard) {
    EXPECT_TRUE(BexDatarc::close(nullptr, BexCloseDiscard));
}

TEST_F(Datarc, SavesElsewhereUnderTheGuardOfTheMode) {
    const Resource rc = fresh();
    EXPECT_FALSE(rc->saveAs(path().c_str(), BexSaveOverwrite));
    EXPECT_TRUE(rc->saveAs(path().c_str(), BexSaveNew));
    EXPECT_FALSE(rc->saveAs(path().c_str(), BexSaveNew));
    EXPECT_TRUE(rc->saveAs(path().c_str(), BexSaveAny));
    EXPECT_FALSE(rc->saveAs(dir.file("nosuch/c.rsc").c_str(), BexSaveAny));
    EXPECT_FALSE(rc->saveAs(dir.path().c_str(), BexSaveAny));
    EXPECT_EQ(rc->openMode(), BexOpenCreate);
    EXPECT_STREQ(rc->fileName(), dir.file("fresh.rsc").c_str());
}

// ---- Where it stands

struct PlaceRow {
    const char* given;
    const char* directory;
    const char* name;
};

const PlaceRow openedAt[] = {
    {nullptr, ".", "noname.cir"}, //
    {"a/b.cir", "a", "b.cir"},    //
    {"a/b.CIR", "a", "b.CIR"},    //
    {"b.cir", ".", "b.cir"},      //
    {"a/b.SMB", "a", ""},         // a symbol stands in no circuit
    {"a/b.smb", "a", ""},         //
    {"a/b", "a/b", ""},           // nothing is there
    {"", "", ""},                 //
    {"a/b.cirx", "a/b.cirx", ""}, //
};

TEST_F(Datarc, TakesItsPlaceFromTheArgumentOfOpen) {
    for (const PlaceRow& row : openedAt) {
        SCOPED_TRACE(row.given ? row.given : "(null)");
        const Resource rc = fresh(row.given);
        EXPECT_STREQ(rc->currentDir(), row.directory);
        EXPECT_STREQ(rc->currentName(), row.name);
    }
}

TEST_F(Datarc, TakesTheDirectoryOfAFileAndADirectoryAsItIs) {
    writeFile(dir.file("readme.txt"), "");
    const Resource besideFile = fresh(dir.file("readme.txt").c_str());
    EXPECT_EQ(besideFile->currentDir(), dir.path());
    EXPECT_STREQ(besideFile->currentName(), "");
    const Resource inDirectory = fresh(dir.path().c_str());
    EXPECT_EQ(inDirectory->currentDir(), dir.path());
    EXPECT_STREQ(inDirectory->currentName(), "");
}

const PlaceRow movedTo[] = {
    {nullptr, ".", "noname.cir"},         //
    {"a/b.Cir", "a", "b.Cir"},            //
    {"a/b.smb", "a/b.smb", "noname.cir"}, // no test for symbols here
    {"a/b", "a/b", "noname.cir"},         //
    {"", "", "noname.cir"},               //
};

TEST_F(Datarc, TakesAnotherPlaceByRulesOfItsOwn) {
    for (const PlaceRow& row : movedTo) {
        SCOPED_TRACE(row.given ? row.given : "(null)");
        const Resource rc = fresh("x/y.cir");
        rc->currentDir(row.given);
        EXPECT_STREQ(rc->currentDir(), row.directory);
        EXPECT_STREQ(rc->currentName(), row.name);
    }
    writeFile(dir.file("readme.txt"), "");
    const Resource rc = fresh();
    rc->currentDir(dir.file("readme.txt").c_str()); // nor for files
    EXPECT_EQ(rc->currentDir(), dir.file("readme.txt"));
}

TEST_F(Datarc, TakesAnotherName) {
    const Resource rc = fresh("a/b.cir");
    rc->currentName("c.cir");
    EXPECT_STREQ(rc->currentName(), "c.cir");
    EXPECT_STREQ(rc->currentDir(), "a");
    rc->currentName("");
    EXPECT_STREQ(rc->currentName(), "noname.cir");
    rc->currentName("c.cir");
    rc->currentName(nullptr);
    EXPECT_STREQ(rc->currentName(), "noname.cir");
}

TEST_F(Datarc, TakesItsOwnTextsAsArguments) {
    const Resource rc = fresh("a/b.cir");
    rc->currentDir(rc->currentName());
    EXPECT_STREQ(rc->currentDir(), ".");
    EXPECT_STREQ(rc->currentName(), "b.cir");
    rc->currentName(rc->currentName());
    EXPECT_STREQ(rc->currentName(), "b.cir");
}

// ---- First values

TEST_F(Datarc, HasBuiltInLengths) {
    const Resource rc = fresh();
    EXPECT_EQ(rc->nodeSize(), 2000);
    EXPECT_EQ(rc->cornerRadius(), 10000);
    EXPECT_EQ(rc->dataTrap(), 500);
}

TEST_F(Datarc, AsksTheEnvironment) {
    const EnvGuard simpleArray("YDS_SIMPLE_ARRAY", "0");
    const EnvGuard date("YDS_DATE_FORMAT", "DD");
    const EnvGuard time("YDS_TIME_FORMAT", "");
    const Resource rc = fresh();
    EXPECT_EQ(rc->simpleArrayMode(), 1u); // whatever the value is
    EXPECT_EQ(rc->dateFormat(), "DD");
    EXPECT_EQ(rc->timeFormat(), "");
    EXPECT_NE(saved(*rc).find("simpleArray : YES\ndateFormat : \"DD\"\ntimeFormat : \"\"\n"),
              std::string::npos);
}

TEST_F(Datarc, ReplacesFormatsOfTheEnvironmentByThoseOfTheFile) {
    const EnvGuard simpleArray("YDS_SIMPLE_ARRAY", "1");
    const EnvGuard date("YDS_DATE_FORMAT", "DD");
    const EnvGuard time("YDS_TIME_FORMAT", "MM");
    const Resource rc = loaded("dateFormat : \"YY\"\ntimeFormat : \"\"\nsimpleArray : no\n");
    EXPECT_EQ(rc->dateFormat(), "YY");
    EXPECT_EQ(rc->timeFormat(), "MM");
    EXPECT_EQ(rc->simpleArrayMode(), 1u); // a file can't switch it off
    EXPECT_NE(saved(*rc).find("simpleArray : YES\n"), std::string::npos);
}

// ---- Scaling

struct ScaleRow {
    double value;
    long encoded;
};

const ScaleRow scaled[] = {
    {1.5, 1500},
    {-1.5, -1500},
    {0.0, 0},
    {0.0004, 0},
    {0.0005, 1}, // half away from 0
    {-0.0005, -1},
    {-0.0004, 0},
    {1e300, LONG_MAX}, // what no long holds becomes the nearest one
    {-1e300, LONG_MIN},
    {1e16, LONG_MAX},
    {std::numeric_limits<double>::infinity(), LONG_MAX},
    {-std::numeric_limits<double>::infinity(), LONG_MIN},
    {std::numeric_limits<double>::quiet_NaN(), 0},
};

TEST_F(Datarc, EncodesRoundingHalfAwayFromZero) {
    const Resource rc = fresh();
    for (const ScaleRow& row : scaled) EXPECT_EQ(rc->encode(row.value), row.encoded) << row.value;
    EXPECT_EQ(rc->decode(1500), 1.5);
    EXPECT_EQ(rc->decode(-1), -0.001);
}

// ---- Readers of modes

TEST_F(Datarc, RefusesAVariationMarkInUseWithoutItsTexts) {
    const Resource rc = fresh();
    unsigned long flag = 5;
    YString mark("m");
    YString name("n");
    rc->variationMark(1, "", "part");
    EXPECT_FALSE(rc->variationMark(flag, &mark, &name));
    rc->variationMark(1, "*", "");
    EXPECT_FALSE(rc->variationMark(flag, &mark, &name));
    EXPECT_EQ(flag, 5u);
    EXPECT_EQ(mark, "m");
    rc->variationMark(0, "", "");
    EXPECT_TRUE(rc->variationMark(flag, &mark, &name));
    EXPECT_EQ(flag, 0u);
    EXPECT_EQ(mark, "");
}

TEST_F(Datarc, RefusesTheVariationMarkWithoutBothOutputs) {
    const Resource rc = fresh();
    const BexDatarc& reader = *rc;
    unsigned long flag = 5;
    YString text;
    char buffer[16];
    EXPECT_FALSE(reader.variationMark(flag, &text, nullptr));
    EXPECT_FALSE(reader.variationMark(flag, nullptr, &text));
    EXPECT_FALSE(reader.variationMark(flag, buffer, nullptr));
    EXPECT_FALSE(reader.variationMark(flag, nullptr, buffer));
    EXPECT_EQ(flag, 5u);
    EXPECT_TRUE(reader.variationMark(flag, buffer, buffer + 4));
    EXPECT_STREQ(buffer, "*");
    EXPECT_STREQ(buffer + 4, "reference");
}

TEST_F(Datarc, GivesTheSimpleDisplayAsCharactersOrTexts) {
    const Resource rc = fresh();
    int flag = 5;
    char separator = 'x';
    char crown = 'x';
    EXPECT_TRUE(std::as_const(*rc).busNSimpleDispMode(flag, separator, crown));
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(separator, '_');
    EXPECT_EQ(crown, '*');
    YString texts[2];
    EXPECT_TRUE(rc->busNSimpleDispMode(flag, &texts[0], &texts[1]));
    EXPECT_EQ(texts[0], "_");
    EXPECT_EQ(texts[1], "*");
}

// ---- Copies

Resource changed(Resource rc) {
    rc->set("busStartChar", '<', 0, 0);
    rc->set("noMountAliasName", "a name that is longer than a short text", 0, 0);
    rc->symbPath(1, "second", "/second");
    rc->overwritePortMode(2);
    rc->dateFormat("D");
    return rc;
}

TEST_F(Datarc, IsCopiedWithItsFileAndItsMode) {
    const Resource rc = changed(fresh("a/b.cir"));
    const Resource copy(new BexDatarc(*rc));
    EXPECT_STREQ(copy->fileName(), rc->fileName());
    EXPECT_EQ(copy->openMode(), BexOpenCreate);
    EXPECT_STREQ(copy->currentDir(), "a");
    EXPECT_STREQ(copy->currentName(), "b.cir");
    EXPECT_EQ(saved(*copy), saved(*rc));
    rc->set("busStartChar", '>', 0, 0);
    rc->symbPath(1, "other", "/other");
    EXPECT_EQ(copy->busStartChar(), '<');
    EXPECT_NE(saved(*copy), saved(*rc));
}

TEST_F(Datarc, KeepsItsFileAndItsModeWhenItIsAssignedTo) {
    const Resource source = changed(fresh("a/b.cir"));
    const Resource target = loaded("");
    *target = *source;
    EXPECT_EQ(target->fileName(), dir.file("loaded.rsc"));
    EXPECT_EQ(target->openMode(), BexOpenRead);
    EXPECT_STREQ(target->currentDir(), "a");
    EXPECT_STREQ(target->currentName(), "b.cir");
    EXPECT_EQ(target->busStartChar(), '<');
    EXPECT_EQ(target->symbPathCount(), 2u);
    EXPECT_EQ(target->overwritePortMode(), 2u);
}

TEST_F(Datarc, TakesItsSimpleArrayFromTheOverwriteModeWhenItIsAssignedTo) {
    const Resource source = fresh();
    const Resource target = fresh();
    source->overwritePortMode(3);
    *target = *source;
    EXPECT_EQ(target->simpleArrayMode(), 3u);
    EXPECT_EQ(target->overwritePortMode(), 3u);
    EXPECT_NE(saved(*target).find("overwritePortMode : sigToPortChkArray\nsimpleArray : YES\n"),
              std::string::npos);

    source->overwritePortMode(0);
    *target = *source; // written as on although it is off
    EXPECT_EQ(target->simpleArrayMode(), 0u);
    EXPECT_NE(saved(*target).find("simpleArray : YES\n"), std::string::npos);
}

TEST_F(Datarc, LosesItsSimpleArrayWhenItIsAssignedTo) {
    const Resource source = fresh();
    const Resource target = fresh();
    source->simpleArrayMode(1);
    target->simpleArrayMode(1);
    *target = *source;
    EXPECT_EQ(target->simpleArrayMode(), 0u);
    EXPECT_EQ(saved(*target).find("simpleArray"), std::string::npos);
    const Resource copy(new BexDatarc(*source)); // a copy doesn't
    EXPECT_EQ(copy->simpleArrayMode(), 1u);
}

TEST_F(Datarc, CanBeAssignedToItself) {
    const Resource rc = changed(fresh());
    const BexDatarc& same = *rc;
    *rc = same;
    EXPECT_EQ(rc->busStartChar(), '<');
    EXPECT_EQ(rc->symbPathCount(), 2u);
    EXPECT_EQ(rc->simpleArrayMode(), 2u);
}

TEST_F(Datarc, GivesACopyItsPalette) {
    givePalette("colorTable 2 { 1 \"mine\" }");
    const Resource rc = fresh();
    const Resource copy(new BexDatarc(*rc));
    YString name;
    EXPECT_TRUE(copy->color(1, "other"));
    EXPECT_TRUE(rc->color(1, &name));
    EXPECT_EQ(name, "mine");
}

} // namespace
} // namespace bexa::test
