#include "bexa/store/library_locks.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/file.h"
#include "bexa/store/lock_file.h"

#include <optional>

namespace os = bexa::detail::os;

namespace {

std::optional<YPathName> lockFileOf(const char* path) {
    if (!path || !*path) return std::nullopt;
    return YPathName(path).cutSuffix().addSuffix(".___");
}

} // namespace

unsigned long BexLcdbLock(const void* owner, const char* path) {
    const auto lockFile = lockFileOf(path);
    if (!lockFile) return 0;
    const std::string text = bexa::detail::lockFileText(bexa::detail::lockOfThisProcess(owner));
    // Kept on purpose: it counts as locked once the file is open, even if its text then finds no room.
    return os::writeWholeFile(*lockFile, text, os::LineEnds::AsGiven);
}

unsigned long BexLcdbIsLocked(const void* owner, const char* path, BexLockInfo& info) {
    const auto lockFile = lockFileOf(path);
    // Kept on purpose: what has no path can't be locked by BexLcdbLock, and yet it counts as locked by others.
    if (!lockFile) return 1;
    return bexa::detail::readLockFile(*lockFile, info) && !BexSelfLocked(owner, info);
}

unsigned long BexLcdbIsLocked(const void* owner, const char* path) {
    BexLockInfo scratch;
    return BexLcdbIsLocked(owner, path, scratch);
}

unsigned long BexLcdbUnlock(const void* owner, const char* path) {
    const auto lockFile = lockFileOf(path);
    if (!lockFile) return 0;
    BexLockInfo holder;
    if (!bexa::detail::readLockFile(*lockFile, holder) || !BexSelfLocked(owner, holder)) return 0;
    return BexFile::remove(*lockFile);
}
