#pragma once

#include "tools/bexa/output.h"

#include <string>

namespace tool {

// A document in readable columns, aligned by display width:
//   - plain members of the document are lines "key  value",
//   - a member that is an object or an array is a section, headed by its key; an object shows its members as
//     such lines, an array of objects is a table with a head line, and any other array has a line an element.
// An empty text is shown as "", null as -, yes and no as such. Numbers stand to the right.
std::string textOf(const Json& document, Coding coding);

} // namespace tool
