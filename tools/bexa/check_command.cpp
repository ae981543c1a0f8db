#include "tools/bexa/check_report.h"
#include "tools/bexa/check_rules.h"
#include "tools/bexa/command.h"
#include "tools/bexa/junit.h"
#include "tools/bexa/text_file.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#ifndef _WIN32
#    include <unistd.h>
#endif

namespace tool {
namespace {

struct Check {
    const char* name;
    CheckCircuit run;
};

constexpr Check checks[] = {
    {"resource", checkResource},   {"defaults", checkDefaults}, {"blocks", checkBlocks},
    {"kinds", checkKinds},         {"texts", checkTexts},       {"sheets", checkSheets},
    {"leftovers", checkLeftovers},
};

struct Options {
    std::string circuit;
    std::string reports;
    std::string junit;
};

bool isWatched() {
#ifdef _WIN32
    return false;
#else
    return ::isatty(STDERR_FILENO) == 1;
#endif
}

// A line that tells whoever watches a terminal which circuit is being looked at, once it takes long. It goes with its
// object.
class Progress {
public:
    explicit Progress(const Output& out) : out_(out) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() {
        if (isShown_) std::fputs("\r\x1B[K", stderr);
    }

    void tell(const std::string& path) {
        constexpr std::chrono::seconds patience{1};
        if (!isWatched_ || std::chrono::steady_clock::now() - start_ < patience) return;
        isShown_ = true;
        const std::string shown = printable(out_.systemText(path.c_str()), terminalCoding());
        std::fprintf(stderr, "\r\x1B[Kchecking %s", shown.c_str());
    }

private:
    const Output& out_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    bool isWatched_ = isWatched();
    bool isShown_ = false;
};

Findings findingsIn(const std::vector<ReachedCircuit>& circuits, Progress& progress) {
    Findings findings;
    for (const ReachedCircuit& circuit : circuits) {
        progress.tell(circuit.path);
        for (const Check& check : checks) {
            findings.begin(circuit.path, check.name);
            check.run(circuit, findings);
        }
    }
    return findings;
}

Json rowOf(const Finding& finding, const Output& out) {
    Json row = {{"severity", wordOf(finding.texts().severity)},
                {"check", finding.check},
                {"message", finding.texts().message},
                {"where", out.systemText(finding.where.c_str())}};
    if (out.form() == Output::Form::Text) return row; // the messages have the rest
    row["circuit"] = out.systemText(finding.circuit.c_str());
    row["what"] = out.systemText(finding.what().c_str());
    row["remedy"] = finding.texts().remedy;
    return row;
}

Json circuitsWith(const std::vector<ReachedCircuit>& circuits, const Findings& findings, const Output& out) {
    Json rows = Json::array();
    for (const ReachedCircuit& circuit : circuits) {
        const auto isHere = [&](const Finding& finding) { return finding.circuit == circuit.path; };
        rows.push_back({{"circuit", out.systemText(circuit.path.c_str())},
                        {"findings", std::count_if(findings.all().begin(), findings.all().end(), isHere)}});
    }
    return rows;
}

void show(const std::vector<ReachedCircuit>& circuits, const Findings& findings, Output& out) {
    Json rows = Json::array();
    for (const Finding& found : findings.all()) {
        rows.push_back(rowOf(found, out));
        out.report(finding(out.systemText(found.what().c_str()), out.systemText(found.where.c_str()),
                           found.texts().remedy));
    }
    out.print({{"circuit", out.systemText(circuits.front().path.c_str())},
               {"errors", findings.count(Severity::Error)},
               {"warnings", findings.count(Severity::Warning)},
               {"circuits", circuitsWith(circuits, findings, out)},
               {"findings", std::move(rows)}});
}

void writeJunit(const std::string& path, const std::vector<ReachedCircuit>& circuits,
                const Findings& findings, const Output& out) {
    std::array<const char*, std::size(checks)> names{};
    std::transform(std::begin(checks), std::end(checks), names.begin(),
                   [](const Check& check) { return check.name; });
    placeContent(path, out.systemText(path.c_str()), junitOf(circuits, names, findings));
}

void check(const Options& options, Output& out) {
    Progress progress(out);
    const auto circuits =
        reachedCircuits(circuitAt(options.circuit), [&](const std::string& path) { progress.tell(path); });
    const Findings findings = findingsIn(circuits, progress);
    show(circuits, findings, out);
    if (!options.reports.empty()) {
        writeReports(findings, options.reports, out.systemText(options.reports.c_str()));
    }
    if (!options.junit.empty()) writeJunit(options.junit, circuits, findings, out);
}

} // namespace

void addCheckCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand(
        "check", "Checks a circuit and those of its blocks, for a user at a terminal or a build server");
    const auto options = std::make_shared<Options>();
    command->add_option("PATH.cir", options->circuit, "The directory of the circuit")->required();
    command->add_option("--report", options->reports, "Where check.err and check.wrn are written")
        ->type_name("DIR");
    command->add_option("--junit", options->junit, "Where the findings are written as JUnit XML")
        ->type_name("FILE");
    finishCommand(*command, request, [options](Output& out) { check(*options, out); });
}

} // namespace tool
