#include "tests/support/files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace bexa::test {

void writeFile(const std::string& path, std::string_view content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.close();
    if (!out) throw std::runtime_error("cannot write " + path);
}

std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(in), {}};
}

bool exists(const std::string& path) {
    return fs::exists(fs::symlink_status(path));
}

std::vector<std::string> listOf(const std::string& directory) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

void setMode(const std::string& path, unsigned mode) {
    fs::permissions(path, fs::perms(mode));
}

std::string testData(std::string_view name) {
    return std::string(BEXA_TEST_DATA) + '/' + std::string(name);
}

} // namespace bexa::test
