// The walk over the elements of a checked name.
#pragma once

namespace bexa::detail {

// What the iterators of arrays and bundles share. The array is not owned.
template <class Array>
class NameIterator {
public:
    explicit NameIterator(Array* array) noexcept : array_(array) {}

    // The current element. Kept on purpose: at or beyond the end the array grows by default elements.
    typename Array::Element& operator()() const { return (*array_)[index_]; }
    // 1 at or beyond the end.
    unsigned long isEnd() const noexcept { return !array_ || index_ >= array_->size(); }

protected:
    void advance() noexcept { ++index_; }

private:
    Array* array_;
    int index_ = 0;
};

} // namespace bexa::detail
