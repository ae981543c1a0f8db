#include "tools/bexa/command.h"

#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

// In the order of the help.
// clang-format off
constexpr AddCommand commands[] = {
    addCircuitCommand,
    addSheetsCommand,
    addBlockCommand,
    addNameCommand,
    addKindsCommand,
    addValueCommand,
    addPropCommand,
    addPropsCommand,
    addFindCommand,
    addNewCommand,
    addLockCommand,
    addUnlockCommand,
    addLocksCommand,
    addTextCommand,
    addCsvCommand,
    addEnvCommand,
    addRcCommand,
    addDiffCommand,
    addCheckCommand,
    addZoneCommand,
    addCountCommand,
    addMergeCommand,
    addDrcCommand,
    addReloadCommand,
};
// clang-format on

bool takesArguments(const CLI::Option* option) {
    return option->get_type_size_max() > 0;
}

std::string guarded(std::string argument) {
    if (argument.starts_with('[') && argument.ends_with(']')) return argument + '\0';
    if (argument.starts_with("-.") || argument == "++") return '\0' + argument;
    return argument;
}

} // namespace

void finishCommand(CLI::App& command, Request& request, std::function<void(Output&)> work) {
    for (CLI::Option* option : command.get_options(takesArguments)) {
        option->transform([](const std::string& argument) { return unguarded(argument); });
    }
    command.add_flag("--json", request.json, "Print JSON instead of columns");
    command.callback([&request, work = std::move(work)] { request.work = work; });
}

std::vector<std::string> guardedArguments(int argc, char** argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) arguments.push_back(guarded(argv[i]));
    return arguments;
}

std::string unguarded(std::string argument) {
    std::erase(argument, '\0');
    return argument;
}

void addAllCommands(CLI::App& program, Request& request) {
    for (AddCommand add : commands) add(program, request);
}

} // namespace tool
