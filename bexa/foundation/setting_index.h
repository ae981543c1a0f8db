// Finds a setting by its key. Internal.
#pragma once

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <string_view>

namespace bexa::detail {

// An order over a table of settings: rows of any type that has a `key`. Made when the library is compiled.
template <class Setting, std::size_t size>
class SettingIndex {
public:
    constexpr explicit SettingIndex(const Setting (&settings)[size]) : settings_(settings) {
        static_assert(size <= UCHAR_MAX);
        for (std::size_t row = 0; row < size; ++row) order_[row] = static_cast<unsigned char>(row);
        std::sort(order_.begin(), order_.end(),
                  [this](unsigned char a, unsigned char b) { return sortsBefore(keyOf(a), keyOf(b)); });
    }

    // No two keys are equal, whatever the case of their letters.
    constexpr bool keysAreUnique() const {
        const auto same = [this](unsigned char a, unsigned char b) {
            return !sortsBefore(keyOf(a), keyOf(b));
        };
        return std::adjacent_find(order_.begin(), order_.end(), same) == order_.end();
    }

    // The setting with this key, in any case of letters; null if there is none.
    constexpr const Setting* find(std::string_view key) const {
        const auto before = [this](unsigned char row, std::string_view text) {
            return sortsBefore(keyOf(row), text);
        };
        const auto place = std::lower_bound(order_.begin(), order_.end(), key, before);
        return place != order_.end() && equalIgnoringCase(keyOf(*place), key) ? &settings_[*place] : nullptr;
    }

private:
    constexpr std::string_view keyOf(unsigned char row) const { return settings_[row].key; }

    // Short keys first: most comparisons end at the length.
    static constexpr bool sortsBefore(std::string_view a, std::string_view b) {
        if (a.size() != b.size()) return a.size() < b.size();
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                            [](char x, char y) { return lowerCase(x) < lowerCase(y); });
    }

    const Setting* settings_;
    std::array<unsigned char, size> order_{};
};

} // namespace bexa::detail
