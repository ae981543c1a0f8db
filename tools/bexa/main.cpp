#include "tools/bexa/command.h"

#include "bexa/version.h"

#include <csignal>
#include <new>
#include <sstream>
#include <string>

namespace tool {
namespace {

// A reader that went away shall end the program as an output that can't be written, not by a signal.
void ignoreBrokenPipes() {
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

// The command whose line was wrong, for the message: "bexa name expand".
std::string commandOf(const CLI::App& program) {
    const auto chosen = program.get_subcommands();
    return program.get_name() + (chosen.empty() ? "" : ' ' + commandOf(*chosen.front()));
}

// A word that no command knows is the better reason than what is missing because of it.
std::string reasonOf(const CLI::App& program, const CLI::ParseError& error) {
    const auto unknown = program.remaining(true);
    return unknown.empty() ? error.what() : "unknown word " + unguarded(unknown.front());
}

// Help and version come out of the parser too, as if they were errors.
ExitCode endOfParse(const CLI::App& program, const CLI::ParseError& reason) {
    Output out(Output::Form::Text);
    std::ostringstream text, errors;
    if (program.exit(reason, text, errors) == 0) {
        out.text(text.str());
    } else {
        const std::string command = commandOf(program);
        out.report(unusable(reasonOf(program, reason), command, "see " + command + " --help"));
    }
    return out.finish();
}

ExitCode run(const Request& request) {
    Output out(request.json ? Output::Form::Json : Output::Form::Text);
    try {
        request.work(out);
    } catch (const Problem& problem) {
        out.report(problem);
    } catch (const std::bad_alloc&) {
        out.report(unusable("out of memory", "this command", "ask for less at a time"));
    }
    return out.finish();
}

ExitCode runProgram(int argc, char** argv) {
    CLI::App program("Looks into the designs of a schematic-capture suite, and tends them.", "bexa");
    program.set_version_flag("--version", std::string("bexa ") + BexVersion());
    program.require_subcommand(1);
    Request request;
    addAllCommands(program, request);
    try {
        program.parse(guardedArguments(argc, argv));
    } catch (const CLI::ParseError& reason) {
        return endOfParse(program, reason);
    }
    return run(request);
}

} // namespace
} // namespace tool

int main(int argc, char** argv) {
    tool::ignoreBrokenPipes();
    return static_cast<int>(tool::runProgram(argc, argv));
}
