#include "tools/bexa/circuit_resource.h"
#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"

#include "bexa/names/counting_name.h"

#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

struct Options {
    std::string name;
    int step = 1;
    int times = 1;
    std::string circuit;
};

constexpr int largestStep = std::numeric_limits<int>::max();
constexpr int mostNames = 1'000'000;

enum class Direction { Up, Down };

std::string nameOf(const BexStep& step) {
    YString name;
    step.now(name);
    return std::string(name.view());
}

BexStep moved(BexStep step, Direction direction) {
    return direction == Direction::Up ? ++step : --step;
}

// Where the numbers end the library stays, or goes less far than asked: then no step leads back.
std::optional<BexStep> follower(const BexStep& step, Direction direction) {
    const Direction backwards = direction == Direction::Up ? Direction::Down : Direction::Up;
    BexStep next = moved(step, direction);
    if (nameOf(moved(next, backwards)) != nameOf(step)) return std::nullopt;
    return next;
}

BexStep stepOf(const Options& options, const std::string& shown) {
    const Datarc rc = openResourceFor(options.circuit, ".");
    BexStep step;
    if (step.init(options.name.c_str(), *rc, std::abs(options.step))) return step;
    // The library keeps a name that is good but for its number.
    const bool isName = !options.name.empty() && options.name == step.orgStr();
    throw finding("the name " + quoted(shown) +
                      (isName ? " has no number to count" : " is not that of one signal"),
                  "the command line", "write it like R001, D[7] or [07]");
}

void countOn(const Options& options, Output& out) {
    const std::string shown = out.systemText(options.name.c_str());
    const Direction direction = options.step < 0 ? Direction::Down : Direction::Up;
    std::optional<BexStep> step = stepOf(options, shown);
    Json names = Json::array();
    for (int i = 0; i < options.times; ++i) {
        step = follower(*step, direction);
        if (!step) break;
        names.push_back(out.systemText(nameOf(*step).c_str()));
    }
    if (!step) {
        out.report(finding("only " + std::to_string(names.size()) + " of " + std::to_string(options.times) +
                               " names follow " + quoted(shown),
                           "the command line", "numbers run from 0 to " + std::to_string(largestStep)));
    }
    if (out.form() == Output::Form::Json) {
        out.print({{"name", shown}, {"step", options.step}, {"names", std::move(names)}});
        return;
    }
    for (const Json& name : names) out.line(name.get_ref<const std::string&>());
}

} // namespace

void addCountCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("count", "Prints the names that follow a name with a number, one a line");
    const auto options = std::make_shared<Options>();
    command->add_option("NAME", options->name, "A signal or reference with a number, or a number in brackets")
        ->required();
    command->add_option("--step", options->step, "From number to number, down if negative; 1 otherwise")
        ->type_name("N")
        ->check(CLI::Range(-largestStep, largestStep));
    command->add_option("--times", options->times, "How many names; 1 otherwise")
        ->type_name("N")
        ->check(CLI::Range(1, mostNames));
    command->add_option("--circuit", options->circuit, "The circuit whose resource has the delimiters")
        ->type_name("PATH.cir");
    finishCommand(*command, request, [options](Output& out) { countOn(*options, out); });
}

} // namespace tool
