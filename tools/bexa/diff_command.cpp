#include "tools/bexa/command.h"
#include "tools/bexa/document_difference.h"
#include "tools/bexa/documents.h"
#include "tools/bexa/settings_file.h"

#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

namespace tool {
namespace {

struct Options {
    std::string first;
    std::string second;
};

Json circuitOf(const std::string& path, Output& out) {
    return circuitDocument(path, out);
}
Json blockOf(const std::string& path, Output& out) {
    return blockDocument(path, out);
}
template <SettingsKind kind>
Json settingsFileOf(const std::string& path, Output& out) {
    return openSettings(kind, path, out)->content(out);
}

// What can be compared: its documents, and the members that say where something lies rather than what it is. They
// differ between a design and its copy.
struct Comparable {
    const char* words;
    Json (*document)(const std::string& path, Output& out);
    std::string_view places[4];
};

constexpr Comparable circuit = {"a circuit", circuitOf, {"circuit", "resource", "parts.path"}};
constexpr Comparable block = {"a block file", blockOf, {"blockFile", "circuitFile", "symbolFile"}};
constexpr Comparable circuitResource = {"a circuit resource", settingsFileOf<SettingsKind::Circuit>, {}};
constexpr Comparable environment = {"an environment resource", settingsFileOf<SettingsKind::Environment>, {}};

const Comparable& kindOf(const std::string& path, const Output& out) {
    const auto type = BexDataFile::fileType(path.substr(0, path.find_last_not_of('/') + 1).c_str());
    if (type == BexDataFile::BexCircuitFile) return circuit;
    if (type == BexDataFile::BexBlockDataFile) return block;
    const std::string shown = out.systemText(path.c_str());
    if (!BexFile::isExist(path.c_str())) throw unusable("no such file", shown, "check the path");
    const auto kind = settingsKindOf(path);
    if (!kind) {
        throw unusable("nothing that can be compared", shown,
                       "give a circuit, a block file, a circuit resource or an environment resource");
    }
    return *kind == SettingsKind::Circuit ? circuitResource : environment;
}

bool isPlace(const Comparable& kind, const std::string& member) {
    if (member.ends_with(".leadsTo")) return true;
    return std::find(std::begin(kind.places), std::end(kind.places), member) != std::end(kind.places);
}

Problem differentKinds(const std::string& first, const std::string& second, const Output& out) {
    return unusable("the two are of different kinds",
                    out.systemText(first.c_str()) + " is " + kindOf(first, out).words + ", " +
                        out.systemText(second.c_str()) + ' ' + kindOf(second, out).words,
                    "give two of one kind");
}

std::string inWords(std::size_t places) {
    return places == 1 ? "1 place" : std::to_string(places) + " places";
}

void showDifferences(const Options& options, Output& out) {
    const Comparable& kind = kindOf(options.first, out);
    if (&kind != &kindOf(options.second, out)) throw differentKinds(options.first, options.second, out);
    const Json first = kind.document(options.first, out);
    const Json second = kind.document(options.second, out);
    // Nothing can be said of what couldn't be read.
    if (out.code() == ExitCode::Unusable) return;
    Json rows =
        differencesOf(first, second, [&kind](const std::string& member) { return isPlace(kind, member); });
    const std::size_t count = rows.size();
    const std::string shownFirst = out.systemText(options.first.c_str());
    const std::string shownSecond = out.systemText(options.second.c_str());
    out.print({{"first", shownFirst},
               {"second", shownSecond},
               {"equal", rows.empty()},
               {"differences", std::move(rows)}});
    if (count > 0) {
        out.report(finding("the two differ in " + inWords(count), shownFirst + " and " + shownSecond,
                           "see the output, or make them equal"));
    }
}

} // namespace

void addDiffCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand(
        "diff", "Tells what differs between two circuits or two block, resource or environment files");
    const auto options = std::make_shared<Options>();
    command->add_option("A", options->first, "A circuit or a file")->required();
    command->add_option("B", options->second, "Another of the same kind")->required();
    finishCommand(*command, request, [options](Output& out) { showDifferences(*options, out); });
}

} // namespace tool
