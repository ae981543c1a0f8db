// The one growable array of the library, and the stack on top of it. Every `..._Array`, `..._Table` and
// `..._Stack` is an instance with a name of its own.
//
// The odd edges are deliberate and shared by all instances: reading past the end through `[]` extends the
// array, `end()` adds an element, an index equal to the count is accepted by `remove`, `insertBefore` and
// `insertAfter`.
#pragma once

#include "bexa/foundation/index_type.h"
#include "bexa/foundation/ycore/array_find.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace bexa {

namespace detail {

// An element whose bytes may be moved to another place without telling it: plain data, and each class that
// says so by naming itself in `BytesMayMove`. A derived class doesn't inherit the promise.
template <class T>
concept BytesMayMove = std::is_trivially_copyable_v<T> ||
    (requires { typename T::BytesMayMove; } && std::is_same_v<typename T::BytesMayMove, T>);

// Lets the tests of the family see the capacity.
struct ArrayProbe;

} // namespace detail

// `MaxStep` is the growth at most: small arrays double, larger ones grow by this many elements.
template <class T, int MaxStep>
class ArrayOf {
public:
    using Element = T;
    // In the manner of the standard library's `qsort`: gets pointers to elements.
    using Compare = int (*)(const void*, const void*);

    ArrayOf() noexcept = default;
    // `size` default elements; a size below 1 gives an empty array.
    explicit ArrayOf(int size) {
        if (size >= 1) resize(size);
    }
    ArrayOf(const ArrayOf& other) { *this = other; }
    ArrayOf(ArrayOf&& other) noexcept { swap(other); }
    ~ArrayOf() { releaseAll(); }

    // Assigns element by element. The memory of the target never shrinks.
    ArrayOf& operator=(const ArrayOf& other) {
        if (this == &other) return *this;
        if (other.count_ > count_) provide(other.count_);
        const int assigned = std::min(made_, other.count_);
        for (int i = 0; i < assigned; ++i) items_[i] = std::as_const(other.items_[i]);
        for (; made_ < other.count_; ++made_) std::construct_at(items_ + made_, other.items_[made_]);
        count_ = other.count_;
        return *this;
    }
    ArrayOf& operator=(ArrayOf&& other) noexcept {
        swap(other);
        return *this;
    }

    // The number of elements.
    int size() const noexcept { return count_; }
    operator T*() const noexcept { return items_; } // NOLINT(google-explicit-constructor): callers rely on it
    T* operator()() const noexcept { return items_; }

    // The element at `index`, growing the array when the index lies at or beyond the end. Kept on purpose:
    // reading past the end extends the array. A negative index is the caller's mistake and not checked.
    template <detail::IndexType Index>
    T& operator[](Index index) {
        const int place = std::cmp_less(+index, INT_MAX) ? static_cast<int>(index) : INT_MAX;
        return place < count_ ? items_[place] : bumpsize(place);
    }
    // The element at `index`, with no check at all.
    T& at(int index) const noexcept { return items_[index]; }

    // Kept on purpose: adds one element and returns it. The way to append by reference, not a past-the-end
    // mark.
    T& end() { return bumpsize(count_); }

    // Sets the count; a negative one counts as 0. The capacity covers one element more than asked. Elements
    // that a smaller count drops stay allocated and come back as they were when the array grows again.
    void resize(int count) {
        count = std::max(count, 0);
        provide(count);
        make(count);
        count_ = count;
    }

    // False for an index that is negative or above the count, and on an array without elements. Kept on
    // purpose: an index equal to the count drops the last element.
    unsigned long remove(int index) {
        if (index < 0 || index > count_ || count_ == 0) return 0;
        // The last element is copied, not moved: it comes back when the array grows again.
        if (index < count_ - 1) {
            std::move(items_ + index + 1, items_ + count_ - 1, items_ + index);
            items_[count_ - 2] = std::as_const(items_[count_ - 1]);
        }
        --count_;
        return 1;
    }

    // Destroys all elements and gives the memory back; an array whose count is 0 stays as it is.
    void removeAll() noexcept {
        if (count_ != 0) releaseAll();
    }

    // Puts a copy of `element` at `index`. False for an index that is negative or above the count.
    unsigned long insertBefore(int index, const T& element) {
        if (index < 0 || index > count_) return 0;
        if (holds(element)) return insertBefore(index, T(element));
        provide(count_ + 1);
        if (index == made_) {
            std::construct_at(items_ + made_, element);
            ++made_;
        } else {
            make(count_ + 1);
            std::move_backward(items_ + index, items_ + count_, items_ + count_ + 1);
            items_[index] = element;
        }
        ++count_;
        return 1;
    }

    // Puts a copy of `element` behind `index`. False for an index that is negative or above the count. Kept
    // on purpose: with an index equal to the count the count grows by one, but the element lands one place
    // further, so that the new last element is a default one.
    unsigned long insertAfter(int index, const T& element) {
        if (index < 0 || index > count_) return 0;
        if (holds(element)) return insertAfter(index, T(element));
        provide(count_ + 1);
        make(std::max(count_ + 1, index + 2));
        if (index < count_) std::move_backward(items_ + index + 1, items_ + count_, items_ + count_ + 1);
        items_[index + 1] = element;
        ++count_;
        return 1;
    }

    unsigned long append(const T& element) { return insertBefore(count_, element); }

    // Elements that compare equal keep their order.
    void sort(Compare compare) {
        std::stable_sort(items_, items_ + count_,
                         [compare](const T& a, const T& b) { return compare(&a, &b) < 0; });
    }

    // Inserts into an array sorted by `compare`; `mode` is a YArrayFindMode. False when the mode refuses an
    // element that is there already.
    unsigned long insertSorted(const T& element, Compare compare, unsigned long mode) {
        const int index =
            YArrayBinFind(&element, items_, static_cast<unsigned>(count_), sizeof(T), compare, mode);
        return index == -1 ? 0 : insertBefore(index, element);
    }

    // The index of an element that equals the key, or -1. The array must be sorted by the same `compare`,
    // which gets the key first.
    int search(const void* key, Compare compare) const {
        if (count_ == 0) return -1;
        const void* found = std::bsearch(key, items_, static_cast<std::size_t>(count_), sizeof(T), compare);
        return found ? static_cast<int>(static_cast<const T*>(found) - items_) : -1;
    }

protected:
    void swap(ArrayOf& other) noexcept {
        std::swap(count_, other.count_);
        std::swap(capacity_, other.capacity_);
        std::swap(made_, other.made_);
        std::swap(items_, other.items_);
    }

    // Room for `count` elements at once, for a caller who knows how many will come. Adds none.
    void reserve(int count) {
        if (count > capacity_) relocate(count);
    }

private:
    friend struct detail::ArrayProbe;
    static_assert(alignof(T) <= alignof(std::max_align_t));

    // The element at `index`, counted from now on. A negative index counts as 0.
    T& bumpsize(int index) {
        index = std::clamp(index, 0, INT_MAX - 1);
        provide(index);
        if (index >= count_) {
            make(index + 1);
            count_ = index + 1;
        }
        return items_[index];
    }

    // Grows the memory so that `index` has a place. Small arrays double; from the step on growth is by the
    // step.
    void provide(int index) {
        if (index < capacity_) return;
        const long long grown = static_cast<long long>(std::clamp(capacity_, 1, MaxStep)) + index;
        relocate(static_cast<int>(std::min<long long>(grown, INT_MAX)));
    }

    // Elements beyond the count are made when they are first counted, not when their memory is taken.
    void make(int count) {
        for (; made_ < count; ++made_) std::construct_at(items_ + made_);
    }

    void relocate(int capacity) {
        const std::size_t bytes = static_cast<std::size_t>(capacity) * sizeof(T);
        if constexpr (detail::BytesMayMove<T>) {
            void* grown = std::realloc(static_cast<void*>(items_), bytes);
            if (!grown) throw std::bad_alloc();
            items_ = static_cast<T*>(grown);
        } else {
            T* grown = static_cast<T*>(std::malloc(bytes));
            if (!grown) throw std::bad_alloc();
            std::uninitialized_move(items_, items_ + made_, grown);
            std::destroy(items_, items_ + made_);
            std::free(items_);
            items_ = grown;
        }
        capacity_ = capacity;
    }

    void releaseAll() noexcept {
        std::destroy(items_, items_ + made_);
        std::free(static_cast<void*>(items_));
        count_ = capacity_ = made_ = 0;
        items_ = nullptr;
    }

    bool holds(const T& element) const noexcept {
        return std::greater_equal<>()(&element, items_) && std::less<>()(&element, items_ + made_);
    }

    int count_ = 0;
    int capacity_ = 0;
    int made_ = 0; // elements [0, made_) are objects, those behind are bare memory
    T* items_ = nullptr;
};

// A stack on an array of the family. Popped elements stay in the array.
template <class Array>
class StackOf : public Array {
public:
    using Element = typename Array::Element;
    using Array::Array;

    // Always 1. The element may be one of the array's own, so it is taken before the array grows.
    unsigned long push(const Element& element) {
        if (top_ == Array::size()) {
            Array::append(element);
        } else {
            // Also where the array was shortened under the stack.
            (*this)[top_] = Element(element);
        }
        ++top_;
        return 1;
    }
    unsigned long push(Element&& element) {
        (*this)[top_] = Element(std::move(element));
        ++top_;
        return 1;
    }

    // Takes the element on top away and returns it. Kept on purpose: an empty stack returns the first element
    // of its array and moves nothing; one that never held anything returns a default element.
    Element pop() {
        if (top_ > 0) --top_;
        return elementAt(top_);
    }
    // The element on top, and the one at the bottom, with the same rule for an empty stack.
    Element top() const { return elementAt(std::max(top_ - 1, 0)); }
    Element bottom() const { return elementAt(0); }

    int count() const noexcept { return top_; }
    void clear() noexcept { top_ = 0; }
    unsigned long isEmpty() const noexcept { return top_ == 0; }

private:
    Element elementAt(int index) const { return index < Array::size() ? (*this)()[index] : Element(); }

    int top_ = 0;
};

} // namespace bexa
