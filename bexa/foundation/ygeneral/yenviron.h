// Environment references in texts.
#pragma once

#include "bexa/export.h"

#include <string>
#include <string_view>

class BEXA_API YEnviron {
public:
    // Replaces each `$NAME` and `${NAME}` (a letter or underscore, then letters, digits and underscores) by
    // the value of that variable. A reference to a variable that isn't set stays as it is written, and values
    // are not looked through again.
    //
    // Writes into `buffer`, of `size` bytes with the terminator, and returns it; a result that doesn't fit is
    // cut to the buffer and null is returned. With a null buffer the result lies in storage that the caller
    // doesn't free, valid until the next such call of this thread. A null text gives null. Every value of
    // `flag` means the same.
    static const char* substituteByEnvs(const char* text, char* buffer, long size, unsigned long flag);
};

namespace bexa::detail {

// The rule of `substituteByEnvs`, for texts of this library's own.
std::string withEnvironment(std::string_view text);

} // namespace bexa::detail
