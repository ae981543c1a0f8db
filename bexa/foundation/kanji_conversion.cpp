#include "bexa/foundation/kanji.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/ylocale.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

using bexa::detail::BytePair;

namespace {

constexpr long shiftJisLocale = 512;
constexpr long eucLocale = 513;
constexpr unsigned char kanaMark = 0x8E; // stands before half-width kana in EUC

constexpr bool isAscii(unsigned char c) {
    return c < 0x80;
}

// What one character that is not ASCII becomes: 1 or 2 bytes behind `out`. Each rule takes the character off the front
// of `at` and moves `out` on; false, with nothing done, where the coding doesn't know it. The text is terminated, so
// there is always a byte behind the first.
using Source = const unsigned char*;
using Target = unsigned char*;

bool convertPair(Source& at, Target& out, std::optional<BytePair> pair) {
    if (!pair) return false;
    *out++ = pair->first;
    *out++ = pair->second;
    at += 2;
    return true;
}

struct ToEuc {
    static constexpr std::size_t growth = 2; // half-width kana
    static bool convert(Source& at, Target& out) {
        const bool isKana = *at >= 0xA1 && *at <= 0xDF;
        if (!isKana) return convertPair(at, out, bexa::detail::shiftJisToEuc({at[0], at[1]}));
        *out++ = kanaMark;
        *out++ = *at++;
        return true;
    }
};

struct ToSjis {
    static constexpr std::size_t growth = 1;
    static bool convert(Source& at, Target& out) {
        if (*at != kanaMark) return convertPair(at, out, bexa::detail::eucToShiftJis({at[0], at[1]}));
        // The mark goes; behind one that ends the text there is nothing to copy.
        if (*++at) *out++ = *at++;
        return true;
    }
};

// Copies bytes up to the first that is not ASCII, eight at a time as far as they reach.
void copyAscii(Source& at, Source end, Target& out) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    for (std::uint64_t word = 0; end - at >= static_cast<std::ptrdiff_t>(sizeof word);) {
        std::memcpy(&word, at, sizeof word);
        if (word & highBits) break;
        std::memcpy(out, &word, sizeof word);
        at += sizeof word;
        out += sizeof word;
    }
    while (at != end && isAscii(*at)) *out++ = *at++;
}

template <class Rule>
long convertAll(const char* text, YString& result) {
    const std::string_view source = bexa::detail::viewOf(text);
    const std::unique_ptr<unsigned char[]> room(new unsigned char[source.size() * Rule::growth + 1]);
    auto at = reinterpret_cast<Source>(source.data());
    const Source end = at + source.size();
    Target out = room.get();
    bool good = !source.empty();
    while (good && at != end) {
        if (isAscii(*at)) {
            copyAscii(at, end, out);
        } else {
            good = Rule::convert(at, out);
        }
    }
    result.assign({reinterpret_cast<const char*>(room.get()), static_cast<std::size_t>(out - room.get())});
    return good ? result.length() : -1;
}

using Convert = long (*)(const char*, YString&);

long convertIn(long locale, Convert convert, const char* text, YString& out) {
    if (Ylocale() == locale) return convert(text, out);
    out.assign(text);
    return out.length();
}

} // namespace

long YsjistoeucStr(const char* text, YString& out) {
    return convertAll<ToEuc>(text, out);
}

long YeuctosjisStr(const char* text, YString& out) {
    return convertAll<ToSjis>(text, out);
}

long Ytosjis(const char* text, YString& out) {
    return convertIn(eucLocale, YeuctosjisStr, text, out);
}

long Ytoeuc(const char* text, YString& out) {
    return convertIn(shiftJisLocale, YsjistoeucStr, text, out);
}

long YsjistoOut(const char* text, YString& out) {
    return convertIn(eucLocale, YsjistoeucStr, text, out);
}

long YeuctoOut(const char* text, YString& out) {
    return convertIn(shiftJisLocale, YeuctosjisStr, text, out);
}
