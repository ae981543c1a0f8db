// Everything that the operating systems do differently. One source for each system; nothing else in the
// library asks the system directly, save Ystat, whose result is the system's own. A null path is a path where
// nothing is.
#pragma once

#include <ctime>
#include <memory>
#include <string>
#include <string_view>

namespace bexa::detail::os {

enum class PathKind { Missing, Directory, File };

// What stands at a path, links followed. Whatever is no directory counts as a file.
PathKind kindOf(const char* path);
// The test of Yaccess.
bool mayAccess(const char* path, int mode);
// Whether the file opens for reading, and for appending; the file stays as it is. False for a directory.
bool opensForReading(const char* path);
bool opensForAppending(const char* path);
bool changeMode(const char* path, int mode);
// A file only, and an empty directory only.
bool removeFile(const char* path);
bool removeDirectory(const char* path);
// One level. False if something stands there already.
bool makeDirectory(const char* path);
// Empty if there is none.
std::string currentDirectory();

// A walk over the names in a directory, in the system's order, "." and ".." left out.
class DirectorySearch {
public:
    explicit DirectorySearch(const char* directory);
    DirectorySearch(const DirectorySearch&) = delete;
    DirectorySearch& operator=(const DirectorySearch&) = delete;
    ~DirectorySearch();

    // False if the path is no directory or may not be read: then there are no names.
    bool isOpen() const noexcept { return state_ != nullptr; }
    // False at the end.
    bool next(std::string& name);

private:
    struct State;
    std::unique_ptr<State> state_;
};

// The bytes of a regular file. False, with `content` empty, for a directory or anything else that is no file,
// and for one that can't be read to its end.
bool readWholeFile(const char* path, std::string& content);

enum class LineEnds { Platform, AsGiven };

// Writes a file in place, truncating what was there. Tells only whether it could be opened for writing; a
// write that fails later is not reported.
bool writeWholeFile(const char* path, std::string_view content, LineEnds lineEnds = LineEnds::Platform);

enum class Creation { Made, Exists, Failed };

// Creates a file that must not exist, bytes as given. It appears with all its content at once, and of several
// processes that try at the same time exactly one makes it.
Creation createWholeFile(const char* path, std::string_view content);

// The process and its surroundings.
long processId();
// The user's name, see YgetUserName.
const char* userName();
// Null if the variable isn't set.
const char* environmentValue(const char* name);
// False if there is none; the buffer holds `size` bytes, at least 1.
bool hostName(char* buffer, unsigned size);
// This moment, by the time zone as it is set now.
std::tm localTime();

} // namespace bexa::detail::os
