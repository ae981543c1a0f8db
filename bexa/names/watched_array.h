// An array of the family that knows whether anybody outside may have changed its elements.
#pragma once

#include "bexa/foundation/array_family.h"

#include <utility>

namespace bexa::detail {

// Its public face is that of the family. A class that derives from it may keep an index of the elements and
// must know when to forget it.
//
// `changes()` counts the operations that alter the sequence. Those that the deriving class does itself, through
// `Plain`, are its own business.
//
// `isLent()` tells that a reference or a pointer to an element was handed out. Whoever holds it can alter the
// element at any time, so from then on nothing derived from the elements stays true.
//
// The plain array is no public base, so there is no way around either.
template <class T, int MaxStep>
class WatchedArray : protected ArrayOf<T, MaxStep> {
protected:
    using Plain = ArrayOf<T, MaxStep>;

public:
    using typename Plain::Compare;
    using typename Plain::Element;

    WatchedArray() noexcept = default;
    explicit WatchedArray(int size) : Plain(size) {}
    WatchedArray(const WatchedArray& other) : Plain(other) {}
    WatchedArray(WatchedArray&& other) noexcept { *this = std::move(other); }
    ~WatchedArray() = default;

    WatchedArray& operator=(const WatchedArray& other) {
        ++changes_;
        Plain::operator=(other);
        return *this;
    }
    // Exchanges the elements, and references that were handed out follow theirs.
    WatchedArray& operator=(WatchedArray&& other) noexcept {
        ++changes_;
        ++other.changes_;
        Plain::swap(other);
        std::swap(lent_, other.lent_);
        return *this;
    }

    using Plain::search;
    using Plain::size;

    operator T*() const noexcept { return lent().Plain::operator()(); } // NOLINT(google-explicit-constructor)
    T* operator()() const noexcept { return lent().Plain::operator()(); }
    template <IndexType Index>
    T& operator[](Index index) {
        return lent().Plain::operator[](index);
    }
    T& at(int index) const noexcept { return lent().Plain::at(index); }
    T& end() { return lent().Plain::end(); }

    void resize(int count) { changed().Plain::resize(count); }
    unsigned long remove(int index) { return changed().Plain::remove(index); }
    void removeAll() noexcept { changed().Plain::removeAll(); }
    unsigned long insertBefore(int index, const T& element) {
        return changed().Plain::insertBefore(index, element);
    }
    unsigned long insertAfter(int index, const T& element) {
        return changed().Plain::insertAfter(index, element);
    }
    unsigned long append(const T& element) { return changed().Plain::append(element); }
    void sort(Compare compare) { changed().Plain::sort(compare); }
    unsigned long insertSorted(const T& element, Compare compare, unsigned long mode) {
        return changed().Plain::insertSorted(element, compare, mode);
    }

protected:
    bool isLent() const noexcept { return lent_; }
    unsigned long changes() const noexcept { return changes_; }

private:
    WatchedArray& lent() noexcept {
        lent_ = true;
        return *this;
    }
    const WatchedArray& lent() const noexcept {
        lent_ = true;
        return *this;
    }
    WatchedArray& changed() noexcept {
        ++changes_;
        return *this;
    }

    unsigned long changes_ = 0;
    mutable bool lent_ = false;
};

} // namespace bexa::detail
