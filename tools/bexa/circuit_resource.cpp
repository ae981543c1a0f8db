#include "tools/bexa/circuit_resource.h"

#include "tools/bexa/problem.h"

#include "bexa/store/data_file.h"
#include "bexa/store/file.h"
#include "bexa/store/install_roots.h"

namespace tool {
namespace {

ResourcePlace placeOfSystemResource() {
    const YString path = BexSysFile::fileName("bexdata", BexSysFile::Type(1));
    return {std::string(path), BexFile::isExist(path) ? ResourceOrigin::System : ResourceOrigin::BuiltIn};
}

} // namespace

std::string circuitAt(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    if (BexDataFile::fileType(path.c_str()) != BexDataFile::BexCircuitFile) {
        throw unusable("not a circuit", path, "give the path of a directory whose name ends in .cir");
    }
    if (!BexFile::isDir(path.c_str())) {
        throw unusable("no such circuit", path, "check the path; a circuit is a directory");
    }
    return path;
}

PathList openPathList(const std::string& circuit) {
    const YString path = BexDataFile::fileName(circuit.c_str(), BexDataFile::BexRcpathFile, nullptr);
    if (!BexFile::isExist(path)) return nullptr;
    PathList list(BexRcpathIO::open(path, BexOpenRead));
    if (!list) {
        throw unusable("the resource path list cannot be read", std::string(path),
                       "check that you may read it and that each line is NAME : \"DIRECTORY\"");
    }
    return list;
}

ResourcePlace placeOfResource(const std::string& circuit) {
    const YString path = BexDataFile::fileName(circuit.c_str(), BexDataFile::BexResourceByPath, "bexdata");
    if (path.length() > 0) return {std::string(path), ResourceOrigin::CircuitList};
    return placeOfSystemResource();
}

Datarc openResource(const ResourcePlace& place, const std::string& circuit) {
    // An object that is made for a new file and never saved holds the built-in settings.
    const auto mode = place.origin == ResourceOrigin::BuiltIn ? BexOpenCreate : BexOpenRead;
    Datarc resource(BexDatarc::open(place.path.c_str(), mode, circuit.c_str()));
    if (resource) return resource;
    if (!BexFile::isExist(place.path.c_str())) {
        throw unusable("the circuit resource is not there", place.path,
                       "put it there, or correct the entry bexdata in the circuit's rcpath");
    }
    throw unusable("the circuit resource cannot be read", place.path,
                   "check that you may read it, that each table has the right number of columns, and that "
                   "each value fits its key");
}

Datarc openResourceFor(const std::string& path, const std::string& directory) {
    if (path.empty()) return openResource(placeOfSystemResource(), directory);
    const std::string circuit = circuitAt(path);
    openPathList(circuit); // with a broken one the system's resource would take the place of the circuit's
    return openResource(placeOfResource(circuit), circuit);
}

} // namespace tool
