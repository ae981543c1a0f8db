// The words of a resource file's bytes: what the token reader and the keyed reader have in common.
#pragma once

#include "bexa/foundation/yrsc/rsc_coding.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace bexa::detail {

// Holds the bytes of a file and a place in them. The walk follows the coding of the file, so the second byte of a
// pair is never taken for a mark. Texts it hands out are in the coding of the process and valid until the next text
// is taken.
class RscScanner {
public:
    // Classes of bytes, to be joined into a set.
    enum Class : std::uint8_t {
        White = 1,
        LineEnd = 2, // a line feed, which is White too
        Brace = 4,
        Colon = 8,
        Parenthesis = 16,
        Quote = 32,
        Lead = 64,
        Nul = 128,
    };

    RscScanner() = default;
    RscScanner(std::string bytes, YioRscJCoding fileCoding, YioRscJCoding localCoding);

    // Skip white space and comments and return the byte at hand, NUL at the end of the text. `skipOnLine` stays on
    // the line: it returns a line feed where the line ends or a comment begins.
    char skipToWord();
    char skipOnLine();
    void skipByte() { ++at_; }

    // True at the end of the file; false where a NUL byte has ended the text early, as no text file holds one.
    bool atFileEnd() const { return at_ >= bytes_.size(); }

    // Takes a quoted text with its quotes; false when the line or the text ends before the second quote.
    bool takeQuoted(std::string_view& text);
    // Takes the bytes in front of the first one of these classes; false when a NUL byte ends the word.
    bool takeWord(unsigned stops, std::string_view& text);

    // What was taken, in the coding of the process. A pair without a counterpart stays as it is.
    std::string_view localText(std::string_view text);
    const ByteSet& localLeadBytes() const { return leadBytesOf(localCoding_); }

private:
    std::size_t endOfRun(std::size_t at, unsigned stops) const;

    std::string bytes_;
    std::size_t at_ = 0;
    YioRscJCoding fileCoding_ = YioRscSjis;
    YioRscJCoding localCoding_ = YioRscSjis;
    std::string converted_;
};

} // namespace bexa::detail
