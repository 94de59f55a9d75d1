// Figures for every numbered filter on a noisy canvas and, where it stands in the menu, with the parameter of
// the menu; without the screen.

#include "filters/filter_table.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>
#include <string>

namespace coinlet {
namespace {

constexpr int side = 500;

class NoPace : public FilterPace {
public:
    void Reached(int) override {}
    void RowShown(int, int) override {}
};

/// A parameter that gives the filter its usual work.
std::int32_t UsualParameter(FilterNumber number) {
    switch (number) {
        case FilterNumber::Sharpen:
        case FilterNumber::Contrast:
            return 10;
        case FilterNumber::Defuse:
            return 6;
        case FilterNumber::Edge:
        case FilterNumber::SwapColors:
            return 1;
        case FilterNumber::Brightness:
            return 4;
        case FilterNumber::Pixelize:
            return 3;
        case FilterNumber::FloydDither:
        case FilterNumber::BurkesDither:
        case FilterNumber::StuckiDither:
            return 15;
        case FilterNumber::AddNoise:
            return 50;
        case FilterNumber::Saturation:
            return 140;
        case FilterNumber::Gamma:
            return 200;
        default:
            return 0xFFFFFF;
    }
}

void Apply(benchmark::State& state, const NumberedFilter& filter) {
    PixelArray work(side, side), source(side, side);
    std::mt19937 noise(1);
    std::ranges::generate(source.Bytes(), [&noise] { return static_cast<std::uint8_t>(noise()); });
    RandomGenerator random;
    NoPace pace;
    FilterRun run(work, source, random, pace);
    const std::int32_t parameter = UsualParameter(filter.number);
    for ([[maybe_unused]] auto _ : state) {
        // Filters in place would otherwise work on what they made the last time.
        std::ranges::copy(source.Bytes(), work.Bytes().begin());
        filter.apply(run, parameter);
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const NumberedFilter& filter : AllFilters()) {
        const std::string name = "Filter" + std::string(filter.name);
        benchmark::RegisterBenchmark(name.c_str(), [&filter](benchmark::State& state) {
            Apply(state, filter);
        })->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

}  // namespace
}  // namespace coinlet
