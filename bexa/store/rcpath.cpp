#include "bexa/store/rcpath.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/path_spelling.h"

#include <algorithm>
#include <string>
#include <string_view>

using bexa::detail::normalisedPath;

BexRcpath::BexRcpath(const char* name, const char* path) : name(name) {
    if (!path || !*path) return;
    rawPath = normalisedPath(path);
    this->path = BexRcpathVariableEnv::extractPath(rawPath);
}

BexRcpath::BexRcpath(const BexRcpath& other) {
    *this = other;
}

BexRcpath& BexRcpath::operator=(const BexRcpath& other) {
    name = other.name;
    const bool hasPaths = other.path.length() != 0 && other.rawPath.length() != 0;
    path = hasPaths ? normalisedPath(other.path.view()) : YString();
    rawPath = hasPaths ? normalisedPath(other.rawPath.view()) : YString();
    return *this;
}

int BexRcpath::compare(const BexRcpath& other) const {
    if (name == other.name) return 0;
    return name < other.name ? -1 : 1;
}

YString BexRcpathVariableEnv::extractPath(const char* path) {
    constexpr std::size_t longest = 1023;
    const std::string_view text = bexa::detail::viewOf(path);
    if (text.size() > longest || !text.starts_with('$')) return YString(text);
    const std::size_t end = std::min(text.find('/'), text.size());
    const std::string variable(text.substr(0, end));
    YPathName resolved = ygetenv(variable.c_str() + 1, 1);
    if (text.size() - end > 1) resolved.concat(text.substr(end));
    if (resolved.length() == 0) resolved = variable.c_str();
    return resolved.expand();
}
