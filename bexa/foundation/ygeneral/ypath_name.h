// Path names.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

// A path: a text with the operations on its components. The separator is "/"; a backslash counts as one on
// input. The second byte of a double-byte character is never a separator, a dot or a letter. A root is "/"
// or, on every platform, a letter, a colon and a separator. Only `Test` and `Mkdir` touch the disk, and
// `expand` asks for the current directory.
class BEXA_API YPathName : public YString {
public:
    using BytesMayMove = YPathName;

    // What stands at a path.
    enum TestResult : int {
        TestNothing = 0,
        TestDirectory = 1,
        TestFile = 2, // anything that is no directory
    };

    YPathName() noexcept = default;
    YPathName(const char* path)
        : YString(path) {} // NOLINT(google-explicit-constructor): null gives an empty path
    // `name` below `dir`, joined as by `+=`.
    YPathName(const char* dir, const char* name);
    YPathName(const YtString& path)
        : YString(path) {} // NOLINT(google-explicit-constructor): callers rely on it
    YPathName(const YPathName&) = default;
    YPathName(YPathName&&) noexcept = default;
    YPathName& operator=(const YPathName&) = default;
    YPathName& operator=(YPathName&&) noexcept = default;
    YPathName& operator=(const YString& path);
    YPathName& operator=(const char* path);

    // Appends one or more components, with exactly one separator before them unless the path is empty. Null
    // and the empty text append nothing. `components` may be part of this path.
    YPathName& operator+=(const char* components);

    // Replaces environment references (see YEnviron), turns each backslash into "/", and puts the current
    // directory in front of a path that begins with neither "/" nor a letter and a colon. A path that still
    // begins with "$", its variable not being set, gets no directory, an empty path stays empty, and "." and
    // ".." steps stay.
    YPathName& expand();

    // Tidies the text of the path: removes "." steps, "x/.." pairs, doubled and trailing separators, and
    // joins the rest with "/". A ".." that leads a relative path stays, one at a root goes, and a path with
    // nothing left is ".".
    YPathName& pack();

    // The suffix of the last component, from its last dot on; an empty text if there is none. Points into
    // this path. A component that begins with its only dot (".profile") is all suffix; the steps "." and ".."
    // have none, nor has a path that ends in a separator.
    const char* getSuffix() const;
    // Appends a suffix, with a dot before it if it brings none. Null and the empty text append nothing.
    YPathName& addSuffix(const char* suffix);
    // Removes the suffix of the last component: any for null, else only one that equals `suffix`, dot and
    // case included.
    YPathName& cutSuffix(const char* suffix = nullptr);

    // The path without its last component: "." if that is all, the root if nothing else lies above.
    // Separators at the end don't count.
    YPathName dirname() const;
    // The last component, without `suffix` if its suffix equals that. Separators at the end don't count; a
    // root has no component.
    YString basename(const char* suffix = nullptr) const;

    TestResult Test() const;
    // Creates the directory, one level: the one above must exist. False also if something stands there
    // already.
    unsigned long Mkdir() const;
};
