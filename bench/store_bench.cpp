#include "bench/temp_file.h"
#include "bexa/store/data_file.h"
#include "bexa/store/sheet_locks.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

// As many sheets as a walk counts, each with its net file, and the directory for their locks.
class Circuit {
public:
    explicit Circuit(unsigned sheets) : place_("readme.txt", ""), path_(place_.directory() + "/bench.cir") {
        std::filesystem::create_directories(path_ + "/log");
        for (unsigned i = 1; i <= sheets; ++i) {
            sheets_.emplace_back(BexDataFile::sheetName(path_.c_str(), i));
            std::ofstream(sheets_.back()) << "sheet";
            std::ofstream(std::string(BexDataFile::sheetNetName(path_.c_str(), i))) << "net";
        }
    }

    const char* path() const { return path_.c_str(); }
    const std::vector<std::string>& sheets() const { return sheets_; }

private:
    TempFile place_;
    std::string path_;
    std::vector<std::string> sheets_;
};

constexpr unsigned mostSheets = 999;

int countOne(void* count, const char*) {
    ++*static_cast<long*>(count);
    return 0;
}

void walkSheets(benchmark::State& state) {
    const Circuit circuit(mostSheets);
    for (auto _ : state) {
        long count = 0;
        BexDataFile::enumSheetNames(circuit.path(), countOne, &count);
        benchmark::DoNotOptimize(count);
    }
}

void countSheets(benchmark::State& state) {
    const Circuit circuit(mostSheets);
    for (auto _ : state) benchmark::DoNotOptimize(BexDataFile::sheetCount(circuit.path()));
}

// What a clean-up after a crash begins with.
void walkTemporaryCopies(benchmark::State& state) {
    const Circuit circuit(mostSheets);
    for (auto _ : state) {
        long count = 0;
        BexDataFile::enumTmpFileNames(circuit.path(), BexDataFile::BexAnyFile, countOne, &count);
        benchmark::DoNotOptimize(count);
    }
}

void nameSheets(benchmark::State& state) {
    for (auto _ : state) {
        for (unsigned i = 1; i <= mostSheets; ++i) {
            benchmark::DoNotOptimize(BexDataFile::sheetName("designs/amplifier.cir", i));
        }
    }
    state.SetItemsProcessed(state.iterations() * mostSheets);
}

void lockAndUnlock(benchmark::State& state) {
    const Circuit circuit(1);
    const char* sheet = circuit.sheets().front().c_str();
    for (auto _ : state) {
        benchmark::DoNotOptimize(BexLock(&circuit, LexSheetLogged, sheet));
        benchmark::DoNotOptimize(BexUnlock(&circuit, LexSheetLogged, sheet));
    }
}

// A sheet that this process holds already.
void lockAgain(benchmark::State& state) {
    const Circuit circuit(1);
    const char* sheet = circuit.sheets().front().c_str();
    BexLock(&circuit, LexSheetLogged, sheet);
    for (auto _ : state) {
        benchmark::DoNotOptimize(BexLock(&circuit, LexSheetLogged, sheet));
        benchmark::DoNotOptimize(BexUnlock(&circuit, LexSheetLogged, sheet));
    }
    BexUnlock(&circuit, LexSheetLogged, sheet);
}

void checkLock(benchmark::State& state) {
    const Circuit circuit(1);
    const char* sheet = circuit.sheets().front().c_str();
    BexLock(&circuit, LexSheetLogged, sheet);
    for (auto _ : state) {
        BexLockInfo info;
        benchmark::DoNotOptimize(BexCheckLock(LexSheetLogged, sheet, info));
    }
    BexUnlock(&circuit, LexSheetLogged, sheet);
}

// All sheets held at once: how the registry of locks grows.
void lockAllSheets(benchmark::State& state) {
    const Circuit circuit(static_cast<unsigned>(state.range(0)));
    for (auto _ : state) {
        for (const std::string& sheet : circuit.sheets()) BexLock(&circuit, LexSheetLogged, sheet.c_str());
        for (const std::string& sheet : circuit.sheets()) BexUnlock(&circuit, LexSheetLogged, sheet.c_str());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(walkSheets)->Unit(benchmark::kMicrosecond);
BENCHMARK(countSheets)->Unit(benchmark::kMicrosecond);
BENCHMARK(walkTemporaryCopies)->Unit(benchmark::kMicrosecond);
BENCHMARK(nameSheets)->Unit(benchmark::kMicrosecond);
BENCHMARK(lockAndUnlock)->Unit(benchmark::kMicrosecond);
BENCHMARK(lockAgain)->Unit(benchmark::kMicrosecond);
BENCHMARK(checkLock)->Unit(benchmark::kMicrosecond);
BENCHMARK(lockAllSheets)
    ->Arg(10)
    ->Arg(100)
    ->Arg(999)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
