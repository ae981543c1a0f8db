#include "bexa/foundation/kanji.h"
#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/ygeneral/ylocale.h"
#include "tests/support/env_guard.h"
#include "tests/support/fresh_process.h"

#include <gtest/gtest.h>

#include <string>

using namespace bexa::detail;
using bexa::test::EnvGuard;
using bexa::test::startedInLocale;

namespace {

// The values for which a set answers yes, as ranges: "81-9F E0-FC".
std::string rangesOf(const ByteSet& set) {
    static constexpr char hex[] = "0123456789ABCDEF";
    const auto text = [](unsigned value) { return std::string{hex[value >> 4], hex[value & 15]}; };
    std::string ranges;
    for (unsigned value = 0; value < 256; ++value) {
        const bool has = set.has(static_cast<unsigned char>(value));
        const bool before = value > 0 && set.has(static_cast<unsigned char>(value - 1));
        const bool after = value < 255 && set.has(static_cast<unsigned char>(value + 1));
        if (has && !before) ranges += (ranges.empty() ? "" : " ") + text(value);
        if (has && before && !after) ranges += "-" + text(value);
    }
    return ranges;
}

TEST(LeadBytes, FollowLanguageThenLocale) {
    const struct {
        long language;
        long locale;
        const char* lead;
    } rows[] = {
        {0, 256, "81-9F"},
        {1, 256, "81-9F"},
        {0, 512, "81-9F E0-FC"},
        {1, 512, "81-9F E0-FC"},
        {0, 513, "8E A1-F4"},
        {1, 513, "8E A1-F4"},
        {0, 0, ""},
        {1, 514, ""},
        {2, 0, "A0-FF"},
        {2, 513, "A0-FF"},
        {3, 512, "A0-FF"},
        {4, 512, ""},
        {-1, 512, ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(rangesOf(leadBytesOf(row.language, row.locale)), row.lead)
            << row.language << ' ' << row.locale;
    }
}

TEST(LeadBytes, OfTheProcessStayAsTheyWereWhenTheLibraryWasLoaded) {
    const ByteSet loaded = leadBytesOf(YgetSystemLang(), Ylocale());
    const EnvGuard other("LC_ALL", loaded == ByteSet() ? "ja_JP.SJIS" : "C");
    EXPECT_EQ(rangesOf(processLeadBytes()), rangesOf(loaded));
    for (unsigned value = 0; value < 256; ++value) {
        const auto c = static_cast<unsigned char>(value);
        EXPECT_EQ(BexIsKanjiUpper(c), static_cast<unsigned long>(loaded.has(c)));
        EXPECT_EQ(isLeadByte(c), loaded.has(c));
    }
}

TEST(LeadBytes, OfAnEucProcess) {
    if (!startedInLocale("ja_JP.eucJP")) return;
    EXPECT_EQ(rangesOf(processLeadBytes()), "8E A1-F4");
    EXPECT_EQ(BexIsKanjiUpper(0x8E), 1UL);
    EXPECT_EQ(BexIsKanjiUpper(0x81), 0UL);
}

TEST(LeadBytes, OfAShiftJisProcess) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    EXPECT_EQ(rangesOf(processLeadBytes()), "81-9F E0-FC");
    EXPECT_EQ(BexIsKanjiUpper(0x81), 1UL);
    EXPECT_EQ(BexIsKanjiUpper(0xA1), 0UL);
}

TEST(LeadBytes, OfAKoreanProcess) {
    if (!startedInLocale("ko_KR.eucKR")) return;
    EXPECT_EQ(rangesOf(processLeadBytes()), "A0-FF");
}

constexpr std::size_t lengthAt(std::string_view text, std::size_t at) {
    return characterLength(text, at, shiftJisLeadBytes);
}

static_assert(lengthAt("a", 0) == 1);
static_assert(lengthAt("a", 1) == 0, "past the end");
static_assert(lengthAt("\x83\x5C", 0) == 2, "a backslash as second byte");
static_assert(lengthAt("\x83\x7B", 0) == 2, "a brace as second byte");
static_assert(lengthAt("\x83", 0) == 1, "a lead byte at the end stands alone");
static_assert(lengthAt("\x83\"", 0) == 1, "no second byte is a quote");
static_assert(lengthAt("\x83\n", 0) == 1, "no second byte is a line end");
static_assert(lengthAt("\xB1\x83\x40", 0) == 1, "half-width kana");

constexpr std::string_view cut(std::string_view text, std::size_t size) {
    return cutToSize(text, size, shiftJisLeadBytes);
}

static_assert(cut("abc", 3) == "abc");
static_assert(cut("abc", 2) == "ab");
static_assert(cut("abc", 0).empty());
static_assert(cut("a\x83\x5C", 2) == "a", "a pair is not cut apart");
static_assert(cut("\x83\x83\x83\x83", 3) == "\x83\x83", "only a walk from the start knows the pairs");
static_assert(cut("", 0).empty());

// Corners of the rows of JIS X 0208, with their places on both sides.
constexpr struct {
    BytePair shiftJis;
    BytePair euc;
} corners[] = {
    {{0x81, 0x40}, {0xA1, 0xA1}},                               // row 1, first place
    {{0x81, 0x7E}, {0xA1, 0xDF}}, {{0x81, 0x80}, {0xA1, 0xE0}}, // around the byte that is skipped
    {{0x81, 0x9E}, {0xA1, 0xFE}}, {{0x81, 0x9F}, {0xA2, 0xA1}}, // from row to row
    {{0x81, 0xFC}, {0xA2, 0xFE}}, {{0x82, 0x40}, {0xA3, 0xA1}}, // from lead byte to lead byte
    {{0x88, 0x9F}, {0xB0, 0xA1}},                               // the first kanji
    {{0x9F, 0xFC}, {0xDE, 0xFE}}, {{0xE0, 0x40}, {0xDF, 0xA1}}, // over the gap of half-width kana
    {{0xEF, 0xFC}, {0xFE, 0xFE}},                               // row 94, last place
};

TEST(JisTable, CornersLieOnEachOther) {
    for (const auto& [shiftJis, euc] : corners) {
        EXPECT_EQ(shiftJisToEuc(shiftJis), euc);
        EXPECT_EQ(eucToShiftJis(euc), shiftJis);
    }
}

TEST(JisTable, HasTheSamePlacesInBothCodings) {
    int places = 0;
    for (unsigned code = 0; code < 0x10000; ++code) {
        const BytePair pair{static_cast<unsigned char>(code >> 8), static_cast<unsigned char>(code & 0xFF)};
        if (const auto euc = shiftJisToEuc(pair)) {
            EXPECT_EQ(eucToShiftJis(*euc), pair);
            ++places;
        }
        if (const auto shiftJis = eucToShiftJis(pair)) {
            EXPECT_EQ(shiftJisToEuc(*shiftJis), pair);
        }
    }
    EXPECT_EQ(places, 94 * 94);
}

} // namespace
