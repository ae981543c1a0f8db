// Locks on the sheets of a circuit: a small text file beside the data says who holds a sheet.
//
// The protection is cooperative: it binds those who ask. A lock belongs to a user at a display on a host, in whatever
// process, and has no age: one that a crash left behind keeps other people out until somebody removes the file (with
// BexFile::remove), while its own author walks through it.
//
// Within a process a sheet may be locked more than once; the last unlock ends the lock. `owner` is a handle of the
// caller's choice: it stands in the lock file as a number and is never compared. These functions are for one thread.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

// Where the lock file of a sheet lies.
enum LexSheetType : int {
    LexSheetLogged = 0, // in the directory "log" beside the sheet
    LexSheetLocal = 1,  // in the sheet's own directory; sheets of this kind are never locked
};

// What a lock file says.
struct BexLockInfo {
    long pid = 0;
    long handle = 0;  // the owner, see BexLock
    YString fileName; // the path of the lock file
    YString date;     // local time of locking, "MM/DD/YYYY hh:mm"
    YString user;
    YString display; // the value of DISPLAY, or the user where that is unset or empty
    YString host;
};

// The path of the lock file for the sheet at `path`: for "a.cir/001.sht" it is "a.cir/log/001.___". 0, with `result`
// left alone, for an invalid type and a null or empty path.
BEXA_API unsigned long BexGetLockFilename(LexSheetType type, const char* path, YString& result);

// Asks whether a sheet is free: 1 if no lock file stands there, or none that can be read. Otherwise 0, with `info`
// telling who holds it; a field whose line is missing or empty stays as it was. `info.fileName` is set in both cases.
// A local sheet is always free and leaves `info` alone; a sheet whose lock file has no name (see BexGetLockFilename)
// never is.
BEXA_API unsigned long BexCheckLock(LexSheetType type, const char* path, BexLockInfo& info);

// Whether a lock is one's own: user, display and host are those of this process at this moment.
BEXA_API unsigned long BexSelfLocked(const void* owner, const BexLockInfo& info);

// Locks a sheet, or counts one more holder within this process. 0 if somebody else holds it or the lock file cannot be
// written. Of several processes that race for a sheet exactly one creates the lock file, which appears with all its
// content at once. A local sheet counts as locked without anything being done.
// Kept on purpose: a lock of one's own that is there already, left behind or taken by another process, is joined, and
// its file stays behind at the last unlock; a lock file that can't be read looks free, and is joined; and while this
// process holds the sheet, it counts further holders even if somebody has taken the lock file away.
BEXA_API unsigned long BexLock(const void* owner, LexSheetType type, const char* path);

// Takes back one BexLock; the last one removes the lock file, unless it was joined. 0 if there is no lock file, this
// process (as this user at this display) doesn't hold the sheet, or the file cannot be removed; then it still holds it.
// Kept on purpose: it doesn't look whose lock it removes.
BEXA_API unsigned long BexUnlock(const void* owner, LexSheetType type, const char* path);
