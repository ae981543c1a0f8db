#include "tools/bexa/listed_resources.h"

#include "tools/bexa/circuit_resource.h"

#include "bexa/store/data_file.h"
#include "bexa/store/file.h"
#include "bexa/store/rcpath.h"

namespace tool {

Json listedResources(const std::string& circuit, Output& out) {
    Json rows = Json::array();
    PathList list;
    try {
        list = openPathList(circuit);
    } catch (const Problem& problem) {
        out.report(problem);
    }
    for (int i = 0; list && i < list->rcpathCount(); ++i) {
        BexRcpath entry;
        list->rcpath(i, entry);
        const YString file =
            BexDataFile::fileName(circuit.c_str(), BexDataFile::BexResourceByPath, entry.name);
        rows.push_back({{"name", out.resourceText(entry.name)},
                        {"path", out.resourceText(entry.rawPath)},
                        {"leadsTo", out.systemText(file)},
                        {"present", BexFile::isExist(file) != 0}});
    }
    return rows;
}

} // namespace tool
