// The text value that everything is built on.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/index_type.h"

#include <concepts>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <iosfwd>
#include <string_view>
#include <utility>

// The read-only face of a text: its bytes, comparison and hash. Made and changed through `YString`.
//
// The text is counted, so a NUL byte in it is kept, and always terminated, so a reader of the C text sees the
// part before the first NUL. Short texts live inside the object; no object points into itself, so an array
// may move the bytes of its texts.
class BEXA_API YtString {
public:
    YtString() noexcept { clear(); }
    YtString(const YtString& other) {
        if (other.onHeap_) {
            clear();
            replace(other.view());
        } else {
            takeBytes(other);
        }
    }
    YtString(YtString&& other) noexcept {
        takeBytes(other);
        other.clear();
    }
    YtString& operator=(const YtString& other) {
        replace(other.view());
        return *this;
    }
    YtString& operator=(YtString&& other) noexcept {
        if (this != &other) {
            release();
            takeBytes(other);
            other.clear();
        }
        return *this;
    }
    ~YtString() { release(); }

    // The terminated text, never null. Valid until the text is changed or ends.
    // NOLINTNEXTLINE(google-explicit-constructor): callers rely on it
    operator const char*() const noexcept { return data(); }
    std::string_view view() const noexcept { return {data(), length_}; }
    int length() const noexcept { return static_cast<int>(length_); }

    // True when this text sorts before `other`, byte by byte as unsigned values. Null counts as empty.
    bool operator<(const char* other) const noexcept;

    // Equal texts have equal hashes. The value may differ between versions of the library: never store it.
    unsigned long hash() const noexcept;

    // Exact comparison, on either side; a null text equals an empty one.
    friend bool operator==(const YtString& a, const YtString& b) noexcept { return a.view() == b.view(); }
    friend bool operator==(const YtString& a, const char* b) noexcept {
        return a.view() == (b ? std::string_view(b) : std::string_view());
    }

protected:
    static constexpr std::size_t inlineSize = 24;

    const char* data() const noexcept { return onHeap_ ? heap_.block : inline_; }
    char* data() noexcept { return onHeap_ ? heap_.block : inline_; }
    void clear() noexcept {
        inline_[0] = '\0';
        length_ = 0;
        onHeap_ = 0;
    }

    // Room for `size` characters and the terminator; the text stays.
    void reserve(std::size_t size);
    // Replaces or appends; `text` may lie inside this text.
    void replace(std::string_view text);
    void append(std::string_view text);
    void setLength(std::size_t length) noexcept;

private:
    void takeBytes(const YtString& other) noexcept {
        std::memcpy(inline_, other.inline_, inlineSize);
        length_ = other.length_;
        onHeap_ = other.onHeap_;
    }
    void release() noexcept {
        if (onHeap_) std::free(heap_.block);
    }
    std::size_t room() const noexcept { return onHeap_ ? heap_.size : inlineSize; }

    struct Heap {
        char* block;
        std::size_t size; // counts the terminator
    };
    union {
        Heap heap_;
        char inline_[inlineSize] = {};
    };
    std::size_t length_ : 63;
    std::size_t onHeap_ : 1;
};

// A text. Copying copies it; an empty one holds no memory.
class BEXA_API YString : public YtString {
public:
    using BytesMayMove = YString;

    YString() noexcept = default;
    YString(const char* text); // NOLINT(google-explicit-constructor): a null pointer gives an empty text
    explicit YString(std::string_view text) { replace(text); }
    // An empty text with room for `size` characters; a negative size counts as 0.
    explicit YString(int size);
    // `count` copies of `c`; a negative count counts as 0.
    YString(char c, int count);
    explicit YString(const YtString& text) : YtString(text) {}
    YString(const YString&) = default;
    YString(YString&&) noexcept = default;
    YString& operator=(const YString&) = default;
    YString& operator=(YString&&) noexcept = default;
    YString& operator=(const char* text);

    // Replace the text; null empties it. The source may be part of this text. Always 1.
    unsigned long assign(const char* text);
    unsigned long assign(const char* text, unsigned long length);
    unsigned long assign(std::string_view text);
    // Append; null appends nothing. The source may be part of this text. Always 1.
    unsigned long concat(const char* text);
    unsigned long concat(const char* text, unsigned long length);
    unsigned long concat(std::string_view text);

    YString& operator<<(const char* text);
    YString& operator<<(char c);
    YString& operator<<(int number);
    YString& operator<<(long number);
    // Appends the number in decimal.
    YString& operator+=(int number);
    // A character is no number here: append one with `<<`. A template, so that every other type of number becomes an
    // int.
    template <std::same_as<char> Character>
    YString& operator+=(Character) = delete;
    YString operator+(const YString& other) const;

    // The character at `index`. Any index outside the text reads NUL and touches nothing else; callers read
    // text[0] and text[1] without a look at the length. Never write through an index that is out of range.
    template <bexa::detail::IndexType Index>
    char& operator[](Index index) noexcept {
        if (std::cmp_greater_equal(+index, 0) && std::cmp_less(+index, length())) {
            return data()[static_cast<std::size_t>(index)];
        }
        return rescue();
    }
    template <bexa::detail::IndexType Index>
    char operator[](Index index) const noexcept {
        if (std::cmp_greater_equal(+index, 0) && std::cmp_less(+index, length())) {
            return data()[static_cast<std::size_t>(index)];
        }
        return '\0';
    }

    // The first, or the last, place of `c` at or behind `start`; -1 if there is none. A negative start counts
    // as 0.
    int index(char c, int start = 0) const noexcept;
    int rindex(char c, int start = 0) const noexcept;

    // Removes all white space (blank, tab, line feed, vertical tab, form feed, carriage return). Always 1.
    unsigned long removeSpace() noexcept;

private:
    static char& rescue() noexcept;
    static char _out_range_rescue;
};

// Writes the text, all its bytes.
BEXA_API std::ostream& operator<<(std::ostream& out, const YtString& text);
