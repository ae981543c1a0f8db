#pragma once

#include "tools/bexa/output.h"

class BexDatarc;

namespace tool {

// The settings of a circuit resource, each under its key.
Json settingsOf(const BexDatarc& resource, const Output& out);

// Adds the tables of a circuit resource to `document`, each under its key: an array of rows in the order of
// their indices. Lengths are in the unit of the file, angles in degrees.
void addTables(Json& document, const BexDatarc& resource, const Output& out);

} // namespace tool
