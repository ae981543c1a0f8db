#include "tools/bexa/command.h"
#include "tools/bexa/sheet_lock.h"

#include "bexa/store/file.h"

#include <memory>
#include <string>

namespace tool {
namespace {

struct Options {
    std::string sheet;
    bool force = false;
};

// The lock is one's own, but an editor may be at the sheet.
void checkNobodyIsAtIt(const SheetLock& lock, const std::string& shown) {
    if (!isRunning(lock.info).value_or(false)) return;
    throw finding("the process " + std::to_string(lock.info.pid) +
                      " that locked the sheet for you still runs",
                  shown, "close the sheet there, or end its lock all the same with --force");
}

void unlock(const Options& options, Output& out) {
    checkSheetName(options.sheet, out);
    const std::string shown = out.systemText(options.sheet.c_str());
    const SheetLock lock = lockOf(options.sheet);
    const std::string lockFile = out.systemText(lock.info.fileName);
    if (lock.state == SheetLock::State::Unreadable) throw unreadableLock(lock, out);
    if (lock.state == SheetLock::State::Free) {
        throw finding("the sheet is not locked", shown, "bexa locks shows what is locked in its circuit");
    }
    if (lock.isOthers()) throw lockedByAnother(lock, options.sheet, out);
    if (!options.force) checkNobodyIsAtIt(lock, shown);
    // The process that took the lock has ended, so no BexUnlock can end it.
    if (!BexFile::remove(lock.info.fileName)) {
        throw unusable("the lock file cannot be removed", lockFile,
                       "check that you may write in its directory");
    }
    out.print({{"sheet", shown}, {"lockFile", lockFile}, {"state", "unlocked"}});
}

} // namespace

void addUnlockCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("unlock", "Ends a lock of your own on a sheet");
    const auto options = std::make_shared<Options>();
    command->add_option("SHEET", options->sheet, "The path of the sheet, which need not be there any more")
        ->required();
    command->add_flag("--force", options->force, "Even if the process that took the lock still runs");
    finishCommand(*command, request, [options](Output& out) { unlock(*options, out); });
}

} // namespace tool
