// Look-ups in one table of a keyed resource file, for small settings files whose rows are lists of words.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/yrsc/keyed_file.h"

#include <memory>

// Columns are counted from 1.
class BEXA_API SLProperty {
public:
    // No table. A copy, and the target of an assignment, share the table of the source; it ends with the last of them.
    SLProperty() = default;

    // Reads the table of this key in place of the one held. False, with no table held, for a file that may not be
    // read, a missing key, and a value that is no table.
    unsigned long read(const char* path, const char* key);

    // The member in column `valueColumn` of the first row whose member in `keyColumn` is `word`, byte by byte; null
    // counts as an empty text. Rows that are no list, or too short for the key, are passed over. Null if there is no
    // such row, if it is too short for the value, for a column 0, and without a table. Owned by the table, and so valid
    // until the next `read`.
    const char* getStr(const char* word, unsigned keyColumn, unsigned valueColumn) const;
    // The number that `getStr` begins with: 0 if there is none, saturated if no int holds it.
    int getInt(const char* word, unsigned keyColumn, unsigned valueColumn) const;
    // Whether `getStr` gives "ON", in any case of letters.
    unsigned long getBool(const char* word, unsigned keyColumn, unsigned valueColumn) const;

private:
    std::shared_ptr<YioRscValue> table_;
};
