// The text of a bundle cut into its members, and the result that the members give.
#pragma once

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/name_result.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace bexa::detail {

struct Delimiters;

// Cuts a text at each `bitEnd` that doesn't belong to a member. An empty text between two of them, or at
// either end, is a member too.
//
//     BundleParts parts(name, delimiters);
//     while (!parts.atEnd()) use(parts.next());
//     if (!parts.isBalanced()) return refuse();
class BundleParts {
public:
    BundleParts(std::string_view name, const Delimiters& delimiters) : delimiters_(delimiters), rest_(name) {}

    bool atEnd() const { return atEnd_; }
    std::string_view next();

    // At the end: whether there are as many opening as closing brackets. They are counted, not matched:
    // `A],B[` is one member, which then fails as an array.
    bool isBalanced() const { return isBalanced_; }

private:
    const Delimiters& delimiters_;
    TextCursor rest_;
    bool atEnd_ = false;
    bool isBalanced_ = true;
};

// The number of members; nothing if the brackets are not balanced.
std::optional<std::size_t> countParts(std::string_view name, const Delimiters& delimiters);

// Gathers the result of a bundle from its members, from left to right.
class BundleResult {
public:
    // Takes a member with its text, its result and the number of its signals. False if the bundle fails
    // because of this member; those behind it count for nothing.
    bool take(std::string_view member, BexNetNameErrType errType, int signalCount);

    BexNetNameErrType errType() const { return errType_; }
    long long signalCount() const { return signalCount_; }

private:
    BexNetNameErrType errType_ = BexNetNameUnchecked;
    long long signalCount_ = 0;
};

} // namespace bexa::detail
