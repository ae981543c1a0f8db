#include "bexa/design/circuit_creator.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"
#include "bexa/store/rcpath_file.h"

#include <algorithm>
#include <string_view>

namespace os = bexa::detail::os;

namespace {

struct Directory {
    BexDataFile::Type kind;
    std::string_view note;
};

// In the order of making.
constexpr Directory directories[] = {
    {BexDataFile::BexLogDir, "This is a directory to which error messages are output.\n"},
    {BexDataFile::BexDrcDir, "This is a directory to which DRC messages are output.\n"},
    {BexDataFile::BexExtDir, "This is a directory to which Netlist are output.\n"},
    {BexDataFile::BexFrameDir, "This is a directory to which Frame data are output.\n"},
};

bool writeList(const YString& file, const BexRcpathTable& table) {
    BexRcpathIO* list = BexRcpathIO::open(file, BexOpenCreate);
    if (!list) return false;
    list->rcpathTbl(table);
    return BexRcpathIO::close(list, BexCloseAuto);
}

bool makeDirectory(const BexDataFile& circuit, const Directory& directory) {
    const YString path = circuit.fileName(directory.kind, nullptr);
    if (!BexFile::mkdir(path)) return false;
    os::writeWholeFile(YPathName(path, "readme.txt"), directory.note);
    return true;
}

} // namespace

unsigned long BexCircuitCreator::create() {
    const BexDataFile circuit(BexFile::extChange(path_));
    if (!BexFile::mkdir(circuit.circuitDir())) return 0;
    const YString list = circuit.fileName(BexDataFile::BexRcpathFile, nullptr);
    if (list.length() == 0 || !writeList(list, rcpathTable_)) return 0;
    return std::ranges::all_of(directories,
                               [&](auto& directory) { return makeDirectory(circuit, directory); });
}

unsigned long BexCircuitCreator::create(const char* path, const BexRcpathTable& rcpathTable) {
    return BexCircuitCreator(path, rcpathTable).create();
}
