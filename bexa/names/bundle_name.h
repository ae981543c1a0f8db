// A list of array names, checked: one flat numbered list of signals.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/names/array_name.h"
#include "bexa/names/name_iterator.h"
#include "bexa/names/name_result.h"

#include <memory>
#include <span>
#include <string_view>

class BexDatarc;

namespace bexa::detail {
class BundleIndex;
struct Delimiters;
} // namespace bexa::detail

// Array names with a separator between them, `A[0-1],B,C[3,1]`:
//
//     bundle = member, then any number of: bitEnd member
//     member = nothing | array, see BexChkArrayName
//
// A `bitEnd` between brackets belongs to its member. Opening and closing brackets are only counted: those
// of the whole text must be equally many. An empty member is an array of one signal without a name, so
// `A,,B` has three members and three signals. The delimiters are those of BexChkArrayName, and all signals
// together are at most `BexChkArrayName::maxSignals`.
//
// The elements are the members in the order of the text. Nothing in the check looks for duplicates; only
// append() and insert() do.
//
// Which result wins: an empty name (Unchecked) before a missing delimiter (NoDelimiter) before brackets
// that don't balance (Syntax) before the first member from the left that isn't valid, whose result is
// taken. A bundle of empty members alone stays Unchecked. After a failure there are no members.
//
// Questions about signals cost about the same however large the bundle is, as long as nobody outside got
// hold of a member through [], at(), (), end() or an iterator; after that the members are looked through at
// each call.
class BEXA_API BexChkBundleName : public BexChkArrayName_Array {
public:
    using BytesMayMove = BexChkBundleName;

    // No members, unchecked, and a NUL separator.
    BexChkBundleName() noexcept;
    // Kept on purpose: after a failure the first of these two still has the text and the separator; the
    // second has no text, and the separator only if no delimiter was missing.
    BexChkBundleName(const char* name, const BexDatarc& rc);
    BexChkBundleName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd,
                     char rangeStep);
    BexChkBundleName(const BexChkBundleName& other);
    BexChkBundleName(BexChkBundleName&& other) noexcept;
    BexChkBundleName& operator=(const BexChkBundleName& other);
    BexChkBundleName& operator=(BexChkBundleName&& other) noexcept;
    ~BexChkBundleName();

    // The whole text. It may hold a NUL, see insert(); this is the part before it.
    const char* bundleName() const noexcept { return bundleName_; }
    BexNetNameErrType errType() const noexcept { return errType_; }
    unsigned long isValid() const noexcept { return errType_ == BexNetNameOk; }

    // The number of members, and of the signals of all members.
    int arrayCount() const noexcept { return size(); }
    int sigCount() const;
    // The whole text of a member, and whether it has more than one signal; null and 0 if there is no such
    // member.
    const char* arrayName(int index) const noexcept;
    unsigned long isArray(int index) const noexcept;
    // The name of a signal, counted through all members in order; null if there is no such signal.
    const char* sigName(int index) const;

    // 1 if a member has this signal, in the sense of BexChkArrayName::find, or equals this array.
    unsigned long find(const BexChkSigName& signal) const;
    unsigned long find(const BexChkArrayName& array) const;
    // 1 if any signal of the other is found here; nothing of an empty one is.
    unsigned long duplicate(const BexChkArrayName& array) const;
    unsigned long duplicate(const BexChkBundleName& other) const;
    // 1 if every signal of the other is found here, as of an empty one. A signal without a name is never
    // found.
    unsigned long contains(const BexChkArrayName& array) const;
    unsigned long contains(const BexChkBundleName& other) const;

    // Add the members of the other behind the own ones, and the texts with a separator. 0, and nothing
    // changes, if any of its signals is found here, or if a bundle given is not valid. A bundle given to
    // one without members is copied, separator included. Kept on purpose: an array need not be valid; as the
    // first member it makes the bundle valid.
    unsigned long append(const BexChkBundleName& other);
    unsigned long append(const BexChkArrayName& array);

    // Put the members of the other ahead of the own ones. 0, and nothing changes, if any of its signals is
    // found here, or if this bundle or the one given is not valid. The separator of the other is used from
    // then on.
    unsigned long insert(const BexChkBundleName& other);
    // Kept on purpose: a valid array is refused with 0, only one that isn't valid goes in. The separator
    // written into the text is NUL then, and stays so.
    unsigned long insert(const BexChkArrayName& array);

    // 1 if the results and all members in order are equal. The texts are not compared.
    unsigned long realCompare(const BexChkBundleName& other) const noexcept;
    // 1 if both have the same signals, in any order and grouped in any way; the results are not compared.
    // Kept on purpose: it has nothing to do with the case of letters.
    unsigned long caseCompare(const BexChkBundleName& other) const;
    unsigned long operator==(const BexChkBundleName& other) const noexcept { return realCompare(other); }
    unsigned long operator!=(const BexChkBundleName& other) const noexcept { return !realCompare(other); }

private:
    class SignalFinder;

    // Belongs to one object: copies and moves start without an index.
    class IndexSlot {
    public:
        IndexSlot() noexcept;
        IndexSlot(const IndexSlot&) noexcept : IndexSlot() {}
        IndexSlot& operator=(const IndexSlot&) noexcept { return *this; }
        ~IndexSlot();

        // An index for this state of the array.
        bexa::detail::BundleIndex& of(unsigned long changes);

    private:
        std::unique_ptr<bexa::detail::BundleIndex> index_;
        unsigned long changes_ = 0;
    };

    void check(std::string_view name, const bexa::detail::Delimiters& delimiters);
    void makeBundleName(std::string_view name, const bexa::detail::Delimiters& delimiters);
    void addMember(const BexChkArrayName& array);

    std::span<const BexChkArrayName> members() const noexcept;
    bexa::detail::BundleIndex* index() const;

    YString bundleName_;
    BexNetNameErrType errType_ = BexNetNameUnchecked;
    char bitEndChar_ = '\0';
    mutable IndexSlot index_;
};

// Walks the members of one bundle, which must outlive it, like BexArrayNameItr the signals of an array.
class BexBundleNameItr : public bexa::detail::NameIterator<BexChkBundleName> {
public:
    using NameIterator::NameIterator;
    BexBundleNameItr& operator++() noexcept {
        advance();
        return *this;
    }
};

class BexChkBundleName_Array : public bexa::ArrayOf<BexChkBundleName, 256> {
public:
    using ArrayOf::ArrayOf;
};
