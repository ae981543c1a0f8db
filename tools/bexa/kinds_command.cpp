#include "tools/bexa/command.h"

#include "bexa/design/comp_kind.h"
#include "bexa/store/file.h"

#include <memory>
#include <string>

namespace tool {
namespace {

struct CloseKinds {
    void operator()(BexCompKind* kinds) const { BexCompKind::close(kinds, BexCloseDiscard); }
};
using Kinds = std::unique_ptr<BexCompKind, CloseKinds>;

Kinds openKinds(const std::string& path) {
    if (!BexFile::isExist(path.c_str())) throw unusable("no such file", path, "check the path");
    Kinds kinds(BexCompKind::open(path.c_str(), BexOpenRead));
    if (!kinds) {
        throw unusable("the component kinds cannot be read", path,
                       "check that you may read it, that ComponentKind has 3 columns, and that no other key "
                       "than those of the headers stands in it");
    }
    return kinds;
}

void showKinds(const std::string& path, Output& out) {
    const Kinds kinds = openKinds(path);
    Json rows = Json::array();
    for (const BexCompKindRec* kind = kinds->first(); kind != nullptr; kind = kind->next()) {
        rows.push_back({{"type", kind->type()},
                        {"refHeader", out.resourceText(kind->refHeader())},
                        {"comment", out.resourceText(kind->comment())}});
    }
    out.print({
        {"file", out.systemText(path.c_str())},
        {"netHeader", out.resourceText(kinds->netHeader())},
        {"busHeader", out.resourceText(kinds->busHeader())},
        {"defaultBlockRefHeader", out.resourceText(kinds->defaultBlockRefHeader())},
        {"defaultSymbRefHeader", out.resourceText(kinds->defaultSymbRefHeader())},
        {"kinds", std::move(rows)},
    });
}

} // namespace

void addKindsCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("kinds", "Shows the component kinds of a file and their reference headers");
    const auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "A file of component kinds")->required();
    finishCommand(*command, request, [path](Output& out) { showKinds(*path, out); });
}

} // namespace tool
