#pragma once

#include "tools/bexa/output.h"

#include <string>
#include <vector>

class BexDatarc;

namespace tool {

// The settings of a circuit resource, each under its key.
Json settingsOf(const BexDatarc& resource, const Output& out);

// Adds the tables of a circuit resource to `document`, each under its key: an array of rows in the order of
// their indices. Lengths are in the unit of the file, angles in degrees.
void addTables(Json& document, const BexDatarc& resource, const Output& out);

// The keys of all settings and tables that a file may hold.
std::vector<std::string> circuitResourceKeys();

} // namespace tool
