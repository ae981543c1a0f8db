#include "tools/bexa/check_rules.h"
#include "tools/bexa/problem.h"
#include "tools/bexa/sheet_lock.h"

#include "bexa/store/data_file.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tool {
namespace {

constexpr std::string_view lockSuffix = ".___";

// As the lock file has it: this goes into reports of any coding.
std::string holderIn(const BexLockInfo& info) {
    std::string holder = info.user.length() == 0 ? "somebody" : std::string(info.user);
    if (info.host.length() > 0) holder += " on " + std::string(info.host);
    if (info.date.length() > 0) holder += " since " + std::string(info.date);
    return holder;
}

// Whoever works on a sheet has copies and a lock, and left nothing behind.
bool isAtWork(const SheetLock& lock) {
    return lock.state == SheetLock::State::Held && isRunning(lock.info) == true;
}

void checkCopy(const std::string& circuit, const std::string& path, Fault fault, Findings& findings) {
    const std::string sheet = std::filesystem::path(path).stem().string().substr(1) + ".sht";
    const SheetLock lock = lockOf(circuit + '/' + sheet);
    if (isAtWork(lock)) return;
    findings.add(fault, path, lock.state == SheetLock::State::Held ? holderIn(lock.info) : "nobody");
}

void checkCopiesIn(const std::string& circuit, const std::string& directory, Findings& findings) {
    for (const std::string& name : plainFilesIn(directory)) {
        const std::string path = directory + '/' + name;
        if (BexDataFile::isTmpFileName(name.c_str(), BexDataFile::BexAnyFile)) {
            checkCopy(circuit, path, Fault::TemporaryCopyLeft, findings);
        } else if (BexDataFile::isBackupFileName(name.c_str(), BexDataFile::BexAnyFile)) {
            checkCopy(circuit, path, Fault::BackupCopyLeft, findings);
        }
    }
}

void checkLocksIn(const std::string& circuit, const std::string& log, Findings& findings) {
    for (const std::string& name : plainFilesIn(log)) {
        if (!name.ends_with(lockSuffix)) continue;
        const std::string sheet = circuit + '/' + name.substr(0, name.size() - lockSuffix.size()) + ".sht";
        const SheetLock lock = lockOf(sheet);
        if (lock.state == SheetLock::State::Unreadable) findings.add(Fault::LockUnreadable, log + '/' + name);
        if (lock.state != SheetLock::State::Held || isAtWork(lock)) continue;
        findings.add(Fault::LockLeft, sheet, holderIn(lock.info));
    }
}

} // namespace

void checkLeftovers(const ReachedCircuit& circuit, Findings& findings) {
    try {
        for (const char* part : {"", "/log", "/ext", "/drc", "/frame"}) {
            if (!std::filesystem::is_directory(circuit.path + part)) continue;
            checkCopiesIn(circuit.path, circuit.path + part, findings);
        }
        const std::string log = circuit.path + "/log";
        if (std::filesystem::is_directory(log)) checkLocksIn(circuit.path, log, findings);
    } catch (const Problem&) {
        findings.add(Fault::CircuitUnreadable, circuit.path);
    }
}

} // namespace tool
