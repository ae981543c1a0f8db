#pragma once

#include "bexa/circuitrc/datarc.h"
#include "bexa/store/rcpath_file.h"

#include <memory>
#include <string>

namespace tool {

struct CloseDatarc {
    void operator()(BexDatarc* resource) const { BexDatarc::close(resource, BexCloseDiscard); }
};
using Datarc = std::unique_ptr<BexDatarc, CloseDatarc>;

struct ClosePathList {
    void operator()(BexRcpathIO* list) const { BexRcpathIO::close(list, BexCloseDiscard); }
};
using PathList = std::unique_ptr<BexRcpathIO, ClosePathList>;

// The path of a circuit as the library wants it: a shell likes to complete it with a separator at the end,
// which would hide the suffix. Throws a Problem unless `path` is the directory of a circuit.
std::string circuitAt(std::string path);

// The resource path list of a circuit, null if it has none. Throws a Problem if it can't be read.
PathList openPathList(const std::string& circuit);

// Where a circuit's settings come from.
enum class ResourceOrigin {
    CircuitList, // the circuit's own resource path list names the file
    System,      // the installation's, for a circuit that names none
    BuiltIn,     // no file at all: what the library has built in
};

struct ResourcePlace {
    std::string path; // for BuiltIn the path where the system's file would be
    ResourceOrigin origin;
};
ResourcePlace placeOfResource(const std::string& circuit);

// The resource of a circuit, read only. Throws a Problem if its file is there but can't be read.
Datarc openResource(const ResourcePlace& place, const std::string& circuit);

// The resource of the circuit at `path`, or for an empty path the system's or the built-in settings, as they
// hold in `directory`. Throws a Problem if no circuit is there, or if a file can't be read.
Datarc openResourceFor(const std::string& path, const std::string& directory);

} // namespace tool
