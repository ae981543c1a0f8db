#include "bexa/foundation/yrsc/rsc_coding.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/ylocale.h"

namespace bexa::detail {

namespace {

constexpr std::size_t lineLimit = 4095;

// Takes a line with its line feed, or the piece of it that the limit allows.
std::string_view takeLine(TextCursor& file) {
    const std::string_view piece = file.rest().substr(0, lineLimit);
    const std::size_t lineFeed = piece.find('\n');
    file.skip(lineFeed == piece.npos ? piece.size() : lineFeed + 1);
    return piece.substr(0, lineFeed);
}

// declaration = ( "japanese_coding:" | "Japanese coding:" ) ( "sjis" | "euc" ) anything
//             | "Resource version:" version
void readDeclaration(TextCursor line, RscHeader& header) {
    if (line.take("japanese_coding:") || line.take("Japanese coding:")) {
        line.skipWhite();
        if (line.nextIs("sjis")) header.coding = YioRscSjis;
        if (line.nextIs("euc")) header.coding = YioRscEuc;
    } else if (line.take("Resource version:")) {
        line.skipWhite();
        header.version = line.takeUntil('\r');
    }
}

} // namespace

YioRscJCoding processCoding() {
    return Ylocale() == 513 ? YioRscEuc : YioRscSjis;
}

RscHeader scanHeader(std::string_view bytes) {
    RscHeader header;
    for (TextCursor file(bytes); !file.atEnd();) {
        TextCursor line(takeLine(file));
        line.skipWhite();
        if (line.peek() == '\0') break;
        if (!line.take('#')) continue;
        line.skipWhite();
        readDeclaration(TextCursor(line.takeUntil('\0')), header);
    }
    return header;
}

YioRscJCoding scanCoding(std::string_view bytes) {
    return scanHeader(bytes).coding.value_or(processCoding());
}

} // namespace bexa::detail
