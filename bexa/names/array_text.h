// An array name taken apart, and the signals that it stands for, without an object for any of them.
#pragma once

#include "bexa/names/bit_list.h"
#include "bexa/names/name_result.h"

#include <string_view>

namespace bexa::detail {

struct Brackets;
struct Delimiters;

// Which of the names that bits get, root busStart number busEnd, are signals. A name can fail in two ways
// only: all do by a `bitEnd` in the root or equal to a bracket, and some by a delimiter that is a digit and
// occurs in the number.
enum class BitNames { None, Some, All };

// The text and the delimiters, of which none may be missing but `rangeStep`, must outlive the object.
class ArrayText {
public:
    // The signals that one name may stand for. A text of a few characters could ask for more than any
    // memory holds.
    static constexpr int maxSignals = 16777216;

    ArrayText(std::string_view name, const Delimiters& delimiters);

    // The text ahead of the bit list, or the whole text where there is none. Empty if the text is no array,
    // save for one that fails by its bit list.
    std::string_view root() const { return root_; }
    // The text ahead of the first number of a name with a bit list: the root and `busStart`.
    std::string_view opening() const { return opening_; }
    // How many signals there are; 0 if only the walk can tell.
    int knownCount() const { return knownCount_; }

    // Calls `visit(root, number)` with each signal in order; the number is -1 for one without a bit, and
    // the root is empty too for one without a name. The return value is the result of the check; a name
    // that breaks the grammar has no signals.
    template <class Visit>
    BexNetNameErrType forEachSignal(Visit visit) const {
        if (kind_ == Kind::Malformed) return BexNetNameSyntax;
        if (kind_ == Kind::Bits) return forEachBit(visit);
        visit(root_, -1);
        return root_.empty() ? BexNetNameUnchecked : BexNetNameOk;
    }

private:
    enum class Kind { Malformed, Plain, Bits };

    template <class Visit>
    BexNetNameErrType forEachBit(Visit visit) const {
        BexNetNameErrType result = BexNetNameUnchecked;
        bits_.forEach([&](const BitRange& range) {
            if (range.isEmpty()) visit(std::string_view(), -1);
            if (range.isEmpty() || bitNames_ == BitNames::None) return;
            range.forEach([&](int number) {
                // Kept on purpose: a bit whose name is no signal is left out without a word.
                if (bitNames_ == BitNames::Some && holdsDelimiter(number)) return;
                result = BexNetNameOk;
                visit(root_, number);
            });
        });
        return result;
    }

    bool holdsDelimiter(int number) const;
    void readBits(std::string_view name, const Brackets& brackets);

    const Delimiters& delimiters_;
    Kind kind_ = Kind::Malformed;
    int knownCount_ = 0;
    std::string_view root_;
    std::string_view opening_;
    BitList bits_;
    BitNames bitNames_ = BitNames::None;
};

} // namespace bexa::detail
