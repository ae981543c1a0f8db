#pragma once

#include "tools/bexa/finding.h"

#include <string>

namespace tool {

// Writes the findings to check.err and check.wrn in a directory, in the form of the suite's batch programs and with
// the texts of the message catalogue, in English where there is none. A file without findings is removed. Throws a
// Problem if the files can't be written.
void writeReports(const Findings& findings, const std::string& directory, const std::string& shown);

} // namespace tool
