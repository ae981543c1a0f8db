#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

// A file with a directory of its own, both removed at the end.
class TempFile {
public:
    TempFile(std::string_view name, std::string_view content) {
        std::string pattern = (std::filesystem::temp_directory_path() / "bexa-bench-XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary directory");
        directory_ = pattern;
        name_ = name;
        std::ofstream(path(), std::ios::binary) << content;
    }
    ~TempFile() {
        std::error_code ignored;
        std::filesystem::remove_all(directory_, ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::string& directory() const { return directory_; }
    const std::string& name() const { return name_; }
    std::string path() const { return directory_ + '/' + name_; }

private:
    std::string directory_;
    std::string name_;
};
