// An entry of a resource path list: which resource stands in which directory.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"

// A resource and its directory. Entries are ordered by `name`.
//
// Both paths are kept in one form: "./" in front of a path that doesn't say itself where it begins (see
// BexDataFile::pathIsExchanged), then the canonical spelling of BexFile::extChange.
class BEXA_API BexRcpath {
public:
    using BytesMayMove = BexRcpath;

    YString name;
    // The directory, its variable resolved.
    YString path;
    // The directory as the user wrote it.
    YString rawPath;

    BexRcpath() = default;
    // A null or empty path leaves both paths empty.
    BexRcpath(const char* name, const char* path);
    // Kept on purpose: copying brings both paths to their form anew, and if either is empty the copy has none. Moving
    // just moves.
    BexRcpath(const BexRcpath& other);
    BexRcpath(BexRcpath&&) noexcept = default;
    BexRcpath& operator=(const BexRcpath& other);
    BexRcpath& operator=(BexRcpath&&) noexcept = default;
    ~BexRcpath() = default;

    bool operator==(const BexRcpath&) const = default;
    // -1, 0 or 1 by the name alone.
    int compare(const BexRcpath& other) const;
};

class BexRcpathTable : public bexa::ArrayOf<BexRcpath, 10> {
public:
    using ArrayOf::ArrayOf;
};

class BEXA_API BexRcpathVariableEnv {
public:
    // Resolves the variable that a path begins with, and expands the result (YPathName::expand). A text that doesn't
    // begin with "$", or is longer than 1023 bytes, stays as it is. Null counts as empty.
    //
    // Kept on purpose: with a variable that isn't set, "$X/rest" becomes "/rest", while "$X" alone stays.
    static YString extractPath(const char* path);
};
