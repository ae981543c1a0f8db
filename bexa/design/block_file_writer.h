// Writes a block file. Internal.
#pragma once

#include "bexa/foundation/rsc_entry_writers.h"

class BexBlockFile;
class BexBlockPinAssignTable;

namespace bexa::detail {

// The text of the file, with either of its tables.
RscText blockText(const BexBlockFile& file, const BexBlockPinAssignTable& pins);

} // namespace bexa::detail
