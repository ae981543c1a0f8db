#include "bexa/foundation/ycore/file_access.h"

#include "bexa/foundation/os.h"

namespace os = bexa::detail::os;

namespace {

int zeroIf(bool done) {
    return done ? 0 : -1;
}

} // namespace

unsigned long Yaccess(const char* path, int mode) {
    return os::mayAccess(path, mode);
}

int Ystat(const char* path, struct _stat* state) {
    if (!path || !state) return -1;
    struct _stat found = {};
#if defined(_WIN32)
    if (::_stat(path, &found) != 0) return -1;
#else
    if (::stat(path, &found) != 0) return -1;
#endif
    *state = found;
    return 0;
}

int Ychmod(const char* path, int mode) {
    return zeroIf(os::changeMode(path, mode));
}

int Yunlink(const char* path) {
    return zeroIf(os::removeFile(path));
}
