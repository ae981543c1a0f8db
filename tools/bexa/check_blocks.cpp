#include "tools/bexa/check_rules.h"

#include "bexa/names/bundle_name.h"
#include "bexa/store/data_file.h"

#include <set>
#include <string>
#include <string_view>

namespace tool {
namespace {

void checkPins(const BexBlockFile& block, const std::string& path, const BexDatarc& resource,
               Findings& findings) {
    const BexBlockPinAssignTable& pins = block.purePinAssignTable();
    for (int i = 0; i < pins.size(); ++i) {
        const BexBlockPinAssign& pin = pins.at(i);
        if (BexChkBundleName(pin.sigN(), resource).isValid()) continue;
        findings.add(Fault::BadPinName, path + ": pin " + std::to_string(pin.figId()),
                     pin.sigN() == nullptr ? "" : pin.sigN());
    }
}

// A row that isn't good stands in the expanded table too, maybe without a name.
void checkSignals(const BexBlockFile& block, const std::string& path, Findings& findings) {
    const BexBlockPinAssignTable& pins = block.pinAssignTable();
    std::set<std::string_view> signals;
    for (int i = 0; i < pins.size(); ++i) {
        const char* signal = pins.at(i).sigN();
        if (signal == nullptr || *signal == '\0') continue;
        if (!signals.insert(signal).second) findings.add(Fault::SignalTwice, path, signal);
    }
}

using Search = YString (*)(const char*, const BexDatarc&, int&);

bool isMissing(const char* name, Search search, const BexDatarc& resource) {
    int index = -1;
    if (name == nullptr) return false;
    search(name, resource, index);
    return index < 0;
}

void checkBlock(const std::string& path, const BexDatarc* resource, Findings& findings) {
    const BlockFile block = openBlockFile(path, resource);
    if (!block) findings.add(Fault::BlockUnreadable, path);
    if (!block || resource == nullptr) return;
    checkPins(*block, path, *resource, findings);
    checkSignals(*block, path, findings);
    if (isMissing(block->circuitName(), BexDataFile::searchCirc, *resource)) {
        findings.add(Fault::CircuitOfBlockMissing, path, block->circuitName());
    }
    if (isMissing(block->symbName(), BexDataFile::searchSymb, *resource)) {
        findings.add(Fault::SymbolOfBlockMissing, path, block->symbName());
    }
}

} // namespace

void checkBlocks(const ReachedCircuit& circuit, Findings& findings) {
    for (const std::string& path : circuit.blocks) checkBlock(path, circuit.resource.get(), findings);
    for (const Circle& circle : circuit.circles) {
        findings.add(Fault::BlockHoldsItself, circle.block, circle.way);
    }
}

} // namespace tool
