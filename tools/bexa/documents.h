#pragma once

#include "tools/bexa/output.h"

#include <string>

namespace tool {

// What `bexa circuit` shows. Throws a Problem if there is no circuit; parts of it that can't be read are reported,
// and left out.
Json circuitDocument(const std::string& path, Output& out);

// What `bexa block` shows, without its complaints about bad pins: pins as they stand in the file. Throws a Problem
// if it can't be read.
Json blockDocument(const std::string& path, const Output& out);

} // namespace tool
