// Life cycle, first values, identity, scaling, copies.

#include "tests/envrc/envrc_fixture.h"

#include "tests/support/child.h"

#include <climits>
#include <limits>
#include <string>

namespace bexa::test {
namespace {

class Envrc : public EnvrcFixture {
protected:
    std::string path() const { return dir.file("e.rsc"); }
    BexEnvrc* open(BexOpenMode mode) const { return BexEnvrc::open(path().c_str(), mode, nullptr, nullptr); }
};

// ---- Life cycle

TEST_F(Envrc, IsCreatedOnlyWhereNoFileIs) {
    const Resource envrc(open(BexOpenCreate));
    ASSERT_TRUE(envrc);
    EXPECT_EQ(envrc->openMode(), BexOpenCreate);
    EXPECT_EQ(envrc->fileName(), path());
    EXPECT_FALSE(exists(path()));
    writeFile(path(), "");
    EXPECT_EQ(open(BexOpenCreate), nullptr);
    EXPECT_EQ(contentOf(path()), "");
}

TEST_F(Envrc, IsNotOpenedWithoutAFile) {
    EXPECT_EQ(open(BexOpenRead), nullptr);
    EXPECT_EQ(open(BexOpenUpdate), nullptr);
    for (const BexOpenMode mode : {BexOpenCreate, BexOpenUpdate, BexOpenRead}) {
        EXPECT_EQ(BexEnvrc::open(nullptr, mode, nullptr, nullptr), nullptr);
        EXPECT_EQ(BexEnvrc::open("", mode, nullptr, nullptr), nullptr);
        EXPECT_EQ(BexEnvrc::open(dir.path().c_str(), mode, nullptr, nullptr), nullptr);
    }
}

TEST_F(Envrc, IsNotOpenedWhereTheFileMayNotBeReadOrWritten) {
    dir.openToAll();
    writeFile(path(), "");
    setMode(path(), 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return open(BexOpenUpdate) ? 1 : open(BexOpenRead) ? 0 : 2; }), 0);
    setMode(path(), 0222); // writable, but the load fails
    EXPECT_EQ(Child().asNobody().run([&] { return open(BexOpenUpdate) || open(BexOpenRead) ? 1 : 0; }), 0);
}

TEST_F(Envrc, SavesANewFileOnce) {
    const Resource envrc(open(BexOpenCreate));
    EXPECT_TRUE(envrc->save());
    EXPECT_EQ(contentOf(path()), golden());
    EXPECT_FALSE(envrc->save());
    EXPECT_TRUE(envrc->saveAs(path().c_str(), BexSaveOverwrite));
}

TEST_F(Envrc, SavesOverTheFileItUpdates) {
    writeFile(path(), "undoLimit : 7\n");
    BexEnvrc* envrc = open(BexOpenUpdate);
    ASSERT_NE(envrc, nullptr);
    EXPECT_TRUE(envrc->set("undoLimit", 8L));
    EXPECT_TRUE(BexEnvrc::close(envrc, BexCloseSave));
    EXPECT_NE(contentOf(path()).find("\nundoLimit : 8\n"), std::string::npos);
}

TEST_F(Envrc, IsNotSavedWhenItIsOpenForReadingButMayBeSavedElsewhere) {
    writeFile(path(), "undoLimit : 7\n");
    BexEnvrc* envrc = open(BexOpenRead);
    ASSERT_NE(envrc, nullptr);
    EXPECT_TRUE(envrc->set("undoLimit", 8L));
    EXPECT_FALSE(envrc->save());
    EXPECT_FALSE(BexEnvrc::close(envrc, BexCloseSave));
    EXPECT_EQ(envrc->undoLimit(), 8u);
    EXPECT_TRUE(envrc->saveAs(dir.file("other.rsc").c_str(), BexSaveNew));
    EXPECT_EQ(envrc->fileName(), path());
    EXPECT_TRUE(BexEnvrc::close(envrc, BexCloseAuto));
    EXPECT_EQ(contentOf(path()), "undoLimit : 7\n");
    EXPECT_NE(contentOf(dir.file("other.rsc")).find("\nundoLimit : 8\n"), std::string::npos);
}

TEST_F(Envrc, EndsInAnyModeButSaveWhenItIsOpenForReading) {
    writeFile(path(), "");
    EXPECT_TRUE(BexEnvrc::close(open(BexOpenRead), BexCloseDiscard));
    EXPECT_TRUE(BexEnvrc::close(open(BexOpenRead), static_cast<BexCloseMode>(7)));
    EXPECT_EQ(contentOf(path()), "");
}

TEST_F(Envrc, OutlivesACloseThatCanNotSave) {
    BexEnvrc* envrc = open(BexOpenCreate);
    writeFile(path(), "of somebody else");
    EXPECT_FALSE(BexEnvrc::close(envrc, BexCloseAuto));
    EXPECT_FALSE(BexEnvrc::close(envrc, BexCloseSave));
    EXPECT_TRUE(envrc->saveAs(dir.file("other.rsc").c_str(), BexSaveNew));
    EXPECT_TRUE(BexEnvrc::close(envrc, BexCloseDiscard));
    EXPECT_EQ(contentOf(path()), "of somebody else");
}

TEST_F(Envrc, ClosesNothingInNoMode) {
    for (const BexCloseMode mode : {BexCloseSave, BexCloseDiscard, BexCloseAuto}) {
        EXPECT_FALSE(BexEnvrc::close(nullptr, mode));
    }
}

TEST_F(Envrc, SavesElsewhereUnderTheGuardOfTheMode) {
    const Resource envrc = fresh();
    EXPECT_FALSE(envrc->saveAs(path().c_str(), BexSaveOverwrite));
    EXPECT_TRUE(envrc->saveAs(path().c_str(), BexSaveNew));
    EXPECT_FALSE(envrc->saveAs(path().c_str(), BexSaveNew));
    EXPECT_TRUE(envrc->saveAs(path().c_str(), BexSaveAny));
    EXPECT_FALSE(envrc->saveAs(dir.file("nosuch/e.rsc").c_str(), BexSaveAny));
    EXPECT_FALSE(envrc->saveAs(dir.path().c_str(), BexSaveAny));
    EXPECT_EQ(envrc->openMode(), BexOpenCreate);
    EXPECT_EQ(envrc->fileName(), dir.file("fresh.rsc"));
}

// ---- Where it stands

struct PlaceRow {
    const char* given;
    const char* directory;
};

const PlaceRow places[] = {
    {nullptr, "."},             //
    {"/a/b/x.cir", "/a/b"},     // the circuit itself
    {"/a/b/x.CIR", "/a/b"},     //
    {"x.cir", "."},             //
    {"/a/b", "/a/b"},           // its directory
    {"/a/b/", "/a/b/"},         //
    {"/a/x.cirx", "/a/x.cirx"}, //
    {"/a.cir/b", "/a.cir/b"},   //
    {"", ""},                   //
};

TEST_F(Envrc, StandsInTheDirectoryOfTheDesign) {
    const Resource moved = fresh("elsewhere");
    for (const PlaceRow& row : places) {
        SCOPED_TRACE(row.given ? row.given : "(null)");
        EXPECT_STREQ(fresh(row.given)->currentDir(), row.directory);
        moved->currentDir(row.given);
        EXPECT_STREQ(moved->currentDir(), row.directory);
    }
}

TEST_F(Envrc, TakesItsOwnDirectoryAsAnArgument) {
    const Resource envrc = fresh("/a/b");
    envrc->currentDir(envrc->currentDir() + 2);
    EXPECT_STREQ(envrc->currentDir(), "/b");
}

// ---- First values

struct VariableRow {
    const char* variable;
    const char* key;
    unsigned long (BexEnvrc::*read)() const;
};

const VariableRow variables[] = {
    {"YDS_ZIP_TEXT", "zipText", &BexEnvrc::zipText},
    {"YDS_DO_NOT_SELECT_UNVISIBLE_PBOX", "doNotSelectUnvisiblePbox", &BexEnvrc::doNotSelectUnivisiblePbox},
};

TEST_F(Envrc, IsSwitchedOnByTheEnvironmentWhateverTheTextSays) {
    for (const VariableRow& row : variables) {
        for (const char* text : {"", "0", "Off", "On"}) {
            SCOPED_TRACE(std::string(row.variable) + "=" + text);
            const EnvGuard variable(row.variable, text);
            const Resource envrc = fresh();
            EXPECT_EQ((*envrc.*row.read)(), 1u);
            EXPECT_EQ(valueIn(*envrc, row.key), "On");
        }
        EXPECT_EQ((*fresh().*row.read)(), 0u);
    }
}

TEST_F(Envrc, TakesTheFileBeforeTheEnvironment) {
    for (const VariableRow& row : variables) {
        SCOPED_TRACE(row.variable);
        const EnvGuard variable(row.variable, "On");
        EXPECT_EQ((*loaded(std::string(row.key) + " : Off\n").*row.read)(), 0u);
        EXPECT_EQ((*loaded(std::string(row.key) + " : maybe\n").*row.read)(), 1u);
        EXPECT_EQ((*loaded("").*row.read)(), 1u);
    }
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
    {std::numeric_limits<double>::infinity(), LONG_MAX},
    {std::numeric_limits<double>::quiet_NaN(), 0},
};

TEST_F(Envrc, EncodesRoundingHalfAwayFromZero) {
    const Resource envrc = fresh();
    for (const ScaleRow& row : scaled) EXPECT_EQ(envrc->encode(row.value), row.encoded) << row.value;
    EXPECT_EQ(envrc->decode(1500), 1.5);
    EXPECT_EQ(envrc->decode(-1), -0.001);
}

TEST_F(Envrc, GivesAnglesInRadians) {
    EXPECT_EQ(fresh()->netTheta().radian(), 90.0 * 0.017453292519943295);
    EXPECT_EQ(fresh()->cAngle().radian(), 0.0);
}

// ---- Copies

// Differs from a fresh resource in a value of each kind.
Resource changed(Resource envrc) {
    EXPECT_TRUE(envrc->set("undoLimit", 7L));
    EXPECT_TRUE(envrc->set("dProject", "a project with a name longer than a short text"));
    EXPECT_TRUE(envrc->set("chgNetLabelListWidthSize", 99L));
    EXPECT_TRUE(envrc->set("zipText", "On"));
    EXPECT_TRUE(envrc->set("cScale", 2.0));
    EXPECT_TRUE(envrc->setGridTable(1, 2, 3, 4.0, 5.0));
    EXPECT_TRUE(envrc->setSchSheetSize(1, "A3", 0.0, 0.0, 420.0, 297.0, 1, "frame"));
    EXPECT_TRUE(envrc->setSchSheetAttr(0, "author", "me"));
    return envrc;
}

TEST_F(Envrc, SharesItsSettingsWithACopy) {
    const Resource envrc = changed(fresh("/a/b"));
    const Resource copy(new BexEnvrc(*envrc));
    EXPECT_STREQ(copy->fileName(), envrc->fileName());
    EXPECT_EQ(copy->openMode(), BexOpenCreate);
    EXPECT_STREQ(copy->currentDir(), "/a/b");
    EXPECT_EQ(copy->schSheetAttrTableCount(), 1);
    EXPECT_TRUE(copy->set("undoLimit", 9L));
    EXPECT_EQ(envrc->undoLimit(), 9u);
    EXPECT_TRUE(envrc->setSchSheetAttr(0, "author", ""));
    EXPECT_EQ(copy->schSheetAttrTableCount(), 0);
    copy->currentDir("/c"); // its own
    EXPECT_STREQ(envrc->currentDir(), "/a/b");
}

TEST_F(Envrc, MayBeClosedBeforeOrAfterItsCopies) {
    BexEnvrc* first = changed(fresh()).release();
    auto* second = new BexEnvrc(*first);
    auto* third = new BexEnvrc(*second);
    EXPECT_TRUE(BexEnvrc::close(first, BexCloseDiscard));
    EXPECT_EQ(second->undoLimit(), 7u);
    EXPECT_TRUE(BexEnvrc::close(third, BexCloseDiscard));
    EXPECT_STREQ(second->dProject(), "a project with a name longer than a short text");
    EXPECT_TRUE(BexEnvrc::close(second, BexCloseDiscard));
}

TEST_F(Envrc, KeepsItsFileModeAndDirectoryWhenItIsAssignedTo) {
    const Resource source = changed(fresh("/a/b"));
    const Resource target = loaded("undoLimit : 3\n");
    *target = *source;
    EXPECT_EQ(target->fileName(), dir.file("loaded.rsc"));
    EXPECT_EQ(target->openMode(), BexOpenRead);
    EXPECT_STREQ(target->currentDir(), ".");
    EXPECT_EQ(target->undoLimit(), 7u);
}

TEST_F(Envrc, DropsItsSheetAttributesWhenItIsAssignedToAndTakesAllElse) {
    const Resource source = changed(fresh());
    const Resource target = fresh();
    EXPECT_TRUE(target->setSchSheetAttr(0, "mine", "x"));
    *target = *source;
    EXPECT_EQ(target->schSheetAttrTableCount(), 0);
    EXPECT_EQ(source->schSheetAttrTableCount(), 1);
    EXPECT_STREQ(target->dProject(), source->dProject());
    EXPECT_EQ(target->chgNetLabelListWidthSize(), 99u);
    EXPECT_TRUE(target->setSchSheetAttr(0, "author", "me"));
    EXPECT_EQ(saved(*target), saved(*source));
}

TEST_F(Envrc, HasSettingsOfItsOwnAfterAnAssignment) {
    const Resource source = changed(fresh());
    const Resource target = fresh();
    const Resource sharer(new BexEnvrc(*target));
    *target = *source;
    EXPECT_TRUE(target->set("undoLimit", 11L));
    EXPECT_TRUE(target->setGridTable(0, 9, 9, 9.0, 9.0));
    EXPECT_EQ(source->undoLimit(), 7u);
    EXPECT_EQ(sharer->undoLimit(), 50u); // shared with the target until then
    int count = 0;
    long length = 0;
    EXPECT_TRUE(source->gridTable(0, count, count, length, length));
    EXPECT_EQ(length, 10000);
}

TEST_F(Envrc, DropsItsSheetAttributesEvenWhenItIsAssignedToItself) {
    const Resource envrc = changed(fresh());
    const BexEnvrc& same = *envrc;
    *envrc = same;
    EXPECT_EQ(envrc->undoLimit(), 7u);
    EXPECT_EQ(envrc->gridTableCount(), 2);
    EXPECT_EQ(envrc->schSheetAttrTableCount(), 0);
}

} // namespace
} // namespace bexa::test
