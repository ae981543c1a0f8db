// Locks on component libraries: plain files that nobody counts. The lock file lies beside the library and has its name
// with the suffix ".___"; what stands in it, and whose it is, is as for sheets. An empty path counts as null.
#pragma once

#include "bexa/export.h"
#include "bexa/store/sheet_locks.h"

// Writes the lock file. 1 if it could be opened for writing, 0 otherwise and for a null path.
// Kept on purpose: it writes over whatever lock stands there, so ask BexLcdbIsLocked first.
BEXA_API unsigned long BexLcdbLock(const void* owner, const char* path);

// Whether somebody else has locked the library. 1 for a null path. Where a lock file can be read `info` gets its
// content, one's own included.
BEXA_API unsigned long BexLcdbIsLocked(const void* owner, const char* path, BexLockInfo& info);
BEXA_API unsigned long BexLcdbIsLocked(const void* owner, const char* path);

// Removes the lock file. 0 if there is none that can be read, it isn't one's own, or it cannot be removed, and for a
// null path.
BEXA_API unsigned long BexLcdbUnlock(const void* owner, const char* path);
