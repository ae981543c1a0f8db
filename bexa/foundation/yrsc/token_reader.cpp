#include "bexa/foundation/yrsc/token_reader.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <cstring>
#include <utility>

using bexa::detail::RscScanner;

YioRscLoad::YioRscLoad(const char* path, YioRscJCoding fileCoding, YioRscJCoding localCoding) {
    std::string bytes;
    if (bexa::detail::os::readWholeFile(path, bytes)) {
        *this = ofBytes(std::move(bytes), fileCoding, localCoding);
    }
}

YioRscLoad YioRscLoad::ofBytes(std::string bytes, YioRscJCoding fileCoding, YioRscJCoding localCoding) {
    YioRscLoad reader;
    reader.scanner_ = RscScanner(std::move(bytes), fileCoding, localCoding);
    reader.place_ = Place::Entry;
    reader.valid_ = 1;
    return reader;
}

YioRscLoad::Type YioRscLoad::get(char* buffer, unsigned size) {
    const Token token = next(size);
    if (size == 0) return token.type;
    token.text.copy(buffer, token.text.size());
    buffer[token.text.size()] = '\0';
    return token.type;
}

YioRscLoad::Token YioRscLoad::next(unsigned size) {
    Token taken = token();
    taken.text = bexa::detail::cutToSize(taken.text, size == 0 ? 0 : size - 1, scanner_.localLeadBytes());
    return taken;
}

YioRscLoad::Token YioRscLoad::token() {
    switch (place_) {
    case Place::Entry:
    case Place::BehindKey: return entryToken();
    case Place::BehindColon: return valueToken();
    case Place::Table: return tableToken();
    case Place::End: return {TypeEnd, {}};
    case Place::Broken: break;
    }
    return {TypeInvalid, {}};
}

YioRscLoad::Token YioRscLoad::entryToken() {
    const bool behindKey = place_ == Place::BehindKey;
    switch (scanner_.skipToWord()) {
    case '\0': return stop();
    case '{': return mark(TypeOpen, Place::Table);
    case '}': return mark(TypeClose, Place::Entry);
    case ':': return mark(TypeColon, Place::BehindColon);
    case '"': return quoted(Place::Entry);
    default: break;
    }
    Token word = bare(RscScanner::White | RscScanner::Brace | RscScanner::Colon, Place::BehindKey);
    if (word.type != TypeValue) return word;
    word.type = TypeKeyword;
    if (behindKey && std::ranges::all_of(word.text, bexa::detail::isDigit)) {
        word.type = TypeCount;
        place_ = Place::Entry;
    }
    return word;
}

YioRscLoad::Token YioRscLoad::valueToken() {
    switch (scanner_.skipOnLine()) {
    case '\0': return stop();
    case '\n': place_ = Place::Entry; return {TypeValue, {}};
    case '"': return quoted(Place::Entry);
    default: return bare(RscScanner::White, Place::Entry);
    }
}

YioRscLoad::Token YioRscLoad::tableToken() {
    switch (scanner_.skipToWord()) {
    case '\0': return stop();
    case '{': return mark(TypeOpen, Place::Table);
    case '}': return mark(TypeClose, Place::Entry);
    case '"': return quoted(Place::Table);
    default: return bare(RscScanner::White | RscScanner::Brace, Place::Table);
    }
}

YioRscLoad::Token YioRscLoad::mark(Type type, Place then) {
    scanner_.skipByte();
    place_ = then;
    return {type, type == TypeOpen ? "{" : type == TypeClose ? "}" : ":"};
}

YioRscLoad::Token YioRscLoad::quoted(Place then) {
    std::string_view text;
    if (!scanner_.takeQuoted(text)) return broken();
    place_ = then;
    return {TypeValue, scanner_.localText(text)};
}

YioRscLoad::Token YioRscLoad::bare(unsigned stops, Place then) {
    std::string_view text;
    if (!scanner_.takeWord(stops, text)) return broken();
    place_ = then;
    return {TypeValue, scanner_.localText(text)};
}

YioRscLoad::Token YioRscLoad::stop() {
    if (!scanner_.atFileEnd()) return broken();
    place_ = Place::End;
    return {TypeEnd, {}};
}

YioRscLoad::Token YioRscLoad::broken() {
    place_ = Place::Broken;
    return {TypeInvalid, {}};
}

namespace bexa::detail {

YioRscLoad openReader(const char* path) {
    std::string bytes;
    if (!os::readWholeFile(path, bytes)) return {};
    const YioRscJCoding fileCoding = scanCoding(bytes);
    return YioRscLoad::ofBytes(std::move(bytes), fileCoding, processCoding());
}

} // namespace bexa::detail
