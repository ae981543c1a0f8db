#include "bexa/names/bundle_index.h"

#include "bexa/names/array_name.h"

#include <algorithm>
#include <functional>

namespace bexa::detail {

namespace {

// Equal arrays have equal hashes.
std::size_t hashOf(const BexChkArrayName& array) {
    constexpr std::size_t multiplier = 1000003;
    const std::hash<std::string_view> hashOfText;
    std::size_t hash = hashOfText(array.name());
    for (int i = 0; i < array.sigCount(); ++i) hash = hash * multiplier + hashOfText(array.sigName(i));
    return hash;
}

} // namespace

void BundleIndex::countSignals(Members members) {
    while (signalEnds_.size() < members.size()) {
        const long long before = signalEnds_.empty() ? 0 : signalEnds_.back();
        signalEnds_.push_back(before + members[signalEnds_.size()].sigCount());
    }
}

long long BundleIndex::signalCount(Members members) {
    countSignals(members);
    return signalEnds_.empty() ? 0 : signalEnds_.back();
}

BundleIndex::Place BundleIndex::placeOf(Members members, int index) {
    countSignals(members);
    const auto end = std::upper_bound(signalEnds_.begin(), signalEnds_.end(), index);
    const auto member = static_cast<std::size_t>(end - signalEnds_.begin());
    const long long before = member == 0 ? 0 : signalEnds_[member - 1];
    return {member, static_cast<int>(index - before)};
}

bool BundleIndex::containsSignal(Members members, std::string_view name) {
    for (; membersWithNames_ < members.size(); ++membersWithNames_) {
        const BexChkArrayName& member = members[membersWithNames_];
        const std::string_view root = member.name();
        for (int i = 0; i < member.sigCount(); ++i) {
            const std::string_view signal = member.sigName(i);
            // The signals that `find` of the array passes over, since callers may have put them there.
            if (!signal.empty() && signal.starts_with(root)) names_.insert(signal);
        }
    }
    return names_.contains(name);
}

bool BundleIndex::containsArray(Members members, const BexChkArrayName& array) {
    for (; membersWithHash_ < members.size(); ++membersWithHash_) {
        membersByHash_.emplace(hashOf(members[membersWithHash_]), membersWithHash_);
    }
    const auto [begin, end] = membersByHash_.equal_range(hashOf(array));
    return std::any_of(begin, end, [&](const auto& entry) { return members[entry.second] == array; });
}

} // namespace bexa::detail
