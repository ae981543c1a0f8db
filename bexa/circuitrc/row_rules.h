// The rules by which a circuit resource fills the rows of its tables, whoever gives them. Internal.
#pragma once

#include "bexa/circuitrc/resource_tables.h"

#include <optional>
#include <utility>

namespace bexa::detail {

// The index that a row setter works with. Kept on purpose: an index above 65535 reaches the row of its low 16 bits.
inline short lowBits(unsigned long index) {
    return static_cast<short>(index);
}

// In both style tables a number that the row gives no role is 0. The index says how many lengths of a line
// style count.
inline BexLineStyleElem lineStyleRow(int index, double length1, double length2, double length3,
                                     YString name) {
    if (index == 0) return {0.0, 0.0, 0.0, std::move(name)};
    return {length1, length2, index == 1 ? 0.0 : length3, std::move(name)};
}

// The type says how many sets of lines a fill style has.
inline BexFillStyleElem fillStyleRow(int type, double pitch1, double pitch2, double angle1, double angle2,
                                     YString name) {
    const auto stored = static_cast<unsigned short>(type);
    if (type < 2) return {stored, 0.0, 0.0, 0.0, 0.0, std::move(name)};
    if (type == 2) return {stored, pitch1, 0.0, angle1, 0.0, std::move(name)};
    return {stored, pitch1, pitch2, angle1, angle2, std::move(name)};
}

// Makes the row at `index` exist. What `gap` gives fills the rows behind the last one; it gives nothing where
// there is no row 0 to repeat.
template <class Table, class Gap>
unsigned long provideRow(Table& table, short index, int limit, Gap gap) {
    if (index < 0 || index >= limit) return 0;
    if (index < table.size()) return 1;
    const std::optional<typename Table::Element> row = gap();
    if (!row) return 0;
    while (table.size() <= index) table.append(*row);
    return 1;
}

} // namespace bexa::detail
