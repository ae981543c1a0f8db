#include "tools/bexa/protected_save.h"

#include "tools/bexa/problem.h"
#include "tools/bexa/text_file.h"

#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <cstdio>
#include <filesystem>

namespace tool {
namespace {

namespace fs = std::filesystem;

using NameOfCopy = YString (*)(const char* path);

// Only the name of the file is marked, so that its directory may be written in any coding.
fs::path besideIt(const fs::path& file, NameOfCopy nameOfCopy) {
    const YString copy = nameOfCopy(file.filename().string().c_str());
    return file.parent_path() / fs::path(std::string(copy)).filename();
}

// The temporary copy, made by nobody else. It goes with its object unless it has taken the place of the file.
class TemporaryCopy {
public:
    TemporaryCopy(const fs::path& file, const std::string& shown)
        : file_(file),
          path_(besideIt(file, BexDataFile::fname2temp)) {
        std::error_code failed;
        if (fs::exists(fs::symlink_status(path_, failed))) {
            throw unusable("the temporary copy is there already", path_.string(),
                           "wait for the program that is saving the file, or remove the copy if none is");
        }
        std::FILE* made = std::fopen(path_.string().c_str(), "wbx");
        if (made == nullptr) {
            throw unusable("the temporary copy cannot be made beside the file", shown,
                           "check that you may write in its directory, and that there is room");
        }
        std::fclose(made);
        copyRights(file_, path_);
    }
    ~TemporaryCopy() {
        std::error_code ignored;
        if (!hasTakenPlace_) fs::remove(path_, ignored);
    }
    TemporaryCopy(const TemporaryCopy&) = delete;
    TemporaryCopy& operator=(const TemporaryCopy&) = delete;

    std::string path() const { return path_.string(); }

    void takePlace(const std::string& shown) {
        std::error_code failed;
        fs::rename(path_, file_, failed);
        if (failed) {
            throw unusable("the new file cannot be put in place", shown,
                           "check that you may write in its directory; the file is as it was");
        }
        hasTakenPlace_ = true;
    }

private:
    fs::path file_;
    fs::path path_;
    bool hasTakenPlace_ = false;
};

} // namespace

std::string saveProtected(const std::string& path, const std::string& shown,
                          const std::function<void(const std::string& temporary)>& write) {
    if (BexFile::access(path.c_str(), 2) != 0) {
        throw unusable("the file is protected against writing", shown, "make it writable");
    }
    std::error_code failed;
    fs::path file = path;
    if (fs::is_symlink(file, failed)) file = fs::canonical(file, failed);
    TemporaryCopy temporary(file, shown);
    write(temporary.path());
    const fs::path backup = besideIt(file, BexDataFile::fname2backup);
    placeContent(backup.string(), backup.string(), contentOf(file.string(), shown));
    copyRights(file, backup);
    temporary.takePlace(shown);
    return backup.string();
}

} // namespace tool
