// A hashed set of untyped pointers whose meaning comes from a derived class.
#pragma once

#include "bexa/export.h"

#include <cstddef>
#include <vector>

// The root of the sets' virtual operations.
class BEXA_API YSet_virtual_behavior {
public:
    YSet_virtual_behavior() = default;
    YSet_virtual_behavior(const YSet_virtual_behavior&) = default;
    YSet_virtual_behavior& operator=(const YSet_virtual_behavior&) = default;

    // Does nothing.
    virtual void dummy_func();

protected:
    ~YSet_virtual_behavior() = default;
};

// A set of pointers, at most one for each key; what a key is, `compare` and `hashValue` say. A set doesn't
// own its elements: its end leaves them alone, and only `deleteAll` deletes.
//
// The order of a walk: slot by slot from slot 0, the slot of an element being its hash modulo the table size;
// within a slot in the order in which the elements came. The table grows to twice its size and one when there
// are more than two elements a slot.
class BEXA_API YSet : public YSet_virtual_behavior {
public:
    YSet();
    // A table of `size` slots to begin with; 0 counts as 1, and a size above 16777213 as that.
    explicit YSet(unsigned size);
    // The copy holds the same pointers, in a table of the same size.
    YSet(const YSet& other);
    YSet& operator=(const YSet& other);

    // Makes this set hold the pointers of `other`; those it held are not deleted. Always 1.
    unsigned long copyFrom(const YSet& other);

    // Inserts `element` unless an equal one is held. Returns the pointer held for this key afterwards. A null
    // is never held.
    void* attach(void* element);
    // Takes the element with this key out, without deleting it, and returns it; null if there is none.
    void* detach(const void* key);
    // The element held under an equal key, or null.
    void* search(const void* key) const;
    unsigned long contains(const void* key) const;

    // Empties the set without deleting. The table keeps its size. Always 1.
    unsigned long detachAll();
    // Empties the set and deletes each element with `deleteIt`, in the order of a walk. Always 1.
    unsigned long deleteAll();

    int count() const noexcept { return static_cast<int>(count_); }
    int tableSize() const noexcept { return static_cast<int>(tableSize_); }
    // Gives the table another size, with the limits of the constructor. Always 1.
    unsigned long tableSize(int size);

protected:
    // True when the two keys are equal. The first is the one asked for, the second one that is held. Without
    // a derived class pointers are equal only to themselves.
    virtual unsigned long compare(const void* key, const void* held) const;
    // Equal keys have equal hashes.
    virtual unsigned long hashValue(const void* key) const;
    // Ends the life of an element. Does nothing without a derived class.
    virtual void deleteIt(void* element);

    // Empties the set and deletes each element with `deleteIt`, in the order in which they came: the quick way for
    // the destructor of a class that owns its elements.
    void deleteAsTheyCame();

public:
    // A new set with the same pointers; the caller ends it.
    virtual YSet* copy() const;
    virtual ~YSet();

private:
    friend class YSetIterator;

    static constexpr std::size_t none = ~std::size_t{0};

    // All elements in the order in which they came. One that was taken out leaves a vacant entry (a null
    // element) whose `next` still leads on, until the chains are built anew.
    struct Entry {
        void* element;
        unsigned long hash;
        std::size_t next;
    };
    struct Chain {
        std::size_t first = none;
        std::size_t last = none;
    };
    struct Place {
        std::size_t entry = none;
        std::size_t before = none;
    };

    std::size_t slotOf(unsigned long hash) const noexcept { return hash % tableSize_; }
    Place find(const void* key, unsigned long hash) const;
    void link(std::size_t entry);
    void rebuild(std::size_t tableSize);
    std::vector<void*> walked() const;

    std::vector<Entry> entries_;
    std::vector<Chain> chains_; // empty until the first element comes
    std::size_t tableSize_;
    std::size_t count_ = 0;
};

// A walk over a set. Elements may be detached during the walk; after an attach or any other change the walk
// is to be begun anew. The set must outlive it.
class BEXA_API YSetIterator {
public:
    // A walk over nothing.
    YSetIterator() noexcept = default;
    explicit YSetIterator(const YSet& set) noexcept : set_(&set) {}

    // The next element, null at the end.
    void* doNext();

private:
    const YSet* set_ = nullptr;
    std::size_t slot_ = 0;
    std::size_t entry_ = YSet::none;
};
