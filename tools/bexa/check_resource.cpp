#include "tools/bexa/check_rules.h"
#include "tools/bexa/problem.h"

#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <string>

namespace tool {
namespace {

// The resource itself needn't be there, except that of the circuit: its own check tells of it.
void checkEntries(const std::string& circuit, const BexRcpathIO& list, Findings& findings) {
    for (int i = 0; i < list.rcpathCount(); ++i) {
        BexRcpath entry;
        list.rcpath(i, entry);
        const YString file =
            BexDataFile::fileName(circuit.c_str(), BexDataFile::BexResourceByPath, entry.name);
        if (entry.name == "bexdata" || BexFile::isDir(YPathName(file).dirname())) continue;
        findings.add(Fault::EntryLeadsNowhere, std::string(list.pathname()), std::string(entry.name));
    }
}

} // namespace

void checkResource(const ReachedCircuit& circuit, Findings& findings) {
    try {
        const PathList list = openPathList(circuit.path);
        if (list) checkEntries(circuit.path, *list, findings);
    } catch (const Problem&) {
        const YString path = BexDataFile::fileName(circuit.path.c_str(), BexDataFile::BexRcpathFile, nullptr);
        findings.add(Fault::ListUnreadable, std::string(path));
        return;
    }
    if (circuit.resource) return;
    const std::string path = placeOfResource(circuit.path).path;
    const bool isThere = BexFile::isExist(path.c_str()) != 0;
    findings.add(isThere ? Fault::ResourceUnreadable : Fault::ResourceMissing, path);
}

} // namespace tool
