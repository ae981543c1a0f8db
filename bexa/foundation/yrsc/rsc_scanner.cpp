#include "bexa/foundation/yrsc/rsc_scanner.h"

#include <array>
#include <utility>

namespace bexa::detail {

namespace {

constexpr unsigned char byteOf(char c) {
    return static_cast<unsigned char>(c);
}

using Classes = std::array<std::uint8_t, 256>;

constexpr Classes classesOf(const ByteSet& leads) {
    Classes classes{};
    for (unsigned value = 0; value < classes.size(); ++value) {
        if (leads.has(static_cast<unsigned char>(value))) classes[value] = RscScanner::Lead;
    }
    for (char c : {' ', '\t', '\v', '\f', '\r'}) classes[byteOf(c)] = RscScanner::White;
    for (char c : {'{', '}'}) classes[byteOf(c)] = RscScanner::Brace;
    for (char c : {'(', ')'}) classes[byteOf(c)] = RscScanner::Parenthesis;
    classes['\n'] = RscScanner::White | RscScanner::LineEnd;
    classes[':'] = RscScanner::Colon;
    classes['"'] = RscScanner::Quote;
    classes['\0'] = RscScanner::Nul;
    return classes;
}

constexpr Classes shiftJisClasses = classesOf(shiftJisLeadBytes);
constexpr Classes eucClasses = classesOf(eucLeadBytes);

constexpr unsigned char halfWidthMark = 0x8E; // in EUC

bool isAscii(std::string_view text) {
    unsigned char all = 0;
    for (char c : text) all |= byteOf(c);
    return all < 0x80;
}

void append(std::string& out, BytePair pair) {
    out += static_cast<char>(pair.first);
    out += static_cast<char>(pair.second);
}

// Append one character of a text in the other coding.
void appendAsEuc(std::string& out, std::string_view character) {
    const unsigned char first = byteOf(character[0]);
    if (character.size() == 2) {
        const BytePair pair{first, byteOf(character[1])};
        append(out, shiftJisToEuc(pair).value_or(pair));
    } else if (first >= 0xA1 && first <= 0xDF) {
        append(out, {halfWidthMark, first});
    } else {
        out += character;
    }
}

void appendAsShiftJis(std::string& out, std::string_view character) {
    const unsigned char first = byteOf(character[0]);
    if (character.size() == 1) {
        out += character;
    } else if (first == halfWidthMark) {
        out += character[1];
    } else {
        const BytePair pair{first, byteOf(character[1])};
        append(out, eucToShiftJis(pair).value_or(pair));
    }
}

} // namespace

RscScanner::RscScanner(std::string bytes, YioRscJCoding fileCoding, YioRscJCoding localCoding)
    : bytes_(std::move(bytes)),
      fileCoding_(fileCoding),
      localCoding_(localCoding) {}

// The walk needs no look at the end: the text is terminated, and NUL stops every run.
std::size_t RscScanner::endOfRun(std::size_t at, unsigned stops) const {
    const Classes& classes = fileCoding_ == YioRscEuc ? eucClasses : shiftJisClasses;
    const char* text = bytes_.data();
    stops |= Nul;
    for (;;) {
        while ((classes[byteOf(text[at])] & (stops | Lead)) == 0) ++at;
        if ((classes[byteOf(text[at])] & stops) != 0) return at;
        at += characterLength(bytes_, at, leadBytesOf(fileCoding_));
    }
}

char RscScanner::skipToWord() {
    for (;;) {
        while ((shiftJisClasses[byteOf(bytes_[at_])] & White) != 0) ++at_;
        if (bytes_[at_] != '#') return bytes_[at_];
        at_ = endOfRun(at_, LineEnd);
    }
}

char RscScanner::skipOnLine() {
    while ((shiftJisClasses[byteOf(bytes_[at_])] & (White | LineEnd)) == White) ++at_;
    if (bytes_[at_] != '#') return bytes_[at_];
    at_ = endOfRun(at_, LineEnd);
    return '\n';
}

bool RscScanner::takeQuoted(std::string_view& text) {
    const std::size_t begin = at_ + 1;
    const std::size_t end = endOfRun(begin, Quote | LineEnd);
    if (bytes_[end] != '"') return false;
    text = std::string_view(bytes_).substr(begin, end - begin);
    at_ = end + 1;
    return true;
}

bool RscScanner::takeWord(unsigned stops, std::string_view& text) {
    const std::size_t begin = at_;
    at_ = endOfRun(begin, stops);
    text = std::string_view(bytes_).substr(begin, at_ - begin);
    return bytes_[at_] != '\0' || atFileEnd();
}

std::string_view RscScanner::localText(std::string_view text) {
    if (fileCoding_ == localCoding_ || isAscii(text)) return text;
    const auto appendCharacter = localCoding_ == YioRscEuc ? appendAsEuc : appendAsShiftJis;
    const ByteSet& leads = leadBytesOf(fileCoding_);
    converted_.clear();
    for (std::size_t at = 0, length = 0; at < text.size(); at += length) {
        length = characterLength(text, at, leads);
        appendCharacter(converted_, text.substr(at, length));
    }
    return converted_;
}

} // namespace bexa::detail
