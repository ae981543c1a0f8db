#include "bexa/circuitrc/resource_tables.h"

#include "bexa/store/path_spelling.h"

#include <string_view>
#include <utility>

namespace {

// What counts is the text in front of a NUL byte, as for any path.
YString storedPath(const YString& path) {
    const std::string_view text = static_cast<const char*>(path);
    return text.empty() ? YString(".") : bexa::detail::normalisedPath(text);
}

} // namespace

BexPathElem::BexPathElem(YString name, YString path) : name(std::move(name)), path(storedPath(path)) {}

BexPathElem::BexPathElem(const BexPathElem& other) : name(other.name), path(storedPath(other.path)) {}

BexPathElem& BexPathElem::operator=(const BexPathElem& other) {
    name = other.name;
    path = storedPath(other.path);
    return *this;
}
