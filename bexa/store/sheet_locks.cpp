#include "bexa/store/sheet_locks.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/file.h"
#include "bexa/store/lock_file.h"
#include "bexa/store/lock_registry.h"

#include <optional>

namespace os = bexa::detail::os;

namespace {

// The sheets this process holds, from the load of the library to its end.
BexLockRegistry registry;

enum class Acquired { Created, Joined, Refused };

// What to make of a lock file that this process did not create; nothing if it is gone again.
std::optional<Acquired> meet(const void* owner, const char* lockFile) {
    BexLockInfo holder;
    if (bexa::detail::readLockFile(lockFile, holder)) {
        return BexSelfLocked(owner, holder) ? Acquired::Joined : Acquired::Refused;
    }
    switch (os::kindOf(lockFile)) {
    case os::PathKind::Missing: return std::nullopt;
    case os::PathKind::Directory: return Acquired::Refused;
    // Kept on purpose: a lock file that can't be read looks free, whoever's it is. So the sheet counts as locked, and
    // the file is never removed.
    case os::PathKind::File: break;
    }
    return Acquired::Joined;
}

Acquired acquire(const void* owner, const char* lockFile) {
    const std::string text = bexa::detail::lockFileText(bexa::detail::lockOfThisProcess(owner));
    // Its holder may take a lock file away between two looks at it.
    constexpr int attempts = 10;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const os::Creation creation = os::createWholeFile(lockFile, text);
        if (creation == os::Creation::Made) return Acquired::Created;
        if (creation == os::Creation::Failed) return Acquired::Refused;
        if (const auto met = meet(owner, lockFile)) return *met;
    }
    return Acquired::Refused;
}

// For a sheet that nobody in this process holds. On failure the record stays as it was, in the registry.
bool lockFirst(const void* owner, const YString& lockFile, BexLockRecord& record) {
    const Acquired acquired = acquire(owner, lockFile);
    if (acquired == Acquired::Refused) return false;
    record.fileName = lockFile;
    record.ownsFile = acquired == Acquired::Created;
    return true;
}

} // namespace

unsigned long BexGetLockFilename(LexSheetType type, const char* path, YString& result) {
    if ((type != LexSheetLogged && type != LexSheetLocal) || !path || !*path) return 0;
    const YPathName sheet(path);
    YPathName lockFile = sheet.dirname();
    if (type == LexSheetLogged) lockFile += "log";
    lockFile += YPathName(sheet.basename()).cutSuffix().addSuffix(".___");
    result = lockFile;
    return 1;
}

unsigned long BexCheckLock(LexSheetType type, const char* path, BexLockInfo& info) {
    if (type == LexSheetLocal) return 1;
    YString lockFile;
    if (!BexGetLockFilename(type, path, lockFile)) return 0;
    return !bexa::detail::readLockFile(lockFile, info);
}

unsigned long BexSelfLocked(const void*, const BexLockInfo& info) {
    BexLockInfo self;
    bexa::detail::identify(self);
    return self.user == info.user && self.display == info.display && self.host == info.host;
}

unsigned long BexLock(const void* owner, LexSheetType type, const char* path) {
    if (type == LexSheetLocal) return 1;
    YString lockFile;
    if (!BexGetLockFilename(type, path, lockFile)) return 0;
    BexLockInfo holder;
    if (!BexCheckLock(type, path, holder) && !BexSelfLocked(owner, holder)) return 0;
    BexLockRecord& record = registry.findOrAdd(BexLockRecord(owner, path));
    // Kept on purpose: only the first holder looks after the lock file. Who takes it away from a sheet that is held takes
    // the protection with it.
    if (record.count == 0 && !lockFirst(owner, lockFile, record)) return 0;
    ++record.count;
    return 1;
}

unsigned long BexUnlock(const void* owner, LexSheetType type, const char* path) {
    if (type == LexSheetLocal) return 1;
    YString lockFile;
    if (!BexGetLockFilename(type, path, lockFile)) return 0;
    BexLockInfo holder;
    if (BexCheckLock(type, path, holder)) return 0;
    BexLockRecord* record = registry.find(BexLockRecord(owner, path));
    if (!record || record->count == 0) return 0;
    // Kept on purpose: whoever's lock stands in the place of one's own by now goes with it.
    if (record->count == 1 && record->ownsFile && !BexFile::remove(record->fileName)) return 0;
    --record->count;
    return 1;
}
