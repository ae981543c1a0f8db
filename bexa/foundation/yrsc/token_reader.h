// The token reader that loaders of resource files work on.
//
// file    = { comment | entry }
// comment = "#" up to the line end; wherever a token may begin
// entry   = key ":" value                          the value stands on the line of the colon
//         | key [ count ] "{" { cell } "}"         line ends carry no meaning
// key     = bare word up to white space, a brace or ":"
// count   = digits, a bare word directly behind a key
// value   = quoted text | bare word up to white space
// cell    = quoted text | bare word up to white space or a brace
//
// A quoted text runs to the next quote on its line and knows no escapes. When the line ends or a comment begins in
// front of a value, the value is an empty text, so an entry without one doesn't swallow the next key; at the very
// end of the file, where the line itself is unfinished, nothing follows the colon. Lines end in LF or CR LF.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/yrsc/rsc_scanner.h"

#include <string>
#include <string_view>

class BEXA_API YioRscLoad {
public:
    // The kinds of tokens.
    enum Type : int {
        TypeInvalid = 0, // no token: a quote left open, a NUL byte
        TypeEnd = 1,     // the end of the file
        TypeKeyword = 2, // a bare word at entry level
        TypeCount = 3,   // the whole number behind a key: the column count of its table
        TypeOpen = 4,    // {
        TypeClose = 5,   // }
        TypeColon = 8,   // : behind a key
        TypeValue = 9,   // the text behind a colon, a cell of a table, or a quoted text at entry level
    };
    struct Token {
        Type type;
        std::string_view text;
    };

    // Reads the whole file at once. Its texts are converted from `fileCoding` to `localCoding`; a pair of bytes that
    // cannot be converted stays as it is.
    YioRscLoad(const char* path, YioRscJCoding fileCoding, YioRscJCoding localCoding);
    // A reader of nothing, not valid.
    YioRscLoad() = default;
    // Over the bytes of a file that are at hand already.
    static YioRscLoad ofBytes(std::string bytes, YioRscJCoding fileCoding, YioRscJCoding localCoding);

    // True when the file could be read; a directory can't. A reader that isn't valid gives TypeInvalid.
    unsigned long isValid() const { return valid_; }

    // Reads the next token into `buffer` as a terminated text, without its quotes. A token of `size` bytes or more
    // is cut to `size` - 1, on a character boundary, and its rest skipped. With a size of 0 nothing is written. After
    // TypeInvalid and after TypeEnd the reader gives nothing else.
    Type get(char* buffer, unsigned size);

    // The same token as a view, valid until the next call.
    Token next(unsigned size);

private:
    enum class Place { Entry, BehindKey, BehindColon, Table, End, Broken };

    Token token();
    Token entryToken();
    Token valueToken();
    Token tableToken();
    // Take what stands here; `then` is the place behind it.
    Token mark(Type type, Place then);
    Token quoted(Place then);
    Token bare(unsigned stops, Place then);
    // The end of the file, or a NUL byte in front of it.
    Token stop();
    Token broken();

    bexa::detail::RscScanner scanner_;
    Place place_ = Place::Broken;
    unsigned long valid_ = 0;
};

namespace bexa::detail {

// A reader of the file with the coding its header declares, over one read of the file. Not valid when the file
// cannot be read.
YioRscLoad openReader(const char* path);

} // namespace bexa::detail
