#include "bexa/names/signal_name.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/delimiters.h"

#include <charconv>

using bexa::detail::Brackets;
using bexa::detail::Delimiters;
using bexa::detail::TextCursor;

BexChkSigName::BexChkSigName(const char* name, const BexDatarc& rc) {
    check(name, Delimiters::of(rc));
}

BexChkSigName::BexChkSigName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd) {
    check(name, {busStart, busEnd, rangeEnd, bitEnd});
}

void BexChkSigName::check(const char* name, const Delimiters& delimiters) {
    if (!name || !*name) return;
    if (delimiters.complete()) {
        makeSigName(name, delimiters);
    } else {
        errType_ = BexNetNameNoDelimiter;
    }
}

void BexChkSigName::makeSigName(std::string_view name, const Delimiters& delimiters) {
    name_.assign(name);
    if (errCheck(delimiters)) {
        errType_ = BexNetNameOk;
        return;
    }
    name_ = YString();
    sigName_ = YString();
    errType_ = BexNetNameSyntax;
}

bool BexChkSigName::errCheck(const Delimiters& delimiters) {
    bitNumber_ = -1;
    const std::string_view text = name_.view();
    const Brackets brackets = bracketsOf(text, delimiters);
    if (brackets.separated || brackets.repeated || brackets.opened() != brackets.closed()) return false;
    if (brackets.closed() && brackets.end != text.size() - 1) return false;
    // One bracket that both opens and closes is no bit part, but the last letter of a plain name.
    if (brackets.start == brackets.end) {
        sigName_ = name_;
        return true;
    }
    TextCursor digits(text.substr(brackets.start + 1, brackets.end - brackets.start - 1));
    const auto number = digits.takeNumber();
    if (!number || !digits.atEnd()) return false;
    sigName_.assign(text.substr(0, brackets.start));
    bitNumber_ = *number;
    return true;
}

// Makes a name that is known to be plain, or none.
void BexChkSigName::makePlain(std::string_view name) {
    name_.assign(name);
    sigName_ = name_;
    bitNumber_ = -1;
    errType_ = name.empty() ? BexNetNameUnchecked : BexNetNameOk;
}

// Makes the name of a bit that needs no check; `opening` is the root and `busStart`.
void BexChkSigName::makeBit(std::string_view opening, const YString& root, int number, char busEnd) {
    char rest[16];
    char* const end = std::to_chars(rest, rest + sizeof rest - 1, number).ptr;
    *end = busEnd;
    name_.assign(opening);
    name_.concat(std::string_view(rest, static_cast<std::size_t>(end + 1 - rest)));
    sigName_ = root;
    bitNumber_ = number;
    errType_ = BexNetNameOk;
}
