#pragma once

#include "tools/bexa/output.h"

#include <functional>
#include <string>

namespace tool {

// Whether a member is left out of the comparison. A member is "pins.signal": rows go without their number.
using LeftOut = std::function<bool(const std::string& member)>;

// What differs between two documents of one kind: rows {where, first, second} in the order of the first document,
// what only the second has behind it. "where" leads to the value: settings.nodeSize, pins[10].signal. A member or a
// row that only one of them has gives a row for each of its values, null on the other side.
//
// The rows of a table are found by their first member, which names them in all documents; of rows with one name the
// first is compared with the first, the second with the second.
Json differencesOf(const Json& first, const Json& second, const LeftOut& leftOut);

} // namespace tool
