#include "bexa/foundation/ygeneral/ypath_name.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/os.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/yenviron.h"

#include <string>
#include <string_view>
#include <vector>

namespace os = bexa::detail::os;

using bexa::detail::isLetter;
using bexa::detail::viewOf;
namespace {

constexpr std::string_view separator = "/";

constexpr bool isSeparator(char c) {
    return c == '/' || c == '\\';
}

bool beginsWithDrive(std::string_view path) {
    return path.size() >= 2 && isLetter(path[0]) && path[1] == ':';
}

std::size_t rootLength(std::string_view path) {
    if (!path.empty() && isSeparator(path[0])) return 1;
    return beginsWithDrive(path) && path.size() >= 3 && isSeparator(path[2]) ? 3 : 0;
}

// A walk over the characters of a path. A separator and a dot are never the second byte of a character, so a
// look at the first byte is enough.
class PathWalk {
public:
    explicit PathWalk(std::string_view path, std::size_t start = 0) : path_(path), at_(start) {}

    bool atEnd() const { return at_ >= path_.size(); }
    char first() const { return path_[at_]; }
    std::size_t at() const { return at_; }
    void step() { at_ += bexa::detail::characterLength(path_, at_, bexa::detail::processLeadBytes()); }

private:
    std::string_view path_;
    std::size_t at_;
};

// Where the last component stands, and where the path above it ends. Without a component all three are the
// end of the root.
struct LastComponent {
    std::size_t parentEnd;
    std::size_t begin;
    std::size_t end;
};

LastComponent lastComponent(std::string_view path) {
    const std::size_t root = rootLength(path);
    LastComponent last{root, root, root};
    bool within = false;
    for (PathWalk walk(path, root); !walk.atEnd();) {
        const bool wasWithin = within;
        within = !isSeparator(walk.first());
        if (within && !wasWithin) {
            last.parentEnd = last.end;
            last.begin = walk.at();
        }
        walk.step();
        if (within) last.end = walk.at();
    }
    return last;
}

// The place of the suffix's dot; the end of the path if there is no suffix.
std::size_t suffixBegin(std::string_view path) {
    std::size_t begin = 0;
    std::size_t dot = path.size();
    for (PathWalk walk(path); !walk.atEnd(); walk.step()) {
        if (isSeparator(walk.first())) {
            begin = walk.at() + 1;
            dot = path.size();
        } else if (walk.first() == '.') {
            dot = walk.at();
        }
    }
    const std::string_view component = path.substr(begin);
    return component == "." || component == ".." ? path.size() : dot;
}

// The path without its suffix, if it is the wanted one; null wants any.
std::string_view withoutSuffix(std::string_view path, const char* suffix) {
    const std::size_t begin = suffixBegin(path);
    return !suffix || path.substr(begin) == suffix ? path.substr(0, begin) : path;
}

bool endsInSeparator(std::string_view path) {
    bool result = false;
    for (PathWalk walk(path); !walk.atEnd(); walk.step()) {
        result = isSeparator(walk.first());
    }
    return result;
}

std::string_view withoutLeadingSeparators(std::string_view path) {
    while (!path.empty() && isSeparator(path.front())) {
        path.remove_prefix(1);
    }
    return path;
}

void turnBackslashes(std::string& path) {
    for (PathWalk walk(path); !walk.atEnd(); walk.step()) {
        if (walk.first() == '\\') path[walk.at()] = '/';
    }
}

std::vector<std::string_view> componentsOf(std::string_view path) {
    std::vector<std::string_view> components;
    std::size_t begin = 0;
    for (PathWalk walk(path); !walk.atEnd(); walk.step()) {
        if (!isSeparator(walk.first())) continue;
        components.push_back(path.substr(begin, walk.at() - begin));
        begin = walk.at() + 1;
    }
    components.push_back(path.substr(begin));
    std::erase(components, std::string_view());
    return components;
}

} // namespace

YPathName::YPathName(const char* dir, const char* name) : YString(dir) {
    *this += name;
}

YPathName& YPathName::operator=(const YString& path) {
    YString::operator=(path);
    return *this;
}

YPathName& YPathName::operator=(const char* path) {
    YString::operator=(path);
    return *this;
}

YPathName& YPathName::operator+=(const char* components) {
    const std::string_view added = viewOf(components);
    if (added.empty()) return *this;
    if (length() == 0) {
        concat(added);
        return *this;
    }
    // Put together first: what is added may be part of this path.
    std::string joined(endsInSeparator(view()) ? "" : separator);
    joined += withoutLeadingSeparators(added);
    concat(joined);
    return *this;
}

YPathName& YPathName::expand() {
    std::string path = bexa::detail::withEnvironment(view());
    turnBackslashes(path);
    const bool standsAlone = path.empty() || path[0] == '/' || path[0] == '$' || beginsWithDrive(path);
    assign(standsAlone ? path : os::currentDirectory());
    if (!standsAlone) *this += path.c_str();
    return *this;
}

YPathName& YPathName::pack() {
    std::string packed(view().substr(0, rootLength(view())));
    turnBackslashes(packed);
    const bool hasRoot = !packed.empty();
    std::vector<std::string_view> kept;
    for (const std::string_view component : componentsOf(view().substr(packed.size()))) {
        if (component == ".") continue;
        const bool isUp = component == "..";
        if (isUp && !kept.empty() && kept.back() != "..") {
            kept.pop_back();
        } else if (!isUp || !hasRoot) {
            kept.push_back(component);
        }
    }
    for (const std::string_view component : kept) {
        if (component.data() != kept.front().data()) packed += separator;
        packed += component;
    }
    assign(packed.empty() ? "." : packed);
    return *this;
}

const char* YPathName::getSuffix() const {
    return data() + suffixBegin(view());
}

YPathName& YPathName::addSuffix(const char* suffix) {
    const std::string_view added = viewOf(suffix);
    if (added.empty()) return *this;
    // Put together first: the suffix may be part of this path.
    std::string dotted(added.starts_with('.') ? "" : ".");
    dotted += added;
    concat(dotted);
    return *this;
}

YPathName& YPathName::cutSuffix(const char* suffix) {
    setLength(withoutSuffix(view(), suffix).size());
    return *this;
}

YPathName YPathName::dirname() const {
    YPathName result;
    const std::size_t size = lastComponent(view()).parentEnd;
    result.assign(size == 0 ? "." : view().substr(0, size));
    return result;
}

YString YPathName::basename(const char* suffix) const {
    const LastComponent last = lastComponent(view());
    const std::string_view component = view().substr(last.begin, last.end - last.begin);
    return YString(suffix ? withoutSuffix(component, suffix) : component);
}

YPathName::TestResult YPathName::Test() const {
    switch (os::kindOf(*this)) {
    case os::PathKind::Missing: return TestNothing;
    case os::PathKind::Directory: return TestDirectory;
    case os::PathKind::File: return TestFile;
    }
    return TestNothing;
}

unsigned long YPathName::Mkdir() const {
    return os::makeDirectory(*this);
}
