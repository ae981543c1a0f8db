#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"
#include "tools/bexa/value_fault.h"

#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/props/numeric_text.h"

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct Options {
    std::vector<std::string> values;
    std::string factor; // empty: the best one
};

// A form in which a good value can be written.
struct Form {
    const char* word;
    const char* description;
    bool (*rewrite)(YString& value, const Options& options);
    bool takesFactor;
    // What is told of a value that can't be written so.
    const char* failure;
    const char* remedy;
};

bool toNormal(YString& value, const Options&) {
    return BexCheckValue::optimizeExp(value) != 0;
}

bool toPlain(YString& value, const Options&) {
    return BexCheckValue::changeNum(value) != 0;
}

bool toFactor(YString& value, const Options& options) {
    if (options.factor.empty()) return BexCheckValue::changeFactor(value) != 0;
    return BexCheckValue::changeFactor(value, options.factor.c_str()) != 0;
}

// clang-format off
constexpr Form forms[] = {
    {"normal", "Prints each value in its normal form, one a line", toNormal, false,
     "has no normal form", "write it with digits, an exponent or a factor"},
    {"plain", "Prints each value as a plain decimal number, one a line", toPlain, false,
     "takes more than 20 zeros as a plain number", "see its normal form with bexa value normal"},
    {"factor", "Prints each value with the best factor or a chosen one, one a line", toFactor, true,
     "is too large or too small for the factor", "see its normal form with bexa value normal"},
};
// clang-format on

constexpr const char* goodValues = "write it like 47, 4.7k, 10meg, 1e-3, -5u or 5mil";

Json begin(const std::string& value, Output& out) {
    const std::string shown = out.systemText(value.c_str());
    const std::optional<ValueFault> fault = faultOf(value);
    if (fault) {
        out.report(finding("the value " + quoted(shown) + ' ' + fault->words,
                           "character " + std::to_string(fault->character), goodValues));
    }
    return {{"value", shown},
            {"valid", !fault},
            {"error", fault ? Json(fault->words) : Json()},
            {"character", fault ? Json(fault->character) : Json()}};
}

void addForm(Json& row, const std::string& value, const Form& form, const Options& options, Output& out) {
    YString text(value.c_str());
    if (form.rewrite(text, options)) {
        row[form.word] = out.systemText(text);
        return;
    }
    row["error"] = form.failure;
    out.report(finding("the value " + quoted(out.systemText(value.c_str())) + ' ' + form.failure,
                       "the command line", form.remedy));
}

void rewrite(const Form& form, const Options& options, Output& out) {
    Json rows = Json::array();
    for (const std::string& value : options.values) {
        Json row = begin(value, out);
        if (row["valid"].get<bool>()) addForm(row, value, form, options, out);
        if (out.form() == Output::Form::Text && row.contains(form.word)) {
            out.line(row[form.word].get_ref<const std::string&>());
        }
        rows.push_back(std::move(row));
    }
    if (out.form() == Output::Form::Json) out.print({{"values", std::move(rows)}});
}

Json tableOf(const Json& rows) {
    Json table = Json::array();
    for (const Json& row : rows) {
        table.push_back({{"value", row["value"]},
                         {"result", row["valid"].get<bool>() ? Json("good") : row["error"]},
                         {"character", row["character"]}});
    }
    return table;
}

void check(const Options& options, Output& out) {
    Json rows = Json::array();
    for (const std::string& value : options.values) rows.push_back(begin(value, out));
    out.print({{"values", out.form() == Output::Form::Json ? rows : tableOf(rows)}});
}

// A command within `bexa value`, for the caller to finish.
CLI::App* addSubcommand(CLI::App& command, const char* word, const char* description,
                        const std::shared_ptr<Options>& options) {
    CLI::App* subcommand = command.add_subcommand(word, description);
    subcommand->add_option("VALUE", options->values, "Numbers, with or without a factor")->required();
    return subcommand;
}

void addCheck(CLI::App& command, const std::shared_ptr<Options>& options, Request& request) {
    CLI::App* subcommand = addSubcommand(command, "check", "Tells of each value whether it is good", options);
    finishCommand(*subcommand, request, [options](Output& out) { check(*options, out); });
}

void addForm(CLI::App& command, const Form& form, const std::shared_ptr<Options>& options, Request& request) {
    CLI::App* subcommand = addSubcommand(command, form.word, form.description, options);
    if (form.takesFactor) {
        subcommand->add_option("--in", options->factor, "The factor, in place of the best one")
            ->type_name("FACTOR")
            ->check(CLI::IsMember({"f", "p", "n", "u", "m", "k", "K", "x", "M", "meg", "G", "T", "mil"}));
    }
    finishCommand(*subcommand, request, [&form, options](Output& out) { rewrite(form, *options, out); });
}

} // namespace

void addValueCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("value", "Checks values with engineering factors and rewrites them");
    command->require_subcommand(1);
    const auto options = std::make_shared<Options>();
    addCheck(*command, options, request);
    for (const Form& form : forms) addForm(*command, form, options, request);
}

} // namespace tool
