// Figures for the copies between pictures that a user waits for, on the canvas' own size.

#include "support/block_fonts.h"
#include "surface/device.h"
#include "surface/mirror.h"

#include <benchmark/benchmark.h>
#include <random>

namespace coinlet {
namespace {

constexpr int side = 500;

Image NoisyPicture() {
    std::mt19937 random(1);
    Bitmap bitmap(side, side);
    for (Pixel& pixel : bitmap.Pixels())
        pixel = spareByte | static_cast<Pixel>(random());
    return Image(std::move(bitmap));
}

struct Canvas {
    test::BlockFonts fonts;
    Surface surface{fonts, side, side};
    Image noise = NoisyPicture();
    Canvas() { surface.PaintPicture(noise, 0, 0); }
};

void PaintSameSize(benchmark::State& state) {
    Canvas canvas;
    const auto op = static_cast<RasterOp>(state.range(0));
    for ([[maybe_unused]] auto _ : state)
        canvas.surface.PaintPicture(canvas.noise, 0, 0, op);
}
BENCHMARK(PaintSameSize)
    ->ArgName("op")
    ->Arg(static_cast<int>(SRCCOPY))
    ->Arg(static_cast<int>(SRCAND))
    ->Arg(static_cast<int>(MERGE_NOT_SOURCE))
    ->Unit(benchmark::kMicrosecond);

void PaintStretched(benchmark::State& state) {
    Canvas canvas;
    const auto size = static_cast<double>(state.range(0));
    for ([[maybe_unused]] auto _ : state)
        canvas.surface.PaintPicture(canvas.noise, {0, 0, size, size});
}
BENCHMARK(PaintStretched)->ArgName("side")->Arg(250)->Arg(499)->Unit(benchmark::kMicrosecond);

void TransparentCopy(benchmark::State& state) {
    Canvas canvas;
    Surface source(canvas.fonts, side, side);
    source.PaintPicture(canvas.noise, 0, 0);
    for ([[maybe_unused]] auto _ : state)
        TransparentBlt(canvas.surface.hDC(), 0, 0, side, side, source.hDC(), 0, 0, side, side, white);
}
BENCHMARK(TransparentCopy)->Unit(benchmark::kMicrosecond);

void MirrorLeftToRight(benchmark::State& state) {
    Canvas canvas;
    for ([[maybe_unused]] auto _ : state)
        FlipHorizontal(canvas.surface);
}
BENCHMARK(MirrorLeftToRight)->Unit(benchmark::kMicrosecond);

void MirrorTopToBottom(benchmark::State& state) {
    Canvas canvas;
    for ([[maybe_unused]] auto _ : state)
        FlipVertical(canvas.surface);
}
BENCHMARK(MirrorTopToBottom)->Unit(benchmark::kMicrosecond);

void MirrorOntoItself(benchmark::State& state) {
    Canvas canvas;
    for ([[maybe_unused]] auto _ : state)
        StretchBlt(canvas.surface.hDC(), 0, 0, side, side, canvas.surface.hDC(), side - 1, 0, -side, side,
                   SRCCOPY);
}
BENCHMARK(MirrorOntoItself)->Unit(benchmark::kMicrosecond);

void Gradient(benchmark::State& state) {
    Canvas canvas;
    const std::vector<TRIVERTEX> vertices = {{0, 0, 0xFF00, 0, 0, 0}, {side, side, 0, 0xFF00, 0x8000, 0}};
    const std::vector<GRADIENT_RECT> mesh = {{0, 1}};
    for ([[maybe_unused]] auto _ : state)
        GradientFill(canvas.surface.hDC(), vertices, mesh, static_cast<int>(state.range(0)));
}
BENCHMARK(Gradient)
    ->ArgName("mode")
    ->Arg(GRADIENT_FILL_RECT_H)
    ->Arg(GRADIENT_FILL_RECT_V)
    ->Unit(benchmark::kMicrosecond);

void BufferRoundTrip(benchmark::State& state) {
    Canvas canvas;
    std::vector<std::uint8_t> buffer(std::size_t{4} * side * side);
    for ([[maybe_unused]] auto _ : state) {
        GetDIBits(canvas.surface.hDC(), 0, side, buffer, {side, -side});
        SetDIBits(canvas.surface.hDC(), 0, side, buffer, {side, -side});
    }
}
BENCHMARK(BufferRoundTrip)->Unit(benchmark::kMicrosecond);

void PixelByPixel(benchmark::State& state) {
    Canvas canvas;
    const DeviceContext hDC = canvas.surface.hDC();
    for ([[maybe_unused]] auto _ : state) {
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                SetPixel(hDC, x, y, GetPixel(hDC, x, y) ^ 0xFF);
            }
        }
    }
}
BENCHMARK(PixelByPixel)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
