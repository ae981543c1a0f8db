#include "tools/bexa/settings_command.h"

namespace tool {

void addEnvCommand(CLI::App& program, Request& request) {
    addSettingsCommand(program, request, SettingsKind::Environment, "env",
                       "Shows or changes the settings of an environment resource");
}

} // namespace tool
