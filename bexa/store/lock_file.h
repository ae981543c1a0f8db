// The text of a lock file: who holds it. Six lines, each ended by one line feed:
//
//     4711                      process id
//     140229                    owner, see ownerNumber
//     03/09/2024 17:05          local time of locking: month, day, year, hour, minute
//     maria                     user
//     :0                        display, or the user where there is none
//     ws12                      host
#pragma once

#include "bexa/store/sheet_locks.h"

#include <string>

namespace bexa::detail {

// The number that stands for an owner: the low 32 bits of the handle.
int ownerNumber(const void* owner);

// Fills in user, display and host as they are for this process at this moment.
void identify(BexLockInfo& info);

// What this process writes into a lock file at this moment. The file name is left empty.
BexLockInfo lockOfThisProcess(const void* owner);

std::string lockFileText(const BexLockInfo& info);

// Sets `info.fileName` and fills in what the lock file there says. A field whose line is missing or empty stays as it
// was. False if the file cannot be read.
bool readLockFile(const char* lockFile, BexLockInfo& info);

} // namespace bexa::detail
