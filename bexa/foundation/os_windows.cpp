#if !defined(NOMINMAX)
#    define NOMINMAX
#endif
#if !defined(WIN32_LEAN_AND_MEAN)
#    define WIN32_LEAN_AND_MEAN
#endif
#if !defined(_CRT_SECURE_NO_WARNINGS)
#    define _CRT_SECURE_NO_WARNINGS // for getenv
#endif

#include "bexa/foundation/os.h"

#include <windows.h>

#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace bexa::detail::os {

namespace {

class Handle {
public:
    Handle(const char* path, DWORD access, DWORD disposition)
        : handle_(path ? ::CreateFileA(path, access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                                       nullptr)
                       : INVALID_HANDLE_VALUE) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { close(); }

    bool isOpen() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
    bool isDiskFile() const { return isOpen() && ::GetFileType(handle_) == FILE_TYPE_DISK; }
    void close() {
        if (isOpen()) ::CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
    }

    // The number of bytes read, 0 at the end, nothing for an error.
    std::optional<std::size_t> read(char* buffer, std::size_t size) const {
        DWORD got = 0;
        if (!::ReadFile(handle_, buffer, piece(size), &got, nullptr)) return std::nullopt;
        return got;
    }

    bool write(std::string_view content) const {
        while (!content.empty()) {
            DWORD written = 0;
            if (!::WriteFile(handle_, content.data(), piece(content.size()), &written, nullptr)) return false;
            if (written == 0) return false;
            content.remove_prefix(written);
        }
        return true;
    }

private:
    static constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

    static DWORD piece(std::size_t size) { return static_cast<DWORD>(std::min<std::size_t>(size, 1 << 30)); }

    HANDLE handle_;
};

std::string withCarriageReturns(std::string_view content) {
    std::string result;
    result.reserve(content.size() + static_cast<std::size_t>(std::ranges::count(content, '\n')));
    for (const char c : content) {
        if (c == '\n') result += '\r';
        result += c;
    }
    return result;
}

bool alreadyExists(DWORD error) {
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
}

// A name beside `path` that nobody else uses.
std::string draftName(std::string_view path, int attempt) {
    const std::size_t separator = path.find_last_of("/\\:");
    const std::string directory(separator == std::string_view::npos ? path.substr(0, 0)
                                                                    : path.substr(0, separator + 1));
    return directory + ".bexa-" + std::to_string(processId()) + '-' + std::to_string(attempt);
}

std::string lookUpName() {
    std::array<char, 257> name = {};
    DWORD size = static_cast<DWORD>(name.size());
    if (::GetUserNameA(name.data(), &size) && name[0] != '\0') return name.data();
    const char* fromEnvironment = environmentValue("USER");
    return fromEnvironment && *fromEnvironment ? fromEnvironment : "0";
}

} // namespace

PathKind kindOf(const char* path) {
    const DWORD attributes = path ? ::GetFileAttributesA(path) : INVALID_FILE_ATTRIBUTES;
    if (attributes == INVALID_FILE_ATTRIBUTES) return PathKind::Missing;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) ? PathKind::Directory : PathKind::File;
}

bool mayAccess(const char* path, int mode) {
    return path && ::_access(path, mode & 6) == 0;
}

bool opensForReading(const char* path) {
    return Handle(path, GENERIC_READ, OPEN_EXISTING).isOpen();
}

bool opensForAppending(const char* path) {
    return Handle(path, FILE_APPEND_DATA, OPEN_EXISTING).isOpen();
}

bool changeMode(const char* path, int mode) {
    return path && ::_chmod(path, mode & (_S_IREAD | _S_IWRITE)) == 0;
}

bool removeFile(const char* path) {
    return path && ::DeleteFileA(path);
}

bool removeDirectory(const char* path) {
    return path && ::RemoveDirectoryA(path);
}

bool makeDirectory(const char* path) {
    return path && ::CreateDirectoryA(path, nullptr);
}

std::string currentDirectory() {
    std::string path(::GetCurrentDirectoryA(0, nullptr), '\0');
    const DWORD length = ::GetCurrentDirectoryA(static_cast<DWORD>(path.size()), path.data());
    path.resize(length < path.size() ? length : 0);
    return path;
}

struct DirectorySearch::State {
    State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() {
        if (handle != INVALID_HANDLE_VALUE) ::FindClose(handle);
    }

    HANDLE handle = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAA entry = {};
    bool entryIsNew = false;
};

DirectorySearch::DirectorySearch(const char* directory) {
    if (kindOf(directory) != PathKind::Directory) return;
    std::string pattern(directory);
    pattern += pattern.ends_with('/') || pattern.ends_with('\\') ? "*" : "/*";
    auto state = std::make_unique<State>();
    state->handle = ::FindFirstFileA(pattern.c_str(), &state->entry);
    state->entryIsNew = state->handle != INVALID_HANDLE_VALUE;
    // The root of an empty drive has no entries at all.
    if (state->entryIsNew || ::GetLastError() == ERROR_FILE_NOT_FOUND) state_ = std::move(state);
}

DirectorySearch::~DirectorySearch() = default;

bool DirectorySearch::next(std::string& name) {
    if (!state_ || state_->handle == INVALID_HANDLE_VALUE) return false;
    while (state_->entryIsNew || ::FindNextFileA(state_->handle, &state_->entry)) {
        state_->entryIsNew = false;
        name = state_->entry.cFileName;
        if (name != "." && name != "..") return true;
    }
    return false;
}

bool readWholeFile(const char* path, std::string& content) {
    content.clear();
    const Handle file(path, GENERIC_READ, OPEN_EXISTING);
    if (!file.isDiskFile()) return false;
    constexpr std::size_t leastRoom = 65536;
    std::size_t size = 0;
    while (true) {
        if (size == content.size()) content.resize(size + std::max(size, leastRoom));
        const auto got = file.read(content.data() + size, content.size() - size);
        if (!got || *got == 0) {
            content.resize(got ? size : 0);
            return got.has_value();
        }
        size += *got;
    }
}

bool writeWholeFile(const char* path, std::string_view content, LineEnds lineEnds) {
    const Handle file(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (!file.isOpen()) return false;
    if (lineEnds == LineEnds::AsGiven) {
        file.write(content);
    } else {
        file.write(withCarriageReturns(content));
    }
    return true;
}

Creation createWholeFile(const char* path, std::string_view content) {
    if (!path || !*path) return Creation::Failed;
    if (kindOf(path) != PathKind::Missing) return Creation::Exists;
    constexpr int attempts = 1000;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string draft = draftName(path, attempt);
        Handle file(draft.c_str(), GENERIC_WRITE, CREATE_NEW);
        if (!file.isOpen()) {
            if (alreadyExists(::GetLastError())) continue;
            return Creation::Failed;
        }
        const bool written = file.write(content);
        file.close();
        // Without a flag the move never takes the place of another file.
        if (written && ::MoveFileExA(draft.c_str(), path, 0)) return Creation::Made;
        const DWORD error = ::GetLastError();
        ::DeleteFileA(draft.c_str());
        return written && alreadyExists(error) ? Creation::Exists : Creation::Failed;
    }
    return Creation::Failed;
}

long processId() {
    return static_cast<long>(::GetCurrentProcessId());
}

const char* userName() {
    static const std::string name = lookUpName();
    return name.c_str();
}

const char* environmentValue(const char* name) {
    return name && *name ? std::getenv(name) : nullptr;
}

bool hostName(char* buffer, unsigned size) {
    std::array<char, 1024> name = {};
    DWORD room = static_cast<DWORD>(name.size());
    if (!::GetComputerNameExA(ComputerNameDnsHostname, name.data(), &room)) return false;
    const std::size_t length = std::min<std::size_t>(std::strlen(name.data()), size - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = '\0';
    return true;
}

std::tm localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm result = {};
    ::_tzset();
    ::localtime_s(&result, &now);
    return result;
}

} // namespace bexa::detail::os
