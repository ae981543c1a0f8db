#include "bexa/foundation/ycore/process.h"

#include "bexa/foundation/os.h"

namespace os = bexa::detail::os;

long Ygetpid() {
    return os::processId();
}

const char* YgetUserName() {
    return os::userName();
}

unsigned long Ygethostname(char* buffer, unsigned size) {
    if (!buffer || size == 0) return 0;
    buffer[0] = '\0';
    return os::hostName(buffer, size);
}
