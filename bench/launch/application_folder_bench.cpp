// What each start costs that keeps the user's own application folder up to date with what was delivered.

#include "base/files.h"
#include "launch/application_folder.h"
#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace coinlet {
namespace {

/// The data as a package delivers them.
void UpkeepAtEachFurtherStart(benchmark::State& state) {
    const test::TemporaryFolder folder;
    const auto own = folder / "own";
    if (!FillApplicationFolder(own, COINLET_DATA)) state.SkipWithError("no folder");
    if (!FileExists(own / "Data/English.txt")) state.SkipWithError("nothing was linked");
    for ([[maybe_unused]] auto run : state)
        benchmark::DoNotOptimize(FillApplicationFolder(own, COINLET_DATA));
}
BENCHMARK(UpkeepAtEachFurtherStart)->Unit(benchmark::kMicrosecond)->UseRealTime();

void FirstStart(benchmark::State& state) {
    const test::TemporaryFolder folder;
    for ([[maybe_unused]] auto run : state) {
        state.PauseTiming();
        std::filesystem::remove_all(folder / "own");
        state.ResumeTiming();
        benchmark::DoNotOptimize(FillApplicationFolder(folder / "own", COINLET_DATA));
    }
}
BENCHMARK(FirstStart)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace coinlet
