// The words of a vocabulary and their values, both ways.
#pragma once

#include "bexa/foundation/text_cursor.h"

#include <cstddef>
#include <string_view>

namespace bexa::detail {

// Several words may have one value: the first is the one that is written. Words are compared ignoring case.
//     constexpr WordTable answers({{0, "no"}, {1, "yes"}});
template <std::size_t size>
class WordTable {
public:
    struct Row {
        int value;
        const char* word;
    };

    constexpr explicit WordTable(const Row (&rows)[size]) {
        for (std::size_t i = 0; i < size; ++i) rows_[i] = rows[i];
    }
    // Words with the values 0, 1, 2 ...
    constexpr explicit WordTable(const char* const (&words)[size]) {
        for (std::size_t i = 0; i < size; ++i) rows_[i] = {static_cast<int>(i), words[i]};
    }

    // -1 for an unknown or null word.
    constexpr int value(std::string_view word) const {
        for (const Row& row : rows_) {
            if (equalIgnoringCase(row.word, word)) return row.value;
        }
        return -1;
    }
    constexpr int value(const char* word) const { return value(viewOf(word)); }
    // Null for an unknown value.
    constexpr const char* word(int value) const {
        for (const Row& row : rows_) {
            if (row.value == value) return row.word;
        }
        return nullptr;
    }

    // For a static_assert: no word is empty or stands twice, no value is the -1 of unknown words.
    constexpr bool isSound() const {
        for (const Row& row : rows_) {
            if (row.value < 0 || !*row.word || value(row.word) != row.value) return false;
        }
        for (std::size_t i = 0; i < size; ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                if (equalIgnoringCase(rows_[i].word, rows_[j].word)) return false;
            }
        }
        return true;
    }

    constexpr const Row* begin() const { return rows_; }
    constexpr const Row* end() const { return rows_ + size; }

private:
    Row rows_[size] = {};
};

} // namespace bexa::detail
