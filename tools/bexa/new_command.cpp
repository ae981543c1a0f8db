#include "tools/bexa/circuit_resource.h"
#include "tools/bexa/command.h"
#include "tools/bexa/listed_resources.h"

#include "bexa/design/circuit_creator.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/circuit_dir.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

struct Options {
    std::string path;
    std::vector<std::string> entries; // NAME=DIR
};

constexpr bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == 0x7F;
}

// A name stands bare in the list, a directory in quotes; both are read into a buffer of this size.
constexpr int longestText = 1022;

bool isGoodName(std::string_view name) {
    return !name.empty() && name.size() <= longestText && name.find_first_of(" {}:\"#") == name.npos &&
           std::none_of(name.begin(), name.end(), isControl);
}

bool isGoodDirectory(const BexRcpath& entry) {
    const std::string_view directory = entry.rawPath.view();
    return !directory.empty() && directory.size() <= longestText && directory.find('"') == directory.npos &&
           std::none_of(directory.begin(), directory.end(), isControl);
}

BexRcpath entryOf(const std::string& text, const Output& out) {
    const std::size_t sign = text.find('=');
    const std::string name = text.substr(0, sign);
    BexRcpath entry(name.c_str(), sign == std::string::npos ? "" : text.c_str() + sign + 1);
    if (isGoodName(name) && isGoodDirectory(entry)) return entry;
    throw unusable("not an entry for the resource path list", out.systemText(text.c_str()),
                   "write it NAME=DIRECTORY, such as bexdata=./resources, without quotes in it and no blanks "
                   "or any of { } : # in the name");
}

BexRcpathTable tableOf(const std::vector<std::string>& texts, const Output& out) {
    BexRcpathTable table;
    for (const std::string& text : texts) {
        const BexRcpath entry = entryOf(text, out);
        for (int i = 0; i < table.size(); ++i) {
            if (entry.compare(table.at(i)) != 0) continue;
            throw unusable("the name is given twice", out.systemText(entry.name),
                           "give each resource one directory");
        }
        table.append(entry);
    }
    return table;
}

// The path under which the library will make the circuit. Throws a Problem if it can't.
std::string pathForNew(std::string path, const Output& out) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    const std::string shown = out.systemText(path.c_str());
    if (BexDataFile::fileType(path.c_str()) != BexDataFile::BexCircuitFile) {
        throw unusable("not the name of a circuit", shown, "give a path that ends in .cir");
    }
    const YString canonical = BexFile::extChange(path.c_str());
    if (BexFile::isExist(canonical)) {
        throw unusable("something stands there already", out.systemText(canonical), "give another name");
    }
    const YPathName parent = YPathName(canonical).dirname();
    if (!BexFile::isDir(parent)) {
        throw unusable("no such directory", out.systemText(parent), "make it first, or check the path");
    }
    return std::string(canonical);
}

void makeCircuit(const Options& options, Output& out) {
    const std::string path = pathForNew(options.path, out);
    const BexRcpathTable table = tableOf(options.entries, out);
    const std::string shown = out.systemText(path.c_str());
    if (!BexCircuitCreator::create(path.c_str(), table)) {
        const bool isBegun = BexFile::isExist(path.c_str()) != 0;
        throw unusable(isBegun ? "the circuit could not be made whole" : "the circuit cannot be made", shown,
                       isBegun ? "look at what stands there now; if it is what this run began, remove it, "
                                 "make room and run again"
                               : "check that you may write in its directory and that there is room");
    }
    const BexCirDir circuit(path.c_str());
    out.print({
        {"circuit", shown},
        {"readable", circuit.IsReadableCircuit() != 0},
        {"editable", circuit.IsEditableCircuit() != 0},
        {"rcpath", listedResources(path, out)},
    });
}

} // namespace

void addNewCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("new", "Makes an empty circuit");
    const auto options = std::make_shared<Options>();
    command->add_option("PATH.cir", options->path, "The directory of the circuit to be")->required();
    command
        ->add_option("--path", options->entries,
                     "An entry of its resource path list; may be given more than once")
        ->type_name("NAME=DIR")
        ->allow_extra_args(false);
    finishCommand(*command, request, [options](Output& out) { makeCircuit(*options, out); });
}

} // namespace tool
