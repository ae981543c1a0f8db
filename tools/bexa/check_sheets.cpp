#include "tools/bexa/check_rules.h"
#include "tools/bexa/problem.h"

#include "bexa/store/data_file.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace tool {
namespace {

constexpr std::string_view sheetSuffix = ".sht";
constexpr std::string_view netSuffix = ".net";

bool isCopy(std::string_view name) {
    return name.front() == '_' || name.front() == '#';
}

bool isSheetNumber(std::string_view stem) {
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    return stem.size() == 3 && stem != "000" && std::all_of(stem.begin(), stem.end(), isDigit);
}

// What is the matter with `name` for one of the two suffixes.
struct Pair {
    std::string_view suffix;
    std::string_view other;
    Fault otherIsMissing;
};
constexpr Pair pairs[] = {{sheetSuffix, netSuffix, Fault::NetFileMissing},
                          {netSuffix, sheetSuffix, Fault::SheetOfNetFileMissing}};

void checkNames(const std::string& circuit, const std::vector<std::string>& names, Findings& findings) {
    for (const std::string& name : names) {
        for (const Pair& pair : pairs) {
            if (!name.ends_with(pair.suffix) || isCopy(name)) continue;
            const std::string stem = name.substr(0, name.size() - pair.suffix.size());
            const std::string path = circuit + '/' + name;
            if (pair.suffix == sheetSuffix && !isSheetNumber(stem)) findings.add(Fault::BadSheetName, path);
            const bool hasOther =
                std::binary_search(names.begin(), names.end(), stem + std::string(pair.other));
            if (!hasOther) findings.add(pair.otherIsMissing, path);
        }
    }
}

} // namespace

// Numbers that are left out between two sheets are no fault.
void checkSheets(const ReachedCircuit& circuit, Findings& findings) {
    try {
        checkNames(circuit.path, plainFilesIn(circuit.path), findings);
    } catch (const Problem&) {
        findings.add(Fault::CircuitUnreadable, circuit.path);
    }
}

} // namespace tool
