#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <benchmark/benchmark.h>

namespace {

// A row of a typical table: two short texts and two numbers.
struct Row {
    using BytesMayMove = Row;

    YString name;
    YString direction;
    unsigned number = 0;
    unsigned bits = 0;
};

class RowArray : public bexa::ArrayOf<Row, 256> {
public:
    using ArrayOf::ArrayOf;
};

void appendRows(benchmark::State& state) {
    const Row row{"DATA[12]", "IN", 12, 1};
    for (auto _ : state) {
        RowArray rows;
        for (int i = 0; i < state.range(0); ++i) rows.append(row);
        benchmark::DoNotOptimize(rows());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(appendRows)->RangeMultiplier(10)->Range(100, 100000)->Complexity(benchmark::oN);
