#include "bexa/version.h"

const char* BexVersion() {
    return BEXA_VERSION_TEXT;
}
