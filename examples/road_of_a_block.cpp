// The road of one block: from the settings of a circuit to the signals behind each pin of a block in it, and
// back to a block file with a row for each run of signals, written while the sheet that shows the block is locked.
// usage: bexa_example_road_of_a_block CIRCUIT.cir SHEET BLOCK.blk
#include "bexa/bexa.h"

#include <cstdio>
#include <cstdlib>

namespace {

// A sheet that nobody else changes as long as the object lives. Who holds it keeps it: ask isHeld.
class LockedSheet {
public:
    explicit LockedSheet(const YString& path)
        : path_(path),
          isHeld_(BexLock(this, LexSheetLogged, path) != 0) {}
    ~LockedSheet() {
        if (isHeld_) BexUnlock(this, LexSheetLogged, path_);
    }
    LockedSheet(const LockedSheet&) = delete;
    LockedSheet& operator=(const LockedSheet&) = delete;

    bool isHeld() const { return isHeld_; }
    void tell() const {
        const char* path = path_;
        BexLockInfo holder;
        BexCheckLock(LexSheetLogged, path, holder);
        const char* user = holder.user;
        if (isHeld_) {
            std::printf("%s is locked\n", path);
        } else {
            std::printf("%s is locked by %s\n", path, user);
        }
    }

private:
    YString path_;
    bool isHeld_;
};

// The resource stands where the circuit's own list says, else where the installation has it.
YString resourceOf(const char* circuit) {
    const YString own = BexDataFile::fileName(circuit, BexDataFile::BexResourceByPath, "bexdata");
    return own.length() > 0 ? own : BexSysFile::fileName("bexdata", BexSysFile::Type(1));
}

void showPins(const BexBlockFile& block, const BexDatarc& rc) {
    const BexBlockPinAssignTable& pins = block.purePinAssignTable();
    for (int i = 0; i < pins.size(); ++i) {
        const BexBlockPinAssign& pin = pins.at(i);
        const BexChkBundleName bundle(pin.sigN(), rc);
        if (!bundle.isValid()) {
            std::printf("  pin %u: %s is no good name\n", pin.figId(), pin.sigN());
            continue;
        }
        std::printf("  pin %u: %s, %d signals from %s to %s\n", pin.figId(), pin.sigN(), bundle.sigCount(),
                    bundle.sigName(0), bundle.sigName(bundle.sigCount() - 1));
    }
}

// Writes the signals of all pins back, in as few rows as they take.
bool writePins(BexBlockFile* block, const BexDatarc& rc) {
    block->pinAssignTable() = block->pinAssignTable().press(rc);
    std::printf("%u rows are written back\n", block->pinAssignTableCount());
    const unsigned long expanded = 0; // which of the two tables is written
    if (BexBlockFile::close(block, BexCloseAuto, expanded)) return true;
    BexBlockFile::close(block, BexCloseDiscard, expanded);
    return false;
}

// The block's file lies in one of the circuit's content directories.
bool updateBlock(const BexDatarc& rc, const YString& sheetPath, const char* name) {
    int index = -1;
    if (BexDataFile::searchBlock(name, rc, index).length() == 0) return false;
    BexBlockFile* block = BexBlockFile::open(rc, static_cast<unsigned>(index), name, BexOpenUpdate);
    if (block == nullptr) return false;

    std::printf("%s ties %s to %s\n", block->fileName(), block->symbName(), block->circuitName());
    showPins(*block, rc);
    std::printf("%u rows stand for %u signals\n", block->purePinAssignTableCount(),
                block->pinAssignTableCount());

    const LockedSheet sheet(sheetPath);
    sheet.tell();
    if (sheet.isHeld()) return writePins(block, rc);
    BexBlockFile::close(block, BexCloseDiscard, 0);
    return false;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s CIRCUIT.cir SHEET BLOCK.blk\n", argv[0]);
        return 2;
    }
    BexDatarc* rc = BexDatarc::open(resourceOf(argv[1]), BexOpenRead, argv[1]);
    if (rc == nullptr) {
        std::fprintf(stderr, "%s has no resource that can be read\n", argv[1]);
        return 1;
    }
    std::printf("%s: %u sheets\n", rc->currentName(), BexDataFile::sheetCount(argv[1]));
    const YString sheet = BexDataFile::sheetName(argv[1], static_cast<unsigned>(std::atoi(argv[2])));
    const bool done = updateBlock(*rc, sheet, argv[3]);
    if (!done) std::fprintf(stderr, "%s cannot be found, read, locked or written\n", argv[3]);
    BexDatarc::close(rc, BexCloseAuto);
    return done ? 0 : 1;
}
