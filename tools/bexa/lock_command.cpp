#include "tools/bexa/command.h"
#include "tools/bexa/sheet_lock.h"

#include "bexa/foundation/ycore/process.h"
#include "bexa/store/file.h"

#include <memory>
#include <string>

namespace tool {
namespace {

// Locks the sheet as the person who runs the program. True if this run took the lock, false if it was there already
// and is that person's own.
bool lockSheet(const std::string& sheet, const Output& out) {
    const SheetLock before = lockOf(sheet);
    if (before.isOthers()) throw lockedByAnother(before, sheet, out);
    if (before.state == SheetLock::State::Unreadable) throw unreadableLock(before, out);
    const bool done = BexLock(nullptr, LexSheetLogged, sheet.c_str()) != 0;
    const SheetLock after = lockOf(sheet);
    if (after.isOthers()) throw lockedByAnother(after, sheet, out);
    if (!done || !after.isOwn()) {
        throw unusable(
            "the sheet cannot be locked", out.systemText(after.info.fileName),
            "check that the directory log is there, that you may write in it, and that there is room");
    }
    return before.state == SheetLock::State::Free && after.info.pid == Ygetpid();
}

void lock(const std::string& sheet, Output& out) {
    checkSheetName(sheet, out);
    const std::string shown = out.systemText(sheet.c_str());
    if (!BexFile::isExist(sheet.c_str())) throw unusable("no such sheet", shown, "check the path");
    const bool isNew = lockSheet(sheet, out);
    out.print({{"sheet", shown},
               {"lockFile", out.systemText(lockOf(sheet).info.fileName)},
               {"state", isNew ? "locked" : "was yours already"}});
}

} // namespace

void addLockCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("lock", "Locks a sheet, until bexa unlock");
    const auto sheet = std::make_shared<std::string>();
    command->add_option("SHEET", *sheet, "The path of the sheet, such as a.cir/001.sht")->required();
    finishCommand(*command, request, [sheet](Output& out) { lock(*sheet, out); });
}

} // namespace tool
