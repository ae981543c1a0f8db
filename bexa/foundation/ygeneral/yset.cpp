#include "bexa/foundation/ygeneral/yset.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

constexpr std::size_t defaultTableSize = 31;
constexpr std::size_t largestTableSize = 16777213;
constexpr std::size_t elementsPerSlot = 2;
constexpr std::size_t firstRoom = 8; // elements without more memory

std::size_t withinLimits(std::size_t tableSize) {
    return std::clamp<std::size_t>(tableSize, 1, largestTableSize);
}

} // namespace

void YSet_virtual_behavior::dummy_func() {}

YSet::YSet() : tableSize_(defaultTableSize) {}

YSet::YSet(unsigned size) : tableSize_(withinLimits(size)) {}

YSet::YSet(const YSet&) = default;

YSet& YSet::operator=(const YSet&) = default;

YSet::~YSet() = default;

YSet* YSet::copy() const {
    return new YSet(*this);
}

unsigned long YSet::copyFrom(const YSet& other) {
    YSet::operator=(other);
    return 1;
}

YSet::Place YSet::find(const void* key, unsigned long hash) const {
    if (count_ == 0) return {};
    Place place{chains_[slotOf(hash)].first, none};
    while (place.entry != none) {
        const Entry& entry = entries_[place.entry];
        if (entry.hash == hash && compare(key, entry.element)) return place;
        place = {entry.next, place.entry};
    }
    return {};
}

void YSet::link(std::size_t entry) {
    Chain& chain = chains_[slotOf(entries_[entry].hash)];
    (chain.first == none ? chain.first : entries_[chain.last].next) = entry;
    chain.last = entry;
}

void YSet::rebuild(std::size_t tableSize) {
    std::erase_if(entries_, [](const Entry& entry) { return !entry.element; });
    tableSize_ = tableSize;
    chains_.assign(tableSize_, {});
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
        entries_[entry].next = none;
        link(entry);
    }
}

void* YSet::attach(void* element) {
    const unsigned long hash = hashValue(element);
    const Place place = find(element, hash);
    if (place.entry != none) return entries_[place.entry].element;
    if (!element) return nullptr;
    constexpr std::size_t toleratedVacancies = 16;
    const bool tooManyVacancies = entries_.size() > 2 * count_ + toleratedVacancies;
    if (entries_.capacity() == 0) entries_.reserve(firstRoom);
    if (chains_.empty() || tooManyVacancies) rebuild(tableSize_);
    entries_.push_back({element, hash, none});
    link(entries_.size() - 1);
    ++count_;
    if (count_ > elementsPerSlot * tableSize_) rebuild(2 * tableSize_ + 1);
    return element;
}

void* YSet::detach(const void* key) {
    const unsigned long hash = hashValue(key);
    const Place place = find(key, hash);
    if (place.entry == none) return nullptr;
    Entry& entry = entries_[place.entry];
    Chain& chain = chains_[slotOf(hash)];
    (place.before == none ? chain.first : entries_[place.before].next) = entry.next;
    if (chain.last == place.entry) chain.last = place.before;
    --count_;
    return std::exchange(entry.element, nullptr);
}

void* YSet::search(const void* key) const {
    const Place place = find(key, hashValue(key));
    return place.entry == none ? nullptr : entries_[place.entry].element;
}

unsigned long YSet::contains(const void* key) const {
    return find(key, hashValue(key)).entry != none;
}

unsigned long YSet::detachAll() {
    entries_.clear();
    chains_.clear();
    count_ = 0;
    return 1;
}

unsigned long YSet::deleteAll() {
    // Emptied first: nothing that `deleteIt` does can meet an element that is half gone.
    const std::vector<void*> elements = walked();
    detachAll();
    for (void* element : elements) {
        deleteIt(element);
    }
    return 1;
}

void YSet::deleteAsTheyCame() {
    const std::vector<Entry> entries = std::exchange(entries_, {});
    detachAll();
    for (const Entry& entry : entries) {
        if (entry.element) deleteIt(entry.element);
    }
}

std::vector<void*> YSet::walked() const {
    std::vector<void*> elements;
    elements.reserve(count_);
    YSetIterator walk(*this);
    while (void* element = walk.doNext()) {
        elements.push_back(element);
    }
    return elements;
}

unsigned long YSet::tableSize(int size) {
    rebuild(withinLimits(static_cast<std::size_t>(std::max(size, 1))));
    return 1;
}

unsigned long YSet::compare(const void* key, const void* held) const {
    return key == held;
}

unsigned long YSet::hashValue(const void* key) const {
    // The low bits of an address are always the same.
    return static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(key) >> 4);
}

void YSet::deleteIt(void*) {}

void* YSetIterator::doNext() {
    if (!set_) return nullptr;
    if (entry_ != YSet::none) entry_ = set_->entries_[entry_].next;
    while (true) {
        while (entry_ != YSet::none && !set_->entries_[entry_].element) {
            entry_ = set_->entries_[entry_].next;
        }
        if (entry_ != YSet::none) return set_->entries_[entry_].element;
        if (slot_ >= set_->chains_.size()) return nullptr;
        entry_ = set_->chains_[slot_++].first;
    }
}
