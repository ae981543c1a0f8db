// Who runs this program, and where.
#pragma once

#include "bexa/export.h"

BEXA_API long Ygetpid();

// The login name of the effective user: from the password database, else `USER`, else the user's number.
// Never null and never to be freed; the text stays valid to the end of the program. It is looked up once for
// each user the program becomes.
BEXA_API const char* YgetUserName();

// Writes the host name, cut to `size` bytes with the terminator. Nonzero on success; on failure the buffer
// holds an empty text. A null buffer or a size of 0 is a failure.
BEXA_API unsigned long Ygethostname(char* buffer, unsigned size);
