#include "bexa/foundation/str_dictionary.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <string_view>
#include <utility>

using bexa::detail::viewOf;

namespace {

constexpr std::array<unsigned, 15> primes = {7,    13,   31,   61,    127,   251,   509,   1021,
                                             2039, 4093, 8191, 16411, 32831, 65677, 131357};
constexpr unsigned defaultTableSize = 251;
constexpr unsigned keysPerBucket = 2;
static_assert(std::is_sorted(primes.begin(), primes.end()));
static_assert(std::find(primes.begin(), primes.end(), defaultTableSize) != primes.end());

unsigned firstPrimeAbove(std::uint64_t size) {
    const auto* prime = std::upper_bound(primes.begin(), primes.end(), size);
    return prime == primes.end() ? primes.back() : *prime;
}

std::uint32_t hashOf(std::string_view text) {
    std::uint32_t hash = 0;
    for (const char c : text) {
        hash = std::rotl(
            hash ^ static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<signed char>(c))), 1);
    }
    return hash;
}

} // namespace

// One entry. Its key stands behind it in the same piece of memory, so that a look-up touches one place.
class BexStrAssoc {
public:
    static BexStrAssoc* make(std::string_view key, void* value, std::uint32_t hash) {
        void* memory = std::malloc(sizeof(BexStrAssoc) + key.size() + 1);
        if (!memory) return nullptr;
        auto* entry = new (memory) BexStrAssoc(key.size(), value, hash);
        if (!key.empty()) std::memcpy(entry->text(), key.data(), key.size());
        entry->text()[key.size()] = '\0';
        return entry;
    }
    static void release(BexStrAssoc* entry) {
        std::destroy_at(entry);
        std::free(entry);
    }

    std::string_view key() const { return {text(), length_}; }
    const char* text() const { return reinterpret_cast<const char*>(this + 1); }

    void* value;
    BexStrAssoc* next = nullptr;
    BexStrAssoc* previous = nullptr;
    std::uint32_t hash; // kept, so that growth reads no key

private:
    BexStrAssoc(std::size_t length, void* value, std::uint32_t hash)
        : value(value),
          hash(hash),
          length_(length) {}
    char* text() { return reinterpret_cast<char*>(this + 1); }

    std::size_t length_;
};

namespace {

// Finds an entry by its key at once, however alike the hashes of the chains are: open addressing over a sound hash.
// The index says nothing of the order of the entries; the chains do.
class KeyIndex {
public:
    KeyIndex() = default;
    KeyIndex(const KeyIndex&) = delete;
    KeyIndex& operator=(const KeyIndex&) = delete;
    ~KeyIndex() { std::free(slots_); }

    BexStrAssoc* find(std::string_view key) const {
        const std::size_t slot = slotOf(key);
        return slot == none ? nullptr : slots_[slot].entry;
    }

    // False when memory runs out. The key must not be there.
    bool add(BexStrAssoc* entry) {
        if (2 * (used_ + 1) > size_ && !grow()) return false;
        place({soundHash(entry->key()), entry});
        ++used_;
        return true;
    }

    // Takes the entry of this key out and returns it, or null. Later entries of the same run move up, so that no
    // marks stay behind.
    BexStrAssoc* remove(std::string_view key) {
        std::size_t hole = slotOf(key);
        if (hole == none) return nullptr;
        BexStrAssoc* removed = slots_[hole].entry;
        for (std::size_t slot = following(hole); slots_[slot].entry; slot = following(slot)) {
            const std::size_t home = slots_[slot].hash & (size_ - 1);
            const bool mayMove = ((slot - home) & (size_ - 1)) >= ((slot - hole) & (size_ - 1));
            if (!mayMove) continue;
            slots_[hole] = slots_[slot];
            hole = slot;
        }
        slots_[hole] = {};
        --used_;
        return removed;
    }

    void removeAll() {
        std::fill_n(slots_, size_, Slot{});
        used_ = 0;
    }

private:
    struct Slot {
        std::size_t hash = 0;
        BexStrAssoc* entry = nullptr;
    };
    static constexpr std::size_t none = ~std::size_t{0};
    static constexpr std::size_t firstSize = 64;

    static std::size_t soundHash(std::string_view key) { return std::hash<std::string_view>()(key); }
    std::size_t following(std::size_t slot) const { return (slot + 1) & (size_ - 1); }

    std::size_t slotOf(std::string_view key) const {
        if (used_ == 0) return none;
        const std::size_t hash = soundHash(key);
        for (std::size_t slot = hash & (size_ - 1); slots_[slot].entry; slot = following(slot)) {
            if (slots_[slot].hash == hash && slots_[slot].entry->key() == key) return slot;
        }
        return none;
    }

    void place(Slot taken) {
        std::size_t slot = taken.hash & (size_ - 1);
        while (slots_[slot].entry) slot = following(slot);
        slots_[slot] = taken;
    }

    bool grow() {
        const std::size_t grown = std::max(2 * size_, firstSize);
        auto* slots = static_cast<Slot*>(std::calloc(grown, sizeof(Slot)));
        if (!slots) return false;
        Slot* old = std::exchange(slots_, slots);
        const std::size_t oldSize = std::exchange(size_, grown);
        std::for_each_n(old, oldSize, [this](const Slot& slot) {
            if (slot.entry) place(slot);
        });
        std::free(old);
        return true;
    }

    Slot* slots_ = nullptr;
    std::size_t size_ = 0; // a power of two, at least twice the entries
    std::size_t used_ = 0;
};

} // namespace

class BexStrDictionary::Table {
public:
    explicit Table(unsigned size) : size_(size), buckets_(makeBuckets(size)) {
        if (!buckets_) throw std::bad_alloc();
    }
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
    ~Table() { releaseEntries(); }

    unsigned size() const { return size_; }
    unsigned count() const { return count_; }
    BexStrAssoc* find(std::string_view key) const { return index_.find(key); }
    const BexStrAssoc* head(unsigned bucket) const { return buckets_[bucket]; }

    bool add(std::string_view key, void* value) {
        if (find(key)) return false;
        BexStrAssoc* entry = BexStrAssoc::make(key, value, hashOf(key));
        if (!entry) return false;
        if (!index_.add(entry)) {
            BexStrAssoc::release(entry);
            return false;
        }
        putAtHead(entry);
        ++count_;
        return true;
    }

    // The value of the removed entry, or null.
    void* remove(std::string_view key) {
        BexStrAssoc* entry = index_.remove(key);
        if (!entry) return nullptr;
        (entry->previous ? entry->previous->next : buckets_[entry->hash % size_]) = entry->next;
        if (entry->next) entry->next->previous = entry->previous;
        --count_;
        void* value = entry->value;
        BexStrAssoc::release(entry);
        return value;
    }

    void removeAll() {
        releaseEntries();
        index_.removeAll();
        count_ = 0;
    }

    // Moves every entry to the head of its new bucket, in the order of a walk. False, with the old table in use, when
    // memory runs out.
    bool resize(unsigned size) {
        Buckets grown = makeBuckets(size);
        if (!grown) return false;
        const Buckets old = std::exchange(buckets_, std::move(grown));
        const unsigned oldSize = std::exchange(size_, size);
        std::for_each_n(old.get(), oldSize, [this](BexStrAssoc* entry) {
            while (entry) putAtHead(std::exchange(entry, entry->next));
        });
        return true;
    }

private:
    struct Free {
        void operator()(BexStrAssoc** buckets) const { std::free(static_cast<void*>(buckets)); }
    };
    using Buckets = std::unique_ptr<BexStrAssoc*[], Free>;

    static Buckets makeBuckets(unsigned size) {
        return Buckets(static_cast<BexStrAssoc**>(std::calloc(size, sizeof(BexStrAssoc*))));
    }

    void putAtHead(BexStrAssoc* entry) {
        BexStrAssoc*& head = buckets_[entry->hash % size_];
        entry->previous = nullptr;
        entry->next = head;
        if (head) head->previous = entry;
        head = entry;
    }

    void releaseEntries() {
        std::for_each_n(buckets_.get(), size_, [](BexStrAssoc*& head) {
            while (head) BexStrAssoc::release(std::exchange(head, head->next));
        });
    }

    unsigned size_;
    unsigned count_ = 0;
    Buckets buckets_;
    KeyIndex index_;
};

unsigned long BexStrHash(const char* text) {
    return hashOf(viewOf(text));
}

BexStrDictionary::BexStrDictionary() : table_(std::make_unique<Table>(defaultTableSize)) {}

BexStrDictionary::BexStrDictionary(unsigned size)
    : table_(std::make_unique<Table>(firstPrimeAbove(std::uint64_t{2} * size))) {}

BexStrDictionary::~BexStrDictionary() = default;

unsigned long BexStrDictionary::attach(const char* key, void* value) {
    if (!table_->add(viewOf(key), value)) return 0;
    const bool crowded = table_->count() > std::uint64_t{keysPerBucket} * table_->size();
    // A table that can't grow goes on at its size.
    if (crowded && table_->size() < primes.back()) tableSize(firstPrimeAbove(table_->size()));
    return 1;
}

void* BexStrDictionary::detach(const char* key) {
    return table_->remove(viewOf(key));
}

unsigned long BexStrDictionary::detachAll() {
    table_->removeAll();
    return 1;
}

void* BexStrDictionary::lookup(const char* key) const {
    const BexStrAssoc* entry = table_->find(viewOf(key));
    return entry ? entry->value : nullptr;
}

unsigned long BexStrDictionary::forEach(unsigned long (*fn)(void* arg, const char* key, void* value),
                                        void* arg) const {
    for (unsigned bucket = 0; bucket < table_->size(); ++bucket) {
        for (const BexStrAssoc* entry = table_->head(bucket); entry; entry = entry->next) {
            if (fn(arg, entry->text(), entry->value)) return 1;
        }
    }
    return 0;
}

unsigned BexStrDictionary::count() const {
    return table_->count();
}

unsigned BexStrDictionary::tableSize() const {
    return table_->size();
}

unsigned long BexStrDictionary::tableSize(unsigned size) {
    return table_->resize(size);
}
