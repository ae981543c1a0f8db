#include "tools/bexa/circuit_resource.h"
#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"

#include "bexa/names/bundle_name.h"
#include "bexa/names/name_compression.h"

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct Options {
    std::vector<std::string> names;
    std::string circuit;
};

// A form of the command: what it tells about a good name, and how it shows it in columns.
struct Form {
    const char* word;
    const char* description;
    void (*tell)(Json& row, const BexChkBundleName& bundle, const BexDatarc& rc, const Output& out);
    void (*show)(const Json& rows, Output& out);
};

Json begin(const std::string& name, const BexChkBundleName& bundle, const Output& out) {
    const bool valid = bundle.isValid() != 0;
    return {{"name", out.systemText(name.c_str())},
            {"valid", valid},
            {"error", valid ? Json() : Json(wordsOf(bundle.errType()))}};
}

void tellSignals(Json& row, const BexChkBundleName& bundle, const BexDatarc&, const Output& out) {
    Json& signals = row["signals"] = Json::array();
    for (int member = 0; member < bundle.arrayCount(); ++member) {
        const BexChkArrayName& array = bundle.at(member);
        for (int i = 0; i < array.sigCount(); ++i) signals.push_back(out.systemText(array.sigName(i)));
    }
}

void showSignals(const Json& rows, Output& out) {
    for (const Json& row : rows) {
        for (const Json& signal : row.value("signals", Json::array())) {
            out.line(signal.get_ref<const std::string&>());
        }
    }
}

void tellCompressed(Json& row, const BexChkBundleName& bundle, const BexDatarc& rc, const Output& out) {
    BexChkPressName press(bundle.bundleName(), rc);
    row["compressed"] = out.systemText(press.newName());
}

void showCompressed(const Json& rows, Output& out) {
    for (const Json& row : rows) {
        if (row.contains("compressed")) out.line(row["compressed"].get_ref<const std::string&>());
    }
}

void tellCounts(Json& row, const BexChkBundleName& bundle, const BexDatarc&, const Output&) {
    row["arrays"] = bundle.arrayCount();
    row["signals"] = bundle.sigCount();
}

void showCounts(const Json& rows, Output& out) {
    Json table = Json::array();
    for (const Json& row : rows) {
        const bool valid = row["valid"].get<bool>();
        table.push_back({{"name", row["name"]},
                         {"arrays", row.value("arrays", 0)},
                         {"signals", row.value("signals", 0)},
                         {"result", valid ? Json("good") : row["error"]}});
    }
    out.print({{"names", table}});
}

constexpr Form forms[] = {
    {"expand", "Prints each signal that the names stand for, one a line", tellSignals, showSignals},
    {"compress", "Prints each name in its shortest notation, one a line", tellCompressed, showCompressed},
    {"check", "Tells of each name whether it is good", tellCounts, showCounts},
};

void work(const Form& form, const Options& options, Output& out) {
    const Datarc rc = openResourceFor(options.circuit, ".");
    Json rows = Json::array();
    for (const std::string& name : options.names) {
        const BexChkBundleName bundle(name.c_str(), *rc);
        Json row = begin(name, bundle, out);
        if (bundle.isValid()) {
            form.tell(row, bundle, *rc, out);
        } else {
            out.report(badName("the name " + quoted(out.systemText(name.c_str())), bundle.errType(),
                               "the command line"));
        }
        rows.push_back(std::move(row));
    }
    if (out.form() == Output::Form::Json) {
        out.print({{"names", std::move(rows)}});
    } else {
        form.show(rows, out);
    }
}

} // namespace

void addNameCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("name", "Expands, compresses or checks names of signals, arrays and bundles");
    command->require_subcommand(1);
    for (const Form& form : forms) {
        CLI::App* subcommand = command->add_subcommand(form.word, form.description);
        const auto options = std::make_shared<Options>();
        subcommand->add_option("NAME", options->names, "Signals, arrays or bundles")->required();
        subcommand->add_option("--circuit", options->circuit, "The circuit whose resource has the delimiters")
            ->type_name("PATH.cir");
        finishCommand(*subcommand, request, [&form, options](Output& out) { work(form, *options, out); });
    }
}

} // namespace tool
