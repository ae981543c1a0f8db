#include "bexa/foundation/os.h"

#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <vector>

namespace bexa::detail::os {

namespace {

constexpr mode_t filePermissions = 0666;
constexpr mode_t directoryPermissions = 0777;

class Descriptor {
public:
    // Never waits for the other end of a pipe, and isn't inherited by programs that this one starts.
    Descriptor(const char* path, int flags)
        : number_(path ? ::open(path, flags | O_CLOEXEC | O_NONBLOCK, filePermissions) : -1) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (isOpen()) ::close(number_);
    }

    bool isOpen() const noexcept { return number_ >= 0; }

    std::optional<struct stat> state() const {
        struct stat result = {};
        if (!isOpen() || ::fstat(number_, &result) != 0) return std::nullopt;
        return result;
    }

    // The number of bytes read, 0 at the end, below 0 for an error.
    ssize_t read(char* buffer, std::size_t size) const {
        ssize_t got = 0;
        do {
            got = ::read(number_, buffer, size);
        } while (got < 0 && errno == EINTR);
        return got;
    }

    bool write(std::string_view content) const {
        while (!content.empty()) {
            const ssize_t written = ::write(number_, content.data(), content.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) return false;
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

private:
    int number_;
};

// A file beside `path`, under a name that nobody else uses, removed at the end.
class Draft {
public:
    explicit Draft(std::string_view path) {
        const std::string directory(path.substr(0, path.rfind('/') + 1));
        for (int attempt = 0; attempt < attempts; ++attempt) {
            path_ = directory + ".bexa-" + std::to_string(processId()) + '-' + std::to_string(attempt);
            file_.emplace(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL);
            if (file_->isOpen() || errno != EEXIST) return;
        }
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;
    ~Draft() {
        if (file_->isOpen()) ::unlink(path_.c_str());
    }

    bool write(std::string_view content) const { return file_->isOpen() && file_->write(content); }
    bool linkTo(const char* path) const { return ::link(path_.c_str(), path) == 0; }

private:
    static constexpr int attempts = 1000;

    std::string path_;
    std::optional<Descriptor> file_;
};

bool opens(const char* path, int flags) {
    const auto state = Descriptor(path, flags).state();
    return state && !S_ISDIR(state->st_mode);
}

// For a file system without links: exclusive all the same, but the content comes after the name.
Creation createInPlace(const char* path, std::string_view content) {
    const Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file.isOpen()) return errno == EEXIST ? Creation::Exists : Creation::Failed;
    if (file.write(content)) return Creation::Made;
    ::unlink(path);
    return Creation::Failed;
}

std::string lookUpName(uid_t user) {
    std::vector<char> buffer(1024);
    passwd entry = {};
    passwd* found = nullptr;
    while (::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) == ERANGE) {
        buffer.resize(2 * buffer.size());
    }
    if (found && found->pw_name && *found->pw_name) return found->pw_name;
    const char* name = environmentValue("USER");
    return name && *name ? name : std::to_string(user);
}

} // namespace

PathKind kindOf(const char* path) {
    struct stat state = {};
    if (!path || ::stat(path, &state) != 0) return PathKind::Missing;
    return S_ISDIR(state.st_mode) ? PathKind::Directory : PathKind::File;
}

bool mayAccess(const char* path, int mode) {
    // The numbers of the test are those of the system.
    static_assert(F_OK == 0 && W_OK == 2 && R_OK == 4);
    return path && ::faccessat(AT_FDCWD, path, mode & (R_OK | W_OK), AT_EACCESS) == 0;
}

bool opensForReading(const char* path) {
    return opens(path, O_RDONLY);
}

bool opensForAppending(const char* path) {
    return opens(path, O_WRONLY | O_APPEND);
}

bool changeMode(const char* path, int mode) {
    return path && ::chmod(path, static_cast<mode_t>(mode & 07777)) == 0;
}

bool removeFile(const char* path) {
    return path && ::unlink(path) == 0;
}

bool removeDirectory(const char* path) {
    return path && ::rmdir(path) == 0;
}

bool makeDirectory(const char* path) {
    return path && ::mkdir(path, directoryPermissions) == 0;
}

std::string currentDirectory() {
    std::string path(256, '\0');
    while (!::getcwd(path.data(), path.size())) {
        if (errno != ERANGE) return {};
        path.resize(2 * path.size());
    }
    path.resize(std::strlen(path.c_str()));
    return path;
}

struct DirectorySearch::State {
    explicit State(DIR* opened) : stream(opened) {}
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() { ::closedir(stream); }

    DIR* stream;
};

DirectorySearch::DirectorySearch(const char* directory) {
    if (DIR* opened = directory ? ::opendir(directory) : nullptr) state_ = std::make_unique<State>(opened);
}

DirectorySearch::~DirectorySearch() = default;

bool DirectorySearch::next(std::string& name) {
    if (!state_) return false;
    while (const dirent* entry = ::readdir(state_->stream)) {
        name = entry->d_name;
        if (name != "." && name != "..") return true;
    }
    return false;
}

bool readWholeFile(const char* path, std::string& content) {
    content.clear();
    const Descriptor file(path, O_RDONLY);
    const auto state = file.state();
    if (!state || !S_ISREG(state->st_mode)) return false;
    // One byte more than the file has, so that its end shows without another round.
    constexpr std::size_t leastRoom = 4096;
    content.resize(static_cast<std::size_t>(state->st_size) + 1);
    std::size_t size = 0;
    while (true) {
        if (size == content.size()) content.resize(size + std::max(size, leastRoom));
        const ssize_t got = file.read(content.data() + size, content.size() - size);
        if (got <= 0) {
            content.resize(got == 0 ? size : 0);
            return got == 0;
        }
        size += static_cast<std::size_t>(got);
    }
}

// Text and binary files are the same here.
bool writeWholeFile(const char* path, std::string_view content, LineEnds) {
    const Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file.isOpen()) return false;
    file.write(content);
    return true;
}

Creation createWholeFile(const char* path, std::string_view content) {
    struct stat state = {};
    if (!path || !*path) return Creation::Failed;
    if (::lstat(path, &state) == 0) return Creation::Exists;
    const Draft draft(path);
    if (!draft.write(content)) return Creation::Failed;
    if (draft.linkTo(path)) return Creation::Made;
    constexpr std::array noLinksHere = {EPERM, ENOSYS, EOPNOTSUPP, EMLINK};
    const int reason = errno;
    if (std::ranges::find(noLinksHere, reason) != noLinksHere.end()) return createInPlace(path, content);
    return reason == EEXIST ? Creation::Exists : Creation::Failed;
}

long processId() {
    return static_cast<long>(::getpid());
}

// The map never moves its texts, so those handed out stay valid.
const char* userName() {
    static std::map<uid_t, std::string> known;
    const uid_t user = ::geteuid();
    const auto [entry, isNew] = known.try_emplace(user);
    if (isNew) entry->second = lookUpName(user);
    return entry->second.c_str();
}

const char* environmentValue(const char* name) {
    return name && *name ? std::getenv(name) : nullptr;
}

bool hostName(char* buffer, unsigned size) {
    std::array<char, 1024> name = {};
    if (::gethostname(name.data(), name.size() - 1) != 0) return false;
    const std::size_t length = std::min<std::size_t>(std::strlen(name.data()), size - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = '\0';
    return true;
}

std::tm localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm result = {};
    // localtime_r alone need not notice that the zone was changed.
    ::tzset();
    ::localtime_r(&now, &result);
    return result;
}

} // namespace bexa::detail::os
