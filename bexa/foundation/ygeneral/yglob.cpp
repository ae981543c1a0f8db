#include "bexa/foundation/ygeneral/yglob.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <cstddef>
#include <optional>

using bexa::detail::viewOf;

namespace {

using Code = unsigned;

// Takes the character at the front off, single or double-byte; the text must not be empty.
Code takeCharacter(std::string_view& text) {
    const std::size_t length = bexa::detail::characterLength(text, 0, bexa::detail::processLeadBytes());
    Code code = 0;
    for (const char c : text.substr(0, length)) {
        code = code << 8 | static_cast<unsigned char>(c);
    }
    text.remove_prefix(length);
    return code;
}

// The same where a backslash takes the meaning of the next character away.
Code takeEscaped(std::string_view& text) {
    if (text.size() > 1 && text.front() == '\\') text.remove_prefix(1);
    return takeCharacter(text);
}

struct Brackets {
    bool negated = false;
    std::vector<std::pair<Code, Code>> ranges;
};

// brackets = "[" [ "!" ] range { range } "]"    range = character [ "-" character ]
// Takes a whole pair of brackets off the front, or nothing at all.
std::optional<Brackets> takeBrackets(std::string_view& pattern) {
    if (!pattern.starts_with('[')) return std::nullopt;
    std::string_view rest = pattern.substr(1);
    Brackets result;
    result.negated = rest.starts_with('!');
    if (result.negated) rest.remove_prefix(1);
    while (!rest.empty()) {
        if (rest.front() == ']' && !result.ranges.empty()) {
            pattern = rest.substr(1);
            return result;
        }
        const Code first = takeEscaped(rest);
        const bool isRange = rest.size() > 1 && rest[0] == '-' && rest[1] != ']';
        if (isRange) rest.remove_prefix(1);
        result.ranges.emplace_back(first, isRange ? takeEscaped(rest) : first);
    }
    return std::nullopt;
}

} // namespace

YRegexp::~YRegexp() = default;

bool YRegexp::Item::takes(Code character) const {
    const bool listed = std::ranges::any_of(ranges, [character](const auto& range) {
        return range.first <= character && character <= range.second;
    });
    return listed == (kind == OneOf);
}

// Only the last run that was met is ever given another length: what a run before it could take, this one can
// too.
bool YRegexp::operator==(const char* text) const {
    std::string_view rest = viewOf(text);
    std::size_t item = 0;
    std::optional<std::size_t> afterRun;
    std::string_view runEnd;
    while (true) {
        if (item < items_.size() && items_[item].kind == Item::Run) {
            afterRun = ++item;
            runEnd = rest;
            continue;
        }
        if (rest.empty()) return item == items_.size();
        std::string_view behind = rest;
        const Code character = takeCharacter(behind);
        if (item < items_.size() && items_[item].takes(character)) {
            ++item;
            rest = behind;
            continue;
        }
        if (!afterRun) return false;
        takeCharacter(runEnd);
        rest = runEnd;
        item = *afterRun;
    }
}

YGlob::YGlob(const char* pattern) {
    std::string_view rest = viewOf(pattern);
    while (!rest.empty()) {
        if (auto brackets = takeBrackets(rest)) {
            append({brackets->negated ? Item::NoneOf : Item::OneOf, std::move(brackets->ranges)});
        } else if (rest.front() == '*') {
            append({Item::Run, {}});
            rest.remove_prefix(1);
        } else if (rest.front() == '?') {
            append({Item::NoneOf, {}});
            rest.remove_prefix(1);
        } else {
            const Code character = takeEscaped(rest);
            append({Item::OneOf, {{character, character}}});
        }
    }
}
