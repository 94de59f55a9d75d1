// The polygon with the most faces, drawn anew as each control of its dialog does.

#include "designers/polygon_figure.h"
#include "support/block_fonts.h"
#include "surface/surface.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

void DrawPolygon(benchmark::State& state) {
    constexpr int side = 400;
    const test::BlockFonts fonts;
    Surface picture(fonts, side, side);
    picture.DrawWidth = static_cast<int>(state.range(1));
    const PolygonSweep sweep{static_cast<int>(state.range(0)), 0, wholeTurn};
    for ([[maybe_unused]] auto run : state)
        DrawPolygonFigure(picture, sweep, 1.0 / 2);
}
BENCHMARK(DrawPolygon)
    ->ArgNames({"faces", "pen"})
    ->Args({10, 1})
    ->Args({mostSides, 1})
    ->Args({mostSides, 9})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
