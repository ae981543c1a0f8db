#pragma once

#include "tools/bexa/command.h"
#include "tools/bexa/settings_file.h"

namespace tool {

// Adds a command that shows the settings of a resource file, or changes some of them.
void addSettingsCommand(CLI::App& program, Request& request, SettingsKind kind, const char* word,
                        const char* description);

} // namespace tool
