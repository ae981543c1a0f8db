#include "bench/temp_file.h"
#include "bexa/foundation/csv_input.h"
#include "bexa/foundation/kanji.h"
#include "bexa/foundation/line_stream.h"
#include "bexa/foundation/sjis_check.h"
#include "bexa/foundation/str_dictionary.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

std::string repeated(std::string_view text, std::size_t size) {
    std::string all;
    while (all.size() < size) all += text;
    return all;
}

constexpr std::size_t megabyte = 1000000;

// Lines of a remark: kanji and kana, numbers and names between them.
std::string shiftJisText(std::size_t size) {
    return repeated("\x92\xEF\x8D\x52 R12 10k\x83\x49\x81\x5B\x83\x80 \x89\xFC\x92\xF9\x94\xC5 2024-03-09\n",
                    size);
}

std::string halfWidthKana(std::size_t size) {
    return repeated("\xBD\xB2\xAF\xC1\n", size);
}

void finishBytes(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void toEuc(benchmark::State& state, const std::string& text) {
    YString out;
    for (auto _ : state) benchmark::DoNotOptimize(YsjistoeucStr(text.c_str(), out));
    finishBytes(state, text.size());
}

void toShiftJis(benchmark::State& state, const std::string& text) {
    YString euc, out;
    YsjistoeucStr(text.c_str(), euc);
    for (auto _ : state) benchmark::DoNotOptimize(YeuctosjisStr(euc, out));
    finishBytes(state, static_cast<std::size_t>(euc.length()));
}

// As many lines as a good text may have.
void checkText(benchmark::State& state) {
    const std::string text = shiftJisText(80000);
    const TempFile file("text.txt", text);
    for (auto _ : state) {
        unsigned code = 0;
        benchmark::DoNotOptimize(BexSjisCheck::sjisTextFile(file.path().c_str(), code));
    }
    finishBytes(state, text.size());
}

void readLines(benchmark::State& state) {
    const std::string text = shiftJisText(megabyte);
    const TempFile file("text.txt", text);
    for (auto _ : state) {
        BexStream stream(file.path().c_str(), BexStream::ReadOnly);
        while (!stream.eof()) benchmark::DoNotOptimize(stream.getlines(1));
    }
    finishBytes(state, text.size());
}

// A list of parts as a spreadsheet writes it.
std::string csvText() {
    return repeated("R12,RES,10k,\"1%, 0.1 W\",R0603,\"say \"\"no\"\"\",,,100\r\n", megabyte);
}

class CountRecords : public BexCsvLineReader {
public:
    unsigned long ReadLine(const BexCsvLine&, int) override { return ++count_; }

private:
    unsigned long count_ = 0;
};

class CountItems : public BexCsvItemReader {
public:
    unsigned long ReadItem(const char*) override { return ++count_; }

private:
    unsigned long count_ = 0;
};

class SplitRecords : public BexCsvLineReader {
public:
    unsigned long ReadLine(const BexCsvLine& line, int) override { return line.Read(&items_, 0); }

private:
    CountItems items_;
};

template <typename Reader>
void readCsv(benchmark::State& state) {
    const std::string text = csvText();
    const TempFile file("parts.csv", text);
    BexCsvInput* input = BexCsvInput::Open(file.path().c_str());
    for (auto _ : state) {
        Reader reader;
        benchmark::DoNotOptimize(input->Read(&reader));
    }
    BexCsvInput::Close(input);
    finishBytes(state, text.size());
}

// The kinds of keys that designs have. The first two share few values of BexStrHash.
std::string numberedKey(long i) {
    return "SIG" + std::to_string(i);
}
std::string paddedKey(long i) {
    const std::string number = std::to_string(i);
    return "NET" + std::string(7 - number.size(), '0') + number;
}
std::string pathKey(long i) {
    return "board/unit" + std::to_string(i % 100) + "/U" + std::to_string(i / 100) + "/D[" +
           std::to_string(i % 32) + ']';
}

using KeyOf = std::string (*)(long);

std::vector<std::string> keys(KeyOf keyOf, long count) {
    std::vector<std::string> all;
    for (long i = 0; i < count; ++i) all.push_back(keyOf(i));
    return all;
}

void fill(BexStrDictionary& dictionary, const std::vector<std::string>& keys) {
    for (const std::string& key : keys) dictionary.attach(key.c_str(), &dictionary);
}

void finishKeys(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void attachKeys(benchmark::State& state, KeyOf keyOf) {
    const auto all = keys(keyOf, state.range(0));
    for (auto _ : state) {
        BexStrDictionary dictionary;
        fill(dictionary, all);
        benchmark::DoNotOptimize(dictionary.count());
    }
    finishKeys(state);
}

void lookUpKeys(benchmark::State& state, KeyOf keyOf) {
    const auto all = keys(keyOf, state.range(0));
    BexStrDictionary dictionary;
    fill(dictionary, all);
    for (auto _ : state) {
        for (const std::string& key : all) benchmark::DoNotOptimize(dictionary.lookup(key.c_str()));
    }
    finishKeys(state);
}

void detachKeys(benchmark::State& state, KeyOf keyOf) {
    const auto all = keys(keyOf, state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        BexStrDictionary dictionary;
        fill(dictionary, all);
        state.ResumeTiming();
        for (const std::string& key : all) benchmark::DoNotOptimize(dictionary.detach(key.c_str()));
    }
    finishKeys(state);
}

void upToAMillion(benchmark::internal::Benchmark* bench) {
    bench->Arg(1000)->Arg(30000)->Arg(1000000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

} // namespace

BENCHMARK_CAPTURE(toEuc, text, shiftJisText(megabyte));
BENCHMARK_CAPTURE(toEuc, ascii, repeated("plain text of a design\n", megabyte));
BENCHMARK_CAPTURE(toEuc, halfWidthKana, halfWidthKana(megabyte));
BENCHMARK_CAPTURE(toShiftJis, text, shiftJisText(megabyte));
BENCHMARK_CAPTURE(toShiftJis, halfWidthKana, halfWidthKana(megabyte));
BENCHMARK(checkText);
BENCHMARK(readLines);
BENCHMARK(readCsv<CountRecords>);
BENCHMARK(readCsv<SplitRecords>);
BENCHMARK_CAPTURE(attachKeys, numbered, numberedKey)->Apply(upToAMillion);
BENCHMARK_CAPTURE(attachKeys, padded, paddedKey)->Apply(upToAMillion);
BENCHMARK_CAPTURE(attachKeys, path, pathKey)->Apply(upToAMillion);
BENCHMARK_CAPTURE(lookUpKeys, numbered, numberedKey)->Apply(upToAMillion);
BENCHMARK_CAPTURE(lookUpKeys, padded, paddedKey)->Apply(upToAMillion);
BENCHMARK_CAPTURE(lookUpKeys, path, pathKey)->Apply(upToAMillion);
BENCHMARK_CAPTURE(detachKeys, numbered, numberedKey)->Apply(upToAMillion);
