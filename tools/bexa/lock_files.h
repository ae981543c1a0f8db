#pragma once

#include "tools/bexa/output.h"

#include <string>
#include <vector>

namespace tool {

// The names, such as "001.sht", of the sheets of a circuit for which a lock file stands in its directory "log", by
// number; a sheet itself needn't be there. A directory that can't be read is reported.
std::vector<std::string> lockedSheets(const std::string& circuit, Output& out);

// Whether the name of one sheet stands before that of another: by number, then by name.
bool sheetBefore(const std::string& a, const std::string& b);

} // namespace tool
