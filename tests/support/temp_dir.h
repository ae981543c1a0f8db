#pragma once

#include <string>
#include <string_view>

namespace bexa::test {

// A directory of its own for one test, removed with all it holds, whatever the permissions inside.
// Other users may look into it but not write (see openToAll), so a test can change its user.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    // Absolute, without a separator at the end.
    const std::string& path() const { return path_; }
    // The path of `name` inside; creates nothing.
    std::string file(std::string_view name) const { return path_ + '/' + std::string(name); }
    // Makes the directory `name` inside, with those above it, and returns its path.
    std::string makeDirectory(std::string_view name) const;
    // Lets every user create and remove files here.
    void openToAll() const;

private:
    std::string path_;
};

} // namespace bexa::test
