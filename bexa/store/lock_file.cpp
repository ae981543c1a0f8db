#include "bexa/store/lock_file.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ycore/process.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <variant>

namespace bexa::detail {
namespace {

using Field = std::variant<long BexLockInfo::*, YString BexLockInfo::*>;

// One row per line, in the order of the file.
constexpr Field lines[] = {
    &BexLockInfo::pid,  &BexLockInfo::handle,  &BexLockInfo::date,
    &BexLockInfo::user, &BexLockInfo::display, &BexLockInfo::host,
};

// Longer lines are read as several.
constexpr std::size_t longestLine = 256;

void fill(long& field, std::string_view text) {
    field = std::strtol(std::string(text).c_str(), nullptr, 10);
}

void fill(YString& field, std::string_view text) {
    field.assign(text);
}

std::string textOf(long field) {
    return std::to_string(field);
}

std::string textOf(const YString& field) {
    return static_cast<const char*>(field);
}

// Takes the next line off the front of `text`, without its last byte. Kept on purpose: that byte goes whatever it is,
// so a lock file that lacks its final line feed names another host and is nobody's own.
std::string_view takeLine(std::string_view& text) {
    if (text.empty()) return {};
    const std::size_t length = std::min(text.find('\n'), std::min(longestLine, text.size()) - 1);
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(length + 1);
    return line;
}

YString now() {
    const std::tm time = os::localTime();
    char text[64];
    std::snprintf(text, sizeof text, "%02d/%02d/%04d %02d:%02d", time.tm_mon + 1, time.tm_mday,
                  time.tm_year + 1900, time.tm_hour, time.tm_min);
    return text;
}

} // namespace

int ownerNumber(const void* owner) {
    return static_cast<int>(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(owner)));
}

void identify(BexLockInfo& info) {
    char host[256] = "";
    Ygethostname(host, sizeof host);
    const char* display = ygetenv("DISPLAY", 1);
    info.user = YgetUserName();
    info.display = display && *display ? display : YgetUserName();
    info.host = host;
}

BexLockInfo lockOfThisProcess(const void* owner) {
    BexLockInfo info;
    info.pid = Ygetpid();
    info.handle = ownerNumber(owner);
    info.date = now();
    identify(info);
    return info;
}

std::string lockFileText(const BexLockInfo& info) {
    std::string text;
    for (const Field& line : lines) {
        text += std::visit([&](auto field) { return textOf(info.*field); }, line);
        text += '\n';
    }
    return text;
}

bool readLockFile(const char* lockFile, BexLockInfo& info) {
    info.fileName = lockFile;
    std::string content;
    if (!os::readWholeFile(lockFile, content)) return false;
    std::string_view rest = content;
    for (const Field& line : lines) {
        const std::string_view text = takeLine(rest);
        if (!text.empty()) std::visit([&](auto field) { fill(info.*field, text); }, line);
    }
    return true;
}

} // namespace bexa::detail
