// Japanese text in the coding of the process, and whole texts from one coding to the other.
#pragma once

#include "bexa/export.h"

class YString;

// True when `c` is the first byte of a double-byte character, by the system language and the locale of the process.
// Both are asked once, when the library is loaded; later changes of the environment don't count.
BEXA_API unsigned long BexIsKanjiUpper(unsigned char c);

// The conversions put their result into `out` and return its length, or -1 for a null or empty text, with `out`
// empty, and where the text has a byte or a pair of bytes that the coding doesn't know: `out` holds what stands before
// it. Half-width kana are one byte in Shift-JIS, and 0x8E with that byte in EUC. `out` may hold the source.
BEXA_API long YsjistoeucStr(const char* text, YString& out);
BEXA_API long YeuctosjisStr(const char* text, YString& out);

// Convert where the locale of the process, asked at each call, makes it necessary. Elsewhere `out` becomes a copy of
// the text, with its length as the result; null counts as an empty text.
//
// A text of the process to a known coding.
BEXA_API long Ytosjis(const char* text, YString& out); // from EUC in an EUC process
BEXA_API long Ytoeuc(const char* text, YString& out);  // from Shift-JIS in a Shift-JIS process
// A text of a known coding to that of the process.
BEXA_API long YsjistoOut(const char* text, YString& out); // to EUC in an EUC process
BEXA_API long YeuctoOut(const char* text, YString& out);  // to Shift-JIS in a Shift-JIS process
