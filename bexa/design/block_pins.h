// The pins of a block: which signal stands at which figure of the drawing.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <memory>
#include <optional>

class BexDatarc;

namespace bexa::detail {
class BlockFileReader;
}

// One row of a pin table. A text may be missing, which is not the same as an empty one: its getter gives null. The
// object keeps copies of its texts; what a getter gives lives until that text is set, or the row ends.
class BEXA_API BexBlockPinAssign {
public:
    using BytesMayMove = BexBlockPinAssign;

    // No name, no direction, figure 0, 0 signals.
    BexBlockPinAssign() noexcept = default;
    // A row of one signal, or of none if the name is null.
    BexBlockPinAssign(unsigned figId, const char* sigN);
    BexBlockPinAssign(unsigned figId, const char* sigN, unsigned bits);
    BexBlockPinAssign(unsigned figId, const char* sigN, unsigned bits, const char* io);
    BexBlockPinAssign(const BexBlockPinAssign& other);
    BexBlockPinAssign(BexBlockPinAssign&&) noexcept = default;
    BexBlockPinAssign& operator=(const BexBlockPinAssign& other);
    BexBlockPinAssign& operator=(BexBlockPinAssign&&) noexcept = default;

    // The number of the pin's figure.
    unsigned figId() const noexcept { return figId_; }
    // The name of the signal, or of a whole bundle of signals.
    const char* sigN() const noexcept { return sigN_ ? static_cast<const char*>(*sigN_) : nullptr; }
    // How many single signals the row stands for.
    unsigned bits() const noexcept { return bits_; }
    // The pin's direction. Only callers set it: block files don't hold it.
    const char* io() const noexcept { return io_ ? static_cast<const char*>(*io_) : nullptr; }

    // A null text removes the text. Always 1.
    unsigned long figId(unsigned figId) noexcept;
    unsigned long sigN(const char* sigN);
    unsigned long bits(unsigned bits) noexcept;
    unsigned long io(const char* io);

    // Releases both texts and sets all four fields to zero.
    void free() noexcept;

private:
    unsigned figId_ = 0;
    unsigned bits_ = 0;
    std::optional<YString> sigN_;
    std::unique_ptr<YString> io_; // rarely there, so it costs a row no more than this
};

class BexBlockPinAssign_Array : public bexa::ArrayOf<BexBlockPinAssign, 256> {
public:
    using ArrayOf::ArrayOf;
};

// A pin table of a block file, pure or expanded.
class BEXA_API BexBlockPinAssignTable : public BexBlockPinAssign_Array {
public:
    using BexBlockPinAssign_Array::BexBlockPinAssign_Array;

    // By number; equal numbers by name, as `YStringCmp::NameCmp` orders them, a missing name first.
    void sortById();
    // By name, a missing name first; equal names by number.
    void sortBySigName();

    // The table in its compact form; this table is left sorted by id. A row whose number follows that of the row
    // ahead of it, both names having the same identifier (the root of `BexChkArrayName`: "D" of "D[0]"), joins the
    // row that is being built, and the names of each row built are then compressed: 10 D[0], 11 D[1], 12 D[2]
    // become 10 D[0-2]. A row built from several stands for the sum of their signals and keeps the number and the
    // direction of the first. An empty table gives an empty table.
    //
    // Kept on purpose: names that are no array names, missing ones included, all have the empty identifier and
    // therefore join.
    // Nothing joins if `rc` has no `bitEndChar`.
    BexBlockPinAssignTable press(const BexDatarc& rc);

private:
    friend class bexa::detail::BlockFileReader; // makes room ahead
};
