// What every press on the canvas costs before anything is drawn: the undo snapshot, and the copy that follows
// from the first pixel.

#include "support/block_fonts.h"
#include "surface/surface.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

constexpr int side = 500;

void TakeUndoAndDraw(benchmark::State& state) {
    const test::BlockFonts fonts;
    Surface canvas(fonts, side, side), undo(fonts, side, side);
    while (state.KeepRunning()) {
        undo.SetPicture(canvas.Image());
        canvas.PSet(1, 1);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(TakeUndoAndDraw)->Unit(benchmark::kMicrosecond);

void TakeUndoAndRestore(benchmark::State& state) {
    const test::BlockFonts fonts;
    Surface canvas(fonts, side, side), undo(fonts, side, side);
    while (state.KeepRunning()) {
        undo.SetPicture(canvas.Image());
        canvas.PSet(1, 1);
        canvas.SetPicture(undo.Image());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(TakeUndoAndRestore)->Unit(benchmark::kMicrosecond);

void ClearBare(benchmark::State& state) {
    const test::BlockFonts fonts;
    Surface canvas(fonts, side, side);
    while (state.KeepRunning()) {
        canvas.Cls();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(ClearBare)->Unit(benchmark::kMicrosecond);

/// Point by point over the whole picture, through the scale.
void ReadPoints(benchmark::State& state) {
    const test::BlockFonts fonts;
    const Surface canvas(fonts, side, side);
    while (state.KeepRunning()) {
        long long sum = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                sum += canvas.Point(x, y);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(ReadPoints)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
