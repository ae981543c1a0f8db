#include "bexa/foundation/rsc_lifecycle.h"
#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

using namespace bexa::detail;
using namespace bexa::test;

namespace {

// What became of a note, for the tests to see.
struct Log {
    int made = 0;
    int loaded = 0;
    int ended = 0;
    unsigned long loads = 1;
    bool memory = true;
};

// The smallest resource: its file holds no more than a mark.
class Note {
public:
    BexOpenMode openMode() const { return mode_; }
    unsigned long save() {
        return saveByMode(mode_, [this](BexSaveMode mode) { return saveAs(path_.c_str(), mode); });
    }
    unsigned long saveAs(const char* path, BexSaveMode mode) {
        if (!maySave(path, mode)) return 0;
        writeFile(path, "saved");
        return 1;
    }

private:
    friend struct bexa::detail::RscAccess;

    Note(const char* path, BexOpenMode mode, Log& log) : path_(path ? path : ""), mode_(mode), log_(log) {
        if (!log.memory) throw std::bad_alloc();
        ++log_.made;
    }
    ~Note() { ++log_.ended; }
    unsigned long load() {
        ++log_.loaded;
        return log_.loads;
    }

    std::string path_;
    BexOpenMode mode_;
    Log& log_;
};

class RscLifecycle : public testing::Test {
protected:
    RscLifecycle() { writeFile(present_, "old"); }

    Note* open(const std::string& path, BexOpenMode mode) {
        return RscAccess::open<Note>(path.c_str(), mode, path.c_str(), mode, log_);
    }
    static unsigned long close(Note* note, BexCloseMode mode) {
        return RscAccess::close(note, mode, [](Note& open) { return open.save(); });
    }

    TempDir dir_;
    std::string present_ = dir_.file("present");
    std::string missing_ = dir_.file("missing");
    Log log_;
};

TEST_F(RscLifecycle, CreateWantsNoFileAndLoadsNothing) {
    EXPECT_EQ(open(present_, BexOpenCreate), nullptr);
    EXPECT_EQ(log_.made, 0);
    Note* note = open(missing_, BexOpenCreate);
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(log_.loaded, 0);
    EXPECT_FALSE(exists(missing_)) << "the file comes with the save";
    EXPECT_EQ(close(note, BexCloseDiscard), 1UL);
}

TEST_F(RscLifecycle, UpdateAndReadWantAFileAndLoadIt) {
    for (BexOpenMode mode : {BexOpenUpdate, BexOpenRead}) {
        EXPECT_EQ(open(missing_, mode), nullptr);
        log_ = {};
        Note* note = open(present_, mode);
        ASSERT_NE(note, nullptr);
        EXPECT_EQ(log_.loaded, 1);
        EXPECT_EQ(close(note, BexCloseDiscard), 1UL);
    }
}

TEST_F(RscLifecycle, UpdateAsksForWritingAndReadForReading) {
    dir_.openToAll();
    const auto mayAll = [this] {
        return mayOpen(present_.c_str(), BexOpenUpdate) * 4 + mayOpen(present_.c_str(), BexOpenRead) * 2 +
               maySave(present_.c_str(), BexSaveOverwrite);
    };
    setMode(present_, 0444);
    EXPECT_EQ(Child().asNobody().run(mayAll), 2);
    setMode(present_, 0222);
    EXPECT_EQ(Child().asNobody().run(mayAll), 5);
    setMode(present_, 0666);
    EXPECT_EQ(Child().asNobody().run(mayAll), 7);
}

TEST_F(RscLifecycle, FailedLoadEndsTheObject) {
    log_.loads = 0;
    EXPECT_EQ(open(present_, BexOpenUpdate), nullptr);
    EXPECT_EQ(log_.ended, 1);
    EXPECT_EQ(contentOf(present_), "old");
}

TEST_F(RscLifecycle, NoMemoryIsNoObject) {
    log_.memory = false;
    EXPECT_EQ(open(present_, BexOpenUpdate), nullptr);
}

TEST_F(RscLifecycle, EmptyPathIsRefusedWhereTheClassSaysSo) {
    for (const char* path : {"", static_cast<const char*>(nullptr)}) {
        for (BexOpenMode mode : {BexOpenCreate, BexOpenUpdate, BexOpenRead}) {
            EXPECT_EQ((RscAccess::open<Note, EmptyPath::Refused>(path, mode, path, mode, log_)), nullptr);
        }
        Note* note = RscAccess::open<Note>(path, BexOpenCreate, path, BexOpenCreate, log_);
        EXPECT_NE(note, nullptr) << "others make an object that has no path";
        close(note, BexCloseDiscard);
    }
}

TEST_F(RscLifecycle, SaveGoesByTheModeOfTheObject) {
    const struct {
        BexOpenMode mode;
        std::vector<BexSaveMode> asked;
    } rows[] = {{BexOpenCreate, {BexSaveNew}}, {BexOpenUpdate, {BexSaveOverwrite}}, {BexOpenRead, {}}};
    for (const auto& row : rows) {
        std::vector<BexSaveMode> asked;
        const unsigned long saved = saveByMode(row.mode, [&](BexSaveMode mode) {
            asked.push_back(mode);
            return 1UL;
        });
        EXPECT_EQ(asked, row.asked);
        EXPECT_EQ(saved, row.asked.size());
    }
}

TEST_F(RscLifecycle, AFileOfItsOwnMayBeSavedAgainFromCreateMode) {
    const auto asked = [](BexSaveMode mode) { return 10UL + static_cast<unsigned long>(mode); };
    EXPECT_EQ(saveByMode(BexOpenCreate, missing_.c_str(), asked), 10UL + BexSaveNew);
    EXPECT_EQ(saveByMode(BexOpenCreate, present_.c_str(), asked), 10UL + BexSaveOverwrite);
    EXPECT_EQ(saveByMode(BexOpenUpdate, missing_.c_str(), asked), 10UL + BexSaveOverwrite);
    EXPECT_EQ(saveByMode(BexOpenRead, present_.c_str(), asked), 0UL);
}

TEST_F(RscLifecycle, SaveAsLooksAtItsTarget) {
    EXPECT_TRUE(maySave(missing_.c_str(), BexSaveNew));
    EXPECT_FALSE(maySave(present_.c_str(), BexSaveNew));
    EXPECT_FALSE(maySave(missing_.c_str(), BexSaveOverwrite));
    EXPECT_TRUE(maySave(present_.c_str(), BexSaveOverwrite));
    for (BexSaveMode any : {BexSaveAny, BexSaveMode(7), BexSaveMode(-1)}) {
        EXPECT_TRUE(maySave(missing_.c_str(), any));
        EXPECT_TRUE(maySave(present_.c_str(), any));
    }
}

TEST_F(RscLifecycle, CloseDoesWhatItsModeSays) {
    const struct {
        BexOpenMode opened;
        BexCloseMode closed;
        unsigned long result;
        const char* content;
    } rows[] = {
        {BexOpenUpdate, BexCloseSave, 1, "saved"}, {BexOpenUpdate, BexCloseDiscard, 1, "old"},
        {BexOpenUpdate, BexCloseAuto, 1, "saved"}, {BexOpenRead, BexCloseSave, 0, "old"},
        {BexOpenRead, BexCloseDiscard, 1, "old"},  {BexOpenRead, BexCloseAuto, 1, "old"},
    };
    for (const auto& row : rows) {
        log_ = {};
        writeFile(present_, "old");
        Note* note = open(present_, row.opened);
        EXPECT_EQ(close(note, row.closed), row.result);
        EXPECT_EQ(contentOf(present_), row.content);
        EXPECT_EQ(log_.ended, static_cast<int>(row.result)) << "a failed close leaves the object alive";
        if (!row.result) close(note, BexCloseDiscard);
    }
}

TEST_F(RscLifecycle, FailedSaveLeavesTheObjectAlive) {
    Note* note = open(missing_, BexOpenCreate);
    writeFile(missing_, "somebody else's");
    EXPECT_EQ(close(note, BexCloseSave), 0UL);
    EXPECT_EQ(close(note, BexCloseAuto), 0UL);
    EXPECT_EQ(log_.ended, 0);
    EXPECT_EQ(contentOf(missing_), "somebody else's");
    EXPECT_EQ(note->saveAs(dir_.file("other").c_str(), BexSaveNew), 1UL) << "the way out";
    EXPECT_EQ(close(note, BexCloseDiscard), 1UL);
}

TEST_F(RscLifecycle, NullObjectClosesByDiscardOnly) {
    EXPECT_EQ(close(nullptr, BexCloseDiscard), 1UL);
    EXPECT_EQ(close(nullptr, BexCloseAuto), 0UL);
    EXPECT_EQ(close(nullptr, BexCloseSave), 0UL);
    const auto save = [](Note& note) { return note.save(); };
    EXPECT_EQ(RscAccess::close<NullObject::Refused>(static_cast<Note*>(nullptr), BexCloseDiscard, save), 0UL);
}

} // namespace
