// The byte rules of double-byte Japanese text: the one place that knows what a lead byte is.
//
// A text is walked from its start, character by character, so that the second byte of a pair is never taken for
// a quote, a separator or a letter:
//     for (std::size_t at = 0; at < text.size(); at += characterLength(text, at, leads)) ...
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace bexa::detail {

// A set of byte values, one bit each.
class ByteSet {
public:
    constexpr ByteSet() = default;
    // This set with the values `first` to `last` added.
    constexpr ByteSet with(unsigned first, unsigned last) const {
        ByteSet more = *this;
        for (unsigned value = first; value <= last; ++value) {
            more.words_[value >> 6 & 3] |= std::uint64_t{1} << (value & 63);
        }
        return more;
    }
    constexpr bool has(char c) const { return has(static_cast<unsigned char>(c)); }
    constexpr bool has(unsigned char value) const { return (words_[value >> 6] >> (value & 63) & 1) != 0; }
    constexpr bool operator==(const ByteSet&) const = default;

private:
    std::uint64_t words_[4] = {};
};

// The bytes that begin a pair in a text of a known coding.
inline constexpr ByteSet shiftJisLeadBytes = ByteSet().with(0x81, 0x9F).with(0xE0, 0xFC);
inline constexpr ByteSet eucLeadBytes = ByteSet().with(0xA1, 0xFE).with(0x8E, 0x8E);

// The bytes that begin a pair in the text of a process with this system language and locale value.
constexpr ByteSet leadBytesOf(long language, long locale) {
    if (language == 2 || language == 3) return ByteSet().with(0xA0, 0xFF);
    if (language != 0 && language != 1) return {};
    switch (locale) {
    case 256: return ByteSet().with(0x81, 0x9F);
    case 512: return shiftJisLeadBytes;
    case 513: return ByteSet().with(0xA1, 0xF4).with(0x8E, 0x8E);
    default: return {};
    }
}

// The lead bytes of this process: language and locale as they were when the library was loaded. Later changes of
// the environment don't count.
const ByteSet& processLeadBytes();
bool isLeadByte(unsigned char c);

// The bytes of the character at `at`: 2 for a pair, else 1, and 0 at the end. No coding has a second byte below
// 0x40, so a lead byte in front of a blank, a quote, a line end or nothing stands alone.
constexpr std::size_t characterLength(std::string_view text, std::size_t at, const ByteSet& leads) {
    if (at >= text.size()) return 0;
    const bool pair =
        leads.has(text[at]) && text.size() - at >= 2 && static_cast<unsigned char>(text[at + 1]) >= 0x40;
    return pair ? 2 : 1;
}

// The longest beginning of `text` that has at most `size` bytes and cuts no pair apart.
constexpr std::string_view cutToSize(std::string_view text, std::size_t size, const ByteSet& leads) {
    if (text.size() <= size) return text;
    std::size_t end = 0;
    for (;;) {
        const std::size_t length = characterLength(text, end, leads);
        if (end + length > size) return text.substr(0, end);
        end += length;
    }
}

// A character of two bytes.
struct BytePair {
    unsigned char first;
    unsigned char second;
    constexpr bool operator==(const BytePair&) const = default;
};

// The same place of JIS X 0208 in the other coding. Both tables have 94 rows of 94; EUC has a lead byte for each row,
// Shift-JIS one for two rows, and skips 0xA0 to 0xDF as lead and 0x7F as second byte. Nothing for bytes outside.
constexpr std::optional<BytePair> shiftJisToEuc(BytePair pair) {
    const bool lead =
        (pair.first >= 0x81 && pair.first <= 0x9F) || (pair.first >= 0xE0 && pair.first <= 0xEF);
    if (!lead || pair.second < 0x40 || pair.second == 0x7F || pair.second > 0xFC) return std::nullopt;
    const int rows = 2 * (pair.first - (pair.first < 0xA0 ? 0x81 : 0xC1));
    const int place = pair.second - (pair.second < 0x7F ? 0x40 : 0x41);
    const bool isSecondRow = place >= 94;
    return BytePair{static_cast<unsigned char>(0xA1 + rows + isSecondRow),
                    static_cast<unsigned char>(0xA1 + place - (isSecondRow ? 94 : 0))};
}
constexpr std::optional<BytePair> eucToShiftJis(BytePair pair) {
    if (pair.first < 0xA1 || pair.first > 0xFE || pair.second < 0xA1 || pair.second > 0xFE)
        return std::nullopt;
    const int row = pair.first - 0xA1;
    const int place = pair.second - 0xA1 + (row % 2) * 94;
    return BytePair{static_cast<unsigned char>(row / 2 + (row < 62 ? 0x81 : 0xC1)),
                    static_cast<unsigned char>(place + (place < 63 ? 0x40 : 0x41))};
}

} // namespace bexa::detail
