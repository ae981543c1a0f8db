#include "bexa/foundation/ygeneral/yenviron.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/ycore/environment.h"

#include <algorithm>
#include <cstring>

namespace {

using bexa::detail::characterLength;
using bexa::detail::processLeadBytes;

constexpr bool isNameStart(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

constexpr bool isNamePart(char c) {
    return isNameStart(c) || (c >= '0' && c <= '9');
}

// reference = "$" name | "${" name "}"          name = letter or "_" { letter | digit | "_" }
struct Reference {
    std::string_view whole; // empty if there is none
    std::string_view name;
};

Reference referenceAtFront(std::string_view text) {
    if (!text.starts_with('$')) return {};
    const bool braced = text.substr(1).starts_with('{');
    const std::string_view rest = text.substr(braced ? 2 : 1);
    if (rest.empty() || !isNameStart(rest.front())) return {};
    const auto end = std::ranges::find_if_not(rest, isNamePart);
    const std::string_view name = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    if (!braced) return {text.substr(0, 1 + name.size()), name};
    if (!rest.substr(name.size()).starts_with('}')) return {};
    return {text.substr(0, 3 + name.size()), name};
}

} // namespace

std::string bexa::detail::withEnvironment(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Reference reference = referenceAtFront(text);
        const char* value =
            reference.whole.empty() ? nullptr : ygetenv(std::string(reference.name).c_str(), 1);
        const std::size_t taken =
            value ? reference.whole.size() : characterLength(text, 0, processLeadBytes());
        result += value ? std::string_view(value) : text.substr(0, taken);
        text.remove_prefix(taken);
    }
    return result;
}

const char* YEnviron::substituteByEnvs(const char* text, char* buffer, long size, unsigned long) {
    if (!text) return nullptr;
    std::string result = bexa::detail::withEnvironment(text);
    if (!buffer) {
        // A thread's own, so that the result outlives the call without being the caller's to free.
        thread_local std::string kept;
        kept = std::move(result);
        return kept.c_str();
    }
    if (size <= 0) return nullptr;
    const auto room = static_cast<std::size_t>(size) - 1;
    const std::string_view fitting = bexa::detail::cutToSize(result, room, processLeadBytes());
    std::memcpy(buffer, fitting.data(), fitting.size());
    buffer[fitting.size()] = '\0';
    return fitting.size() == result.size() ? buffer : nullptr;
}
