// One signal name, checked and taken apart.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/names/name_result.h"

#include <string_view>

class BexDatarc;

namespace bexa::detail {
struct Delimiters;
}

// A plain name, `CLK`, or the name of one bit of a bus, `D[7]`:
//
//     signal = plain | root busStart number busEnd
//     plain  = one or more characters
//     root   = any characters, or none
//     number = one or more decimal digits; leading zeros count for nothing, a number too large is the largest
//     int
//
// `busStart` and `busEnd` occur at most once in the whole name, `bitEnd` not at all. `rangeEnd` must be
// given, but has no meaning here: `A-B` is a plain name. Where `busStart` and `busEnd` are the same
// character, a name that ends in it is plain.
//
// The delimiters come from a circuit resource or one by one, by default "[", "]", "-" and ",". Names are
// bytes; case counts. Which result wins: an empty name before a missing delimiter before the grammar.
class BEXA_API BexChkSigName {
public:
    using BytesMayMove = BexChkSigName;

    // An empty name, unchecked.
    BexChkSigName() noexcept = default;
    // A null or empty name stays unchecked, whatever the delimiters are.
    BexChkSigName(const char* name, const BexDatarc& rc);
    BexChkSigName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd);

    // The whole text as given, `D[07]`. Empty unless the name is valid.
    const char* name() const noexcept { return name_; }
    // The root: the text ahead of the bit part, or the whole text where there is none. Empty unless the
    // name is valid; `[3]` is valid and has an empty root.
    const char* sigName() const noexcept { return sigName_; }
    // The number of the bit, -1 where the name has none or isn't valid.
    int bitNumber() const noexcept { return bitNumber_; }
    BexNetNameErrType errType() const noexcept { return errType_; }
    // 1 for a valid name. An empty one is not valid, though no error either.
    unsigned long isValid() const noexcept { return errType_ == BexNetNameOk; }

    // Names are equal when their whole texts and their results are: `D[7]` and `D[07]` differ.
    unsigned long operator==(const BexChkSigName& other) const noexcept {
        return errType_ == other.errType_ && name_ == other.name_;
    }
    unsigned long operator!=(const BexChkSigName& other) const noexcept { return !(*this == other); }

private:
    friend class BexChkArrayName;

    void check(const char* name, const bexa::detail::Delimiters& delimiters);
    void makeSigName(std::string_view name, const bexa::detail::Delimiters& delimiters);
    bool errCheck(const bexa::detail::Delimiters& delimiters);
    void makePlain(std::string_view name);
    void makeBit(std::string_view opening, const YString& root, int number, char busEnd);

    YString name_;
    YString sigName_;
    int bitNumber_ = -1;
    BexNetNameErrType errType_ = BexNetNameUnchecked;
};

class BexChkSigName_Array : public bexa::ArrayOf<BexChkSigName, 256> {
public:
    using ArrayOf::ArrayOf;
};
