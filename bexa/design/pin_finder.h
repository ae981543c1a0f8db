// Finds a pin by its number or its name. Internal.
#pragma once

#include "bexa/design/block_pins.h"

#include <cstddef>
#include <vector>

namespace bexa::detail {

// Answers for one table which row is the first with a number, or with a name; -1 stands for none.
//
// A small table is walked. A larger one gets an index at the first question. Once a caller may hold the table, its
// rows can change unseen, and every question walks the table again: slower, never wrong.
class PinFinder {
public:
    int rowOf(const BexBlockPinAssignTable& table, unsigned figId);
    int rowOf(const BexBlockPinAssignTable& table, const char* sigN);

    void rowsMayChange();

private:
    // Ordered by code, equal codes by row.
    struct Entry {
        std::size_t code;
        int row;
    };
    using Index = std::vector<Entry>;

    template <class Matches>
    int find(const BexBlockPinAssignTable& table, Index& index, std::size_t code,
             std::size_t (*codeOf)(const BexBlockPinAssign&), Matches matches) const;

    bool rowsMayChange_ = false;
    Index byId_;
    Index byName_;
};

} // namespace bexa::detail
