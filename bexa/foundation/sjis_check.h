// The check of Japanese text.
#pragma once

#include "bexa/export.h"

class BEXA_API BexSjisCheck {
public:
    // What a file fails for. The numbers are those of the message catalogue.
    enum Code : unsigned int {
        CodeUnreadable = 30031,   // no plain file, or it can't be read
        CodeTooManyLines = 30036, // 2000 lines with text or more
        CodeLongLine = 30037,     // a line of more than 1023 bytes, its line feed included
        CodeBadByte = 30038,      // a byte or a pair of bytes that is not allowed
    };

    // Whether a pair of bytes, the first in the high half, can be a character of Shift-JIS, and of EUC.
    static unsigned long sjisText(const unsigned short& pair);
    static unsigned long eucText(const unsigned short& pair);

    // Whether a file is good Shift-JIS text: pairs that pass `sjisText`, and otherwise printable characters and white
    // space of ASCII. The result is 1, with `code` left alone, or 0 with the reason in `code`. An empty file is good.
    //
    // Kept on purpose: half-width kana, one byte each in Shift-JIS, are taken for the first of a pair and fail. Lines
    // are counted at the end alone, so a bad byte far down is reported before too many lines; empty lines don't count.
    static unsigned long sjisTextFile(const char* path, unsigned int& code);
};
