// Figures for the turns of the canvas and for the paste that goes row by row, without the events served
// between.

#include "support/block_fonts.h"
#include "surface/device.h"
#include "surface/rotation.h"

#include <benchmark/benchmark.h>
#include <random>

namespace coinlet {
namespace {

constexpr int side = 500;

struct Canvases {
    test::BlockFonts fonts;
    Surface canvas{fonts, side, side}, before{fonts, side, side};
    Canvases() {
        std::mt19937 random(1);
        for (Pixel& pixel : before.WriteAll().Pixels())
            pixel = spareByte | static_cast<Pixel>(random());
    }
};

void RotateLeft90(benchmark::State& state) {
    Canvases pictures;
    for ([[maybe_unused]] auto _ : state) {
        for (int x = 0; x < side; ++x)
            TurnColumnIntoRow(pictures.canvas, side - 1 - x, pictures.before, x);
    }
}
BENCHMARK(RotateLeft90)->Unit(benchmark::kMicrosecond);

void RotateRight45(benchmark::State& state) {
    Canvases pictures;
    for ([[maybe_unused]] auto _ : state) {
        Rotation rotation(pictures.canvas, pictures.before, 45, true);
        for (int x = 0; x <= rotation.LastStep(); ++x)
            rotation.Step(x);
    }
}
BENCHMARK(RotateRight45)->Unit(benchmark::kMicrosecond);

void PasteWithoutBackground(benchmark::State& state) {
    Canvases pictures;
    for ([[maybe_unused]] auto _ : state) {
        for (int y = 0; y < side; ++y)
            TransparentBlt(pictures.canvas.hDC(), 0, y, side, 1, pictures.before.hDC(), 0, y, side, 1, white);
    }
}
BENCHMARK(PasteWithoutBackground)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
