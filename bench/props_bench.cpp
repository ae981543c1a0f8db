// Values and property expressions.
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/props/numeric_text.h"
#include "bexa/props/prop_value.h"
#include "bexa/props/search_condition.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace {

// Items are values.
void normalForm(benchmark::State& state, const char* text) {
    YString value;
    for (auto _ : state) {
        value = text;
        benchmark::DoNotOptimize(BexCheckValue::optimizeExp(value));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(normalForm, decimal, "0.00047");
BENCHMARK_CAPTURE(normalForm, exponent, "-2.5e-3");
BENCHMARK_CAPTURE(normalForm, factor, "4.7k");
BENCHMARK_CAPTURE(normalForm, mils, "5mil");

void normalFormOfDigits(benchmark::State& state) {
    const YString digits('7', static_cast<int>(state.range(0)));
    for (auto _ : state) {
        YString value(digits);
        benchmark::DoNotOptimize(BexCheckValue::optimizeExp(value));
    }
    state.SetBytesProcessed(state.iterations() * digits.length());
}
BENCHMARK(normalFormOfDigits)->Range(1 << 10, 1 << 20);

void digitsOfMils(benchmark::State& state) {
    const YString digits = YString('7', static_cast<int>(state.range(0))) + "mil";
    for (auto _ : state) {
        YString value(digits);
        benchmark::DoNotOptimize(BexCheckValue::optimizeExp(value));
    }
    state.SetBytesProcessed(state.iterations() * digits.length());
}
BENCHMARK(digitsOfMils)->Range(1 << 10, 1 << 20);

void withFactor(benchmark::State& state) {
    YString value;
    for (auto _ : state) {
        value = "0.00047";
        benchmark::DoNotOptimize(BexCheckValue::changeFactor(value));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(withFactor);

void expandTwoGroups(benchmark::State& state) {
    const YString text(
        R"((PART (LENGTH 10) (WIDTH 5) (HEIGHT 2)) (PACKAGE (TYPE "SOP 8") (PITCH 1.27) (PINS 8)))");
    for (auto _ : state) {
        BexPropValue value;
        benchmark::DoNotOptimize(value.expand(text));
    }
    state.SetBytesProcessed(state.iterations() * text.length());
}
BENCHMARK(expandTwoGroups);

void expandAll(benchmark::State& state, const std::string& group) {
    std::string text;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        text += group;
        text.insert(text.rfind('#'), std::to_string(i));
        text.erase(text.rfind('#'), 1);
    }
    const YString expression(text.c_str());
    for (auto _ : state) {
        BexPropValue value;
        benchmark::DoNotOptimize(value.expand(expression));
    }
    state.SetBytesProcessed(state.iterations() * expression.length());
}
BENCHMARK_CAPTURE(expandAll, groups, "(G# (A 1) (B 2)) ")->Range(1 << 10, 1 << 17);
BENCHMARK_CAPTURE(expandAll, words, "G# ")->Range(1 << 10, 1 << 20);

void expandOneWord(benchmark::State& state) {
    const YString text = YString('x', static_cast<int>(state.range(0))) + " ";
    for (auto _ : state) {
        BexPropValue value;
        benchmark::DoNotOptimize(value.expand(text));
    }
    state.SetBytesProcessed(state.iterations() * text.length());
}
BENCHMARK(expandOneWord)->Arg(10 << 20);

void searchPattern(benchmark::State& state) {
    const BexSearch search("R*", BexPropTypeText);
    for (auto _ : state) {
        benchmark::DoNotOptimize(search.contains("R1234"));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(searchPattern);

} // namespace
