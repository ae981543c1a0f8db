#include "bexa/names/bundle_parts.h"

#include "bexa/names/array_text.h"
#include "bexa/names/delimiters.h"

namespace bexa::detail {

// The brackets are equally many at the end of each member but the last, so each begins with none.
std::string_view BundleParts::next() {
    const Delimiters d = delimiters_;
    std::ptrdiff_t open = 0;
    const std::string_view part = rest_.takeWhile([&](char c) {
        if (c == d.bitEnd) return open != 0;
        open += (c == d.busStart) - (c == d.busEnd);
        return true;
    });
    atEnd_ = !rest_.take(d.bitEnd);
    if (atEnd_) isBalanced_ = open == 0;
    return part;
}

std::optional<std::size_t> countParts(std::string_view name, const Delimiters& delimiters) {
    std::size_t count = 0;
    BundleParts parts(name, delimiters);
    for (; !parts.atEnd(); ++count) parts.next();
    if (!parts.isBalanced()) return std::nullopt;
    return count;
}

bool BundleResult::take(std::string_view member, BexNetNameErrType errType, int signalCount) {
    signalCount_ += signalCount;
    if (signalCount_ > ArrayText::maxSignals) errType = BexNetNameSyntax;
    if (errType == BexNetNameUnchecked && member.empty()) return true;
    errType_ = errType;
    return errType == BexNetNameOk;
}

} // namespace bexa::detail
