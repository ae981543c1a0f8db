#pragma once

#include "tools/bexa/settings_file.h"

#include <string>
#include <vector>

namespace tool {

// One setting to change.
struct Change {
    std::string key;   // as documents have it
    std::string value; // as the library wants it: in its coding
    Json before;
    Json after;
};

// KEY=VALUE texts of the command line, for a file. Throws a Problem for a text that isn't one, and for a key that
// the file doesn't have.
std::vector<Change> changesFrom(const std::vector<std::string>& texts, const SettingsFile& file,
                                const std::string& shown, const Output& out);

// Makes all changes in memory and notes the values they lead to. Throws a Problem at the first that is refused.
void makeChanges(std::vector<Change>& changes, SettingsFile& file, const std::string& shown,
                 const Output& out);

} // namespace tool
