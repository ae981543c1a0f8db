#pragma once

#include "tools/bexa/output.h"

#include "bexa/store/sheet_locks.h"

#include <optional>
#include <string>

namespace tool {

// The lock of a sheet at this moment.
struct SheetLock {
    enum class State { Free, Held, Unreadable };
    State state = State::Free;
    BexLockInfo info; // the path of the lock file in any state, the rest only of a lock that is held

    bool isOwn() const { return state == State::Held && BexSelfLocked(nullptr, info) != 0; }
    bool isOthers() const { return state == State::Held && !isOwn(); }
};
SheetLock lockOf(const std::string& sheet);

// Throws a Problem unless `path` is that of a sheet itself, no copy of one; the sheet needn't be there.
void checkSheetName(const std::string& path, const Output& out);

// Whether the process that took the lock still runs; nothing if it ran on another host, or names no process.
std::optional<bool> isRunning(const BexLockInfo& info);

// "maria at :0 on ws12 since 03/09/2024 17:05", without what the lock file doesn't tell.
std::string holderOf(const BexLockInfo& info, const Output& out);

Problem lockedByAnother(const SheetLock& lock, const std::string& sheet, const Output& out);
Problem unreadableLock(const SheetLock& lock, const Output& out);

} // namespace tool
