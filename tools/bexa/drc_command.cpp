#include "tools/bexa/command.h"
#include "tools/bexa/text_file.h"

#include "bexa/batch/design_rule_resource.h"
#include "bexa/foundation/ycore/text_compare.h"
#include "bexa/foundation/yrsc/keyed_file.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

// In the order of their numbers.
// clang-format off
constexpr const char* checkKeys[] = {
    "OpenPin",          "OpenNode",           "FanOut",            "NearNet",
    "NetlabelPosition", "DuplicateReference", "DuplicateNetLabel", "DuplicateProperty",
    "LackingProperty",  "ShortNet",           "UnmatchBus",        "PowerGround",
};
// clang-format on
static_assert(std::size(checkKeys) == DrcResource::PowerGround + 1);

struct TextParameter {
    int check;
    const char* word;
    YString DrcResource::*field;
};

constexpr TextParameter textParameters[] = {
    {DrcResource::FanOut, "count", &DrcResource::fanoutCount},
    {DrcResource::NearNet, "clearance", &DrcResource::nearNetClearance},
    {DrcResource::NetlabelPosition, "clearance", &DrcResource::labelClearance},
    {DrcResource::DuplicateReference, "mode", &DrcResource::refdupMode},
    {DrcResource::DuplicateProperty, "focus", &DrcResource::propertyFocus},
};

// What a file says of a check, null if nothing.
using Entry = std::unique_ptr<YioRscValue>;

// Whether the reading of the check ends at this row.
bool endsReading(int check, YioRscValue& cell) {
    const YioRscList* row = cell.list();
    if (row == nullptr) return true;
    return check == DrcResource::LackingProperty && row->count() == 2 &&
           Ystricmp(row->value(0)->string(), "focus") == 0;
}

std::optional<unsigned> rowThatEndsReading(int check, const YioRscTable& table) {
    for (unsigned row = 0; row < table.rowCount(); ++row) {
        if (endsReading(check, *table.value(row, 0))) return row;
    }
    return std::nullopt;
}

// The library passes over what it doesn't understand, without a word.
void reportFaults(int check, YioRscValue& entry, const std::string& shown, Output& out) {
    const std::string key = checkKeys[check];
    const YioRscTable* table = entry.table();
    if (table == nullptr) {
        out.report(
            finding("the check " + key + " is no table", shown, "write it as " + key + " { ( switch ON ) }"));
        return;
    }
    const auto row = rowThatEndsReading(check, *table);
    if (!row) return;
    out.report(finding(
        "row " + std::to_string(*row + 1) + " of " + key + " is malformed, and what follows it is lost",
        shown, "write it in parentheses: a word and its value, and for focus in LackingProperty two"));
}

Json checkRows(const DrcResource& rules, const std::string& path, const std::string& shown, Output& out) {
    const YioRscFile file(path.c_str());
    Json rows = Json::array();
    bool isAnyThere = false;
    for (int check = 0; check < rules.checkName.size(); ++check) {
        const Entry entry(file.value(checkKeys[check]));
        if (entry) reportFaults(check, *entry, shown, out);
        isAnyThere = isAnyThere || entry;
        rows.push_back({{"check", checkKeys[check]},
                        {"name", out.resourceText(rules.checkName.at(check))},
                        {"inFile", entry != nullptr},
                        {"switch", out.resourceText(rules.checkSwitch.at(check))},
                        {"color", out.resourceText(rules.checkColor.at(check))}});
    }
    if (!isAnyThere) {
        out.report(finding("none of the checks stands in the file", shown,
                           "check that it is a design-rule resource; the built-in settings are shown"));
    }
    return rows;
}

// The parameters in the order of their checks.
class ParameterRows {
public:
    explicit ParameterRows(const Output& out) : out_(out) {}

    void add(int check, const char* word, const char* value, Json second = {}) {
        rows_.push_back({{"check", checkKeys[check]},
                         {"word", word},
                         {"value", out_.resourceText(value)},
                         {"second", std::move(second)}});
    }
    void addOf(const DrcResource& rules, int check) {
        for (const TextParameter& text : textParameters) {
            if (text.check == check) add(check, text.word, rules.*text.field);
        }
        if (check == DrcResource::OpenPin) addPinKinds(rules);
        if (check == DrcResource::NearNet) add(check, "connectPin", rules.connectPin ? "ON" : "OFF");
        if (check == DrcResource::LackingProperty) addLackingFocus(rules);
    }
    Json take() { return std::move(rows_); }

private:
    void addPinKinds(const DrcResource& rules) {
        for (int i = 0; i < rules.pinKind.size(); ++i)
            add(DrcResource::OpenPin, "pinKind", rules.pinKind.at(i));
    }
    void addLackingFocus(const DrcResource& rules) {
        for (int i = 0; i < rules.lackingFocusName.size(); ++i) {
            add(DrcResource::LackingProperty, "focus", rules.lackingFocusName.at(i),
                out_.resourceText(rules.lackingFocusValue.at(i)));
        }
    }

    const Output& out_;
    Json rows_ = Json::array();
};

Json parameterRows(const DrcResource& rules, const Output& out) {
    ParameterRows rows(out);
    for (int check = 0; check < rules.checkName.size(); ++check) rows.addOf(rules, check);
    return rows.take();
}

void showRules(const std::string& path, Output& out) {
    const std::string shown = out.systemText(path.c_str());
    contentOf(path, shown); // the library takes a file that can't be read for an empty one
    DrcResource rules;
    if (!rules.load(path.c_str())) throw cannotRead(shown);
    Json checks = checkRows(rules, path, shown, out);
    out.print({{"file", shown}, {"checks", std::move(checks)}, {"parameters", parameterRows(rules, out)}});
}

} // namespace

void addDrcCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("drc", "Shows the settings of the design-rule check in a file");
    const auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "A design-rule resource")->required();
    finishCommand(*command, request, [path](Output& out) { showRules(*path, out); });
}

} // namespace tool
