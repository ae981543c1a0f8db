// Makes the empty tree of a new circuit.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/store/rcpath.h"

// A circuit to be: its path and its resource path list.
class BEXA_API BexCircuitCreator {
public:
    BexCircuitCreator() = default;
    // Null counts as empty.
    BexCircuitCreator(const char* path, const BexRcpathTable& rcpathTable)
        : path_(path),
          rcpathTable_(rcpathTable) {}

    // The entries of the resource path list, in the order in which they will be written.
    const BexRcpathTable& rcpathTable() const { return rcpathTable_; }
    void rcpathTable(const BexRcpathTable& table) { rcpathTable_ = table; }

    // Makes the circuit directory under the canonical spelling of the path, with the file "rcpath" and the directories
    // "log", "drc", "ext" and "frame", each holding a "readme.txt": an empty directory would count as unreadable.
    // There are no sheets and no other files, and the directory above must exist.
    //
    // 0 if something stands at the path, if the path has no suffix ".cir", or if the list or a directory can't be made.
    // What was made until then stays: with a wrong suffix that is the directory alone. A note that can't be written is
    // no failure.
    unsigned long create();
    static unsigned long create(const char* path, const BexRcpathTable& rcpathTable);

private:
    YString path_;
    BexRcpathTable rcpathTable_;
};
