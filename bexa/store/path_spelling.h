// The canonical spelling of the suite's own file names, and the form in which a path is stored. Pure text: nothing
// here touches the disk.
//
// Text is walked with the lead bytes of the process, so the second byte of a double-byte character is never taken for
// a letter or a backslash. A slash and a dot are never second bytes.
#pragma once

#include "bexa/foundation/ygeneral/ystring.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace bexa::detail {

// What BexFile::extChange gives.
YString canonicalPath(std::string_view path);

// Whether a path says by itself where it begins (BexDataFile::pathIsExchanged): at the root or the directory at hand,
// at a variable, or on a drive. An empty path doesn't.
bool isAnchored(std::string_view path);

// The form in which tables hold a path: "./" in front unless it is anchored, then in canonical spelling. What an
// empty path becomes is for the caller to settle before.
YString normalisedPath(std::string_view path);

// What stands in front of the name of a temporary copy and of a backup copy.
inline constexpr char temporaryMark = '_';
inline constexpr char backupMark = '#';

// Paths that differ at most in the case of their letters.
bool samePathIgnoringCase(std::string_view a, std::string_view b);

// Whether a backslash stands in the path, and whether the path ends in one.
bool hasBackslash(std::string_view path);
bool endsInBackslash(std::string_view path);

// The full paths of the entries of a directory, one at a time.
class EntryPath {
public:
    // `directory` ends in the separator that stands before each name.
    explicit EntryPath(std::string directory) : path_(std::move(directory)), stem_(path_.size()) {}

    // Valid until the next call.
    const char* of(std::string_view name) {
        path_.replace(stem_, std::string::npos, name);
        return path_.c_str();
    }

private:
    std::string path_;
    std::size_t stem_;
};

} // namespace bexa::detail
