#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"

#include "bexa/props/prop_value.h"

#include <memory>
#include <string>

namespace tool {
namespace {

// A row for each key of a group, in the order of the library's walk.
void addItems(Json& rows, const BexPropValue& value, const YString& group, const Output& out) {
    YString_Array keys, values;
    value.getValue(group, keys, values);
    for (int i = 0; i < keys.size(); ++i) {
        rows.push_back({{"group", out.systemText(group)},
                        {"key", out.systemText(keys.at(i))},
                        {"value", out.systemText(values.at(i))}});
    }
    if (keys.size() == 0) {
        rows.push_back({{"group", out.systemText(group)}, {"key", Json()}, {"value", Json()}});
    }
}

Json itemsOf(const BexPropValue& value, const Output& out) {
    YString_Array groups;
    value.getValue(groups);
    Json rows = Json::array();
    for (int i = 0; i < groups.size(); ++i) addItems(rows, value, groups.at(i), out);
    return rows;
}

void showExpression(const std::string& expression, Output& out) {
    const std::string shown = out.systemText(expression.c_str());
    BexPropValue value;
    const bool isValid = value.expand(expression.c_str()) != 0;
    if (!isValid) {
        out.report(finding("the expression " + quoted(shown) + " is refused", "the command line",
                           "write it like (PART (LENGTH 10) (TYPE \"SOP 8\"))"));
    }
    out.print({
        {"expression", shown},
        {"valid", isValid},
        {"plainWord", isValid && value.isGroup() == 0},
        {"groups", itemsOf(value, out)},
    });
}

} // namespace

void addPropCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("prop", "Reads property expressions");
    command->require_subcommand(1);
    CLI::App* show =
        command->add_subcommand("show", "Shows the groups, keys and values of a property expression");
    const auto expression = std::make_shared<std::string>();
    show->add_option("EXPR", *expression, "A property expression")->required();
    finishCommand(*show, request, [expression](Output& out) { showExpression(*expression, out); });
}

} // namespace tool
