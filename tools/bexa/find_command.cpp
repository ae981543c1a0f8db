#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"

#include "bexa/props/search_condition.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct Options {
    std::string condition;
    std::string type;
    std::vector<std::string> values;
};

// A type of values with the conditions that there are for it.
struct Type {
    const char* word;
    BexPropValueType type;
    const char* rules;
};

// clang-format off
constexpr Type types[] = {
    {"int",   BexPropTypeInt,   "write N, !N, N<M, N< or *, with digits only"},
    {"float", BexPropTypeFloat, "write N, !N, N<M, N< or *, with digits and points only, and M not longer than N"},
    {"text",  BexPropTypeText,  "write TEXT, !TEXT, A<B, A<, A=<B, or a pattern with one * or a second one at its end"},
};
// clang-format on

std::vector<std::string> typeWords() {
    std::vector<std::string> words;
    for (const Type& type : types) words.emplace_back(type.word);
    return words;
}

const Type& typeOf(const std::string& word) {
    return *std::find_if(std::begin(types), std::end(types),
                         [&word](const Type& type) { return type.word == word; });
}

void findValues(const Options& options, Output& out) {
    const Type& type = typeOf(options.type);
    const std::string shown = out.systemText(options.condition.c_str());
    const BexSearch search(options.condition.c_str(), type.type);
    if (!search.isValid()) {
        throw finding("the condition " + quoted(shown) + " is refused", "the command line", type.rules);
    }
    Json rows = Json::array();
    for (const std::string& value : options.values) {
        const std::string text = out.systemText(value.c_str());
        const bool meets = search.contains(value.c_str()) != 0;
        if (meets && out.form() == Output::Form::Text) out.line(text);
        rows.push_back({{"value", text}, {"meets", meets}});
    }
    if (out.form() == Output::Form::Text) return;
    out.print({{"condition", shown}, {"type", type.word}, {"values", std::move(rows)}});
}

} // namespace

void addFindCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("find", "Prints the values that meet a search condition");
    const auto options = std::make_shared<Options>();
    command->add_option("CONDITION", options->condition, "Such as 5, !5, 3<9, 3< or R*")->required();
    command->add_option("VALUE", options->values, "Values of a property")->required();
    command->add_option("--type", options->type, "The type of the values")
        ->required()
        ->check(CLI::IsMember(typeWords()));
    finishCommand(*command, request, [options](Output& out) { findValues(*options, out); });
}

} // namespace tool
