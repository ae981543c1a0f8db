#pragma once

#include "tools/bexa/output.h"

#include <string>

namespace tool {

// Rows {name, path, leadsTo, present}: the resources that a circuit's own list names, how each directory is
// written, and the file it leads to. A list that can't be read is reported and gives no rows.
Json listedResources(const std::string& circuit, Output& out);

} // namespace tool
