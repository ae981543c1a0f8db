#include "tools/bexa/circuit_resource.h"
#include "tools/bexa/circuit_settings.h"
#include "tools/bexa/command.h"
#include "tools/bexa/documents.h"
#include "tools/bexa/listed_resources.h"

#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/access_snapshot.h"
#include "bexa/store/circuit_dir.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tool {
namespace {

const char* wordOf(ResourceOrigin origin) {
    constexpr const char* words[] = {"rcpath", "system", "built-in settings"};
    return words[static_cast<std::size_t>(origin)];
}

int takeSheet(void* sheets, const char* path) {
    static_cast<std::vector<std::string>*>(sheets)->emplace_back(path);
    return 0;
}

// Every sheet by its number; the net file lies beside its sheet, under the same number.
Json sheetsOf(const std::string& circuit, const Output& out) {
    std::vector<std::string> paths;
    BexDataFile::enumSheetNames(circuit.c_str(), takeSheet, &paths);
    std::sort(paths.begin(), paths.end(), [](const std::string& a, const std::string& b) {
        const int left = BexDataFile::sheetNo(a.c_str());
        const int right = BexDataFile::sheetNo(b.c_str());
        return left != right ? left < right : a < b;
    });
    Json rows = Json::array();
    for (const std::string& path : paths) {
        const int number = BexDataFile::sheetNo(path.c_str());
        const YString net = BexDataFile::sheetNetName(circuit.c_str(), static_cast<unsigned>(number));
        rows.push_back(
            {{"number", number},
             {"sheet", out.systemText(YPathName(path.c_str()).basename())},
             {"net", BexFile::isExist(net) ? Json(out.systemText(YPathName(net).basename())) : Json()}});
    }
    return rows;
}

struct Part {
    const char* name;
    BexDataFile::Type type;
};

// What a circuit is made of besides its sheets.
constexpr Part directories[] = {
    {"log", BexDataFile::BexLogDir},
    {"ext", BexDataFile::BexExtDir},
    {"drc", BexDataFile::BexDrcDir},
    {"frame", BexDataFile::BexFrameDir},
};
constexpr Part files[] = {
    {"rcpath", BexDataFile::BexRcpathFile},
    {"instnc", BexDataFile::BexInstanceFile},
    {"enetdb", BexDataFile::BexEnetdbFile},
    {"blockFile", BexDataFile::BexBlockDataFile},
};

const char* stateOf(bool exists, bool readable) {
    if (!exists) return "missing";
    return readable ? "good" : "not readable";
}

Json partsOf(const std::string& circuit, const Output& out) {
    Json rows = Json::array();
    const auto add = [&](const Part& part, const YString& path, const char* state) {
        rows.push_back({{"part", part.name}, {"path", out.systemText(path)}, {"state", state}});
    };
    for (const Part& part : directories) {
        const YString path = BexDataFile::fileName(circuit.c_str(), part.type, nullptr);
        const BexSecDirectory found(path);
        add(part, path, stateOf(found.IsExist() != 0, found.IsReadable() != 0));
    }
    for (const Part& part : files) {
        const YString path = BexDataFile::fileName(circuit.c_str(), part.type, nullptr);
        const BexSecFile found(path);
        add(part, path, stateOf(found.IsExist() != 0, found.IsReadable() != 0));
    }
    return rows;
}

void addResource(Json& document, const std::string& circuit, Output& out) {
    const ResourcePlace place = placeOfResource(circuit);
    const bool hasFile = place.origin != ResourceOrigin::BuiltIn;
    document["resource"] = hasFile ? Json(out.systemText(place.path.c_str())) : Json();
    document["foundThrough"] = wordOf(place.origin);
    try {
        const Datarc resource = openResource(place, circuit);
        document["settings"] = settingsOf(*resource, out);
        addTables(document, *resource, out);
    } catch (const Problem& problem) {
        // What the circuit holds is worth showing all the same.
        out.report(problem);
    }
}

} // namespace

Json circuitDocument(const std::string& path, Output& out) {
    const std::string circuit = circuitAt(path);
    const BexCirDir directory(circuit.c_str());
    Json document = {
        {"circuit", out.systemText(circuit.c_str())},
        {"readable", directory.IsReadableCircuit() != 0},
        {"editable", directory.IsEditableCircuit() != 0},
        {"sheets", sheetsOf(circuit, out)},
        {"parts", partsOf(circuit, out)},
        {"rcpath", listedResources(circuit, out)},
    };
    addResource(document, circuit, out);
    return document;
}

void addCircuitCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("circuit", "Shows what a circuit holds, its settings and its tables");
    const auto circuit = std::make_shared<std::string>();
    command->add_option("PATH.cir", *circuit, "The directory of the circuit")->required();
    finishCommand(*command, request, [circuit](Output& out) { out.print(circuitDocument(*circuit, out)); });
}

} // namespace tool
