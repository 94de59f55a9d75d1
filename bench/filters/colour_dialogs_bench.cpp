// Figures for what the dialogs that remove and replace colours do to a noisy canvas, without the screen.

#include "filters/colour_palettes.h"
#include "filters/colour_removal.h"
#include "filters/surface_walk.h"
#include "support/block_fonts.h"

#include <benchmark/benchmark.h>
#include <random>
#include <string>
#include <vector>

namespace coinlet {
namespace {

constexpr int side = 500;

/// A noisy canvas, the same each time.
Image Noise() {
    Bitmap bitmap(side, side);
    std::mt19937 noise(1);
    for (Pixel& pixel : bitmap.Pixels())
        pixel = static_cast<Pixel>(noise()) | spareByte;
    return Image(std::move(bitmap));
}

void ByRows(benchmark::State& state, void (*change)(std::span<Pixel> row)) {
    const test::BlockFonts fonts;
    Surface picture(fonts, side, side);
    picture.SetPicture(Noise());
    for ([[maybe_unused]] auto _ : state) {
        for (int y = 0; y < side; ++y)
            change(RowToChange(picture, y, side));
        benchmark::ClobberMemory();
    }
}

void ByColumns(benchmark::State& state) {
    const test::BlockFonts fonts;
    Surface source(fonts, side, side), picture(fonts, side, side);
    source.SetPicture(Noise());
    std::vector<Pixel> column;
    const ColourPalette& palette = colourPalettes[2];
    const PaletteTargets targets(palette.targets);
    for ([[maybe_unused]] auto _ : state) {
        for (int x = 0; x < side; ++x) {
            ReadColumn(source, x, column);
            targets.Replace(column, palette.results);
            WriteColumn(picture, x, column);
        }
        benchmark::ClobberMemory();
    }
}

BENCHMARK_CAPTURE(ByRows, WipeColour, [](std::span<Pixel> row) { WipeColour(row, RGB(1, 2, 3)); });
BENCHMARK_CAPTURE(ByRows, WipeOtherColours,
                  [](std::span<Pixel> row) { WipeOtherColours(row, RGB(1, 2, 3)); });
BENCHMARK_CAPTURE(ByRows, WipeHues, WipeHues);
BENCHMARK_CAPTURE(ByRows, BlackAndWhite, [](std::span<Pixel> row) { MakeBlackAndWhite(row, 40); });
BENCHMARK_CAPTURE(ByRows, ClearChannel, [](std::span<Pixel> row) { ClearChannel(row, Channel::Green); });
BENCHMARK_CAPTURE(ByRows, Metal, [](std::span<Pixel> row) { ReplaceDarkPixels(row, Metal::Gold); });
BENCHMARK(ByColumns)->Name("ByColumns/Palette");

}  // namespace
}  // namespace coinlet
