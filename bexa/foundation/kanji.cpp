#include "bexa/foundation/kanji.h"

#include "bexa/foundation/kanji_bytes.h"

unsigned long BexIsKanjiUpper(unsigned char c) {
    return bexa::detail::isLeadByte(c);
}
