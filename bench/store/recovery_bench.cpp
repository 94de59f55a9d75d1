// What the snapshot of an unsaved design costs the program, which goes on drawing meanwhile.

#include "store/recovery.h"
#include "support/world.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

/// Has a second pass after each change: the one that sees the change, and the one that writes.
void WriteSnapshot(benchmark::State& state) {
    test::World world;
    Recovery recovery(world.context, world.folder / "state");
    if (state.range(0) != 0) world.SetRows({"Club tag, 25 mm", "brass"});
    int row = 0;
    for ([[maybe_unused]] auto run : state) {
        state.PauseTiming();
        world.main.Pic.surface.Line(10, row, 490, row, black);
        row = (row + 1) % 500;
        recovery.SecondPassed();
        state.ResumeTiming();
        recovery.SecondPassed();
    }
    if (ListFiles(world.folder / "state", "*.pat").size() != 1) state.SkipWithError("no snapshot");
}
BENCHMARK(WriteSnapshot)->ArgName("info_text")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// A second in which nothing changed, with a snapshot that is up to date.
void SecondWithoutAChange(benchmark::State& state) {
    test::World world;
    Recovery recovery(world.context, world.folder / "state");
    world.main.Pic.surface.Line(10, 10, 490, 10, black);
    recovery.SecondPassed();
    recovery.SecondPassed();
    for ([[maybe_unused]] auto run : state)
        recovery.SecondPassed();
}
BENCHMARK(SecondWithoutAChange)->Unit(benchmark::kMicrosecond);

/// The start where nothing was lost.
void LookForLostWork(benchmark::State& state) {
    test::World world;
    fs::create_directories(world.folder / "state");
    Recovery recovery(world.context, world.folder / "state");
    for ([[maybe_unused]] auto run : state)
        recovery.PutBackLostWork();
}
BENCHMARK(LookForLostWork)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
