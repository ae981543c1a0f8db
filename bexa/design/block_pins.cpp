#include "bexa/design/block_pins.h"

#include "bexa/circuitrc/datarc.h"
#include "bexa/foundation/ygeneral/ystring_compare.h"
#include "bexa/names/array_name.h"
#include "bexa/names/name_compression.h"

#include <utility>

namespace {

int compareIds(const BexBlockPinAssign& a, const BexBlockPinAssign& b) {
    return (a.figId() > b.figId()) - (a.figId() < b.figId());
}

// A missing name sorts before any other.
int compareNames(const BexBlockPinAssign& a, const BexBlockPinAssign& b) {
    if (!a.sigN() || !b.sigN()) return (a.sigN() != nullptr) - (b.sigN() != nullptr);
    return YStringCmp::NameCmp(a.sigN(), b.sigN());
}

const BexBlockPinAssign& rowAt(const void* element) {
    return *static_cast<const BexBlockPinAssign*>(element);
}

int byId(const void* a, const void* b) {
    const int order = compareIds(rowAt(a), rowAt(b));
    return order != 0 ? order : compareNames(rowAt(a), rowAt(b));
}

int bySigName(const void* a, const void* b) {
    const int order = compareNames(rowAt(a), rowAt(b));
    return order != 0 ? order : compareIds(rowAt(a), rowAt(b));
}

// The rows that join into one. Their names are gathered and compressed once, when the run ends.
class Run {
public:
    explicit Run(const BexBlockPinAssign& first) : row_(first), names_(first.sigN()) {}

    void join(const BexBlockPinAssign& next, char separator) {
        names_ << separator << next.sigN();
        row_.bits(row_.bits() + next.bits());
    }

    const BexBlockPinAssign& compressed(const BexDatarc& rc) {
        BexChkPressName name(names_, rc);
        row_.sigN(name.newName());
        return row_;
    }

private:
    BexBlockPinAssign row_;
    YString names_;
};

bool follows(const BexBlockPinAssign& row, const BexBlockPinAssign& predecessor) {
    return row.figId() == predecessor.figId() + 1;
}

YString identifierOf(const BexBlockPinAssign& row, const BexDatarc& rc) {
    return YString(BexChkArrayName(row.sigN(), rc).name());
}

} // namespace

BexBlockPinAssign::BexBlockPinAssign(unsigned figId, const char* sigN)
    : BexBlockPinAssign(figId, sigN, sigN ? 1 : 0) {}

BexBlockPinAssign::BexBlockPinAssign(unsigned figId, const char* sigN, unsigned bits)
    : BexBlockPinAssign(figId, sigN, bits, nullptr) {}

BexBlockPinAssign::BexBlockPinAssign(unsigned figId, const char* sigN, unsigned bits, const char* io)
    : figId_(figId),
      bits_(bits) {
    if (sigN) sigN_.emplace(sigN);
    if (io) io_ = std::make_unique<YString>(io);
}

BexBlockPinAssign::BexBlockPinAssign(const BexBlockPinAssign& other)
    : figId_(other.figId_),
      bits_(other.bits_),
      sigN_(other.sigN_),
      io_(other.io_ ? std::make_unique<YString>(*other.io_) : nullptr) {}

BexBlockPinAssign& BexBlockPinAssign::operator=(const BexBlockPinAssign& other) {
    return *this = BexBlockPinAssign(other);
}

unsigned long BexBlockPinAssign::figId(unsigned figId) noexcept {
    figId_ = figId;
    return 1;
}

unsigned long BexBlockPinAssign::sigN(const char* sigN) {
    // The text may be a part of the old one.
    sigN_ = sigN ? std::optional<YString>(sigN) : std::nullopt;
    return 1;
}

unsigned long BexBlockPinAssign::bits(unsigned bits) noexcept {
    bits_ = bits;
    return 1;
}

unsigned long BexBlockPinAssign::io(const char* io) {
    io_ = io ? std::make_unique<YString>(io) : nullptr;
    return 1;
}

void BexBlockPinAssign::free() noexcept {
    figId_ = 0;
    bits_ = 0;
    sigN_.reset();
    io_.reset();
}

void BexBlockPinAssignTable::sortById() {
    sort(byId);
}

void BexBlockPinAssignTable::sortBySigName() {
    sort(bySigName);
}

BexBlockPinAssignTable BexBlockPinAssignTable::press(const BexDatarc& rc) {
    sortById();
    BexBlockPinAssignTable result;
    if (size() == 0) return result;
    const char separator = rc.bitEndChar();
    Run run(at(0));
    YString identifier = identifierOf(at(0), rc);
    for (int i = 1; i < size(); ++i) {
        YString next = identifierOf(at(i), rc);
        if (separator && follows(at(i), at(i - 1)) && next == identifier) {
            run.join(at(i), separator);
        } else {
            result.append(run.compressed(rc));
            run = Run(at(i));
        }
        identifier = std::move(next);
    }
    result.append(run.compressed(rc));
    return result;
}
