// What a program may do with a file, and its removal. A null path is a path where nothing is.
#pragma once

#include "bexa/export.h"

#include <sys/stat.h>

#if !defined(_WIN32)
// The state of a file as Ystat gives it: all fields of the system's own `stat`, under the name that callers
// on every platform use.
struct _stat : stat {};
#endif

// Whether the path passes the test: 0 it exists, 2 it is writable, 4 it is readable, or a sum of these, for
// the effective user. A directory passes as well. Mind the sense: nonzero is yes, the reverse of the usual
// `access`.
BEXA_API unsigned long Yaccess(const char* path, int mode);

// The state of a file or directory, links followed. 0 on success, -1 with `state` untouched otherwise.
BEXA_API int Ystat(const char* path, struct _stat* state);

// Sets the permission bits. 0 on success, else -1.
BEXA_API int Ychmod(const char* path, int mode);

// Removes a file; a directory stays. 0 on success, else -1.
BEXA_API int Yunlink(const char* path);
