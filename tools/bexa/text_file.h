#pragma once

#include "tools/bexa/problem.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tool {

// In all of these `shown` is the path as messages show it.

Problem cannotRead(const std::string& shown);

// The bytes of a file. Throws a Problem if there is no plain file, or it can't be read to its end.
std::string contentOf(const std::string& path, const std::string& shown);

// Makes `content` that of the file at `path`, which needn't be there. It is written beside the file, under a name
// of its own, and takes its place when it is complete, so whoever looks sees the old content or the new; the rights
// to the file stay as they were, and a link leads where it led. Throws a Problem, with everything as it was, if that
// can't be done.
void placeContent(const std::string& path, const std::string& shown, std::string_view content);

// Gives the file at `to` the rights to the one at `from`, and its owner as far as one may. Nothing if there is none.
void copyRights(const std::filesystem::path& from, const std::filesystem::path& to);

// A place in a text. Lines and columns count from 1, columns in bytes; 0 means that there is none to tell.
struct Place {
    std::size_t line = 0;
    std::size_t column = 0;
};
Place placeAt(std::string_view text, std::size_t offset);

// "FILE:LINE:COLUMN", without what is 0.
std::string inWords(const std::string& file, const Place& place);

// The character at `offset` for a message, "the byte 0x01" or "the bytes 0x81 0x20". A character that isn't ASCII
// counts as two bytes, as far as its line goes.
std::string bytesInWords(std::string_view text, std::size_t offset);

} // namespace tool
