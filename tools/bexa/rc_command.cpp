#include "tools/bexa/settings_command.h"

namespace tool {

void addRcCommand(CLI::App& program, Request& request) {
    addSettingsCommand(program, request, SettingsKind::Circuit, "rc",
                       "Shows or changes the settings of a circuit resource");
}

} // namespace tool
