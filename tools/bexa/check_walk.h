#pragma once

#include "tools/bexa/circuit_resource.h"

#include "bexa/design/block_file.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tool {

struct CloseBlockFile {
    void operator()(BexBlockFile* file) const { BexBlockFile::close(file, BexCloseDiscard, 1); }
};
using BlockFile = std::unique_ptr<BexBlockFile, CloseBlockFile>;

// Null if the file can't be read. Without a resource the delimiters are those of the system.
BlockFile openBlockFile(const std::string& path, const BexDatarc* resource);

// A block whose circuit holds it, directly or through others: "a.cir > b.cir > a.cir".
struct Circle {
    std::string block;
    std::string way;
};

struct ReachedCircuit {
    std::string path;
    Datarc resource; // null if it, or the list that leads to it, can't be read
    std::vector<std::string>
        blocks; // its own block file, if there is one, and those of the blocks on its sheets
    std::vector<Circle> circles;
};

// A circuit and the circuits of the blocks on its sheets, and of those on theirs, each once. A block is on a sheet if
// the sheet has its name as a word; it is found, like its circuit, in the directories of contents of the circuit's
// resource. Calls `progress` with each path before it looks at it.
std::vector<ReachedCircuit> reachedCircuits(const std::string& circuit,
                                            const std::function<void(const std::string&)>& progress);

// The names of the plain files in a directory, in order. Throws a Problem if it can't be read.
std::vector<std::string> plainFilesIn(const std::string& directory);

} // namespace tool
