#include "bench/temp_file.h"
#include "bexa/circuitrc/datarc.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace {

struct DiscardDatarc {
    void operator()(BexDatarc* rc) const { BexDatarc::close(rc, BexCloseDiscard); }
};
using DatarcPtr = std::unique_ptr<BexDatarc, DiscardDatarc>;

void fillTables(BexDatarc& rc) {
    for (unsigned i = 0; i < 5; ++i) {
        const std::string name = "style" + std::to_string(i);
        const std::string directory = "$YDSROOT/lib/" + name;
        rc.textSize(i, 10.0, 8.5, 1.0, 0.5, 0.0, name.c_str(), "-", "-");
        rc.lineWidth(i, 0.25 * i);
        rc.fillStyle(i, i % 4, 2.5, 5.0, 45.0, 135.0, name.c_str());
        rc.symbPath(i, name.c_str(), directory.c_str());
        rc.contPath(i, name.c_str(), directory.c_str());
        rc.lcdbPath(i, name.c_str(), directory.c_str());
    }
}

// Every setting that is written once it has been given.
void setModes(BexDatarc& rc) {
    rc.variationMark(1, "*", "reference");
    rc.busNSimpleDispMode(1, '_', '*');
    rc.useBusAlias(1);
    rc.createInstNetLabelMode(1);
    rc.sheetNetErrorLevel(1);
    rc.overwritePortMode(2);
    rc.simpleArrayMode(1);
    rc.dateFormat("YY/MM/DD");
    rc.timeFormat("HH:MM:SS");
}

// The resource of a design that has been worked on: all settings, and rows in all tables.
DatarcPtr typicalResource() {
    DatarcPtr rc(BexDatarc::open("no-such-directory/resource.rsc", BexOpenCreate, "."));
    fillTables(*rc);
    setModes(*rc);
    return rc;
}

void loadResource(benchmark::State& state) {
    const TempFile file("bexdata.rsc", "");
    typicalResource()->saveAs(file.path().c_str(), BexSaveAny);
    for (auto _ : state) {
        const DatarcPtr rc(BexDatarc::open(file.path().c_str(), BexOpenRead, "."));
        benchmark::DoNotOptimize(rc->busStartChar());
    }
}

void saveResource(benchmark::State& state) {
    const TempFile file("bexdata.rsc", "");
    const DatarcPtr rc = typicalResource();
    for (auto _ : state) benchmark::DoNotOptimize(rc->saveAs(file.path().c_str(), BexSaveAny));
}

} // namespace

BENCHMARK(loadResource)->Unit(benchmark::kMicrosecond);
BENCHMARK(saveResource)->Unit(benchmark::kMicrosecond);
