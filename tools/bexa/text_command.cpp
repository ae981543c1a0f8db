#include "tools/bexa/command.h"

namespace tool {

void addTextCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("text", "Checks Japanese texts, converts them from coding to coding");
    command->require_subcommand(1);
    addTextCheckCommand(*command, request);
    addTextConvertCommand(*command, request);
}

} // namespace tool
