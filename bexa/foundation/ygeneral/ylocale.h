// The language of the process, from its environment. Both are looked up at each call.
#pragma once

#include "bexa/export.h"

// 512: Japanese, Shift-JIS. 513: Japanese, EUC. 256: Japanese, seven-bit JIS. 0: all else. Read from the
// first of `LC_ALL`, `LC_CTYPE` and `LANG` that is set and not empty: the language `ja` with the codeset
// `eucJP` or `ujis` is EUC, with `JIS7` it is seven-bit, with any other codeset or none it is Shift-JIS. The
// case of the letters and the signs "-" and "_" in a codeset don't count. The locale need not be installed.
BEXA_API long Ylocale();

// 0 English and everything unknown, 1 Japanese, 2 Korean, 3 Chinese. Read from `YLANG`; if that is unset or
// empty, from the language of the locale.
BEXA_API long YgetSystemLang();

namespace bexa::detail {

// The name of the directory that holds the files of the language in `YLANG`: "eng", "jpn", "kor", "chn" or
// "ger".
const char* languageDirectory();

} // namespace bexa::detail
