#include "tools/bexa/check_rules.h"

#include "bexa/foundation/rsc_header.h"
#include "bexa/foundation/yrsc/token_reader.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

namespace tool {
namespace {

using Count = unsigned (BexDatarc::*)() const;

struct Default {
    std::string_view key;
    Count count; // of the rows of its table
};

// clang-format off
constexpr Default defaults[] = {
    {"defaultCompColor",       &BexDatarc::colorCount},
    {"defaultFrameColor",      &BexDatarc::colorCount},
    {"defaultNetColor",        &BexDatarc::colorCount},
    {"defaultBusColor",        &BexDatarc::colorCount},
    {"defaultLineColor",       &BexDatarc::colorCount},
    {"defaultCircleColor",     &BexDatarc::colorCount},
    {"defaultTextColor",       &BexDatarc::colorCount},
    {"defaultPropertyColor",   &BexDatarc::colorCount},
    {"defaultSymbSheetColor",  &BexDatarc::colorCount},
    {"defaultSchmSheetColor",  &BexDatarc::colorCount},
    {"defaultSymbFrameColor",  &BexDatarc::colorCount},
    {"defaultLineWidth",       &BexDatarc::lineWidthCount},
    {"defaultFrameLineWidth",  &BexDatarc::lineWidthCount},
    {"defaultNetLineWidth",    &BexDatarc::lineWidthCount},
    {"defaultBusLineWidth",    &BexDatarc::lineWidthCount},
    {"defaultCircleLineWidth", &BexDatarc::lineWidthCount},
    {"defaultLineStyle",       &BexDatarc::lineStyleCount},
    {"defaultFrameLineStyle",  &BexDatarc::lineStyleCount},
    {"defaultNetLineStyle",    &BexDatarc::lineStyleCount},
    {"defaultBusLineStyle",    &BexDatarc::lineStyleCount},
    {"defaultCircleLineStyle", &BexDatarc::lineStyleCount},
    {"defaultFillStyle",       &BexDatarc::fillStyleCount},
    {"defaultCircleFillStyle", &BexDatarc::fillStyleCount},
    {"defaultTextFont",        &BexDatarc::textSizeCount},
    {"defaultPropertyFont",    &BexDatarc::textSizeCount},
};
// clang-format on

bool isBelow(std::string_view value, unsigned count) {
    unsigned number = 0;
    const auto [end, failed] = std::from_chars(value.data(), value.data() + value.size(), number);
    return failed != std::errc::result_out_of_range && number < count;
}

} // namespace

// Reads the file itself: in a resource that is loaded, another index stands in the place of a wrong one.
void checkDefaults(const ReachedCircuit& circuit, Findings& findings) {
    constexpr unsigned longestToken = 1024;
    if (!circuit.resource || !BexFile::isExist(circuit.resource->fileName())) return;
    YioRscLoad reader(circuit.resource->fileName(), YioRscSjis, YioRscSjis);
    std::string key;
    for (auto token = reader.next(longestToken);
         token.type != YioRscLoad::TypeEnd && token.type != YioRscLoad::TypeInvalid;
         token = reader.next(longestToken)) {
        if (token.type == YioRscLoad::TypeKeyword) key = token.text;
        if (token.type != YioRscLoad::TypeValue) continue;
        const auto* row = std::find_if(std::begin(defaults), std::end(defaults),
                                       [&](const Default& known) { return known.key == key; });
        if (row == std::end(defaults)) continue;
        const unsigned count = (circuit.resource.get()->*row->count)();
        // Without a palette there is no table to lie in.
        if (count > 0 && !isBelow(token.text, count)) {
            findings.add(Fault::DefaultOutOfTable, circuit.resource->fileName(), key);
        }
    }
}

} // namespace tool
