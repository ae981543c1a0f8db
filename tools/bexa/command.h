#pragma once

#include "tools/bexa/output.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

namespace tool {

// What the command line asks for: filled while it is parsed, carried out when all of it was understood.
struct Request {
    std::function<void(Output&)> work;
    bool json = false;
};

// Adds a command to the program, its options and its callback, which sets `request.work`.
using AddCommand = void (*)(CLI::App& program, Request& request);

// Gives `command` the option --json that every command has, and `work`. Whatever `work` refers to lives as
// long as its copies, so options go in a shared object that it holds.
void finishCommand(CLI::App& command, Request& request, std::function<void(Output&)> work);

// To add a command: a source of its own, named after it, and here and in command.cpp a line each.
void addCircuitCommand(CLI::App& program, Request& request);
void addSheetsCommand(CLI::App& program, Request& request);
void addBlockCommand(CLI::App& program, Request& request);
void addNameCommand(CLI::App& program, Request& request);
void addKindsCommand(CLI::App& program, Request& request);
void addValueCommand(CLI::App& program, Request& request);
void addPropCommand(CLI::App& program, Request& request);
void addPropsCommand(CLI::App& program, Request& request);
void addFindCommand(CLI::App& program, Request& request);
void addNewCommand(CLI::App& program, Request& request);
void addLockCommand(CLI::App& program, Request& request);
void addUnlockCommand(CLI::App& program, Request& request);
void addLocksCommand(CLI::App& program, Request& request);
void addTextCommand(CLI::App& program, Request& request);
void addCsvCommand(CLI::App& program, Request& request);
void addEnvCommand(CLI::App& program, Request& request);
void addRcCommand(CLI::App& program, Request& request);
void addDiffCommand(CLI::App& program, Request& request);
void addCheckCommand(CLI::App& program, Request& request);
void addZoneCommand(CLI::App& program, Request& request);
void addCountCommand(CLI::App& program, Request& request);
void addMergeCommand(CLI::App& program, Request& request);
void addDrcCommand(CLI::App& program, Request& request);
void addReloadCommand(CLI::App& program, Request& request);

// The two commands within `bexa text`.
void addTextCheckCommand(CLI::App& text, Request& request);
void addTextConvertCommand(CLI::App& text, Request& request);

// The arguments as `CLI::App::parse` wants them, the last one first. The parser would take [a,b] for a list and
// split it, -.5 for an option and ++ for the end of a command; here they are names and values. Such an argument gets
// a NUL, which keeps the parser off and which no argument has of its own. finishCommand makes each option take it
// away again.
std::vector<std::string> guardedArguments(int argc, char** argv);
std::string unguarded(std::string argument);

void addAllCommands(CLI::App& program, Request& request);

} // namespace tool
