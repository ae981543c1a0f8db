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
    addNewCommand,
    addLockCommand,
    addUnlockCommand,
    addLocksCommand,
    addTextCommand,
    addCsvCommand,
};
// clang-format on

} // namespace

void finishCommand(CLI::App& command, Request& request, std::function<void(Output&)> work) {
    for (CLI::Option* option :
         command.get_options([](const CLI::Option* o) { return o->get_positional(); })) {
        option->transform([](const std::string& argument) { return unguarded(argument); });
    }
    command.add_flag("--json", request.json, "Print JSON instead of columns");
    command.callback([&request, work = std::move(work)] { request.work = work; });
}

std::vector<std::string> guardedArguments(int argc, char** argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {
        std::string& argument = arguments.emplace_back(argv[i]);
        if (!argument.empty() && argument.front() == '[' && argument.back() == ']') argument += '\0';
    }
    return arguments;
}

std::string unguarded(std::string argument) {
    if (!argument.empty() && argument.back() == '\0') argument.pop_back();
    return argument;
}

void addAllCommands(CLI::App& program, Request& request) {
    for (AddCommand add : commands) add(program, request);
}

} // namespace tool
