#include "bench/temp_file.h"
#include "bexa/batch/batch_errors.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

// A program with a catalogue of one message, in an installation of its own, and a report that gathers its errors.
class Job {
public:
    Job() {
        const std::string directory = catalogue_.directory() + "/msg/eng";
        std::filesystem::create_directories(directory);
        std::filesystem::copy(catalogue_.path(), directory);
        ::setenv("YDSROOT", catalogue_.directory().c_str(), 1);
        ::unsetenv("YLANG");
    }

    // Reports every message, with the next of the objects, and writes the report.
    void run(long messages, const std::vector<std::string>& nets,
             const std::vector<std::string>& objects) const {
        BexBatErr report("bench");
        report.dirSet(catalogue_.directory().c_str());
        report.progSet("job", 0);
        report.sortErrMess(1);
        for (std::size_t i = 0; i < static_cast<std::size_t>(messages); ++i) {
            report.msgWriteErr(100, objects[i % objects.size()].c_str(), nets[i % nets.size()].c_str());
        }
    }

private:
    const TempFile catalogue_{"bench.rsc", "message 2 {\n\t100 \"net %s\"\n}\n"};
};

std::vector<std::string> numbered(const std::string& head, long count) {
    std::vector<std::string> names;
    for (long i = 0; i < count; ++i) names.push_back(head + std::to_string(i));
    return names;
}

void finish(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

// A tenth of the messages are distinct, with a few objects.
void gatherMessages(benchmark::State& state) {
    const Job job;
    const auto nets = numbered("SIG", state.range(0) / 10);
    const auto objects = numbered("U1.", 3);
    for (auto _ : state) job.run(state.range(0), nets, objects);
    finish(state);
}

// One message, about another object each time.
void gatherObjects(benchmark::State& state) {
    const Job job;
    const auto nets = numbered("SIG", 1);
    const auto objects = numbered("U1.", state.range(0));
    for (auto _ : state) job.run(state.range(0), nets, objects);
    finish(state);
}

} // namespace

BENCHMARK(gatherMessages)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(gatherObjects)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);
