#include "bexa/names/array_name.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/array_text.h"
#include "bexa/names/delimiters.h"

#include <algorithm>

using bexa::detail::ArrayText;
using bexa::detail::Delimiters;
using bexa::detail::viewOf;

static_assert(BexChkArrayName::maxSignals == ArrayText::maxSignals);

BexChkArrayName::BexChkArrayName(const char* name, const BexDatarc& rc) {
    check(viewOf(name), Delimiters::of(rc));
}

BexChkArrayName::BexChkArrayName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd,
                                 char rangeStep) {
    check(viewOf(name), {busStart, busEnd, rangeEnd, bitEnd, rangeStep});
}

void BexChkArrayName::check(std::string_view name, const Delimiters& delimiters) {
    arrayName_.assign(name);
    if (!name.empty() && !delimiters.complete()) {
        errType_ = BexNetNameNoDelimiter;
    } else {
        makeArrayName(ArrayText(name, delimiters), delimiters.busEnd);
    }
}

void BexChkArrayName::makeArrayName(const ArrayText& text, char busEnd) {
    name_.assign(text.root());
    reserve(text.knownCount());
    errType_ = text.forEachSignal([&](std::string_view root, int number) {
        if (number < 0) {
            end().makePlain(root);
        } else {
            end().makeBit(text.opening(), name_, number, busEnd);
        }
    });
}

const char* BexChkArrayName::sigName(int index) const noexcept {
    return index >= 0 && index < size() ? at(index).name() : nullptr;
}

unsigned long BexChkArrayName::find(const BexChkSigName& signal) const noexcept {
    const std::string_view text = signal.name_.view();
    if (text.empty() || !text.starts_with(name_.view())) return 0;
    const BexChkSigName* const signals = *this;
    return std::find_if(signals, signals + size(), [&](auto& own) { return own == signal; }) !=
           signals + size();
}

unsigned long BexChkArrayName::search(const BexChkSigName& signal) const {
    return search(&signal, signameCompare) != -1;
}

void BexChkArrayName::sort() {
    sort(signameCompare);
}

int BexChkArrayName::signameCompare(const void* first, const void* second) {
    const std::string_view a = static_cast<const BexChkSigName*>(first)->name_.view();
    const std::string_view b = static_cast<const BexChkSigName*>(second)->name_.view();
    const int order = a.compare(b);
    return (order > 0) - (order < 0);
}

unsigned long BexChkArrayName::realCompare(const BexChkArrayName& other) const noexcept {
    if (name_ != other.name_ || errType_ != other.errType_ || size() != other.size()) return 0;
    const BexChkSigName* const signals = *this;
    const BexChkSigName* const others = other;
    return std::equal(signals, signals + size(), others, [](auto& a, auto& b) { return a == b; });
}

unsigned long BexChkArrayName::caseCompare(const BexChkArrayName& other) const {
    if (name_ != other.name_ || errType_ != other.errType_ || size() != other.size()) return 0;
    BexChkArrayName sorted = *this;
    BexChkArrayName otherSorted = other;
    sorted.sort();
    otherSorted.sort();
    return sorted.realCompare(otherSorted);
}
