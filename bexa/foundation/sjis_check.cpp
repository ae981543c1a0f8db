#include "bexa/foundation/sjis_check.h"

#include "bexa/foundation/os.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace {

struct Range {
    unsigned first, last;
    constexpr bool has(unsigned value) const { return value >= first && value <= last; }
};

constexpr Range sjisPairs = {0x813F, 0xEAAD};
constexpr Range sjisGaps[] = {
    {0x823E, 0x824E}, {0x83DE, 0x843E}, {0x84CE, 0x889E}, {0x987F, 0x989E}, {0x9FFE, 0xE03E},
};
constexpr Range sjisSecondBytes = {0x3F, 0xFD};
constexpr unsigned deleteByte = 0x7F;
constexpr Range eucBytes = {0xA1, 0xFE};

constexpr std::size_t longestLine = 1023;
constexpr std::size_t tooManyLines = 2000;

// Printable characters and white space of ASCII, whatever the locale.
constexpr bool isPlain(unsigned char c) {
    return (c >= ' ' && c < deleteByte) || (c >= '\t' && c <= '\r');
}

// A pair is looked at wherever a byte has its high bit set; at the end of a line its second byte is 0 and fails.
bool isGoodLine(std::string_view line) {
    for (std::size_t at = 0; at < line.size(); ++at) {
        const auto byte = static_cast<unsigned char>(line[at]);
        if (byte < 0x80) {
            if (!isPlain(byte)) return false;
            continue;
        }
        ++at;
        const unsigned char second = at < line.size() ? static_cast<unsigned char>(line[at]) : 0;
        if (!BexSjisCheck::sjisText(static_cast<unsigned short>(byte << 8 | second))) return false;
    }
    return true;
}

// What the text fails for, nothing if it is good.
std::optional<BexSjisCheck::Code> faultOf(std::string_view text) {
    std::size_t lines = 0;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t whole = end == std::string_view::npos ? text.size() : end + 1;
        const std::string_view line = text.substr(0, end);
        const bool fills = whole > longestLine || (whole == longestLine && end == std::string_view::npos);
        if (fills) return BexSjisCheck::CodeLongLine;
        if (!isGoodLine(line)) return BexSjisCheck::CodeBadByte;
        if (!line.empty()) ++lines;
        text.remove_prefix(whole);
    }
    if (lines >= tooManyLines) return BexSjisCheck::CodeTooManyLines;
    return std::nullopt;
}

} // namespace

unsigned long BexSjisCheck::sjisText(const unsigned short& pair) {
    const unsigned second = pair & 0xFF;
    return sjisPairs.has(pair) && sjisSecondBytes.has(second) && second != deleteByte &&
           std::none_of(std::begin(sjisGaps), std::end(sjisGaps), [&](Range gap) { return gap.has(pair); });
}

unsigned long BexSjisCheck::eucText(const unsigned short& pair) {
    return eucBytes.has(pair >> 8) && eucBytes.has(pair & 0xFF);
}

unsigned long BexSjisCheck::sjisTextFile(const char* path, unsigned int& code) {
    std::string text;
    const bool read = bexa::detail::os::readWholeFile(path, text);
    const std::optional<Code> fault = read ? faultOf(text) : CodeUnreadable;
    if (fault) code = *fault;
    return !fault;
}
