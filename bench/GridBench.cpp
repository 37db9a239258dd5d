// What the cells of a grid cost against plain strings: all cells of a long table are written, as a
// table of sections writes them.
#include "Compare.h"
#include "controls/FlexGrid.h"

#include <string>
#include <vector>

using namespace Tensarix;

namespace {

constexpr int rows = 600, cols = 28;

std::vector<std::string> Table_Texts() {
    std::vector<std::string> texts;
    texts.reserve(std::size_t{rows} * cols);
    for (int i = 0; i < rows * cols; ++i)
        texts.push_back(std::to_string(i) + ".25  ");
    return texts;
}

void Cell_Writes(benchmark::State& state) {
    const std::vector<std::string> texts = Table_Texts();
    std::vector<std::string> plain(texts.size());
    FlexGrid grid;
    grid.Set_Rows(rows);
    grid.Set_Cols(cols);
    Bench::Compare(
        state, "ratio_to_strings",
        [&] {
            std::size_t at = 0;
            for (int row = 0; row < rows; ++row)
                for (int col = 0; col < cols; ++col)
                    grid.Set_Text(row, col, texts[at++]);
            benchmark::DoNotOptimize(grid);
        },
        [&] {
            for (std::size_t at = 0; at < texts.size(); ++at)
                plain[at] = std::string(texts[at]);
            benchmark::DoNotOptimize(plain.data());
            benchmark::ClobberMemory();
        });
}
BENCHMARK(Cell_Writes)->Unit(benchmark::kMicrosecond)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
