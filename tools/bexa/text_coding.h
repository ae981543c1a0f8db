#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

enum class Coding { ShiftJis, Euc, Utf8 };

// The coding in which the library hands out what stands in resource files.
Coding libraryCoding();

// UTF-8 where the locale says so. In any other locale the texts of the library go out as they are.
// Only the name of the locale counts, it need not be installed.
Coding terminalCoding();

bool isUtf8(std::string_view text);

// `text` as well-formed UTF-8. Each byte that begins no character becomes U+FFFD.
std::string toUtf8(std::string_view text, Coding from);

// UTF-8 text in one of the other codings; nothing if it has a character that doesn't lead back to itself from there.
std::optional<std::string> fromUtf8(std::string_view text, Coding to);

// `text` with control characters, which could steer the terminal, written as "\x1b" and the like.
std::string printable(std::string_view text, Coding coding);

// The columns that `text` takes on a terminal.
std::size_t displayWidth(std::string_view text, Coding coding);

} // namespace tool
