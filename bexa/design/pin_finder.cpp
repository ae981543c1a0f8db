#include "bexa/design/pin_finder.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <tuple>

namespace bexa::detail {

namespace {

// Fewer rows than this are walked faster than an index is built.
constexpr int indexWorthwhile = 64;

std::size_t idCode(const BexBlockPinAssign& row) {
    return row.figId();
}

std::size_t textCode(std::string_view text) {
    return std::hash<std::string_view>()(text);
}

std::size_t nameCode(const BexBlockPinAssign& row) {
    return row.sigN() ? textCode(row.sigN()) : 0;
}

} // namespace

int PinFinder::rowOf(const BexBlockPinAssignTable& table, unsigned figId) {
    return find(table, byId_, figId, idCode,
                [figId](const BexBlockPinAssign& row) { return row.figId() == figId; });
}

int PinFinder::rowOf(const BexBlockPinAssignTable& table, const char* sigN) {
    const std::string_view name = sigN;
    return find(table, byName_, textCode(name), nameCode,
                [name](const BexBlockPinAssign& row) { return row.sigN() && row.sigN() == name; });
}

void PinFinder::rowsMayChange() {
    rowsMayChange_ = true;
    byId_ = {};
    byName_ = {};
}

template <class Matches>
int PinFinder::find(const BexBlockPinAssignTable& table, Index& index, std::size_t code,
                    std::size_t (*codeOf)(const BexBlockPinAssign&), Matches matches) const {
    const BexBlockPinAssign* rows = table();
    if (rowsMayChange_ || table.size() < indexWorthwhile) {
        const auto* end = rows + table.size();
        const auto* found = std::find_if(rows, end, matches);
        return found == end ? -1 : static_cast<int>(found - rows);
    }
    if (index.empty()) {
        index.reserve(static_cast<std::size_t>(table.size()));
        for (int row = 0; row < table.size(); ++row) index.push_back({codeOf(rows[row]), row});
        std::ranges::sort(index, {}, [](const Entry& entry) { return std::tie(entry.code, entry.row); });
    }
    auto entry = std::ranges::lower_bound(index, code, {}, &Entry::code);
    for (; entry != index.end() && entry->code == code; ++entry) {
        if (matches(rows[entry->row])) return entry->row;
    }
    return -1;
}

} // namespace bexa::detail
