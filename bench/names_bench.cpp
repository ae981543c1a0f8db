#include "bexa/names/array_name.h"
#include "bexa/names/bundle_name.h"
#include "bexa/names/name_compression.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

// "first0,first1,..."
std::string members(const std::string& first, long count) {
    std::string text;
    for (long i = 0; i < count; ++i) {
        if (i > 0) text += ',';
        text += first + std::to_string(i);
    }
    return text;
}

BexChkBundleName bundle(const std::string& text) {
    return {text.c_str(), '[', ']', '-', ',', '-'};
}

BexChkArrayName array(const std::string& text) {
    return {text.c_str(), '[', ']', '-', ',', '-'};
}

BexChkSigName signal(const std::string& text) {
    return {text.c_str(), '[', ']', '-', ','};
}

// Time is reported per signal or member, and by the number of them.
void finish(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void expandBus(benchmark::State& state) {
    const std::string text = "DATA[0-" + std::to_string(state.range(0) - 1) + ']';
    for (auto _ : state) {
        const BexChkArrayName bus = array(text);
        benchmark::DoNotOptimize(bus.sigCount());
    }
    finish(state);
}

void compressBus(benchmark::State& state) {
    std::string text = "DATA[0]";
    for (long i = 1; i < state.range(0); ++i) text += ",DATA[" + std::to_string(i) + ']';
    for (auto _ : state) {
        BexChkPressName name(text.c_str(), '[', ']', '-', ',', '-');
        benchmark::DoNotOptimize(name.newName());
    }
    finish(state);
}

void parseBundle(benchmark::State& state) {
    const std::string text = members("SIG", state.range(0));
    for (auto _ : state) {
        const BexChkBundleName parsed = bundle(text);
        benchmark::DoNotOptimize(parsed.sigCount());
    }
    finish(state);
}

// Every signal of a bundle, asked for by its number.
void walkBundle(benchmark::State& state) {
    const BexChkBundleName parsed = bundle(members("SIG", state.range(0)));
    for (auto _ : state) {
        for (int i = 0; i < state.range(0); ++i) benchmark::DoNotOptimize(parsed.sigName(i));
    }
    finish(state);
}

void findInBundle(benchmark::State& state) {
    const BexChkBundleName parsed = bundle(members("SIG", state.range(0)));
    const BexChkSigName wanted = signal("SIG" + std::to_string(state.range(0) - 1));
    for (auto _ : state) benchmark::DoNotOptimize(parsed.find(wanted));
    state.SetComplexityN(state.range(0));
}

void duplicateOfBundle(benchmark::State& state) {
    const BexChkBundleName parsed = bundle(members("SIG", state.range(0)));
    const BexChkBundleName other = bundle(members("NET", state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(parsed.duplicate(other));
    finish(state);
}

void bundleContains(benchmark::State& state) {
    const BexChkBundleName parsed = bundle(members("SIG", state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(parsed.contains(parsed));
    finish(state);
}

void appendToBundle(benchmark::State& state) {
    const BexChkBundleName other = bundle(members("NET", state.range(0)));
    for (auto _ : state) {
        BexChkBundleName grown = bundle("FIRST");
        benchmark::DoNotOptimize(grown.append(other));
    }
    finish(state);
}

// One by one, each with its own look for duplicates.
void appendArraysToBundle(benchmark::State& state) {
    std::vector<BexChkArrayName> arrays;
    for (long i = 0; i < state.range(0); ++i) arrays.push_back(array("NET" + std::to_string(i)));
    for (auto _ : state) {
        BexChkBundleName grown = bundle("FIRST");
        for (const BexChkArrayName& next : arrays) grown.append(next);
        benchmark::DoNotOptimize(grown.arrayCount());
    }
    finish(state);
}

} // namespace

BENCHMARK(expandBus)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity(benchmark::oN);
BENCHMARK(compressBus)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity(benchmark::oN);
BENCHMARK(parseBundle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
BENCHMARK(walkBundle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
BENCHMARK(findInBundle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::o1);
BENCHMARK(duplicateOfBundle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
BENCHMARK(bundleContains)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
BENCHMARK(appendToBundle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
BENCHMARK(appendArraysToBundle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
