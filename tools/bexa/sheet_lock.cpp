#include "tools/bexa/sheet_lock.h"

#include "bexa/foundation/ycore/process.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <array>
#include <cerrno>
#include <limits>

#ifdef _WIN32
#    include <windows.h>
#else
#    include <csignal>
#endif

namespace tool {
namespace {

#ifdef _WIN32
bool processRuns(int number) {
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(number));
    if (process == nullptr) return GetLastError() == ERROR_ACCESS_DENIED;
    const bool ended = WaitForSingleObject(process, 0) == WAIT_OBJECT_0;
    CloseHandle(process);
    return !ended;
}
#else
bool processRuns(int number) {
    // It may be somebody else's, who doesn't take signals from us.
    return ::kill(number, 0) == 0 || errno == EPERM;
}
#endif

std::string nameOfThisHost() {
    std::array<char, 256> host{};
    Ygethostname(host.data(), host.size());
    return host.data();
}

// " at :0", or nothing for an empty text.
std::string behind(const char* word, const YString& text, const Output& out) {
    return text.length() == 0 ? "" : word + out.systemText(text);
}

} // namespace

SheetLock lockOf(const std::string& sheet) {
    SheetLock lock;
    const auto isHeld = [&] { return !BexCheckLock(LexSheetLogged, sheet.c_str(), lock.info); };
    if (isHeld()) {
        lock.state = SheetLock::State::Held;
    } else if (BexFile::isExist(lock.info.fileName)) {
        // Unreadable, unless it came just now.
        lock.state = isHeld() ? SheetLock::State::Held : SheetLock::State::Unreadable;
    }
    return lock;
}

void checkSheetName(const std::string& path, const Output& out) {
    const std::string shown = out.systemText(path.c_str());
    if (BexDataFile::fileType(path.c_str()) != BexDataFile::BexSheetFile) {
        throw unusable("not a sheet", shown, "give the path of a file whose name ends in .sht");
    }
    if (BexDataFile::isTmpFileName(path.c_str(), BexDataFile::BexSheetFile) ||
        BexDataFile::isBackupFileName(path.c_str(), BexDataFile::BexSheetFile)) {
        throw unusable("a copy of a sheet", shown, "give the sheet itself: a lock holds for its copies, too");
    }
}

std::optional<bool> isRunning(const BexLockInfo& info) {
    const bool isProcess = info.pid > 0 && info.pid <= std::numeric_limits<int>::max();
    if (!isProcess || !(info.host == nameOfThisHost().c_str())) return std::nullopt;
    return processRuns(static_cast<int>(info.pid));
}

std::string holderOf(const BexLockInfo& info, const Output& out) {
    const std::string user = info.user.length() == 0 ? "somebody" : out.systemText(info.user);
    // Without a display the lock file has the user in its place.
    const std::string display = info.display == info.user ? "" : behind(" at ", info.display, out);
    return user + display + behind(" on ", info.host, out) + behind(" since ", info.date, out);
}

Problem lockedByAnother(const SheetLock& lock, const std::string& sheet, const Output& out) {
    return finding("the sheet is locked by " + holderOf(lock.info, out), out.systemText(sheet.c_str()),
                   "ask the holder to close it, or to run bexa unlock if the lock was left behind");
}

Problem unreadableLock(const SheetLock& lock, const Output& out) {
    return unusable("the lock file cannot be read", out.systemText(lock.info.fileName),
                    "check what stands there and that you may read it");
}

} // namespace tool
