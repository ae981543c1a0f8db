#include "bench/temp_file.h"
#include "bexa/props/prop_spec_file.h"

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

namespace {

constexpr int tableCount = 20;

// `rows` properties of components, a fifth of them in tables that nets share.
std::string specification(int rows) {
    const int inTables = rows / 5 / tableCount;
    std::string components = "$Component {\n";
    std::string nets = "$sNet {\n";
    std::string tables;
    for (int table = 0; table < tableCount; ++table) {
        const std::string name = "Table" + std::to_string(table);
        components += "\t( $RefTable\t\"" + name + "\" )\n";
        nets += "\t( $RefTable\t\"" + name + "\" )\n";
        tables += name + " {\n";
        for (int row = 0; row < inTables; ++row) {
            tables +=
                "\t( shared" + std::to_string(table * inTables + row) + "\ttext\t\"Shared\"\tON\t5\ta b )\n";
        }
        tables += "}\n";
    }
    for (int row = tableCount * inTables; row < rows; ++row) {
        components +=
            "\t( property" + std::to_string(row) + "\tfloat\t\"Property\"\tOFF\tCIRC\t3\t1k 2k 5k )\n";
    }
    return components + "}\n" + nets + "}\n" + tables;
}

class Specification : public benchmark::Fixture {
public:
    void SetUp(const benchmark::State& state) override {
        file_.emplace("PropSpec", specification(static_cast<int>(state.range(0))));
        specification_.readFrom(file_->path().c_str());
        specification_.enumPropNames("$Component", names_, 1);
    }
    void TearDown(const benchmark::State&) override {
        specification_ = BexPropSpecFile();
        file_.reset();
    }

protected:
    std::optional<TempFile> file_;
    BexPropSpecFile specification_;
    YString_Array names_;
};

BENCHMARK_DEFINE_F(Specification, Read)(benchmark::State& state) {
    const std::string path = file_->path();
    for (auto _ : state) {
        BexPropSpecFile fresh;
        benchmark::DoNotOptimize(fresh.readFrom(path.c_str()));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Every property once, through the tables.
BENCHMARK_DEFINE_F(Specification, LookUp)(benchmark::State& state) {
    for (auto _ : state) {
        for (int i = 0; i < names_.size(); ++i) {
            benchmark::DoNotOptimize(specification_.valueType("$Component", names_.at(i)));
        }
    }
    state.SetItemsProcessed(state.iterations() * names_.size());
}

BENCHMARK_DEFINE_F(Specification, Write)(benchmark::State& state) {
    YString_Array lines;
    for (auto _ : state) specification_.makeString(lines);
    state.SetItemsProcessed(state.iterations() * lines.size());
}

} // namespace

BENCHMARK_REGISTER_F(Specification, Read)->Arg(500)->Arg(5000)->Arg(50000);
BENCHMARK_REGISTER_F(Specification, LookUp)->Arg(500)->Arg(5000)->Arg(50000);
BENCHMARK_REGISTER_F(Specification, Write)->Arg(5000);
