// What a bundle holds, found without a walk over it.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class BexChkArrayName;

namespace bexa::detail {

// Each question takes the members: those that were appended since the last one are taken in first. Between
// two questions nothing else may happen to the members, save that the members as such (not their signals)
// may move.
class BundleIndex {
public:
    using Members = std::span<const BexChkArrayName>;
    struct Place {
        std::size_t member;
        int signal;
    };

    long long signalCount(Members members);
    // The place of signal `index`, which must be below the count.
    Place placeOf(Members members, int index);
    // Whether `find` of any member gives 1 for a signal of this name.
    bool containsSignal(Members members, std::string_view name);
    // Whether a member equals `array`.
    bool containsArray(Members members, const BexChkArrayName& array);

private:
    void countSignals(Members members);

    std::vector<long long> signalEnds_; // the number of signals up to the end of each member
    std::size_t membersWithNames_ = 0;
    std::unordered_set<std::string_view> names_;
    std::size_t membersWithHash_ = 0;
    std::unordered_multimap<std::size_t, std::size_t> membersByHash_;
};

} // namespace bexa::detail
