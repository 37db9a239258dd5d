// What a choice of a section and a table of a whole family cost: nothing is cached, each read opens
// the store anew.
#include "sections/SectionStore.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

using namespace Tensarix;

namespace {

std::vector<std::string> Column_Names() {
    std::vector<std::string> names;
    for (const std::string name :
         {"W",   "A",    "D",      "HT",   "OD",   "ID",        "BF",  "B",  "TW", "TF",
          "T",   "TNOM", "TDES",   "KDES", "KDET", "K1",        "K",   "X",  "Y",  "EO",
          "XP",  "YP",   "BF_2TF", "H_TW", "B_T",  "H_T",       "D_T", "IX", "ZX", "SX",
          "RX",  "IY",   "ZY",     "SY",   "RY",   "RZ",        "RO",  "J",  "CW", "C",
          "WNO", "SW",   "QF",     "QW",   "H",    "TAN_ALPHA", "QS"}) {
        names.push_back(name);
        names.push_back("x" + name);
    }
    return names;
}

void One_Section(benchmark::State& state) {
    for (auto _ : state) {
        const SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_US_Label("W14x342"));
        benchmark::DoNotOptimize(read.Records.Number("xIX"));
    }
}
BENCHMARK(One_Section);

void Whole_Family(benchmark::State& state) {
    const std::vector<std::string> names = Column_Names();
    for (auto _ : state) {
        SectionRead read(TENSARIX_PROGRAM_DIR, Query_By_Family("2L-UnEq"));
        for (SectionRecordset& r = read.Records; !r.At_End(); r.MoveNext())
            for (const std::string& name : names)
                benchmark::DoNotOptimize(r.Field(name));
    }
}
BENCHMARK(Whole_Family)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
