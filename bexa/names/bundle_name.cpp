#include "bexa/names/bundle_name.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/bundle_index.h"
#include "bexa/names/bundle_parts.h"
#include "bexa/names/delimiters.h"

#include <algorithm>
#include <climits>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

using bexa::detail::BundleIndex;
using bexa::detail::BundleParts;
using bexa::detail::BundleResult;
using bexa::detail::Delimiters;
using bexa::detail::viewOf;

namespace {

// From here on an index is faster than a walk.
constexpr int manyMembers = 8;
constexpr int manySignals = 64;
constexpr int manyQuestions = 8;

using Members = std::span<const BexChkArrayName>;

long long countSignals(Members members) {
    long long count = 0;
    for (const BexChkArrayName& member : members) count += member.sigCount();
    return count;
}

std::vector<const BexChkSigName*> sortedSignals(Members members) {
    std::vector<const BexChkSigName*> signals;
    for (const BexChkArrayName& member : members) {
        for (int i = 0; i < member.sigCount(); ++i) signals.push_back(&member.at(i));
    }
    std::stable_sort(signals.begin(), signals.end(),
                     [](auto a, auto b) { return BexChkArrayName::signameCompare(a, b) < 0; });
    return signals;
}

} // namespace

// Tells of many signals whether a bundle has them. The bundle must not change meanwhile.
class BexChkBundleName::SignalFinder {
public:
    SignalFinder(const BexChkBundleName& bundle, int questions) : members_(bundle.members()) {
        if (bundle.sigCount() < manySignals) return;
        index_ = bundle.index();
        if (!index_ && questions >= manyQuestions) index_ = &temporary_.emplace();
    }

    bool operator()(const BexChkSigName& signal) {
        if (index_) return index_->containsSignal(members_, signal.name());
        return std::any_of(members_.begin(), members_.end(), [&](auto& own) { return own.find(signal); });
    }
    bool findsAny(const BexChkArrayName& array) {
        const BexChkSigName* const signals = array;
        return std::any_of(signals, signals + array.size(), std::ref(*this));
    }
    bool findsAll(const BexChkArrayName& array) {
        const BexChkSigName* const signals = array;
        return std::all_of(signals, signals + array.size(), std::ref(*this));
    }

private:
    Members members_;
    std::optional<BundleIndex> temporary_;
    BundleIndex* index_ = nullptr;
};

BexChkBundleName::IndexSlot::IndexSlot() noexcept = default;
BexChkBundleName::IndexSlot::~IndexSlot() = default;

BundleIndex& BexChkBundleName::IndexSlot::of(unsigned long changes) {
    if (!index_ || changes_ != changes) index_ = std::make_unique<BundleIndex>();
    changes_ = changes;
    return *index_;
}

BexChkBundleName::BexChkBundleName() noexcept = default;
BexChkBundleName::BexChkBundleName(const BexChkBundleName& other) = default;
BexChkBundleName::BexChkBundleName(BexChkBundleName&& other) noexcept = default;
BexChkBundleName& BexChkBundleName::operator=(const BexChkBundleName& other) = default;
BexChkBundleName& BexChkBundleName::operator=(BexChkBundleName&& other) noexcept = default;
BexChkBundleName::~BexChkBundleName() = default;

BexChkBundleName::BexChkBundleName(const char* name, const BexDatarc& rc) {
    const Delimiters delimiters = Delimiters::of(rc);
    bundleName_ = name;
    bitEndChar_ = delimiters.bitEnd;
    check(viewOf(name), delimiters);
}

BexChkBundleName::BexChkBundleName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd,
                                   char rangeStep) {
    check(viewOf(name), {busStart, busEnd, rangeEnd, bitEnd, rangeStep});
}

void BexChkBundleName::check(std::string_view name, const Delimiters& delimiters) {
    if (name.empty()) return;
    if (!delimiters.complete()) {
        errType_ = BexNetNameNoDelimiter;
        return;
    }
    bitEndChar_ = delimiters.bitEnd;
    makeBundleName(name, delimiters);
}

void BexChkBundleName::makeBundleName(std::string_view name, const Delimiters& delimiters) {
    errType_ = BexNetNameSyntax;
    const auto count = bexa::detail::countParts(name, delimiters);
    if (!count) return;
    // Each member has a signal, so there can't be more of them than signals.
    Plain::reserve(static_cast<int>(std::min<std::size_t>(*count, BexChkArrayName::maxSignals)));
    BundleResult result;
    BundleParts parts(name, delimiters);
    while (!parts.atEnd()) {
        const std::string_view part = parts.next();
        BexChkArrayName& member = Plain::end();
        member.check(part, delimiters);
        const bool goesOn = result.take(part, member.errType(), member.sigCount());
        errType_ = result.errType();
        if (!goesOn) return Plain::removeAll();
    }
    bundleName_.assign(name);
}

Members BexChkBundleName::members() const noexcept {
    return {Plain::operator()(), static_cast<std::size_t>(size())};
}

// Null if the members can change at any time.
BundleIndex* BexChkBundleName::index() const {
    return isLent() ? nullptr : &index_.of(changes());
}

int BexChkBundleName::sigCount() const {
    BundleIndex* const index = size() >= manyMembers ? this->index() : nullptr;
    const long long count = index ? index->signalCount(members()) : countSignals(members());
    return static_cast<int>(std::min<long long>(count, INT_MAX));
}

const char* BexChkBundleName::arrayName(int index) const noexcept {
    return index >= 0 && index < size() ? Plain::at(index).arrayName() : nullptr;
}

unsigned long BexChkBundleName::isArray(int index) const noexcept {
    return index >= 0 && index < size() ? Plain::at(index).isArray() : 0;
}

const char* BexChkBundleName::sigName(int index) const {
    if (index < 0) return nullptr;
    if (BundleIndex* const known = size() >= manyMembers ? this->index() : nullptr) {
        if (index >= known->signalCount(members())) return nullptr;
        const auto place = known->placeOf(members(), index);
        return members()[place.member].sigName(place.signal);
    }
    for (const BexChkArrayName& member : members()) {
        if (index < member.sigCount()) return member.sigName(index);
        index -= member.sigCount();
    }
    return nullptr;
}

unsigned long BexChkBundleName::find(const BexChkSigName& signal) const {
    return SignalFinder(*this, 1)(signal);
}

unsigned long BexChkBundleName::find(const BexChkArrayName& array) const {
    if (BundleIndex* const known = size() >= manyMembers ? index() : nullptr) {
        return known->containsArray(members(), array);
    }
    const Members own = members();
    return std::any_of(own.begin(), own.end(), [&](auto& member) { return member == array; });
}

unsigned long BexChkBundleName::duplicate(const BexChkArrayName& array) const {
    return SignalFinder(*this, array.sigCount()).findsAny(array);
}

unsigned long BexChkBundleName::duplicate(const BexChkBundleName& other) const {
    SignalFinder finder(*this, other.sigCount());
    const Members others = other.members();
    return std::any_of(others.begin(), others.end(), [&](auto& array) { return finder.findsAny(array); });
}

unsigned long BexChkBundleName::contains(const BexChkArrayName& array) const {
    return SignalFinder(*this, array.sigCount()).findsAll(array);
}

unsigned long BexChkBundleName::contains(const BexChkBundleName& other) const {
    SignalFinder finder(*this, other.sigCount());
    const Members others = other.members();
    return std::all_of(others.begin(), others.end(), [&](auto& array) { return finder.findsAll(array); });
}

// The array may be a member of this very bundle, so its text is read from the copy.
void BexChkBundleName::addMember(const BexChkArrayName& array) {
    Plain::append(array);
    bundleName_ << bitEndChar_;
    bundleName_.concat(members().back().arrayName_.view());
}

unsigned long BexChkBundleName::append(const BexChkBundleName& other) {
    if (!other.isValid()) return 0;
    if (size() == 0) {
        *this = other;
        return 1;
    }
    if (duplicate(other)) return 0;
    // The other may be this very bundle.
    const auto count = other.members().size();
    for (std::size_t i = 0; i < count; ++i) addMember(other.members()[i]);
    return 1;
}

unsigned long BexChkBundleName::append(const BexChkArrayName& array) {
    if (duplicate(array)) return 0;
    if (size() != 0) {
        addMember(array);
        return 1;
    }
    Plain::append(array);
    errType_ = BexNetNameOk;
    bundleName_ = array.arrayName_;
    return 1;
}

unsigned long BexChkBundleName::insert(const BexChkBundleName& other) {
    if (duplicate(other)) return 0;
    BexChkBundleName joined;
    if (!joined.append(other) || !joined.append(*this)) return 0;
    *this = std::move(joined);
    return 1;
}

// Kept on purpose: a valid array is refused. The bundle that is built here never gets a separator, so a NUL
// is written between the texts.
unsigned long BexChkBundleName::insert(const BexChkArrayName& array) {
    if (array.isValid()) return 0;
    BexChkBundleName joined;
    if (!joined.append(array) || !joined.append(*this)) return 0;
    *this = std::move(joined);
    return 1;
}

unsigned long BexChkBundleName::realCompare(const BexChkBundleName& other) const noexcept {
    const Members own = members();
    const Members others = other.members();
    return errType_ == other.errType_ && std::equal(own.begin(), own.end(), others.begin(), others.end(),
                                                    [](auto& a, auto& b) { return a == b; });
}

unsigned long BexChkBundleName::caseCompare(const BexChkBundleName& other) const {
    if (sigCount() != other.sigCount()) return 0;
    const auto own = sortedSignals(members());
    const auto others = sortedSignals(other.members());
    return std::equal(own.begin(), own.end(), others.begin(), others.end(),
                      [](auto a, auto b) { return *a == *b; });
}
