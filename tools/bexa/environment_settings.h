#pragma once

#include "tools/bexa/output.h"

#include <string>
#include <vector>

class BexEnvrc;

namespace tool {

// The settings of an environment resource, each under the key that its setter takes. What stands in a file as a
// word is that word; lengths are in millimetres, angles in degrees.
Json settingsOf(const BexEnvrc& resource, const Output& out);

// Adds the tables of an environment resource to `document`, each under its key: an array of rows in their order.
void addTables(Json& document, const BexEnvrc& resource, const Output& out);

// The keys of all settings and tables.
std::vector<std::string> environmentKeys();

} // namespace tool
