// Japanese characters in Shift-JIS and EUC, one pair of bytes at a time.
#pragma once

#include "bexa/export.h"

#include <string>
#include <string_view>

// Classifies the byte of `text` at `index`: 0 an ordinary single byte, 1 and 2 the first and second byte of a
// double-byte character, 3 and 4 the same for half-width kana. In an EUC process half-width kana is the pair of 0x8E
// and the kana byte; elsewhere it is one byte, class 3, with no second. Follows `Ylocale()` at each call and walks
// from the start of the text. 0 for a null text and an index outside it.
BEXA_API long YCheckKanji(const char* text, int index);

// Convert the pair at `text` and put its two bytes into `out`, without a terminator. The result is 2; or -1, with
// `out` untouched, when the two bytes are no pair of JIS X 0208 in the source coding. `text` and `out` may be the
// same place.
BEXA_API long Yeuctosjis(const char* text, char* out);
BEXA_API long Ysjistoeuc(const char* text, char* out);

// Converts a whole text from EUC to Shift-JIS into `out`, which needs room for as many bytes as the text has and
// the terminator. Half-width kana lose their 0x8E. A pair that has no counterpart is copied as it stands. The result
// is the length in `out`, or -1 when there was such a pair or an argument is null.
BEXA_API long YeuctosjisStr(const char* text, char* out);

namespace bexa::detail {

// The class of each byte of a text, as YCheckKanji gives it, in one walk.
std::string kanjiClasses(std::string_view text);

} // namespace bexa::detail
