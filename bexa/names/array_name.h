// One array name, checked and expanded bit by bit.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/names/name_iterator.h"
#include "bexa/names/name_result.h"
#include "bexa/names/signal_name.h"
#include "bexa/names/watched_array.h"

#include <string_view>

class BexDatarc;

namespace bexa::detail {
class ArrayText;
struct Delimiters;
} // namespace bexa::detail

// A root with a bit list, `D[0-3,8,12-8-2]`, or a plain signal name, which is an array of one:
//
//     array    = plain-signal | root busStart bit-list busEnd
//     root     = one or more characters, neither busStart nor busEnd
//     bit-list = item, then any number of: bitEnd item
//     item     = nothing | number | number rangeEnd number | number rangeEnd number rangeStep number
//     number   = one or more decimal digits
//
// `busStart` and `busEnd` occur at most once in the whole name. The third number of an item is the step; a
// range from a number to itself and a step of 0 are refused. A delimiter at the end of an item counts for
// nothing, but the list as a whole ends in a digit or in `bitEnd`: `D[3-,4]` is `D[3]` `D[4]`, `D[3-]` is
// malformed. Numbers too large are the largest int. The delimiters come from a circuit resource or one by
// one, by default "[", "]", "-", "," and "-"; `rangeStep` may be NUL, and then no item has a step.
//
// The elements are the signals in the order of the items, each item from its first number to its last,
// downward if the first is larger. The last number is among them only if the step hits it. Names get their
// numbers without leading zeros. An item of no characters is a signal without a name. Nothing removes
// duplicates or sorts.
//
// What stands after a check that failed; the first fault of this order wins:
//
//     fault                                        errType      signals    name      arrayName
//     null or empty name                           Unchecked    one empty  empty     empty
//     one of the first four delimiters is NUL      NoDelimiter  none       empty     the text
//     brackets, an empty root, a `bitEnd` in
//       front, an empty bit list, or one that
//       ends in another character                  Syntax       none       empty     the text
//     a malformed item, or more signals than
//       `maxSignals`                               Syntax       none       the root  the text
//     a plain name with a `bitEnd`                 Syntax       none       empty     the text
//
// Two names are neither valid nor an error (`errType` Unchecked): a list of empty items alone, `D[,]`,
// which has its empty signals, and a root with a `bitEnd`, `D,[1]`, which has none since each is refused as
// a signal.
class BEXA_API BexChkArrayName : public BexChkSigName_Array {
public:
    using BytesMayMove = BexChkArrayName;

    // The signals that one name may expand to. A text of a few characters could ask for more than any
    // memory holds.
    static constexpr int maxSignals = 16777216;

    // No signals, unchecked.
    BexChkArrayName() noexcept = default;
    // Kept on purpose: a null or empty name stays unchecked, and yet has one signal, without a name.
    BexChkArrayName(const char* name, const BexDatarc& rc);
    BexChkArrayName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd, char rangeStep);

    // The root, or the whole text where there is no bit list.
    const char* name() const noexcept { return name_; }
    // The whole text as given.
    const char* arrayName() const noexcept { return arrayName_; }
    BexNetNameErrType errType() const noexcept { return errType_; }
    unsigned long isValid() const noexcept { return errType_ == BexNetNameOk; }

    int sigCount() const noexcept { return size(); }
    // 1 if there is more than one signal.
    unsigned long isArray() const noexcept { return size() > 1; }
    // The name of signal `index`, null if there is no such signal.
    const char* sigName(int index) const noexcept;

    // 1 if a signal equals `signal`. A signal without a name is never found, nor one that doesn't begin
    // with the root of this array.
    unsigned long find(const BexChkSigName& signal) const noexcept;
    // The same for an array that is sorted by `signameCompare`, and without the test of the root.
    unsigned long search(const BexChkSigName& signal) const;
    void sort();
    using BexChkSigName_Array::search;
    using BexChkSigName_Array::sort;

    // Orders two `BexChkSigName` by the bytes of their names: -1, 0 or 1. Numbers in names have no meaning
    // here, `D[10]` comes before `D[2]`.
    static int signameCompare(const void* first, const void* second);

    // 1 if root, result and all signals in order are equal. The whole texts may differ.
    unsigned long realCompare(const BexChkArrayName& other) const noexcept;
    // The same in any order of the signals. Kept on purpose: it has nothing to do with the case of letters.
    unsigned long caseCompare(const BexChkArrayName& other) const;
    unsigned long operator==(const BexChkArrayName& other) const noexcept { return realCompare(other); }
    unsigned long operator!=(const BexChkArrayName& other) const noexcept { return !realCompare(other); }

private:
    friend class BexChkBundleName;

    void check(std::string_view name, const bexa::detail::Delimiters& delimiters);
    void makeArrayName(const bexa::detail::ArrayText& text, char busEnd);

    YString name_;
    YString arrayName_;
    BexNetNameErrType errType_ = BexNetNameUnchecked;
};

// Walks the signals of one array, which must outlive it:
//
//     for (BexArrayNameItr signal(&array); !signal.isEnd(); ++signal) use(signal());
class BexArrayNameItr : public bexa::detail::NameIterator<BexChkArrayName> {
public:
    using NameIterator::NameIterator;
    BexArrayNameItr& operator++() noexcept {
        advance();
        return *this;
    }
};

class BexChkArrayName_Array : public bexa::detail::WatchedArray<BexChkArrayName, 256> {
public:
    using WatchedArray::WatchedArray;
};
