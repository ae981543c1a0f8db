// The canonical spelling of the suite's own file names, and the form in which a path is stored. Pure text: nothing
// here touches the disk.
//
// Text is walked with the lead bytes of the process, so the second byte of a double-byte character is never taken for
// a letter or a backslash. A slash and a dot are never second bytes.
#pragma once

#include "bexa/foundation/ygeneral/ystring.h"

#include <string>
#include <string_view>

namespace bexa::detail {

// What BexFile::extChange gives.
YString canonicalPath(std::string_view path);

// Whether a path says by itself where it begins (BexDataFile::pathIsExchanged): at the root or the directory at hand,
// at a variable, or on a drive. An empty path doesn't.
bool isAnchored(std::string_view path);

// The form in which tables hold a path: "./" in front unless it is anchored, then in canonical spelling. What an
// empty path becomes is for the caller to settle before.
YString normalisedPath(std::string_view path);

// Paths that differ at most in the case of their letters.
bool samePathIgnoringCase(std::string_view a, std::string_view b);

// Whether a backslash stands in the path, and whether the path ends in one.
bool hasBackslash(std::string_view path);
bool endsInBackslash(std::string_view path);

} // namespace bexa::detail
