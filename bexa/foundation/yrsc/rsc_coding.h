// The text coding that a resource file declares in its header comments.
#pragma once

#include "bexa/foundation/kanji_bytes.h"

#include <optional>
#include <string_view>

enum YioRscJCoding : int {
    YioRscSjis = 0,
    YioRscEuc = 1,
};

namespace bexa::detail {

// The coding of this process: EUC when `Ylocale()` is 513 at this moment, else Shift-JIS.
YioRscJCoding processCoding();

constexpr const ByteSet& leadBytesOf(YioRscJCoding coding) {
    return coding == YioRscEuc ? eucLeadBytes : shiftJisLeadBytes;
}

// What the comments at the start of a file declare; nothing where they don't say.
struct RscHeader {
    std::optional<YioRscJCoding> coding;
    std::optional<std::string_view> version; // points into the bytes that were scanned
};

// Reads the header comments of a file whose bytes are at hand. The scan ends at the first blank line; a later
// declaration overrides an earlier one. A line longer than 4095 bytes counts as several, a NUL byte ends the text
// of its line.
RscHeader scanHeader(std::string_view bytes);

// The coding of a file with these bytes: the declared one, or that of the process.
YioRscJCoding scanCoding(std::string_view bytes);

} // namespace bexa::detail
