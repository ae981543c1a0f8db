#include "bexa/foundation/ycore/environment.h"

#include "bexa/foundation/os.h"

const char* ygetenv(const char* name, unsigned long) {
    return bexa::detail::os::environmentValue(name);
}
