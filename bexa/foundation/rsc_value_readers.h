// The small readers that loaders of resource files share.
#pragma once

#include "bexa/foundation/yrsc/token_reader.h"

#include <string_view>

namespace bexa::detail {

// The number that a text begins with, behind white space: an optional sign and digits. 0 for any other text; a number
// that no int holds saturates.
int numberOf(std::string_view text);
// The real number that a text begins with, in any notation of the C library and whatever the locale: 0 for any other
// text, infinite where it is too large.
double realOf(std::string_view text);

// The room for a token, terminator included, in the places that have no room of their own.
inline constexpr unsigned keySize = 1024;
inline constexpr unsigned stringSize = 1024;
inline constexpr unsigned numberSize = 36;

// Each takes a colon and, behind one, a value. False, with `out` left alone, at any other token.
bool loadInt(YioRscLoad& reader, int& out);
// A negative number is refused.
bool loadUint(YioRscLoad& reader, unsigned& out);
// The first byte of the value, NUL when it is empty.
bool loadChar(YioRscLoad& reader, char& out);
bool loadFloat(YioRscLoad& reader, double& out);
// Copies the value with its terminator. A value of `size` bytes or more is refused.
bool loadString(YioRscLoad& reader, char* out, unsigned size);
// The value as a view, valid until the next token is read.
bool loadText(YioRscLoad& reader, std::string_view& out, unsigned size = stringSize);

// The head of a table: a count that is exactly `columns`, and an opening brace.
bool loadTableHead(YioRscLoad& reader, int columns, unsigned size);

// One cell of a row. False, with `out` left alone, when the next token is no value.
bool loadCell(YioRscLoad& reader, std::string_view& out, unsigned size);
bool loadCell(YioRscLoad& reader, int& out, unsigned size);
bool loadCell(YioRscLoad& reader, double& out, unsigned size);

} // namespace bexa::detail
