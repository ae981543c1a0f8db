#include "bexa/foundation/kanji.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include "tests/support/env_guard.h"
#include "tests/support/fresh_process.h"

#include <gtest/gtest.h>

#include <iconv.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

using namespace bexa::test;

namespace {

using Convert = long (*)(const char*, YString&);

// The result, its length checked; nothing for a failure.
std::optional<std::string> converted(Convert convert, const std::string& text) {
    YString out("left from before");
    const long length = convert(text.c_str(), out);
    if (length < 0) return std::nullopt;
    EXPECT_EQ(length, out.length());
    return std::string(out.view());
}

std::string inEuc(int row, int column) {
    return {static_cast<char>(0xA0 + row), static_cast<char>(0xA0 + column)};
}

// The machine's own conversion, character by character.
class SystemConversion {
public:
    SystemConversion(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    SystemConversion(const SystemConversion&) = delete;
    SystemConversion& operator=(const SystemConversion&) = delete;
    ~SystemConversion() {
        if (isThere()) iconv_close(handle_);
    }

    bool isThere() const { return handle_ != reinterpret_cast<iconv_t>(-1); }
    std::optional<std::string> operator()(std::string text) const {
        std::string result(8, '\0');
        char* in = text.data();
        char* out = result.data();
        std::size_t inLeft = text.size();
        std::size_t outLeft = result.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(handle_, &in, &inLeft, &out, &outLeft) != 0) return std::nullopt;
        result.resize(result.size() - outLeft);
        return result;
    }

private:
    iconv_t handle_;
};

constexpr int rows = 94; // and as many columns in each

} // namespace

TEST(KanjiConversion, ConvertsTextBothWays) {
    const struct {
        const char* sjis;
        const char* euc;
    } texts[] = {
        {"plain ASCII, with more than eight bytes", "plain ASCII, with more than eight bytes"},
        {"\x8A\xBF\x8E\x9A", "\xB4\xC1\xBB\xFA"},
        {"R1 \x92\xEF\x8D\x52 1k", "R1 \xC4\xF1\xB9\xB3 1k"},
        {"\xB1", "\x8E\xB1"},
        {"\xA1\xDF", "\x8E\xA1\x8E\xDF"},
        {"a\xB1\x81\x40z", "a\x8E\xB1\xA1\xA1z"},
        {"\x83\x5C", "\xA5\xBD"}, // the second byte is a backslash
        {"\x81\x7E\x81\x80", "\xA1\xDF\xA1\xE0"},
        {"\x9F\xFC\xE0\x40", "\xDE\xFE\xDF\xA1"},
        {"\x01\x7F", "\x01\x7F"},
    };
    for (const auto& text : texts) {
        EXPECT_EQ(converted(YsjistoeucStr, text.sjis), text.euc) << text.sjis;
        EXPECT_EQ(converted(YeuctosjisStr, text.euc), text.sjis) << text.euc;
    }
}

TEST(KanjiConversion, NullAndEmptyTextsFail) {
    for (const Convert convert : {static_cast<Convert>(YsjistoeucStr), static_cast<Convert>(YeuctosjisStr)}) {
        for (const char* text : {static_cast<const char*>(nullptr), ""}) {
            YString out("left from before");
            EXPECT_EQ(convert(text, out), -1);
            EXPECT_EQ(out, "");
        }
    }
}

TEST(KanjiConversion, FaultLeavesWhatStandsBeforeIt) {
    const struct {
        Convert convert;
        const char* text;
        const char* left;
    } faults[] = {
        {YsjistoeucStr, "a\x8A\xBF\x8A", "a\xB4\xC1"}, // a lead byte at the end
        {YsjistoeucStr, "ab\x8A\x20z", "ab"},          {YsjistoeucStr, "ab\x8A\x7Fz", "ab"},
        {YsjistoeucStr, "ab\x80\x40", "ab"},           {YsjistoeucStr, "ab\xA0\xA1", "ab"},
        {YsjistoeucStr, "ab\xF0\x40", "ab"},           {YsjistoeucStr, "ab\xFF\xFF", "ab"},
        {YeuctosjisStr, "a\xB4\xC1\xB4", "a\x8A\xBF"}, {YeuctosjisStr, "ab\xB4z", "ab"},
        {YeuctosjisStr, "ab\x8A\xBF", "ab"},           {YeuctosjisStr, "ab\xA0\xA1", "ab"},
        {YeuctosjisStr, "ab\xFF\xA1", "ab"},           {YeuctosjisStr, "ab\xA1\xFF", "ab"},
    };
    for (const auto& fault : faults) {
        YString out;
        EXPECT_EQ(fault.convert(fault.text, out), -1) << fault.text;
        EXPECT_EQ(out, fault.left) << fault.text;
    }
}

TEST(KanjiConversion, ByteBehindTheKanaMarkIsCopiedAsItStands) {
    EXPECT_EQ(converted(YeuctosjisStr, "\x8E\xB1\x8Ex\x8E\x8E\x8E"), "\xB1x\x8E");
}

TEST(KanjiConversion, ResultMayTakeThePlaceOfItsSource) {
    YString text("\x8A\xBF\xB1 and more than a short text holds");
    const long length = YsjistoeucStr(text, text);
    EXPECT_EQ(length, text.length());
    EXPECT_EQ(text, "\xB4\xC1\x8E\xB1 and more than a short text holds");
}

TEST(KanjiConversion, EveryCharacterComesBack) {
    for (int row = 1; row <= rows; ++row) {
        for (int column = 1; column <= rows; ++column) {
            const std::string euc = inEuc(row, column);
            const auto sjis = converted(YeuctosjisStr, euc);
            ASSERT_TRUE(sjis) << row << ' ' << column;
            ASSERT_EQ(sjis->size(), 2U);
            ASSERT_EQ(converted(YsjistoeucStr, *sjis), euc) << row << ' ' << column;
        }
    }
    for (int kana = 0xA1; kana <= 0xDF; ++kana) {
        const std::string sjis(1, static_cast<char>(kana));
        const auto euc = converted(YsjistoeucStr, sjis);
        ASSERT_EQ(euc, "\x8E" + sjis);
        ASSERT_EQ(converted(YeuctosjisStr, *euc), sjis);
    }
}

TEST(KanjiConversion, EveryOtherPairIsRefused) {
    int taken = 0;
    for (int first = 0x80; first <= 0xFF; ++first) {
        for (int second = 1; second <= 0xFF; ++second) {
            const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
            const auto euc = converted(YsjistoeucStr, pair);
            const bool kana = first >= 0xA1 && first <= 0xDF;
            if (!kana && euc) ++taken;
        }
    }
    EXPECT_EQ(taken, rows * rows);
}

// Where the machine knows a character, it agrees. What it doesn't know are places of the table without a character,
// which convert here all the same: row by row, by their place.
TEST(KanjiConversion, AgreesWithTheMachine) {
    const SystemConversion toEuc("EUC-JP", "SHIFT_JIS");
    const SystemConversion toSjis("SHIFT_JIS", "EUC-JP");
    if (!toEuc.isThere() || !toSjis.isThere()) GTEST_SKIP() << "this machine doesn't convert Japanese";
    int agreed = 0;
    for (int row = 1; row <= rows; ++row) {
        for (int column = 1; column <= rows; ++column) {
            const std::string euc = inEuc(row, column);
            const auto expected = toSjis(euc);
            if (!expected) continue;
            ASSERT_EQ(converted(YeuctosjisStr, euc), expected) << row << ' ' << column;
            ASSERT_EQ(toEuc(*expected), euc) << row << ' ' << column;
            ++agreed;
        }
    }
    EXPECT_EQ(agreed, 6879) << "the characters of JIS X 0208";
    for (int kana = 0xA1; kana <= 0xDF; ++kana) {
        const std::string sjis(1, static_cast<char>(kana));
        EXPECT_EQ(converted(YsjistoeucStr, sjis), toEuc(sjis));
    }
}

namespace {

const std::string sjisKanji = "\x8A\xBF";
const std::string eucKanji = "\xB4\xC1";

// What the four functions of the process make of a text in the coding they convert from.
struct ProcessForms {
    std::string toSjis, toEuc, sjisOut, eucOut;
    bool operator==(const ProcessForms&) const = default;
};

ProcessForms processForms() {
    return {converted(Ytosjis, eucKanji).value_or("failed"), converted(Ytoeuc, sjisKanji).value_or("failed"),
            converted(YsjistoOut, sjisKanji).value_or("failed"),
            converted(YeuctoOut, eucKanji).value_or("failed")};
}

} // namespace

TEST(KanjiConversion, EucProcessConvertsFromItsOwnCoding) {
    const EnvGuard locale("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(processForms(), (ProcessForms{sjisKanji, sjisKanji, eucKanji, eucKanji}));
    YString out;
    EXPECT_EQ(Ytosjis("", out), -1);
}

TEST(KanjiConversion, ShiftJisProcessConvertsFromItsOwnCoding) {
    const EnvGuard locale("LC_ALL", "ja_JP.SJIS");
    EXPECT_EQ(processForms(), (ProcessForms{eucKanji, eucKanji, sjisKanji, sjisKanji}));
}

TEST(KanjiConversion, OtherProcessesOnlyCopy) {
    for (const char* other : {"C", "en_US.UTF-8", "ja_JP.JIS7"}) {
        const EnvGuard locale("LC_ALL", other);
        EXPECT_EQ(processForms(), (ProcessForms{eucKanji, sjisKanji, sjisKanji, eucKanji})) << other;
        YString out("left from before");
        EXPECT_EQ(Ytosjis(nullptr, out), 0);
        EXPECT_EQ(out, "");
    }
}

TEST(KanjiConversion, AsksTheLocaleAtEachCallWhileLeadBytesKeepThatOfTheLoad) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    const EnvGuard locale("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(converted(Ytosjis, eucKanji), sjisKanji);
    EXPECT_TRUE(BexIsKanjiUpper(0x83)) << "leads in Shift-JIS alone";
    EXPECT_FALSE(BexIsKanjiUpper(0xB4)) << "leads in EUC alone";
}
