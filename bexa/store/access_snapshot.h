// What the caller may do with a file or a directory, as it was at one moment.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

// One look at a file, taken when the path is set and never refreshed. A directory passes none of the tests.
//
// Kept on purpose: the copy constructor copies what was seen, while assignment looks at the file anew.
class BEXA_API BexSecFile {
public:
    BexSecFile() = default;
    // Null counts as an empty path, where nothing is.
    BexSecFile(const char* path); // NOLINT(google-explicit-constructor): a path is as good as the object
    BexSecFile(const BexSecFile&) = default;
    BexSecFile& operator=(const char* path);
    BexSecFile& operator=(const BexSecFile& other);
    ~BexSecFile() = default;

    operator const char*() const { return path_; } // NOLINT(google-explicit-constructor): callers rely on it
    const YString& GetPathname() const { return path_; }

    unsigned long IsExist() const;
    unsigned long IsReadable() const;
    // Learned by opening the file for appending, which leaves it unchanged.
    unsigned long IsWritable() const;
    unsigned long IsRWable() const;

protected:
    // The bits of the flag word.
    enum Flag : unsigned long {
        Exists = 1,
        Executable = 2, // set for everything that exists
        Writable = 4,
        Readable = 8,
        Directory = 16,
    };

    // Sets the path and takes the look.
    void SetPathname(const char* path);
    unsigned long IsDir() const;
    // Whether all of these bits are set.
    bool has(unsigned long flags) const { return (flags_ & flags) == flags; }

private:
    static unsigned long look(const char* path);
    bool isFileWith(unsigned long flags) const;

    unsigned long flags_ = 0;
    YString path_;
};

// The same for a directory; a file passes none of the tests. Every directory counts as writable and executable.
//
// Kept on purpose: the copy constructor, unlike that of the base, looks at the directory anew.
class BEXA_API BexSecDirectory : public BexSecFile {
public:
    BexSecDirectory() = default;
    BexSecDirectory(const char* path); // NOLINT(google-explicit-constructor): a path is as good as the object
    BexSecDirectory(const BexSecDirectory& other);
    BexSecDirectory& operator=(const char* path);
    BexSecDirectory& operator=(const BexSecDirectory& other) = default;
    ~BexSecDirectory() = default;

    unsigned long IsExist() const;
    // Kept on purpose: an empty directory is not readable, since the search for its entries finds nothing.
    unsigned long IsReadable() const;
    unsigned long IsWritable() const;
    unsigned long IsExecutable() const;
    unsigned long IsFullControl() const;
};
