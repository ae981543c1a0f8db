#include "bexa/foundation/ygeneral/ykanji.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/ygeneral/ylocale.h"

#include <cstring>
#include <string_view>

namespace bexa::detail {

namespace {

// The two words of the process, asked when the library is loaded, and what follows from them.
const long systemLanguage = YgetSystemLang();
const long processLocale = Ylocale();
const ByteSet leadBytes = leadBytesOf(systemLanguage, processLocale);

constexpr unsigned char halfWidthMark = 0x8E; // in EUC

constexpr bool isHalfWidthKana(unsigned char c) {
    return c >= 0xA1 && c <= 0xDF;
}

} // namespace

// Here and not in a source beside its header: only this floor may ask for the locale.
const ByteSet& processLeadBytes() {
    return leadBytes;
}

bool isLeadByte(unsigned char c) {
    return leadBytes.has(c);
}

namespace {

unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

using Convert = std::optional<BytePair> (*)(BytePair);

long convertPair(const char* text, char* out, Convert convert) {
    if (!text || !out || !*text) return -1;
    const auto pair = convert({static_cast<unsigned char>(text[0]), static_cast<unsigned char>(text[1])});
    if (!pair) return -1;
    out[0] = static_cast<char>(pair->first);
    out[1] = static_cast<char>(pair->second);
    return 2;
}

// The class of the first byte of the character at `at`, which has `length` bytes.
long classOf(std::string_view text, std::size_t at, std::size_t length, bool euc) {
    const unsigned char c = byteAt(text, at);
    if (length == 2) return euc && c == halfWidthMark ? 3 : 1;
    return !euc && isHalfWidthKana(c) ? 3 : 0;
}

} // namespace

std::string kanjiClasses(std::string_view text) {
    const bool euc = Ylocale() == 513;
    const ByteSet& leads = euc ? eucLeadBytes : shiftJisLeadBytes;
    std::string classes(text.size(), '\0');
    std::size_t at = 0;
    while (const std::size_t length = characterLength(text, at, leads)) {
        const long first = classOf(text, at, length, euc);
        classes[at] = static_cast<char>(first);
        if (length == 2) classes[at + 1] = static_cast<char>(first + 1);
        at += length;
    }
    return classes;
}

} // namespace bexa::detail

using namespace bexa::detail;

long YCheckKanji(const char* text, int index) {
    if (!text || index < 0) return 0;
    const bool euc = Ylocale() == 513;
    const ByteSet& leads = euc ? eucLeadBytes : shiftJisLeadBytes;
    const std::string_view whole = text;
    const auto wanted = static_cast<std::size_t>(index);
    std::size_t at = 0;
    std::size_t length = characterLength(whole, at, leads);
    while (length != 0 && at + length <= wanted) {
        at += length;
        length = characterLength(whole, at, leads);
    }
    if (length == 0) return 0;
    const long first = classOf(whole, at, length, euc);
    return wanted == at ? first : first + 1;
}

long Yeuctosjis(const char* text, char* out) {
    return convertPair(text, out, eucToShiftJis);
}

long Ysjistoeuc(const char* text, char* out) {
    return convertPair(text, out, shiftJisToEuc);
}

long YeuctosjisStr(const char* text, char* out) {
    if (!text || !out) return -1;
    const std::string_view source = text;
    char* end = out;
    bool whole = true;
    for (std::size_t at = 0; at < source.size();) {
        const std::size_t length = characterLength(source, at, eucLeadBytes);
        if (length == 2 && byteAt(source, at) == halfWidthMark) {
            *end++ = source[at + 1];
        } else if (length == 2) {
            if (Yeuctosjis(text + at, end) == -1) {
                std::memmove(end, text + at, 2);
                whole = false;
            }
            end += 2;
        } else {
            whole = whole && byteAt(source, at) < 0x80;
            *end++ = source[at];
        }
        at += length;
    }
    *end = '\0';
    return whole ? static_cast<long>(end - out) : -1;
}
