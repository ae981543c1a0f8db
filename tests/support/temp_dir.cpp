#include "tests/support/temp_dir.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace fs = std::filesystem;

namespace bexa::test {
namespace {

std::string uniqueDirectory() {
    const std::string pattern = (fs::temp_directory_path() / "bexa-test-XXXXXX").string();
    std::vector<char> path(pattern.begin(), pattern.end());
    path.push_back('\0');
    if (!::mkdtemp(path.data())) throw std::runtime_error("no temporary directory from " + pattern);
    return path.data();
}

// Removing from a directory needs its write permission, and a test may have taken that away.
void giveBackPermissions(const fs::path& directory) {
    std::error_code ignored;
    fs::permissions(directory, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (const fs::directory_entry& entry : fs::directory_iterator(directory, ignored))
        if (!entry.is_symlink(ignored) && entry.is_directory(ignored)) giveBackPermissions(entry.path());
}

} // namespace

TempDir::TempDir() : path_(uniqueDirectory()) {
    fs::permissions(path_, fs::perms(0755));
}

TempDir::~TempDir() {
    giveBackPermissions(path_);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string TempDir::makeDirectory(std::string_view name) const {
    std::string made = file(name);
    fs::create_directories(made);
    return made;
}

void TempDir::openToAll() const {
    fs::permissions(path_, fs::perms::all);
}

} // namespace bexa::test
