#include "tools/bexa/text_coding.h"

#include "bexa/foundation/ygeneral/ylocale.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace tool {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

constexpr bool lies(unsigned char byte, unsigned first, unsigned last) {
    return byte >= first && byte <= last;
}

// One character at the front of a text: its bytes and its number, which is its first byte outside UTF-8 and
// where it is no character at all.
struct Character {
    std::size_t length = 1;
    std::uint32_t number = 0;
    bool valid = false;
};

struct Utf8Lead {
    unsigned char first, last; // lead bytes of this length
    std::size_t length;
    std::uint32_t least; // a smaller number should have been written shorter
};

constexpr std::array utf8Leads{
    Utf8Lead{0x00, 0x7F, 1, 0},
    Utf8Lead{0xC2, 0xDF, 2, 0x80},
    Utf8Lead{0xE0, 0xEF, 3, 0x800},
    Utf8Lead{0xF0, 0xF4, 4, 0x10000},
};

Character utf8Character(std::string_view text) {
    const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const auto lead = std::find_if(utf8Leads.begin(), utf8Leads.end(),
                                   [&](const Utf8Lead& row) { return lies(byteAt(0), row.first, row.last); });
    const Character broken{1, byteAt(0), false};
    if (lead == utf8Leads.end() || lead->length > text.size()) return broken;
    std::uint32_t number = lead->length == 1 ? byteAt(0) : byteAt(0) & (0x7FU >> lead->length);
    for (std::size_t i = 1; i < lead->length; ++i) {
        if (!lies(byteAt(i), 0x80, 0xBF)) return broken;
        number = number << 6U | (byteAt(i) & 0x3FU);
    }
    const bool surrogate = number >= 0xD800 && number <= 0xDFFF;
    if (number < lead->least || number > 0x10FFFF || surrogate) return broken;
    return {lead->length, number, true};
}

// In the two double-byte codings a character takes as many columns as bytes, but for half-width kana in EUC.
Character doubleByteCharacter(std::string_view text, Coding coding) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const bool isPair = coding == Coding::Euc ? lies(lead, 0xA1, 0xFE) || lead == 0x8E
                                              : lies(lead, 0x81, 0x9F) || lies(lead, 0xE0, 0xFC);
    return {isPair && text.size() > 1 ? std::size_t{2} : std::size_t{1}, lead, true};
}

Character frontOf(std::string_view text, Coding coding) {
    return coding == Coding::Utf8 ? utf8Character(text) : doubleByteCharacter(text, coding);
}

struct Range {
    std::uint32_t first, last;
};

// What a terminal shows two columns wide: East Asian letters and signs, and pictures.
constexpr std::array wideRanges{
    Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF}, Range{0x3400, 0x4DBF},
    Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},   Range{0xAC00, 0xD7A3}, Range{0xF900, 0xFAFF},
    Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6}, Range{0x1F300, 0x1F64F},
    Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD},
};
// What a terminal draws over the character before.
constexpr std::array narrowRanges{
    Range{0x0300, 0x036F},
    Range{0x200B, 0x200F},
    Range{0x3099, 0x309A},
    Range{0xFE00, 0xFE0F},
};

template <typename Ranges>
bool isIn(const Ranges& ranges, std::uint32_t number) {
    return std::any_of(ranges.begin(), ranges.end(), [number](const Range& range) {
        return number >= range.first && number <= range.last;
    });
}

std::size_t widthOf(const Character& character, Coding coding) {
    if (coding == Coding::Euc && character.number == 0x8E) return 1;
    if (coding != Coding::Utf8) return character.length;
    if (isIn(narrowRanges, character.number)) return 0;
    return isIn(wideRanges, character.number) ? 2 : 1;
}

bool isControl(std::uint32_t number, Coding coding) {
    return number < 0x20 || number == 0x7F || (coding == Coding::Utf8 && number >= 0x80 && number < 0xA0);
}

// Calls `take(character, bytes)` for each character of `text`.
template <typename Take>
void walk(std::string_view text, Coding coding, Take take) {
    while (!text.empty()) {
        const Character character = frontOf(text, coding);
        take(character, text.substr(0, character.length));
        text.remove_prefix(character.length);
    }
}

const char* nameOf(Coding coding) {
    if (coding == Coding::Utf8) return "UTF-8";
    return coding == Coding::Euc ? "EUC-JP" : "CP932";
}

class Converter {
public:
    Converter(Coding from, Coding to) : handle_(iconv_open(nameOf(to), nameOf(from))) {}
    ~Converter() {
        if (isOpen()) iconv_close(handle_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // The first character of `text`, which is then taken off, as UTF-8.
    std::string takeCharacter(std::string_view& text, Coding from) {
        const std::size_t length = doubleByteCharacter(text, from).length;
        const auto result = convert(text.substr(0, length));
        text.remove_prefix(result ? length : 1);
        return result.value_or(std::string(replacement));
    }

    // A character of at most four bytes; nothing if it isn't one, or not one of the other coding.
    std::optional<std::string> convert(std::string_view character) const {
        if (character.size() == 1 && static_cast<unsigned char>(character[0]) < 0x80)
            return std::string(character);
        if (!isOpen()) return std::nullopt;
        std::array<char, 4> in{};
        std::array<char, 16> out{};
        std::copy(character.begin(), character.end(), in.begin());
        char* from = in.data();
        char* to = out.data();
        std::size_t left = character.size();
        std::size_t room = out.size();
        const bool done =
            iconv(handle_, &from, &left, &to, &room) != static_cast<std::size_t>(-1) && left == 0;
        return done ? std::optional(std::string(out.data(), out.size() - room)) : std::nullopt;
    }

private:
    // A platform without these codings leaves the handle closed.
    bool isOpen() const {
        return handle_ != reinterpret_cast<iconv_t>(-1); // NOLINT: this is how iconv_open says no
    }

    iconv_t handle_;
};

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The value that rules the coding of texts: the first of the three that is set and not empty.
std::string_view localeName() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0') return value;
    }
    return {};
}

} // namespace

Coding libraryCoding() {
    constexpr long japaneseEuc = 513;
    return Ylocale() == japaneseEuc ? Coding::Euc : Coding::ShiftJis;
}

Coding terminalCoding() {
    const std::string_view locale = localeName();
    const std::size_t dot = locale.find('.');
    std::string codeset;
    for (char c : dot == std::string_view::npos ? std::string_view() : locale.substr(dot + 1)) {
        if (c != '-') codeset += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }
    return codeset.rfind("utf8", 0) == 0 ? Coding::Utf8 : libraryCoding();
}

bool isUtf8(std::string_view text) {
    bool valid = true;
    walk(text, Coding::Utf8, [&](const Character& character, std::string_view) { valid &= character.valid; });
    return valid;
}

std::string toUtf8(std::string_view text, Coding from) {
    if (isAscii(text)) return std::string(text);
    std::string result;
    if (from == Coding::Utf8) {
        walk(text, from, [&](const Character& character, std::string_view bytes) {
            result += character.valid ? bytes : replacement;
        });
        return result;
    }
    for (Converter converter(from, Coding::Utf8); !text.empty();)
        result += converter.takeCharacter(text, from);
    return result;
}

std::optional<std::string> fromUtf8(std::string_view text, Coding to) {
    const Converter converter(Coding::Utf8, to);
    std::string result;
    bool good = true;
    walk(text, Coding::Utf8, [&](const Character& character, std::string_view bytes) {
        const auto converted = character.valid ? converter.convert(bytes) : std::nullopt;
        good = good && converted && toUtf8(*converted, to) == bytes;
        if (good) result += *converted;
    });
    return good ? std::optional(std::move(result)) : std::nullopt;
}

std::string printable(std::string_view text, Coding coding) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    walk(text, coding, [&](const Character& character, std::string_view bytes) {
        if (character.valid && !isControl(character.number, coding)) {
            result += bytes;
            return;
        }
        result += "\\x";
        result += digits[character.number >> 4U];
        result += digits[character.number & 0xFU];
    });
    return result;
}

std::size_t displayWidth(std::string_view text, Coding coding) {
    std::size_t width = 0;
    walk(text, coding,
         [&](const Character& character, std::string_view) { width += widthOf(character, coding); });
    return width;
}

} // namespace tool
