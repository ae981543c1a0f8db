// The entries of a directory, one by one.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <memory>

namespace bexa::detail::os {
class DirectorySearch;
}

class BEXA_API YDirEntry {
public:
    // The name without its directory, never null.
    const char* name() const noexcept { return name_; }

private:
    friend class YDirReader;
    YString name_;
};

// Life of a reader: `Open`, `Read` until it gives null, `Close`. After `Close` it may be opened again.
class BEXA_API YDirReader {
public:
    // Which entries `Read` gives.
    enum FileType : int {
        AllEntries = 0, // every other value means the same
    };

    // Null counts as an empty path, which can't be opened.
    explicit YDirReader(const char* dir);
    YDirReader(const YDirReader&) = delete;
    YDirReader& operator=(const YDirReader&) = delete;
    ~YDirReader();

    // False if the path is no directory or may not be read. On an open reader the reading begins anew.
    unsigned long Open();
    // The next entry in the order of the operating system, "." and ".." left out; null at the end and on a
    // reader that isn't open. The entry is the reader's and valid until the next call.
    const YDirEntry* Read(FileType type = AllEntries);
    void Close();

private:
    YString dir_;
    YDirEntry entry_;
    std::unique_ptr<bexa::detail::os::DirectorySearch> search_;
};
