#include "tools/bexa/circuit_resource.h"
#include "tools/bexa/command.h"
#include "tools/bexa/lock_files.h"
#include "tools/bexa/sheet_lock.h"

#include <memory>
#include <string>

namespace tool {
namespace {

Json rowOf(const std::string& name, const SheetLock& lock, const Output& out) {
    const std::optional<bool> running = isRunning(lock.info);
    return {{"sheet", out.systemText(name.c_str())},
            {"yours", lock.isOwn()},
            {"user", out.systemText(lock.info.user)},
            {"display", out.systemText(lock.info.display)},
            {"host", out.systemText(lock.info.host)},
            {"since", out.systemText(lock.info.date)},
            {"process", lock.info.pid},
            {"running", running ? Json(*running) : Json()}};
}

void showLocks(const std::string& path, Output& out) {
    const std::string circuit = circuitAt(path);
    Json rows = Json::array();
    const std::string directory = circuit + '/';
    for (const std::string& name : lockedSheets(circuit, out)) {
        const SheetLock lock = lockOf(directory + name);
        if (lock.state == SheetLock::State::Unreadable) out.report(unreadableLock(lock, out));
        if (lock.state == SheetLock::State::Held) rows.push_back(rowOf(name, lock, out));
    }
    out.print({{"circuit", out.systemText(circuit.c_str())}, {"locks", std::move(rows)}});
}

} // namespace

void addLocksCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("locks", "Shows who holds the sheets of a circuit, and since when");
    const auto circuit = std::make_shared<std::string>();
    command->add_option("PATH.cir", *circuit, "The directory of the circuit")->required();
    finishCommand(*command, request, [circuit](Output& out) { showLocks(*circuit, out); });
}

} // namespace tool
