// A thousand figures on a canvas of the product's size, as a rubber band or a dialog's preview draws them.

#include "support/block_fonts.h"
#include "surface/device.h"
#include "surface/surface.h"

#include <benchmark/benchmark.h>
#include <random>
#include <vector>

namespace coinlet {
namespace {

constexpr int side = 500, middle = side / 2, figureCount = 1000;

struct Canvas {
    test::BlockFonts fonts;
    Surface surface{fonts, side, side};
};

struct Segment {
    int x1, y1, x2, y2;
};

std::vector<Segment> RandomSegments() {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> place(0, side - 1);
    std::vector<Segment> segments(figureCount);
    for (auto& s : segments)
        s = {place(random), place(random), place(random), place(random)};
    return segments;
}

void DrawLines(benchmark::State& state, int width, int mode, int style = solidLine) {
    Canvas canvas;
    canvas.surface.DrawWidth = width;
    canvas.surface.DrawMode = mode;
    canvas.surface.DrawStyle = style;
    const auto segments = RandomSegments();
    while (state.KeepRunning()) {
        for (const auto& s : segments)
            canvas.surface.Line(s.x1, s.y1, s.x2, s.y2);
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(DrawLines, thin, 1, copyPen)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawLines, thin_inverting, 1, invertPen)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawLines, dotted, 1, copyPen, dottedLine)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawLines, width_5, 5, copyPen)->Unit(benchmark::kMicrosecond);

void DrawCircles(benchmark::State& state, int width, double aspect, int fillStyle) {
    Canvas canvas;
    canvas.surface.DrawWidth = width;
    canvas.surface.FillStyle = fillStyle;
    std::mt19937 random(2);
    std::uniform_int_distribution<int> radius(1, middle - 1);
    std::vector<int> radii(figureCount);
    for (auto& r : radii)
        r = radius(random);
    while (state.KeepRunning()) {
        for (const int r : radii)
            canvas.surface.Circle(middle, middle, r, black, {}, aspect);
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(DrawCircles, thin, 1, 1.0, transparentFill)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawCircles, thin_ellipses, 1, 0.5, transparentFill)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawCircles, width_5, 5, 1.0, transparentFill)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawCircles, filled, 1, 1.0, solidFill)->Unit(benchmark::kMicrosecond);

/// Centres anywhere, so that most circles are cut off by an edge.
void DrawClippedCircles(benchmark::State& state) {
    Canvas canvas;
    const auto places = RandomSegments();
    while (state.KeepRunning()) {
        for (const auto& p : places)
            canvas.surface.Circle(p.x1, p.y1, p.x2 * 0.5, black);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DrawClippedCircles)->Unit(benchmark::kMicrosecond);

void DrawArcs(benchmark::State& state) {
    Canvas canvas;
    while (state.KeepRunning()) {
        for (int i = 0; i < figureCount; ++i) {
            canvas.surface.Circle(middle, middle, i % middle, black, ArcAngles{0, 3.14}, 0.8);
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DrawArcs)->Unit(benchmark::kMicrosecond);

void DrawFilledBoxes(benchmark::State& state) {
    Canvas canvas;
    const auto segments = RandomSegments();
    while (state.KeepRunning()) {
        for (const auto& s : segments)
            canvas.surface.Line(s.x1, s.y1, s.x2, s.y2, black, Box::Filled);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DrawFilledBoxes)->Unit(benchmark::kMicrosecond);

void DrawRoundRects(benchmark::State& state) {
    Canvas canvas;
    canvas.surface.DrawWidth = 3;
    const auto segments = RandomSegments();
    while (state.KeepRunning()) {
        for (const auto& s : segments)
            RoundRect(canvas.surface.hDC(), s.x1, s.y1, s.x2, s.y2, 40, 40);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DrawRoundRects)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
