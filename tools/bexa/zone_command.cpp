#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"

#include "bexa/names/zone_string.h"

#include <limits>
#include <memory>
#include <string>

namespace tool {
namespace {

struct Options {
    std::string label;
    int step = 1;
};

// The library's numbers saturate here, so this one can't be told from a greater one.
constexpr long tooLarge = std::numeric_limits<long>::max();

long numberOf(const BexZoneString& zone) {
    return zone.isAlpha() ? BexZoneString::alpha2num(zone) : BexZoneString::digit2num(zone);
}

void showZone(const Options& options, Output& out) {
    const std::string label = out.systemText(options.label.c_str());
    const BexZoneString zone(options.label.c_str());
    if (!zone.isValid()) {
        throw finding(quoted(label) + " is no label of a zone", "the command line",
                      "write letters alone, such as AB, or digits alone, such as 12");
    }
    BexZoneString next = zone;
    next += options.step;
    const std::string nextLabel(next);
    const bool isExact = numberOf(zone) != tooLarge;
    const bool isThere = isExact && !nextLabel.empty() && numberOf(next) != tooLarge;
    if (!isThere) {
        out.report(finding(
            "no zone is " + std::to_string(options.step) + " from " + quoted(label), "the command line",
            "letters begin at A, digits at 1; numbers stay below " + std::to_string(tooLarge)));
    }
    out.print({{"label", label},
               {"style", zone.isAlpha() ? "letters" : "digits"},
               {"number", isExact ? Json(numberOf(zone)) : Json()},
               {"step", options.step},
               {"next", isThere ? Json(nextLabel) : Json()}});
}

} // namespace

void addZoneCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("zone", "Shows the number of a zone of a sheet, and the next zone");
    const auto options = std::make_shared<Options>();
    command->add_option("LABEL", options->label, "Letters alone or digits alone")->required();
    command
        ->add_option("--step", options->step, "How far the next zone is, backwards if negative; 1 otherwise")
        ->type_name("N")
        ->check(CLI::Range(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    finishCommand(*command, request, [options](Output& out) { showZone(*options, out); });
}

} // namespace tool
