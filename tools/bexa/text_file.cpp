#include "tools/bexa/text_file.h"

#include "tools/bexa/problem.h"

#include "bexa/foundation/ycore/process.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

#ifndef _WIN32
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace tool {
namespace {

namespace fs = std::filesystem;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// On the disk, not only on its way there, before it takes the place of the old content.
bool flushToDisk(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
#ifdef _WIN32
    return true;
#else
    return ::fsync(::fileno(file)) == 0;
#endif
}

// A file beside the one whose place it shall take. It goes with its object unless it has taken that place.
class Draft {
public:
    explicit Draft(const fs::path& target) : target_(target) {
        constexpr int attempts = 100;
        const std::string name = ".bexa-" + std::to_string(Ygetpid()) + '-';
        for (int i = 0; i < attempts && !file_; ++i) {
            path_ = target.parent_path() / (name + std::to_string(i));
            file_.reset(std::fopen(path_.string().c_str(), "wbx"));
            if (!file_ && errno != EEXIST) return;
        }
        isThere_ = file_ != nullptr;
    }
    ~Draft() {
        if (!isThere_) return;
        file_.reset();
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    bool write(std::string_view content) {
        if (!isThere_) return false;
        // First the rights: nobody shall read the copy who mustn't read the file.
        copyRights(target_, path_);
        return std::fwrite(content.data(), 1, content.size(), file_.get()) == content.size() &&
               flushToDisk(file_.get()) && std::fclose(file_.release()) == 0;
    }

    bool takePlace() {
        std::error_code failed;
        fs::rename(path_, target_, failed);
        isThere_ = static_cast<bool>(failed);
        return !failed;
    }

private:
    fs::path target_;
    fs::path path_;
    File file_;
    bool isThere_ = false;
};

} // namespace

void copyRights(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    const fs::file_status status = fs::status(from, failed);
    if (!fs::exists(status)) return;
#ifndef _WIN32
    struct stat state = {};
    const bool kept =
        ::stat(from.c_str(), &state) == 0 && ::chown(to.c_str(), state.st_uid, state.st_gid) == 0;
    static_cast<void>(kept);
#endif
    fs::permissions(to, status.permissions(), failed);
}

Problem cannotRead(const std::string& shown) {
    return unusable("the file cannot be read", shown,
                    "check the path, and that it is a plain file which you may read");
}

std::string contentOf(const std::string& path, const std::string& shown) {
    std::error_code failed;
    if (!fs::is_regular_file(path, failed)) throw cannotRead(shown);
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file) throw cannotRead(shown);
    std::string content;
    std::array<char, 65536> piece;
    while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), file.get())) {
        content.append(piece.data(), length);
    }
    if (std::ferror(file.get()) != 0) throw cannotRead(shown);
    return content;
}

void placeContent(const std::string& path, const std::string& shown, std::string_view content) {
    std::error_code failed;
    const bool isThere = fs::exists(path, failed);
    // Renaming would succeed all the same.
    if (isThere && BexFile::access(path.c_str(), 2) != 0) {
        throw unusable("the file is protected against writing", shown,
                       "make it writable, or give another file");
    }
    const fs::path target = isThere ? fs::canonical(path, failed) : fs::path(path);
    Draft draft(target);
    if (!draft.write(content) || !draft.takePlace()) {
        throw unusable("the file cannot be written", shown,
                       "check that its directory is there, that you may write in it, and that there is room; "
                       "everything is as it was");
    }
}

Place placeAt(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    const auto lines = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    return {lines + 1, before.size() - (before.rfind('\n') + 1) + 1};
}

std::string inWords(const std::string& file, const Place& place) {
    std::string words = file;
    for (const std::size_t number : {place.line, place.column}) {
        if (number > 0) words += ':' + std::to_string(number);
    }
    return words;
}

std::string bytesInWords(std::string_view text, std::size_t offset) {
    const std::string_view rest = text.substr(offset);
    const bool isPair = rest.size() > 1 && static_cast<unsigned char>(rest[0]) >= 0x80 && rest[1] != '\n';
    std::string words = isPair ? "the bytes" : "the byte";
    for (const char c : rest.substr(0, isPair ? 2 : 1)) {
        char digits[8];
        std::snprintf(digits, sizeof digits, " 0x%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
        words += digits;
    }
    return words;
}

} // namespace tool
