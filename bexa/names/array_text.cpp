#include "bexa/names/array_text.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/delimiters.h"

#include <algorithm>
#include <charconv>

namespace bexa::detail {

namespace {

// The faults that need no look at the bit list.
bool errCheck(std::string_view name, const Brackets& brackets, const Delimiters& delimiters) {
    if (brackets.repeated || brackets.opened() != brackets.closed()) return false;
    if (name.front() == delimiters.bitEnd) return false;
    return !brackets.opened() || (brackets.start != 0 && brackets.end == name.size() - 1);
}

// The bit list of a name that passed `errCheck`; empty, which is a fault, also if it ends in a stray
// character.
std::string_view divideArray(std::string_view name, const Brackets& brackets, const Delimiters& delimiters) {
    const char last = name[brackets.end - 1];
    if (!isDigit(last) && last != delimiters.bitEnd) return {};
    // Both brackets may be one and the same.
    if (brackets.end <= brackets.start) return {};
    return name.substr(brackets.start + 1, brackets.end - brackets.start - 1);
}

BitNames bitNames(std::string_view root, const Brackets& brackets, const Delimiters& delimiters) {
    if (delimiters.bitEnd == delimiters.busStart || delimiters.bitEnd == delimiters.busEnd)
        return BitNames::None;
    if (brackets.separated && root.find(delimiters.bitEnd) != std::string_view::npos) return BitNames::None;
    const bool someIsDigit =
        isDigit(delimiters.busStart) || isDigit(delimiters.busEnd) || isDigit(delimiters.bitEnd);
    return someIsDigit ? BitNames::Some : BitNames::All;
}

} // namespace

ArrayText::ArrayText(std::string_view name, const Delimiters& delimiters) : delimiters_(delimiters) {
    const Brackets brackets = bracketsOf(name, delimiters);
    if (!name.empty() && !errCheck(name, brackets, delimiters)) return;
    if (brackets.opened()) {
        readBits(name, brackets);
    } else if (!brackets.separated) {
        kind_ = Kind::Plain;
        root_ = name;
        knownCount_ = 1;
    }
}

// All items are read here: a malformed one leaves no signals, and the memory for them can be taken at once.
void ArrayText::readBits(std::string_view name, const Brackets& brackets) {
    const std::string_view list = divideArray(name, brackets, delimiters_);
    if (list.empty()) return;
    root_ = name.substr(0, brackets.start);
    opening_ = name.substr(0, brackets.start + 1);
    bits_.read(list, delimiters_);
    const int count = bits_.countSignals(maxSignals);
    if (count < 0) return;
    kind_ = Kind::Bits;
    bitNames_ = bitNames(root_, brackets, delimiters_);
    if (bitNames_ == BitNames::All) knownCount_ = count;
}

bool ArrayText::holdsDelimiter(int number) const {
    char digits[16];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return std::any_of(static_cast<const char*>(digits), end, [this](char c) {
        return c == delimiters_.busStart || c == delimiters_.busEnd || c == delimiters_.bitEnd;
    });
}

} // namespace bexa::detail
